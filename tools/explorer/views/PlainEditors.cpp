#include "PlainEditors.h"

#include "Limits.h"
#include "Theme.h"
#include "TintedLabel.h"
#include "Widgets.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStandardItemModel>

namespace explorer {
namespace {

constexpr int kValueRole = Qt::UserRole;

/// Completes a value from any part of the value or its meaning.
class Completer : public QCompleter {
public:
    Completer(const QVector<Completion>& completions, QObject* pParent) : QCompleter(pParent)
    {
        auto* const pModel = new QStandardItemModel(this);
        for (const Completion& completion : completions) {
            const QString between = completion.meaning.isEmpty() ? QString() : QStringLiteral("  \u00b7  ");
            auto* const pItem = new QStandardItem(completion.value + between + completion.meaning);
            pItem->setData(completion.value, kValueRole);
            pModel->appendRow(pItem);
        }
        setModel(pModel);
        setCompletionRole(Qt::DisplayRole);
        setFilterMode(Qt::MatchContains);
        setCaseSensitivity(Qt::CaseInsensitive);
    }

    [[nodiscard]] QString pathFromIndex(const QModelIndex& index) const override
    {
        return index.data(kValueRole).toString();
    }
};

}  // namespace

void PlainEditor::SetField(QWidget* pField, const QString& name)
{
    m_pField = pField;
    pField->setObjectName(name);
    pField->setAccessibleName(name);
}

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
    SetField(pField, m_name);
    m_pLine->installEventFilter(this);
    auto* const pColumn = Column({Row({{pField, 1, alignment}, m_pLimits}), m_pProblem}, this);
    pColumn->setContentsMargins(0, 0, 0, 0);
    pColumn->setSpacing(2);
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

}  // namespace explorer
