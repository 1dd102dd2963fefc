#include "ServerBar.h"

#include "Icons.h"

#include "../core/Session.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>

namespace explorer {

ServerBar::ServerBar(Session& session, QWidget* pParent)
    : QWidget(pParent), m_session(session), m_pServers(new QComboBox), m_pAddress(new QLabel),
      m_pEmulator(new QPushButton)
{
    m_pServers->setObjectName(QStringLiteral("servers"));
    constexpr int kWidth = 220;
    m_pServers->setMinimumWidth(kWidth);
    m_pServers->setMaximumWidth(2 * kWidth);
    m_pServers->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    auto* const pLabel = new QLabel(tr("Server"));
    pLabel->setBuddy(m_pServers);
    m_pAddress->setObjectName(QStringLiteral("serverAddress"));
    m_pAddress->setForegroundRole(QPalette::PlaceholderText);
    m_pAddress->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pEmulator->setObjectName(QStringLiteral("emulator"));
    auto* const pEdit = new QPushButton(Icon("servers"), tr("Servers…"));
    pEdit->setObjectName(QStringLiteral("editServers"));
    connect(pEdit, &QPushButton::clicked, this, &ServerBar::EditRequested);
    connect(m_pEmulator, &QPushButton::clicked, this, &ServerBar::ToggleEmulator);
    connect(m_pServers, qOverload<int>(&QComboBox::activated), &session.servers, &Servers::SetCurrent);
    connect(&session.servers, &Servers::Changed, this, &ServerBar::ShowServers);
    connect(&session.emulator, &EmulatorProcess::StateChanged, this, &ServerBar::ShowState);

    auto* const pLayout = new QHBoxLayout(this);
    pLayout->setContentsMargins(12, 8, 12, 8);
    pLayout->setSpacing(8);
    pLayout->addWidget(pLabel);
    pLayout->addWidget(m_pServers);
    pLayout->addWidget(pEdit);
    pLayout->addSpacing(8);
    pLayout->addWidget(m_pAddress);
    pLayout->addStretch();
    pLayout->addWidget(m_pEmulator);
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
