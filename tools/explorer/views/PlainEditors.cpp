#include "PlainEditors.h"

#include "NumberBox.h"
#include "Theme.h"
#include "TintedLabel.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QVBoxLayout>

namespace explorer {
namespace {

QHBoxLayout* MarginlessRow(QWidget* pWidget)
{
    auto* pRow = new QHBoxLayout(pWidget);
    pRow->setContentsMargins(0, 0, 0, 0);
    return pRow;
}

void Name(QWidget* pWidget, const QString& name)
{
    pWidget->setObjectName(name);
    pWidget->setAccessibleName(name);
}

}  // namespace

BoolEditor::BoolEditor(const QString& name, QWidget* pParent) : ValueEditor(pParent), m_pBox(new QCheckBox)
{
    Name(m_pBox, name);
    QHBoxLayout* pRow = MarginlessRow(this);
    pRow->addWidget(m_pBox);
    pRow->addStretch();
    connect(m_pBox, &QCheckBox::toggled, this, &BoolEditor::Changed);
}

nlohmann::json BoolEditor::Value() const
{
    return m_pBox->isChecked();
}

void BoolEditor::SetValue(const nlohmann::json& value)
{
    m_pBox->setChecked(value.get<bool>());
}

QList<QWidget*> BoolEditor::TabStops() const
{
    return {m_pBox};
}

TextEditor::TextEditor(const QString& name, QWidget* pParent) : ValueEditor(pParent), m_pEdit(new QLineEdit)
{
    Name(m_pEdit, name);
    MarginlessRow(this)->addWidget(m_pEdit);
    connect(m_pEdit, &QLineEdit::textChanged, this, &TextEditor::Changed);
}

nlohmann::json TextEditor::Value() const
{
    return m_pEdit->text().toStdString();
}

void TextEditor::SetValue(const nlohmann::json& value)
{
    m_pEdit->setText(QString::fromStdString(value.get_ref<const std::string&>()));
    m_pEdit->setCursorPosition(0);
}

QList<QWidget*> TextEditor::TabStops() const
{
    return {m_pEdit};
}

NumberEditor::NumberEditor(catalogue::Kind kind, const QString& name, QWidget* pParent)
    : ValueEditor(pParent), m_pBox(new NumberBox(kind)), m_pProblem(new TintedLabel(theme::Error))
{
    Name(m_pBox, name);
    m_pProblem->setObjectName(name + QLatin1String(".problem"));
    m_pProblem->setWordWrap(false);
    m_pProblem->hide();
    auto* pColumn = new QVBoxLayout(this);
    pColumn->setContentsMargins(0, 0, 0, 0);
    pColumn->setSpacing(2);
    pColumn->addWidget(m_pBox, 0, Qt::AlignLeft);
    pColumn->addWidget(m_pProblem);
    connect(m_pBox, &NumberBox::Changed, this, [this] {
        const QString problem = m_pBox->Problem();
        m_pProblem->setText(problem);
        m_pProblem->setVisible(!problem.isEmpty());
        emit Changed();
    });
}

nlohmann::json NumberEditor::Value() const
{
    return m_pBox->Value();
}

void NumberEditor::SetValue(const nlohmann::json& value)
{
    m_pBox->SetValue(value);
}

bool NumberEditor::IsValid() const
{
    return m_pBox->Problem().isEmpty();
}

QList<QWidget*> NumberEditor::TabStops() const
{
    return {m_pBox};
}

}  // namespace explorer
