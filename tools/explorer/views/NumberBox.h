#pragma once

#include <catalogue/Type.h>

#include <nlohmann/json.hpp>

#include <QAbstractSpinBox>

namespace explorer {

/// Edits a number of the catalogue. Keeps any text that is typed; Problem() reports why it is invalid.
class NumberBox : public QAbstractSpinBox {
    Q_OBJECT

public:
    /// @p kind is Int, Int64 or Double.
    explicit NumberBox(catalogue::Kind kind, QWidget* pParent = nullptr);

    /// Empty if the text is a number of the kind.
    [[nodiscard]] QString Problem() const;
    /// The number; 0 while the text is invalid.
    [[nodiscard]] nlohmann::json Value() const;
    void SetValue(const nlohmann::json& value);
    /// The line edit.
    [[nodiscard]] QLineEdit* Line() const { return lineEdit(); }

    void stepBy(int steps) override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

signals:
    void Changed();

protected:
    [[nodiscard]] StepEnabled stepEnabled() const override;
    void wheelEvent(QWheelEvent* pEvent) override;

private:
    [[nodiscard]] QSize SizeFor(const QString& longest) const;
    [[nodiscard]] qint64 Smallest() const;
    [[nodiscard]] qint64 Largest() const;

    const catalogue::Kind m_kind;
};

}  // namespace explorer
