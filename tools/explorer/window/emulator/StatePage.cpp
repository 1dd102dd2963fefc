#include "StatePage.h"

#include "../../core/EmulatorControl.h"
#include "../../core/MergePatch.h"
#include "../../views/Json.h"
#include "../../views/JsonHighlighter.h"
#include "../../views/Theme.h"
#include "../../views/TintedLabel.h"
#include "../../views/Widgets.h"

#include <QComboBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include <algorithm>

namespace explorer {
namespace {

using nlohmann::json;

constexpr int kLongestText = 2'000'000;

json::json_pointer PlaceOf(const QString& part)
{
    return json::json_pointer(part.toStdString());
}

QString LineOf(const std::string& text, std::size_t byte)
{
    const auto end = text.begin() + std::ptrdiff_t(std::min(byte, text.size()));
    return QString::number(std::count(text.begin(), end, '\n') + 1);
}

}  // namespace

StatePage::StatePage(EmulatorControl& control, QWidget* pParent)
    : QWidget(pParent), m_control(control), m_pPart(Named(new QComboBox, "statePart")),
      m_pText(Named(new QPlainTextEdit, "stateText")), m_pApply(Named(new QPushButton(tr("A&pply")), "applyState")),
      m_pProblem(Named(new TintedLabel(theme::Error), "stateProblem")),
      m_pMessage(Named(new TintedLabel(theme::Hint), "stateMessage"))
{
    m_pPart->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    constexpr int kShown = 20;
    m_pPart->setMaxVisibleItems(kShown);
    m_pText->setAccessibleName(tr("State"));
    m_pText->setFont(theme::FixedFont());
    m_pText->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_pText->setTabChangesFocus(true);
    constexpr int kLowest = 80;
    m_pText->setMinimumHeight(kLowest);
    new JsonHighlighter(*m_pText);
    m_pApply->setToolTip(tr("Applies your changes as a JSON merge patch"));
    auto* const pReload = Named(new QPushButton(tr("Re&load")), "reloadState");
    pReload->setToolTip(tr("Shows the current state; unapplied changes are lost"));
    auto* const pReset = Named(new QPushButton(tr("Rese&t")), "resetState");
    pReset->setToolTip(tr("Restores the seed data"));
    for (QLabel* pLabel : {m_pProblem, m_pMessage}) {
        pLabel->setWordWrap(true);
        pLabel->hide();
    }
    connect(m_pPart, qOverload<int>(&QComboBox::currentIndexChanged), this, &StatePage::ShowPart);
    connect(m_pText, &QPlainTextEdit::textChanged, this, [this] { m_pApply->setEnabled(true); });
    connect(m_pApply, &QPushButton::clicked, this, &StatePage::Apply);
    connect(pReload, &QPushButton::clicked, this, &StatePage::Load);
    connect(pReset, &QPushButton::clicked, this, &StatePage::Reset);

    Column({Row({LabelFor(m_pPart, tr("Part")), {m_pPart, 1}, pReload, pReset}),
            {m_pText, 1},
            Row({{m_pProblem, 1}, {m_pMessage, 1}, Stretch(), m_pApply})},
           this);
    Clear();
}

void StatePage::Clear()
{
    m_bLoaded = false;
    m_state = nullptr;
    m_pText->clear();
    m_pText->setReadOnly(true);
    m_pApply->setEnabled(false);
    ShowMessage(QString());
}

void StatePage::LoadOnce()
{
    if (!m_bLoaded) {
        Load();
    }
}

void StatePage::Load()
{
    m_bLoaded = true;
    m_control.Ask("GET", QStringLiteral("state"), nullptr, this, [this](const ControlReply& reply) {
        if (!reply.error.isEmpty()) {
            ShowProblem(reply.error);
            return;
        }
        m_state = reply.body;
        ShowParts();
        ShowPart();
    });
}

/// Lists the families and their members, and keeps the selection.
void StatePage::ShowParts()
{
    const QSignalBlocker blocker(m_pPart);
    const QString chosen = m_pPart->currentData().toString();
    m_pPart->clear();
    m_pPart->addItem(tr("All"), QString());
    const auto add = [this](const json::json_pointer& place, const QString& name) {
        m_pPart->addItem(name, QString::fromStdString(place.to_string()));
    };
    for (const auto& family : m_state.items()) {
        const QString familyName = QString::fromStdString(family.key());
        const json::json_pointer place = json::json_pointer() / family.key();
        add(place, familyName);
        if (family.value().is_object()) {
            for (const auto& member : family.value().items()) {
                add(place / member.key(),
                    familyName + QStringLiteral(" \u00b7 ") + QString::fromStdString(member.key()));
            }
        }
    }
    m_pPart->setCurrentIndex(qMax(0, m_pPart->findData(chosen)));
}

void StatePage::ShowPart()
{
    const QString part = m_pPart->currentData().toString();
    const QString text = m_state.is_null() ? QString() : JsonText(m_state.at(PlaceOf(part)));
    const bool fits = text.size() <= kLongestText;
    m_pText->setPlainText(fits ? text : QString());
    m_pText->setReadOnly(!fits || text.isEmpty());
    m_pApply->setEnabled(false);
    ShowMessage(QString());
    if (!fits) {
        ShowProblem(tr("This part is too long to edit. Choose a smaller one."));
    }
}

void StatePage::Apply()
{
    const std::string text = m_pText->toPlainText().toStdString();
    json edited;
    try {
        edited = json::parse(text);
    } catch (const json::parse_error& error) {
        ShowProblem(tr("Line %1 is not JSON.").arg(LineOf(text, error.byte > 0 ? error.byte - 1 : 0)));
        return;
    }
    json::json_pointer place = PlaceOf(m_pPart->currentData().toString());
    std::optional<json> patch = MergePatch(m_state.at(place), edited);
    if (!patch) {
        ShowProblem(tr("A merge patch cannot make a member null."));
        return;
    }
    for (; !place.empty(); place.pop_back()) {
        patch = json{{place.back(), *std::move(patch)}};
    }
    m_control.Ask("PUT", QStringLiteral("state"), *patch, this,
                  [this](const ControlReply& reply) { Applied(reply, tr("The state was changed.")); });
}

void StatePage::Reset()
{
    m_control.Ask("POST", QStringLiteral("reset"), nullptr, this,
                  [this](const ControlReply& reply) { Applied(reply, tr("The seed data was restored.")); });
}

void StatePage::Applied(const ControlReply& reply, const QString& success)
{
    if (!reply.error.isEmpty()) {
        ShowProblem(tr("The emulator rejected the change: %1").arg(reply.error));
        return;
    }
    m_control.Ask("GET", QStringLiteral("state"), nullptr, this, [this, success](const ControlReply& state) {
        if (state.error.isEmpty()) {
            m_state = state.body;
            ShowParts();
            ShowPart();
            ShowMessage(success);
        } else {
            ShowProblem(state.error);
        }
    });
}

void StatePage::ShowProblem(const QString& text)
{
    m_pMessage->hide();
    m_pProblem->setText(text);
    m_pProblem->show();
}

void StatePage::ShowMessage(const QString& text)
{
    m_pProblem->hide();
    m_pMessage->setText(text);
    m_pMessage->setVisible(!text.isEmpty());
}

}  // namespace explorer
