#include "ArgumentForm.h"

#include "Json.h"
#include "JsonHighlighter.h"
#include "NameLabel.h"
#include "PlainEditors.h"
#include "RecordEditor.h"
#include "Theme.h"
#include "TintedLabel.h"
#include "Widgets.h"

#include <catalogue/Call.h>

#include <QClipboard>
#include <QFormLayout>
#include <QGuiApplication>
#include <QJsonDocument>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>

#include <algorithm>

namespace explorer {
namespace {

using catalogue::Argument;
using nlohmann::json;

QPushButton* MakeButton(const QString& text, const QString& tip, const QString& objectName, Qt::Key key)
{
    auto* pButton = new QPushButton(text);
    const QKeySequence shortcut(int(Qt::CTRL) + int(Qt::SHIFT) + int(key));
    pButton->setObjectName(objectName);
    pButton->setShortcut(shortcut);
    pButton->setToolTip(QStringLiteral("%1 (%2)").arg(tip, shortcut.toString(QKeySequence::NativeText)));
    pButton->setAccessibleName(tip);
    return pButton;
}

}  // namespace

ArgumentForm::ArgumentForm(QWidget* pParent)
    : QWidget(pParent), m_pRead(Named(new QPushButton(tr("Fill fro&m the server")), "fillFromServer")),
      m_pArea(new QScrollArea), m_pJson(Named(new QPlainTextEdit, "argumentsJson")),
      m_pCopy(MakeButton(tr("Copy"), tr("Copy as JSON"), QStringLiteral("copyArguments"), Qt::Key_C)),
      m_pPaste(MakeButton(tr("Paste"), tr("Paste JSON"), QStringLiteral("pasteArguments"), Qt::Key_V)),
      m_pAsJson(MakeButton(QStringLiteral("JSON"), tr("Edit as JSON"), QStringLiteral("argumentsAsJson"), Qt::Key_J)),
      m_pProblem(Named(new TintedLabel(theme::Error), "pasteProblem"))
{
    m_pRead->hide();
    m_pArea->setWidgetResizable(true);
    m_pArea->setFrameShape(QFrame::NoFrame);
    m_pJson->setAccessibleName(tr("Arguments as JSON"));
    m_pJson->setFont(theme::FixedFont());
    m_pJson->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_pJson->setTabChangesFocus(true);
    m_pJson->hide();
    new JsonHighlighter(*m_pJson);
    m_pAsJson->setCheckable(true);
    m_pProblem->hide();

    Column({{m_pRead, 0, Qt::AlignLeft},
            {m_pArea, 1},
            {m_pJson, 1},
            m_pProblem,
            Row({m_pCopy, m_pPaste, m_pAsJson, Stretch()})},
           this);

    connect(m_pRead, &QPushButton::clicked, this, &ArgumentForm::ReadRequested);
    connect(m_pCopy, &QPushButton::clicked, this, &ArgumentForm::Copy);
    connect(m_pPaste, &QPushButton::clicked, this, &ArgumentForm::Paste);
    connect(m_pAsJson, &QPushButton::toggled, this, &ArgumentForm::ShowJson);
    connect(m_pJson, &QPlainTextEdit::textChanged, this, &ArgumentForm::TakeJson);
    ShowHint(tr("Choose a call to see its arguments here."));
}

void ArgumentForm::SetCall(const catalogue::Call& call)
{
    m_pCall = &call;
    m_editors.clear();
    m_pProblem->hide();
    if (call.arguments.empty()) {
        ShowHint(tr("This call takes no arguments."));
        emit Changed();
        return;
    }

    auto* pContent = new QWidget;
    QFormLayout* pForm = MakeForm(pContent);
    constexpr int kRoomForTheScrollBar = 6;
    pForm->setContentsMargins(0, 0, kRoomForTheScrollBar, 0);
    for (const Argument& argument : call.arguments) {
        std::string name(argument.name);
        ValueEditor* pEditor = AddMember(pForm, *argument.type, QString::fromStdString(name));
        pEditor->SetValue(catalogue::Value(*argument.type).ToJson(), Origin::Unseen);
        connect(pEditor, &ValueEditor::Changed, this, &ArgumentForm::OnChanged);
        connect(pEditor, &ValueEditor::Rearranged, this, &ArgumentForm::OrderTabs);
        connect(pEditor, &ValueEditor::Rearranged, this, &ArgumentForm::ShowFacts);
        m_editors.emplace_back(std::move(name), pEditor);
    }
    FillArea(pContent);
    OrderTabs();
    OnChanged();
}

void ArgumentForm::Describe(const FactsByName& facts, const Completions& completions)
{
    m_facts = facts;
    m_completions = completions;
    ShowFacts();
    ShowButtons();
    emit Changed();
}

void ArgumentForm::ShowFacts()
{
    const auto factsOf = [this](const QWidget* pWidget, const QString& name) {
        auto found = m_facts.constFind(name);
        for (const QWidget* pAround = pWidget->parentWidget(); pAround != m_pArea; pAround = pAround->parentWidget()) {
            const auto inside = m_facts.constFind(pAround->accessibleName() + QLatin1Char('/') + name);
            found = inside != m_facts.cend() ? inside : found;
        }
        return found != m_facts.cend() ? *found : FieldFacts();
    };
    const QList<NameLabel*> labels = m_pArea->findChildren<NameLabel*>();
    for (NameLabel* pLabel : labels) {
        pLabel->Describe(factsOf(pLabel, pLabel->accessibleName()));
    }
    const QList<CheckedEditor*> editors = m_pArea->findChildren<CheckedEditor*>();
    for (CheckedEditor* pEditor : editors) {
        pEditor->SetFacts(factsOf(pEditor, pEditor->Name()),
                          m_completions ? m_completions(pEditor->Name()) : QVector<Completion>());
    }
}

Unentered ArgumentForm::NotEntered() const
{
    Unentered unentered;
    for (const auto& [name, pEditor] : m_editors) {
        pEditor->Collect("/" + name, unentered);
    }
    return unentered;
}

void ArgumentForm::OfferRead(const QString& name)
{
    m_pRead->setVisible(!name.isEmpty());
    m_pRead->setToolTip(tr("Runs %1 and fills in its result").arg(name));
}

QJsonObject ArgumentForm::Arguments() const
{
    json arguments = json::object();
    for (const auto& [name, pEditor] : m_editors) {
        arguments[name] = pEditor->Value();
    }
    return ToQt(arguments);
}

void ArgumentForm::SetArguments(const QJsonObject& arguments, Origin origin)
{
    for (const auto& [name, pEditor] : m_editors) {
        const auto given = arguments.constFind(QString::fromStdString(name));
        if (given == arguments.constEnd()) {
            continue;
        }
        catalogue::Value value(*m_pCall->FindArgument(name)->type);
        try {
            value.Assign(FromQt(*given), "/" + name);
            pEditor->SetValue(value.ToJson(), origin);
        } catch (const catalogue::Mismatch&) {
            continue;  // may be from an older version of the call
        }
    }
}

bool ArgumentForm::IsValid() const
{
    return m_pCall != nullptr && m_bJsonFits &&
           std::all_of(m_editors.begin(), m_editors.end(), [](const auto& editor) { return editor.second->IsValid(); });
}

void ArgumentForm::Copy()
{
    QGuiApplication::clipboard()->setText(JsonText(FromQt(Arguments())));
}

void ArgumentForm::Paste()
{
    Take(QGuiApplication::clipboard()->text(), tr("Cannot paste the clipboard: %1"));
}

bool ArgumentForm::Take(const QString& text, const QString& problem)
{
    m_pProblem->hide();
    QJsonParseError error{};
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    try {
        if (error.error != QJsonParseError::NoError) {
            throw catalogue::Mismatch(
                tr("not valid JSON: %1 at byte %2").arg(error.errorString()).arg(error.offset).toStdString());
        }
        const json given = document.isArray() ? json::array() : FromQt(document.object());
        const std::vector<catalogue::Value> values = ReadArguments(*m_pCall, given);
        for (std::size_t index = 0; index < values.size(); ++index) {
            m_editors[index].second->SetValue(values[index].ToJson(), Origin::Entered);
        }
        return true;
    } catch (const catalogue::Mismatch& mismatch) {
        m_pProblem->setText(problem.arg(QString::fromUtf8(mismatch.what())));
        m_pProblem->show();
        return false;
    }
}

void ArgumentForm::TakeJson()
{
    m_bTakesJson = true;  // keeps the text as typed
    m_bJsonFits = Take(m_pJson->toPlainText(), tr("Invalid arguments: %1"));
    m_bTakesJson = false;
    if (m_bJsonFits) {
        ShowRefusal();
    }
    ShowButtons();
    emit Changed();
}

/// The types are right, but the server would refuse a value.
void ArgumentForm::ShowRefusal()
{
    const QList<CheckedEditor*> editors = m_pArea->findChildren<CheckedEditor*>();
    for (const CheckedEditor* pEditor : editors) {
        if (!pEditor->IsValid()) {
            m_pProblem->setText(QStringLiteral("%1: %2").arg(pEditor->Name(), pEditor->Problem()));
            m_pProblem->show();
            return;
        }
    }
}

void ArgumentForm::ShowJson()
{
    const bool isShown = m_pAsJson->isChecked() && !m_editors.empty();
    m_bJsonFits = true;
    if (isShown) {
        const QSignalBlocker blocker(m_pJson);
        m_pJson->setPlainText(JsonText(FromQt(Arguments())));
    }
    m_pJson->setVisible(isShown);
    m_pArea->setVisible(!isShown);
    ShowButtons();
}

void ArgumentForm::ShowButtons()
{
    m_pCopy->setEnabled(!m_editors.empty() && IsValid());
    m_pPaste->setEnabled(!m_editors.empty());
    m_pAsJson->setEnabled(!m_editors.empty() && IsValid());
}

void ArgumentForm::ShowHint(const QString& text)
{
    FillArea(MakeHint(text));
    ShowJson();
}

void ArgumentForm::FillArea(QWidget* pContent)
{
    // The old content may be the sender of the current signal.
    if (QWidget* pOld = m_pArea->takeWidget()) {
        pOld->deleteLater();
    }
    m_pArea->setWidget(pContent);
}

void ArgumentForm::OnChanged()
{
    m_pProblem->hide();
    if (m_bTakesJson) {
        return;  // reports it once
    }
    ShowJson();
    emit Changed();
}

void ArgumentForm::OrderTabs()
{
    QList<QWidget*> stops{m_pRead, m_pArea};
    for (const auto& [name, pEditor] : m_editors) {
        stops += pEditor->TabStops();
    }
    stops << m_pJson << m_pCopy << m_pPaste << m_pAsJson;
    for (int index = 1; index < stops.size(); ++index) {
        setTabOrder(stops[index - 1], stops[index]);
    }
}

}  // namespace explorer
