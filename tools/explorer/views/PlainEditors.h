#pragma once

#include "ValueEditor.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace explorer {

class NumberBox;

class BoolEditor : public ValueEditor {
    Q_OBJECT

public:
    BoolEditor(const QString& name, QWidget* pParent);

    [[nodiscard]] nlohmann::json Value() const override;
    void SetValue(const nlohmann::json& value) override;
    [[nodiscard]] bool IsValid() const override { return true; }
    [[nodiscard]] QList<QWidget*> TabStops() const override;

private:
    QCheckBox* m_pBox;
};

class TextEditor : public ValueEditor {
    Q_OBJECT

public:
    TextEditor(const QString& name, QWidget* pParent);

    [[nodiscard]] nlohmann::json Value() const override;
    void SetValue(const nlohmann::json& value) override;
    [[nodiscard]] bool IsValid() const override { return true; }
    [[nodiscard]] QList<QWidget*> TabStops() const override;

private:
    QLineEdit* m_pEdit;
};

/// Says beside the field what is wrong with the number.
class NumberEditor : public ValueEditor {
    Q_OBJECT

public:
    NumberEditor(catalogue::Kind kind, const QString& name, QWidget* pParent);

    [[nodiscard]] nlohmann::json Value() const override;
    void SetValue(const nlohmann::json& value) override;
    [[nodiscard]] bool IsValid() const override;
    [[nodiscard]] QList<QWidget*> TabStops() const override;

private:
    NumberBox* m_pBox;
    QLabel* m_pProblem;
};

}  // namespace explorer
