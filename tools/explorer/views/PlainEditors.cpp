#include "PlainEditors.h"

#include "Completer.h"
#include "Limits.h"
#include "NumberBox.h"
#include "Theme.h"
#include "TintedLabel.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QVBoxLayout>

#include <algorithm>

namespace explorer {
namespace {

void SetName(QWidget* pWidget, const QString& name)
{
    pWidget->setObjectName(name);
    pWidget->setAccessibleName(name);
}

}  // namespace

void PlainEditor::SetValue(const nlohmann::json& value, Origin origin)
{
    const bool isEntered = origin == Origin::Known || (origin == Origin::Entered && (m_bEntered || Value() != value));
    m_bPuts = true;
    Put(value);
    m_bPuts = false;
    m_bEntered = isEntered;
}

void PlainEditor::Collect(const std::string& place, Unentered& unentered) const
{
    if (!m_bEntered) {
        unentered.values.push_back(place);
    }
}

void PlainEditor::Edited()
{
    m_bEntered = m_bEntered || !m_bPuts;
    emit Changed();
}

BoolEditor::BoolEditor(const QString& name, QWidget* pParent) : PlainEditor(pParent), m_pBox(new QCheckBox)
{
    SetName(m_pBox, name);
    auto* pRow = new QHBoxLayout(this);
    pRow->setContentsMargins(0, 0, 0, 0);
    pRow->addWidget(m_pBox);
    pRow->addStretch();
    connect(m_pBox, &QCheckBox::toggled, this, &BoolEditor::Edited);
}

nlohmann::json BoolEditor::Value() const
{
    return m_pBox->isChecked();
}

void BoolEditor::Put(const nlohmann::json& value)
{
    m_pBox->setChecked(value.get<bool>());
}

QList<QWidget*> BoolEditor::TabStops() const
{
    return {m_pBox};
}

CheckedEditor::CheckedEditor(const QString& name, QWidget* pParent)
    : PlainEditor(pParent), m_name(name), m_pLimits(new TintedLabel(theme::Hint)),
      m_pProblem(new TintedLabel(theme::Error))
{
    m_pLimits->setObjectName(name + QLatin1String(".limits"));
    m_pLimits->setWordWrap(false);
    m_pLimits->hide();
    m_pProblem->setObjectName(name + QLatin1String(".problem"));
    m_pProblem->setWordWrap(false);
    m_pProblem->hide();
}

void CheckedEditor::Show(QWidget* pField, QLineEdit* pLine, Qt::Alignment alignment)
{
    m_pLine = pLine;
    SetName(pField, m_name);
    m_pLine->installEventFilter(this);
    auto* pRow = new QHBoxLayout;
    pRow->addWidget(pField, 1, alignment);
    pRow->addWidget(m_pLimits);
    auto* pColumn = new QVBoxLayout(this);
    pColumn->setContentsMargins(0, 0, 0, 0);
    pColumn->setSpacing(2);
    pColumn->addLayout(pRow);
    pColumn->addWidget(m_pProblem);
}

void CheckedEditor::SetFacts(const FieldFacts& facts, const QVector<Completion>& completions)
{
    m_facts = facts;
    const QString limits = LimitsText(facts);
    m_pLimits->setText(limits);
    m_pLimits->setVisible(!limits.isEmpty());
    m_pLine->setPlaceholderText(facts.example.isEmpty() ? QString() : tr("e.g. %1").arg(facts.example));
    QVector<Completion> offered = completions;
    for (const QString& value : facts.values) {
        offered.append({value, {}});
    }
    m_pLine->setCompleter(offered.isEmpty() ? nullptr : new Completer(offered, m_pLine));
    ShowProblem();
}

bool CheckedEditor::IsValid() const
{
    return Problem().isEmpty();
}

void CheckedEditor::TextEdited()
{
    ShowProblem();
    Edited();
}

QString CheckedEditor::Problem() const
{
    const QString own = OwnProblem();
    return own.isEmpty() ? LimitProblem(m_facts, m_pLine->text()) : own;
}

void CheckedEditor::ShowProblem()
{
    const QString problem = Problem();
    m_pProblem->setText(problem);
    m_pProblem->setVisible(!problem.isEmpty());
}

/// The Down key lists all known values.
bool CheckedEditor::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    QCompleter* const pCompleter = m_pLine->completer();
    if (pWatched == m_pLine && pEvent->type() == QEvent::KeyPress && pCompleter != nullptr &&
        static_cast<QKeyEvent*>(pEvent)->key() == Qt::Key_Down && !pCompleter->popup()->isVisible()) {
        pCompleter->setCompletionPrefix(QString());
        pCompleter->complete();
        return true;
    }
    return PlainEditor::eventFilter(pWatched, pEvent);
}

TextEditor::TextEditor(const QString& name, QWidget* pParent) : CheckedEditor(name, pParent), m_pEdit(new QLineEdit)
{
    Show(m_pEdit, m_pEdit, {});
    connect(m_pEdit, &QLineEdit::textChanged, this, &TextEditor::TextEdited);
}

nlohmann::json TextEditor::Value() const
{
    return m_pEdit->text().toStdString();
}

void TextEditor::Put(const nlohmann::json& value)
{
    m_pEdit->setText(QString::fromStdString(value.get_ref<const std::string&>()));
    m_pEdit->setCursorPosition(0);
}

QList<QWidget*> TextEditor::TabStops() const
{
    return {m_pEdit};
}

NumberEditor::NumberEditor(catalogue::Kind kind, const QString& name, QWidget* pParent)
    : CheckedEditor(name, pParent), m_pBox(new NumberBox(kind))
{
    Show(m_pBox, m_pBox->Line(), Qt::AlignLeft);
    connect(m_pBox, &NumberBox::Changed, this, &NumberEditor::TextEdited);
}

nlohmann::json NumberEditor::Value() const
{
    return m_pBox->Value();
}

void NumberEditor::Put(const nlohmann::json& value)
{
    m_pBox->SetValue(value);
}

QString NumberEditor::OwnProblem() const
{
    return m_pBox->Problem();
}

QList<QWidget*> NumberEditor::TabStops() const
{
    return {m_pBox};
}

}  // namespace explorer
