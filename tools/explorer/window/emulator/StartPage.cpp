#include "StartPage.h"

#include "../../core/Session.h"
#include "../../views/Theme.h"
#include "../../views/TintedLabel.h"
#include "../../views/Widgets.h"

#include <QFileDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

namespace explorer {

StartPage::StartPage(Session& session, QWidget* pParent)
    : QWidget(pParent), m_session(session), m_pScale(Named(new QSpinBox, "emulatorScale")),
      m_pSeed(Named(new QLineEdit, "emulatorSeed")), m_pRestart(Named(new QPushButton, "restartEmulator")),
      m_pAddresses(Named(new TintedLabel(theme::Hint), "emulatorAddresses")),
      m_pProblem(Named(new TintedLabel(theme::Error), "emulatorProblem"))
{
    constexpr int kLargestScale = 10000;
    m_pScale->setRange(1, kLargestScale);
    m_pScale->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    m_pScale->setValue(session.emulator.Options().scale);
    m_pScale->setToolTip(tr("Multiplies the length of the seeded lists"));
    m_pSeed->setPlaceholderText(tr("The built-in seed data"));
    m_pSeed->setClearButtonEnabled(true);
    m_pSeed->setText(session.emulator.Options().seedFolder);
    auto* const pBrowse = new QPushButton(tr("Cho&ose…"));
    m_pAddresses->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_pProblem->setWordWrap(true);
    connect(m_pScale, qOverload<int>(&QSpinBox::valueChanged), this, &StartPage::Keep);
    connect(m_pSeed, &QLineEdit::textChanged, this, &StartPage::Keep);
    connect(pBrowse, &QPushButton::clicked, this, &StartPage::Browse);
    connect(m_pRestart, &QPushButton::clicked, &session.emulator, &EmulatorProcess::Restart);
    connect(&session.emulator, &EmulatorProcess::StateChanged, this, &StartPage::Update);
    connect(&session.emulator, &EmulatorProcess::Failed, m_pProblem, &QLabel::setText);

    auto* const pLayout = new QGridLayout(this);
    pLayout->addWidget(LabelFor(m_pScale, tr("Scale")), 0, 0);
    pLayout->addWidget(m_pScale, 0, 1, Qt::AlignLeft);
    pLayout->addWidget(LabelFor(m_pSeed, tr("Seed folder")), 1, 0);
    pLayout->addWidget(m_pSeed, 1, 1);
    pLayout->addWidget(pBrowse, 1, 2);
    pLayout->addWidget(m_pRestart, 2, 1, Qt::AlignLeft);
    pLayout->addWidget(m_pAddresses, 3, 1, 1, 2);
    pLayout->addWidget(m_pProblem, 4, 1, 1, 2);
    pLayout->setRowStretch(5, 1);
    pLayout->setColumnStretch(1, 1);
    Update();
}

void StartPage::Browse()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("Folder of the seed data"), m_pSeed->text());
    if (!folder.isEmpty()) {
        m_pSeed->setText(folder);
    }
}

void StartPage::Keep()
{
    m_session.SetEmulatorOptions({m_pScale->value(), m_pSeed->text()});
}

void StartPage::Update()
{
    const EmulatorProcess& emulator = m_session.emulator;
    const bool isRunning = emulator.GetState() == EmulatorProcess::Running;
    m_pRestart->setText(isRunning ? tr("Restar&t with these settings") : tr("Star&t with these settings"));
    m_pRestart->setEnabled(emulator.GetState() != EmulatorProcess::Starting);
    m_pAddresses->setText(isRunning ? QStringLiteral("http://127.0.0.1:%1\nhttps://127.0.0.1:%2")
                                          .arg(emulator.HttpPort())
                                          .arg(emulator.HttpsPort())
                                    : QString());
    if (emulator.GetState() != EmulatorProcess::Stopped) {
        m_pProblem->clear();
    }
}

}  // namespace explorer
