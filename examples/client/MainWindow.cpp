#include "MainWindow.h"

#include <IPMS/IPMSCalls.h>

using namespace APIModule;

constexpr int kPageSize = 3;

MainWindow::MainWindow(Session& session) : m_session(session)
{
    ui.message.setWordWrap(true);
    ui.message.setStyleSheet(QStringLiteral("background: #b3261e; color: white; padding: 6px"));
    ui.message.hide();
    ui.server.setText(QStringLiteral("127.0.0.1:8443"));
    ui.token.setEchoMode(QLineEdit::Password);
    ui.lots.setRootIsDecorated(false);
    ui.lots.header()->setSectionResizeMode(QHeaderView::Stretch);
    ui.interval.setRange(1, 999);
    ui.save.setEnabled(false);  // a write sends all settings, so they must be read first
    ui.pageLabel.setAlignment(Qt::AlignCenter);
    setCentralWidget(new QWidget);
    auto* const grid = new QGridLayout(centralWidget());
    QWidget* const rows[][3] = {{&ui.server, &ui.token, &ui.signIn},         {&ui.message}, {&ui.lots},
                                {&ui.intervalLabel, &ui.interval, &ui.save}, {&ui.keyword}, {&ui.plans},
                                {&ui.previous, &ui.pageLabel, &ui.next}};
    for (const auto& row : rows) {
        const int y = grid->rowCount();
        for (int x = 0; x < 3 && row[x]; ++x) {
            grid->addWidget(row[x], y, x, 1, row[1] ? 1 : 3);
        }
    }
    statusBar()->addWidget(&ui.refreshed);
    menuBar()->addMenu(&ui.languages);
    for (const char* language : {"en", "de", "zh"}) {
        const QString name = QLatin1String(language);
        ui.languages.addAction(QLocale(name).nativeLanguageName(), this, [name] { Speak(name); });
    }
    connect(&ui.signIn, &QPushButton::clicked, this, &MainWindow::SignIn);
    connect(&ui.save, &QPushButton::clicked, this, &MainWindow::Save);
    connect(&ui.keyword, &QLineEdit::textChanged, this, [this] { ShowPage(1); });
    connect(&ui.previous, &QPushButton::clicked, this, [this] { ShowPage(m_page - 1); });
    connect(&ui.next, &QPushButton::clicked, this, [this] { ShowPage(m_page + 1); });
    connect(&m_timer, &QTimer::timeout, this, &MainWindow::Refresh);
    Translate();
}

void MainWindow::SignIn()
{
    const QUrl address(QStringLiteral("https://") + ui.server.text());
    m_session.server = std::make_shared<Server>();
    m_session.server->address.strHost = address.adjusted(QUrl::RemovePort).authority().toStdString();
    m_session.server->address.nPort = address.port(443);
    m_session.server->token = ui.token.text().toStdString();
    ui.save.setEnabled(false);
    Start(BRMS::GetTimeSyncConfig(), this, [this](const Outcome<TimeSyncConfig>& settings) {
        Report(ui.message, settings);
        if (settings) {
            m_settings = *settings;
            ui.save.setEnabled(true);
            ui.interval.setValue(m_settings.interval);
            Refresh();
            ShowPage(1);
            m_timer.start(std::chrono::seconds(10));
        }
    });
}

void MainWindow::Refresh()
{
    if (m_refresh.IsRunning()) {
        return;
    }
    const auto show = [this](const Outcome<std::vector<DatailParkingLotInfoRsp>>& lots) {
        Report(ui.refreshed, lots);
        if (lots) {  // after a failure the previous list stays
            ui.refreshed.setText(tr("As of %1").arg(QLocale().toString(QTime::currentTime(), QLocale::ShortFormat)));
            ui.refreshed.show();
            ui.lots.clear();
            for (const DatailParkingLotInfoRsp& lot : *lots) {
                new QTreeWidgetItem(&ui.lots, {QString::fromStdString(lot.parkingLotName),
                                               QString::number(lot.idleParkingSpaceCount),
                                               QString::number(lot.totalParkingSpaceCount)});
            }
        }
    };
    m_refresh = Start(IPMS::GetDetailParkingLots("", "", -1), this, show);
}

void MainWindow::Save()
{
    m_settings.interval = ui.interval.value();
    const Outcome<NoRecord> saved = Run(BRMS::SetTimeSyncConfig(m_settings), this);  // behind the wait dialog
    Report(ui.message, saved, Access::Write);
    if (saved) {
        CAPIModule::GetInstance().NotifyOutcome(saved, QString(), tr("Saved"));
    }
}

void MainWindow::ShowPage(int page)
{
    m_search.Cancel();  // its reply could arrive after that of the next search
    // Pages count from 1. The library does not encode the keyword for the URL.
    const std::string keyword = QUrl::toPercentEncoding(ui.keyword.text()).toStdString();
    const GetPageSummaryAlarmPlansParam query{page, kPageSize, keyword};
    const auto show = [this, page](const Outcome<std::vector<SummaryAlarmPlan>>& plans) {
        Report(ui.message, plans);
        if (plans) {
            const int total = plans.Data().value(QStringLiteral("totalCount")).toInt();  // not in the record
            m_page = page;
            m_pages = std::max(1, (total + kPageSize - 1) / kPageSize);
            ui.plans.clear();
            for (const SummaryAlarmPlan& plan : *plans) {
                ui.plans.addItem(QString::fromStdString(plan.planName));
            }
            Translate();
        }
    };
    m_search = Start(BRMS::GetPageSummaryAlarmPlans(query), this, show);
}

void MainWindow::Report(QLabel& label, const OutcomeBase& outcome, Access access)
{
    if (outcome.End() == CallEnd::NotAuthenticated && &label != &ui.message) {
        m_timer.stop();  // until the user has signed in again
        return Report(ui.message, outcome);
    }
    label.setText(FailureText(outcome, access));
    label.setVisible(!label.text().isEmpty());
}

void MainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        Translate();
    }
    QMainWindow::changeEvent(event);
}

void MainWindow::Translate()
{
    setWindowTitle(tr("Example client"));
    ui.languages.setTitle(tr("Language"));
    ui.token.setPlaceholderText(tr("Token"));
    ui.signIn.setText(tr("Sign in"));
    ui.lots.setHeaderLabels({tr("Parking lot"), tr("Free"), tr("Spaces")});
    ui.intervalLabel.setText(tr("Synchronise time every (hours)"));
    ui.save.setText(tr("Save"));
    ui.keyword.setPlaceholderText(tr("Search alarm plans"));
    ui.previous.setText(tr("Back"));
    ui.next.setText(tr("Next"));
    ui.pageLabel.setText(tr("Page %1 of %2").arg(m_page).arg(m_pages));
    ui.previous.setEnabled(m_page > 1);
    ui.next.setEnabled(m_page < m_pages);
}
