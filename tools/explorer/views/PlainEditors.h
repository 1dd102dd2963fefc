#pragma once

#include "ValueEditor.h"

#include <explorer/FieldFacts.h>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace explorer {

class NumberBox;

/// Edits a value in one field.
class PlainEditor : public ValueEditor {
    Q_OBJECT

public:
    using ValueEditor::ValueEditor;

    void SetValue(const nlohmann::json& value, Origin origin) override;
    void Collect(const std::string& place, Unentered& unentered) const override;

protected:
    virtual void Put(const nlohmann::json& value) = 0;
    /// The value of the field has changed.
    void Edited();

private:
    bool m_bEntered = false;
    bool m_bPuts = false;
};

class BoolEditor : public PlainEditor {
    Q_OBJECT

public:
    BoolEditor(const QString& name, QWidget* pParent);

    [[nodiscard]] nlohmann::json Value() const override;
    [[nodiscard]] bool IsValid() const override { return true; }
    [[nodiscard]] QList<QWidget*> TabStops() const override;

protected:
    void Put(const nlohmann::json& value) override;

private:
    QCheckBox* m_pBox;
};

/// A text field whose value the server may refuse. Shows the reason below the field.
class CheckedEditor : public PlainEditor {
    Q_OBJECT

public:
    [[nodiscard]] bool IsValid() const override;
    /// Why the value is invalid; empty if it is valid.
    [[nodiscard]] QString Problem() const;
    [[nodiscard]] QString Name() const { return m_name; }
    /// Shows the facts of the value and checks it against them.
    void SetFacts(const FieldFacts& facts, const QVector<Completion>& completions);

protected:
    CheckedEditor(const QString& name, QWidget* pParent);

    /// The field and its line edit.
    void Show(QWidget* pField, QLineEdit* pLine, Qt::Alignment alignment);
    void TextEdited();
    /// Why the text is invalid regardless of the facts; empty if it is valid.
    [[nodiscard]] virtual QString OwnProblem() const { return {}; }

private:
    void ShowProblem();
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

    const QString m_name;
    FieldFacts m_facts;
    QLineEdit* m_pLine = nullptr;
    QLabel* m_pLimits;
    QLabel* m_pProblem;
};

class TextEditor : public CheckedEditor {
    Q_OBJECT

public:
    TextEditor(const QString& name, QWidget* pParent);

    [[nodiscard]] nlohmann::json Value() const override;
    [[nodiscard]] QList<QWidget*> TabStops() const override;

protected:
    void Put(const nlohmann::json& value) override;

private:
    QLineEdit* m_pEdit;
};

class NumberEditor : public CheckedEditor {
    Q_OBJECT

public:
    NumberEditor(catalogue::Kind kind, const QString& name, QWidget* pParent);

    [[nodiscard]] nlohmann::json Value() const override;
    [[nodiscard]] QList<QWidget*> TabStops() const override;

protected:
    void Put(const nlohmann::json& value) override;
    [[nodiscard]] QString OwnProblem() const override;

private:
    NumberBox* m_pBox;
};

}  // namespace explorer
