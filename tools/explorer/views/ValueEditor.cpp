#include "ValueEditor.h"

#include "ListEditor.h"
#include "NumberBox.h"
#include "PlainEditors.h"
#include "RecordEditor.h"
#include "Widgets.h"

#include <QCheckBox>
#include <QLineEdit>

namespace explorer {

using catalogue::Kind;

namespace {

class BoolEditor : public PlainEditor {
public:
    BoolEditor(const QString& name, QWidget* pParent) : PlainEditor(pParent), m_pBox(new QCheckBox)
    {
        SetField(m_pBox, name);
        Row({m_pBox, Stretch()}, this)->setContentsMargins(0, 0, 0, 0);
        connect(m_pBox, &QCheckBox::toggled, this, &BoolEditor::Edited);
    }

    [[nodiscard]] nlohmann::json Value() const override { return m_pBox->isChecked(); }
    [[nodiscard]] bool IsValid() const override { return true; }

protected:
    void Put(const nlohmann::json& value) override { m_pBox->setChecked(value.get<bool>()); }

private:
    QCheckBox* const m_pBox;
};

class TextEditor : public CheckedEditor {
public:
    TextEditor(const QString& name, QWidget* pParent) : CheckedEditor(name, pParent), m_pEdit(new QLineEdit)
    {
        Show(m_pEdit, m_pEdit, {});
        connect(m_pEdit, &QLineEdit::textChanged, this, &TextEditor::TextEdited);
    }

    [[nodiscard]] nlohmann::json Value() const override { return m_pEdit->text().toStdString(); }

protected:
    void Put(const nlohmann::json& value) override
    {
        m_pEdit->setText(QString::fromStdString(value.get_ref<const std::string&>()));
        m_pEdit->setCursorPosition(0);
    }

private:
    QLineEdit* const m_pEdit;
};

class NumberEditor : public CheckedEditor {
public:
    NumberEditor(Kind kind, const QString& name, QWidget* pParent)
        : CheckedEditor(name, pParent), m_pBox(new NumberBox(kind))
    {
        Show(m_pBox, m_pBox->Line(), Qt::AlignLeft);
        connect(m_pBox, &NumberBox::Changed, this, &NumberEditor::TextEdited);
    }

    [[nodiscard]] nlohmann::json Value() const override { return m_pBox->Value(); }

protected:
    void Put(const nlohmann::json& value) override { m_pBox->SetValue(value); }
    [[nodiscard]] QString OwnProblem() const override { return m_pBox->Problem(); }

private:
    NumberBox* const m_pBox;
};

}  // namespace

ValueEditor* MakeEditor(const catalogue::Type& type, const QString& name, QWidget* pParent)
{
    switch (type.kind) {
    case Kind::Bool:
        return new BoolEditor(name, pParent);
    case Kind::Int:
    case Kind::Int64:
    case Kind::Double:
        return new NumberEditor(type.kind, name, pParent);
    case Kind::Text:
        return new TextEditor(name, pParent);
    case Kind::Record:
        return new RecordEditor(type, pParent);
    case Kind::List:
        return new ListEditor(type, name, pParent);
    }
    return nullptr;
}

}  // namespace explorer
