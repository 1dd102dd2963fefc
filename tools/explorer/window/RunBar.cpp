#include "RunBar.h"

#include "Icons.h"

#include "../views/Theme.h"
#include "../views/TintedLabel.h"
#include "../views/Widgets.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>

namespace explorer {
namespace {

constexpr const char* kWaitModeKey = "run/way";
constexpr const char* kTimeoutKey = "run/timeoutSeconds";
constexpr int kLongestTimeout = 3600;
constexpr int kLongestTyped = 9999999;  // longer time-outs stay visible and are refused

}  // namespace

RunBar::RunBar(QSettings& settings, QWidget* pParent)
    : QWidget(pParent), m_pRun(Named(new QPushButton(tr("Run")), "run")), m_pWaitMode(Named(new QComboBox, "wait")),
      m_pTimeout(Named(new QSpinBox, "timeout")), m_pState(Named(new QLabel, "runState")),
      m_pProblem(Named(new TintedLabel(theme::Error), "timeoutProblem"))
{
    m_pRun->setToolTip(tr("Run the call (F5)"));
    m_pRun->setDefault(true);
    connect(m_pRun, &QPushButton::clicked, this, &RunBar::RunRequested);

    m_pWaitMode->addItem(tr("Behind the wait dialog"), int(WaitMode::WaitDialog));
    m_pWaitMode->addItem(tr("In the event loop, input allowed"), int(WaitMode::EventLoop));
    m_pWaitMode->addItem(tr("Not at all, several at once"), int(WaitMode::WithoutWaiting));
    m_pWaitMode->setCurrentIndex(qMax(0, m_pWaitMode->findData(settings.value(QLatin1String(kWaitModeKey)).toInt())));
    m_pWaitMode->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);

    m_pTimeout->setRange(0, kLongestTyped);
    m_pTimeout->setSpecialValueText(tr("Call's default"));
    m_pTimeout->setSuffix(tr(" s"));
    m_pTimeout->setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);  // never narrower than its text
    m_pTimeout->setValue(settings.value(QLatin1String(kTimeoutKey), 0).toInt());

    m_pState->setForegroundRole(QPalette::PlaceholderText);
    m_pState->setWordWrap(true);
    m_pProblem->setWordWrap(true);

    // Stored at once, for a window in another language.
    connect(m_pWaitMode, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [&settings, this] { settings.setValue(QLatin1String(kWaitModeKey), int(ChosenWaitMode())); });
    connect(m_pTimeout, qOverload<int>(&QSpinBox::valueChanged), this, [&settings, this](int seconds) {
        if (Problem().isEmpty()) {
            settings.setValue(QLatin1String(kTimeoutKey), seconds);
        }
        Update();
    });

    auto* const pLayout = new QGridLayout(this);
    pLayout->setContentsMargins(0, 0, 0, 0);
    pLayout->setHorizontalSpacing(8);
    pLayout->setColumnStretch(1, 1);
    pLayout->addWidget(LabelFor(m_pWaitMode, tr("&Wait")), 0, 0);
    pLayout->addWidget(m_pWaitMode, 0, 1, 1, 2);
    pLayout->addWidget(LabelFor(m_pTimeout, tr("T&ime-out")), 1, 0);
    pLayout->addWidget(m_pTimeout, 1, 1);
    pLayout->addWidget(m_pRun, 1, 2);
    pLayout->addWidget(m_pState, 2, 0, 1, 3);
    pLayout->addWidget(m_pProblem, 2, 0, 1, 3);  // replaces the state
    QSizePolicy kept = m_pState->sizePolicy();
    kept.setRetainSizeWhenHidden(true);  // so that nothing moves under the mouse
    m_pState->setSizePolicy(kept);
    Update();
    setTabOrder(m_pWaitMode, m_pTimeout);
    setTabOrder(m_pTimeout, m_pRun);
}

WaitMode RunBar::ChosenWaitMode() const
{
    return WaitMode(m_pWaitMode->currentData().toInt());
}

std::optional<int> RunBar::TimeoutSeconds() const
{
    return m_pTimeout->value() == 0 ? std::nullopt : std::optional<int>(m_pTimeout->value());
}

QString RunBar::Problem() const
{
    return m_pTimeout->value() > kLongestTimeout ? tr("The longest time-out is %1 s.").arg(kLongestTimeout) : QString();
}

bool RunBar::Check()
{
    if (Problem().isEmpty()) {
        return true;
    }
    m_pTimeout->setFocus();
    m_pTimeout->selectAll();
    return false;
}

void RunBar::SetReady(bool ready, const QString& why)
{
    m_bReady = ready;
    m_notReadyWhy = why;
    Update();
}

void RunBar::ShowPending(int calls)
{
    m_pending = calls;
    Update();
}

void RunBar::Update()
{
    const QString problem = Problem();
    m_pProblem->setText(problem);
    m_pProblem->setVisible(!problem.isEmpty());
    m_pTimeout->setAccessibleDescription(problem);
    m_pState->setText(tr("%n call(s) waiting for the server", nullptr, m_pending));
    m_pState->setVisible(m_pending > 0 && problem.isEmpty());
    m_pRun->setEnabled(m_bReady && problem.isEmpty());
    const QString why = problem.isEmpty() ? m_notReadyWhy : problem;
    m_pRun->setToolTip(m_pRun->isEnabled() ? tr("Run the call (F5)") : why);
}

}  // namespace explorer
