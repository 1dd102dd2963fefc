#include "ServerBar.h"

#include "Icons.h"

#include "../core/Session.h"
#include "../views/Widgets.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace explorer {

ServerBar::ServerBar(Session& session, QWidget* pParent)
    : QWidget(pParent), m_session(session), m_pServers(Named(new QComboBox, "servers")),
      m_pAddress(Named(new QLabel, "serverAddress")), m_pEmulator(Named(new QPushButton, "emulator"))
{
    constexpr int kWidth = 220;
    m_pServers->setMinimumWidth(kWidth);
    m_pServers->setMaximumWidth(2 * kWidth);
    m_pServers->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    m_pAddress->setForegroundRole(QPalette::PlaceholderText);
    m_pAddress->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* const pEdit = Named(new QPushButton(Icon("servers"), tr("Servers…")), "editServers");
    connect(pEdit, &QPushButton::clicked, this, &ServerBar::EditRequested);
    connect(m_pEmulator, &QPushButton::clicked, this, &ServerBar::ToggleEmulator);
    connect(m_pServers, qOverload<int>(&QComboBox::activated), &session.servers, &Servers::SetCurrent);
    connect(&session.servers, &Servers::Changed, this, &ServerBar::ShowServers);
    connect(&session.emulator, &EmulatorProcess::StateChanged, this, &ServerBar::ShowState);

    auto* const pLayout = Row(
        {LabelFor(m_pServers, tr("Server")), m_pServers, pEdit, Space(8), m_pAddress, Stretch(), m_pEmulator}, this);
    pLayout->setContentsMargins(12, 8, 12, 8);
    pLayout->setSpacing(8);
    ShowServers();
}

void ServerBar::FocusServers()
{
    m_pServers->setFocus(Qt::ShortcutFocusReason);
}

void ServerBar::ShowServers()
{
    const QSignalBlocker blocker(m_pServers);
    m_pServers->clear();
    for (const Server& server : m_session.servers.All()) {
        m_pServers->addItem(server.name);
    }
    m_pServers->setCurrentIndex(m_session.servers.CurrentIndex());
    ShowState();
}

void ServerBar::ShowState()
{
    const EmulatorProcess::State state = m_session.emulator.GetState();
    const bool isRunning = state == EmulatorProcess::Running;
    m_pEmulator->setIcon(Icon(isRunning ? "stop" : "power"));
    m_pEmulator->setText(isRunning ? tr("Stop the emulator") : tr("Start the emulator"));
    m_pEmulator->setEnabled(state != EmulatorProcess::Starting);

    const bool isThere = m_session.IsReady();
    const QString absent =
        state == EmulatorProcess::Starting ? tr("The emulator is starting") : tr("The emulator is not running");
    m_pAddress->setText(isThere ? m_session.servers.Current().Address() : absent);
}

void ServerBar::ToggleEmulator()
{
    if (m_session.emulator.GetState() == EmulatorProcess::Running) {
        m_session.emulator.Stop();
    } else {
        m_session.emulator.Start();
    }
}

}  // namespace explorer
