#pragma once

#include <QLabel>

namespace explorer {

/// A name such as enableNtpServer. Where it is too long for a line it goes on in the next one, at a capital letter.
class NameLabel : public QLabel {
    Q_OBJECT

public:
    explicit NameLabel(const QString& name, QWidget* pParent = nullptr);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;
};

/// The same name with places at which a line may end.
QString Breakable(const QString& name);

}  // namespace explorer
