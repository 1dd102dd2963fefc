#pragma once

#include <QLabel>

namespace explorer {

/// A name such as enableNtpServer. Where it is too long for a line it goes on in the next one, at a capital letter.
class NameLabel : public QLabel {
    Q_OBJECT

public:
    /// @param typeName of the value, shown in the tool tip
    explicit NameLabel(const QString& name, const QString& typeName = QString());

    /// Adds the meaning of the value to the tool tip, and gives it to screen readers at the field.
    void Describe(const QString& description);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    const QString m_typeName;
};

/// The same name with places at which a line may end.
QString Breakable(const QString& name);

}  // namespace explorer
