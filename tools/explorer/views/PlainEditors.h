#pragma once

#include "ValueEditor.h"

#include <explorer/FieldFacts.h>

class QLabel;
class QLineEdit;

namespace explorer {

/// Edits a value in one field.
class PlainEditor : public ValueEditor {
    Q_OBJECT

public:
    using ValueEditor::ValueEditor;

    void SetValue(const nlohmann::json& value, Origin origin) override;
    void Collect(const std::string& place, Unentered& unentered) const override;
    [[nodiscard]] QList<QWidget*> TabStops() const override { return {m_pField}; }

protected:
    void SetField(QWidget* pField, const QString& name);
    virtual void Put(const nlohmann::json& value) = 0;
    /// The value of the field has changed.
    void Edited();

private:
    QWidget* m_pField = nullptr;
    bool m_bEntered = false;
    bool m_bPuts = false;
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

}  // namespace explorer
