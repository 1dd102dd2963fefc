#include "RunningCalls.h"

#include "../core/CallIndex.h"
#include "../views/NameLabel.h"
#include "../views/Widgets.h"

#include <QEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace explorer {

RunningCalls::RunningCalls(Runner& runner, QWidget* pParent)
    : QScrollArea(pParent), m_runner(runner), m_pLayout(new QVBoxLayout)
{
    setObjectName(QStringLiteral("runningCalls"));
    setAccessibleName(tr("Running calls"));
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    auto* const pRows = new QWidget;
    m_pLayout->setContentsMargins(0, 0, 0, 0);
    pRows->setLayout(m_pLayout);
    setWidget(pRows);
    connect(&runner, &Runner::WithoutWaitingChanged, this, &RunningCalls::Update);
    Update();
}

void RunningCalls::Update()
{
    const std::map<int, RunOrder> orders = m_runner.WithoutWaiting();
    for (auto row = m_rows.begin(); row != m_rows.end();) {
        if (orders.count(row->first) == 0) {
            row->second->hide();
            m_pLayout->removeWidget(row->second);
            row->second->deleteLater();  // its button may be the sender of the current signal
            row = m_rows.erase(row);
        } else {
            ++row;
        }
    }
    for (const auto& [number, order] : orders) {
        if (m_rows.count(number) == 0) {
            m_rows[number] = MakeRow(number, order);
            m_pLayout->addWidget(m_rows[number]);
        }
    }
    Fit();
}

QWidget* RunningCalls::MakeRow(int number, const RunOrder& order)
{
    const QString name = ShortName(*order.call);
    auto* const pCancel = Named(new QPushButton(tr("Cancel")), "cancelCall");
    //: %1 is a call
    pCancel->setAccessibleName(tr("Cancel %1").arg(name));
    pCancel->setToolTip(pCancel->accessibleName());
    connect(pCancel, &QPushButton::clicked, this, [this, number] { m_runner.Cancel(number); });

    auto* const pRow = new QWidget;
    Row({{new NameLabel(name), 1}, pCancel}, pRow)->setContentsMargins(0, 0, 0, 0);
    return pRow;
}

bool RunningCalls::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    const bool handled = QScrollArea::eventFilter(pWatched, pEvent);
    if (pWatched == widget() && pEvent->type() == QEvent::LayoutRequest) {
        Fit();  // rows have their final sizes only now
    }
    return handled;
}

/// Its height fits its rows, up to a few.
void RunningCalls::Fit()
{
    constexpr int kSeen = 4;
    const int count = int(m_rows.size());
    setVisible(count > 0);
    if (count > 0) {
        const int gap = m_pLayout->spacing();
        const int all = widget()->sizeHint().height();
        setFixedHeight(count <= kSeen ? all : (all + gap) * kSeen / count - gap);
    }
}

}  // namespace explorer
