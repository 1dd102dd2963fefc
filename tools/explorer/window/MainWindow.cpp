#include "MainWindow.h"

#include "Appearance.h"
#include "CallHeader.h"
#include "CallPanel.h"
#include "emulator/EmulatorPanel.h"
#include "FeedPanel.h"
#include "HistoryPanel.h"
#include "ResultHeader.h"
#include "RunBar.h"
#include "RunningCalls.h"
#include "ServerBar.h"
#include "ServersDialog.h"
#include "TokenDialog.h"
#include "WriteGuard.h"

#include "../core/Session.h"
#include "../views/ArgumentForm.h"
#include "../views/RequestView.h"
#include "../views/ResultView.h"
#include "../views/TimingView.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QJsonDocument>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QtConcurrent>
#include <QTimer>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

namespace explorer {
namespace {

constexpr const char* kGeometryKey = "window/geometry";
constexpr const char* kPanesKey = "window/panes";
constexpr const char* kRowsKey = "window/rows";
constexpr const char* kFeedsKey = "window/feeds";
constexpr const char* kCallKey = "window/call";

constexpr int kPaneWidths[] = {320, 360, 600};  // initially; other widths are divided in proportion
constexpr int kNarrowestList = 240;

constexpr int kStatusTime = 6000;  // milliseconds

QString ArgumentsKey(const catalogue::Call& call)
{
    return QStringLiteral("arguments/") + QString::fromStdString(call.name);
}

QKeySequence EditServersKey()
{
    return {int(Qt::CTRL) + Qt::Key_E};
}

/// A pane of a splitter with the common margins.
QVBoxLayout* PaneLayout(QWidget* pPane)
{
    auto* const pLayout = new QVBoxLayout(pPane);
    constexpr int kMargin = 12;
    pLayout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    pLayout->setSpacing(kMargin);
    return pLayout;
}

/// @return false if nothing in it takes the keyboard focus
bool FocusFirst(QWidget* pPane)
{
    for (QWidget* pWidget = pPane->nextInFocusChain(); pWidget != pPane; pWidget = pWidget->nextInFocusChain()) {
        const bool takesFocus = pWidget->isEnabled() && (pWidget->focusPolicy() & Qt::TabFocus) == Qt::TabFocus;
        if (takesFocus && !qobject_cast<QScrollArea*>(pWidget) && pPane->isAncestorOf(pWidget) &&
            pWidget->isVisible()) {
            pWidget->setFocus(Qt::TabFocusReason);
            return true;
        }
    }
    return false;
}

/// Tabs of a pane, which the style sheet underlines.
QTabWidget* NewTabs(const char* objectName)
{
    auto* const pTabs = new QTabWidget;
    pTabs->setObjectName(QLatin1String(objectName));
    pTabs->setDocumentMode(true);
    pTabs->tabBar()->setObjectName(QStringLiteral("underlined"));
    return pTabs;
}

QSplitter* NewSplitter(Qt::Orientation orientation)
{
    auto* const pSplitter = new QSplitter(orientation);
    pSplitter->setHandleWidth(1);
    pSplitter->setChildrenCollapsible(false);
    return pSplitter;
}

/// Adds choices to a menu, of which one is checked at a time.
template <typename Value, typename Choose>
void AddChoices(QMenu* pMenu, std::initializer_list<std::pair<Value, QString>> choices, const Value& stored,
                const Choose& choose)
{
    auto* const pGroup = new QActionGroup(pMenu);
    for (const auto& choice : choices) {
        QAction* const pAction =
            pMenu->addAction(choice.second, pMenu, [value = choice.first, choose] { choose(value); });
        pAction->setCheckable(true);
        pAction->setChecked(choice.first == stored);
        pGroup->addAction(pAction);
    }
}

}  // namespace

MainWindow::MainWindow(Session& session, QWidget* pParent)
    : QMainWindow(pParent), m_session(session), m_pServerBar(new ServerBar(session)),
      m_pCalls(new CallPanel(session.settings)), m_pHeader(new CallHeader), m_pForm(new ArgumentForm),
      m_pGuard(new WriteGuard(*m_pForm, session.runner, this)), m_pRunBar(new RunBar(session.settings)),
      m_pRunning(new RunningCalls(session.runner)), m_pResultHeader(new ResultHeader), m_pResult(new ResultView),
      m_pRequest(new RequestView), m_pTiming(new TimingView), m_pRequestTimer(new QTimer(this)),
      m_pPanes(NewSplitter(Qt::Horizontal)), m_pRows(NewSplitter(Qt::Vertical))
{
    setWindowTitle(tr("APIModule Explorer"));
    MakeLayout();
    MakeMenus();
    m_pRequestTimer->setSingleShot(true);
    m_pRequestTimer->setInterval(0);
    connect(m_pRequestTimer, &QTimer::timeout, this, &MainWindow::ShowRequest);
    const auto showRequest = qOverload<>(&QTimer::start);
    connect(m_pResults, &QTabWidget::currentChanged, m_pRequestTimer, showRequest);
    connect(&session.servers, &Servers::Changed, m_pRequestTimer, showRequest);
    connect(&session.tokens, &Tokens::Changed, m_pRequestTimer, showRequest);

    connect(m_pServerBar, &ServerBar::EditRequested, this, &MainWindow::EditServers);
    connect(m_pCalls, &CallPanel::Chosen, this, &MainWindow::Choose);
    connect(m_pCalls, &CallPanel::Activated, this, &MainWindow::FocusArguments);
    connect(m_pHeader, &CallHeader::FavouriteToggled, this, &MainWindow::ToggleFavourite);
    connect(m_pForm, &ArgumentForm::Changed, this, &MainWindow::FormChanged);
    connect(m_pForm, &ArgumentForm::ReadRequested, this, &MainWindow::Fill);
    connect(m_pGuard, &WriteGuard::Message, this,
            [this](const QString& text) { statusBar()->showMessage(text, kStatusTime); });
    connect(&session.identifiers, &Identifiers::Changed, this, &MainWindow::ShowFacts);
    connect(m_pRunBar, &RunBar::RunRequested, this, &MainWindow::Run);
    connect(m_pTiming, &TimingView::RepeatRequested, this, &MainWindow::RepeatRun);
    connect(m_pTiming, &TimingView::CancelRequested, &session.runner, &Runner::CancelRepeat);
    connect(&session.runner, &Runner::Started, this, [this](const catalogue::Call* pCall) {
        m_pRunBar->ShowPending(m_session.runner.Pending());
        if (pCall == m_pCall && !m_session.runner.IsRepeating()) {
            m_pResultHeader->ShowRunning(ShortName(*pCall));
            m_pResult->ShowWaiting(*pCall);
        }
    });
    connect(&session.runner, &Runner::Finished, this, &MainWindow::RunFinished);
    connect(&session.runner, &Runner::RepeatProgress, m_pTiming, &TimingView::SetProgress);
    connect(&session.runner, &Runner::RepeatEnded, this, [this] {
        m_pTiming->SetProgress(1, 1);
        m_pRunBar->ShowPending(m_session.runner.Pending());
        if (m_pCall != nullptr) {
            Choose(*m_pCall);
        }
    });
    connect(&session.emulator, &EmulatorProcess::Failed, this, [this](const QString& why) {
        m_runsAt.clear();
        statusBar()->showMessage(tr("The emulator exited: %1").arg(why));
    });
    connect(&session.emulator, &EmulatorProcess::StateChanged, this, &MainWindow::RunWhenReady);
    connect(&session.servers, &Servers::Changed, this, [this] {
        if (m_session.servers.Current().id != m_runsAt) {
            m_runsAt.clear();  // the run was meant for the previous server
        }
        if (m_session.servers.Current().id != m_enteredFor) {
            m_enteredFor = m_session.servers.Current().id;
            m_pGuard->Forget();
        }
    });
    connect(&session.tokens, &Tokens::Kept, this, [this](const QString& /*serverId*/, bool worked) {
        statusBar()->showMessage(worked
                                     ? tr("The token is in the desktop's secret service.")
                                     : tr("No secret service is available: the token is kept until the program exits."),
                                 kStatusTime);
    });
    connect(&m_contract, &QFutureWatcher<Endpoints>::finished, this, [this] {
        m_endpoints = m_contract.result();
        m_pCalls->SetEndpoints(m_endpoints);
        ShowHeader();
    });

    m_enteredFor = session.servers.Current().id;
    FormChanged();
    ReadState();
    ReadContract();
}

MainWindow::~MainWindow()
{
    m_contract.waitForFinished();
}

void MainWindow::MakeLayout()
{
    auto* const pBar = addToolBar(tr("Server"));
    pBar->setObjectName(QStringLiteral("serverBar"));
    pBar->setMovable(false);
    pBar->setContextMenuPolicy(Qt::PreventContextMenu);
    m_pServerBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    pBar->addWidget(m_pServerBar);

    m_pCalls->layout()->setContentsMargins(12, 12, 12, 8);
    m_pCalls->setMinimumWidth(kNarrowestList);
    m_pPanes->addWidget(m_pCalls);
    m_pPanes->addWidget(MakeCallPane());
    m_pPanes->addWidget(MakeResultPane());
    for (const int pane : {0, 1, 2}) {
        m_pPanes->setStretchFactor(pane, kPaneWidths[pane]);
    }
    m_pRows->addWidget(m_pPanes);
    m_pRows->addWidget(MakeFeeds());
    m_pRows->setStretchFactor(0, 1);
    setCentralWidget(m_pRows);
    setContextMenuPolicy(Qt::PreventContextMenu);
    statusBar()->setSizeGripEnabled(false);
}

QWidget* MainWindow::MakeCallPane()
{
    auto* const pPane = new QWidget;
    auto* const pLayout = PaneLayout(pPane);
    m_pForm->layout()->setContentsMargins(0, 0, 0, 0);
    pLayout->addWidget(m_pHeader);
    pLayout->addWidget(m_pForm, 1);
    pLayout->addWidget(m_pRunBar);
    pLayout->addWidget(m_pRunning);
    return pPane;
}

QWidget* MainWindow::MakeResultPane()
{
    m_pResults = NewTabs("results");
    m_pResults->addTab(m_pResult, tr("Result"));
    m_pResults->addTab(m_pRequest, tr("Request"));
    m_pResults->addTab(m_pTiming, tr("Timing"));
    m_pResults->addTab(new EmulatorPanel(m_session), tr("Emulator"));
    auto* const pPane = new QWidget;
    auto* const pLayout = PaneLayout(pPane);
    pLayout->addWidget(m_pResultHeader);
    pLayout->addWidget(m_pResults, 1);
    return pPane;
}

QWidget* MainWindow::MakeFeeds()
{
    m_pFeeds = NewTabs("feeds");
    m_pFeeds->addTab(new FeedPanel(m_session.log, FeedPanel::Log), tr("Log"));
    m_pFeeds->addTab(new FeedPanel(m_session.notifications, FeedPanel::Notifications), tr("Notifications"));
    m_pHistory = new HistoryPanel(m_session.history);
    m_pFeeds->addTab(m_pHistory, tr("History"));
    connect(m_pHistory, &HistoryPanel::ChosenChanged, this, &MainWindow::ShowChosenRuns);
    connect(m_pHistory, &HistoryPanel::LoadRequested, this, &MainWindow::Load);
    connect(m_pHistory, &HistoryPanel::RunRequested, this, [this](const PastRunPtr& pRun) {
        Load(pRun);
        Run();
    });
    return m_pFeeds;
}

void MainWindow::MakeMenus()
{
    MakeCallMenu();
    MakeServerMenu();
    MakeViewMenu();
    MakeHelpMenu();
}

void MainWindow::MakeCallMenu()
{
    QMenu* const pMenu = menuBar()->addMenu(tr("&Call"));
    QAction* const pRun = pMenu->addAction(tr("&Run"), this, &MainWindow::Run);
    pRun->setShortcuts({Qt::Key_F5, QKeySequence(int(Qt::CTRL) + Qt::Key_Return)});
    pMenu->addAction(tr("&Find a call"), m_pCalls, &CallPanel::FocusFilter)->setShortcut(QKeySequence::Find);
    QAction* const pFavourite = pMenu->addAction(tr("T&oggle favourite"), this, [this] {
        if (m_pCall != nullptr) {
            ToggleFavourite(!m_pCalls->IsFavourite(*m_pCall));
        }
    });
    pFavourite->setShortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_D));
    pMenu->addSeparator();
    pMenu->addAction(tr("&Quit"), this, &QWidget::close)->setShortcut(QKeySequence::Quit);
}

void MainWindow::MakeServerMenu()
{
    QMenu* const pMenu = menuBar()->addMenu(tr("&Server"));
    pMenu->addAction(tr("&Choose"), m_pServerBar, &ServerBar::FocusServers)
        ->setShortcut(QKeySequence(int(Qt::CTRL) + Qt::Key_L));
    pMenu->addAction(tr("&Edit…"), this, &MainWindow::EditServers)->setShortcut(EditServersKey());
    qApp->installEventFilter(this);
    pMenu->addAction(tr("Enter the &token…"), this, &MainWindow::AskForToken);
    pMenu->addSeparator();
    pMenu->addAction(tr("&Start the emulator"), &m_session.emulator, &EmulatorProcess::Start);
    pMenu->addAction(tr("St&op the emulator"), &m_session.emulator, &EmulatorProcess::Stop);
}

void MainWindow::MakeViewMenu()
{
    QMenu* const pMenu = menuBar()->addMenu(tr("&View"));
    AddChoices<Appearance>(pMenu->addMenu(tr("&Appearance")),
                           {{Appearance::System, tr("Follow the &desktop")},
                            {Appearance::Light, tr("&Light")},
                            {Appearance::Dark, tr("D&ark")}},
                           StoredAppearance(m_session.settings), [this](Appearance appearance) {
                               StoreAppearance(m_session.settings, appearance);
                               ApplyAppearance(appearance);
                           });
    AddChoices<QString>(pMenu->addMenu(tr("&Language")),
                        {{QStringLiteral("en"), QStringLiteral("&English")},
                         {QStringLiteral("de"), QStringLiteral("&Deutsch")},
                         {QStringLiteral("zh"), QStringLiteral("中文 (&Z)")}},
                        StoredLanguage(m_session.settings),
                        [this](const QString& language) { emit LanguageChosen(language); });
    pMenu->addSeparator();
    m_pShowFeeds = pMenu->addAction(tr("Log and n&otifications"));
    m_pShowFeeds->setCheckable(true);
    m_pShowFeeds->setChecked(m_session.settings.value(QLatin1String(kFeedsKey), true).toBool());
    m_pFeeds->setVisible(m_pShowFeeds->isChecked());
    m_pShowFeeds->setShortcut(Qt::Key_F8);
    connect(m_pShowFeeds, &QAction::toggled, this, [this](bool on) {
        m_pFeeds->setVisible(on);
        m_session.settings.setValue(QLatin1String(kFeedsKey), on);
    });
    pMenu->addSeparator();
    MakeGoToMenu(pMenu->addMenu(tr("&Go to")));
    pMenu->addAction(tr("&Next pane"), this, [this] { FocusPane(1); })->setShortcut(Qt::Key_F6);
    pMenu->addAction(tr("&Previous pane"), this, [this] { FocusPane(-1); })
        ->setShortcut(QKeySequence(int(Qt::SHIFT) + Qt::Key_F6));
}

void MainWindow::MakeGoToMenu(QMenu* pMenu)
{
    pMenu->setObjectName(QStringLiteral("goTo"));
    const auto toTab = [this](QTabWidget* pTabs, int index) {
        return [this, pTabs, index] { FocusTab(pTabs, index); };
    };
    const QPair<QString, std::function<void()>> places[] = {{tr("&Calls"), [this] { m_pCalls->FocusTree(); }},
                                                            {tr("&Arguments"), [this] { FocusArguments(); }},
                                                            {tr("&Result"), toTab(m_pResults, 0)},
                                                            {tr("Re&quest"), toTab(m_pResults, 1)},
                                                            {tr("&Timing"), toTab(m_pResults, 2)},
                                                            {tr("&Log"), toTab(m_pFeeds, 0)},
                                                            {tr("&Notifications"), toTab(m_pFeeds, 1)},
                                                            {tr("&History"), toTab(m_pFeeds, 2)},
                                                            {tr("&Emulator"), toTab(m_pResults, 3)}};
    int key = Qt::Key_1;
    for (const auto& place : places) {
        pMenu->addAction(place.first, this, place.second)->setShortcut(QKeySequence(int(Qt::CTRL) + key));
        ++key;
    }
}

void MainWindow::FocusPane(int steps)
{
    QList<QWidget*> panes{m_pCalls, m_pPanes->widget(1), m_pPanes->widget(2)};
    if (m_pFeeds->isVisible()) {
        panes.append(m_pFeeds);
    }
    const auto holdsFocus = [](const QWidget* pPane) { return pPane->isAncestorOf(QApplication::focusWidget()); };
    const auto pane = std::find_if(panes.cbegin(), panes.cend(), holdsFocus);
    const int none = steps > 0 ? -1 : 0;
    const int current = pane == panes.cend() ? none : int(pane - panes.cbegin());
    FocusFirst(panes.at((current + steps + panes.size()) % panes.size()));
}

void MainWindow::FocusArguments()
{
    if (!FocusFirst(m_pForm)) {
        FocusFirst(m_pRunBar);
    }
}

void MainWindow::FocusTab(QTabWidget* pTabs, int index)
{
    if (pTabs == m_pFeeds) {
        m_pShowFeeds->setChecked(true);
    }
    pTabs->setCurrentIndex(index);
    if (!FocusFirst(pTabs->currentWidget())) {
        pTabs->tabBar()->setFocus(Qt::TabFocusReason);
    }
}

void MainWindow::MakeHelpMenu()
{
    QMenu* const pMenu = menuBar()->addMenu(tr("&Help"));
    pMenu->addAction(tr("&About"), this, [this] {
        QMessageBox::about(
            this, tr("About APIModule Explorer"),
            tr("<h3>APIModule Explorer %1</h3><p>Makes any APIModule call from a graphical interface. It is "
               "a host with a user manager, wait dialog, notifications and logs.</p>")
                .arg(QApplication::applicationVersion()));
    });
    pMenu->addAction(tr("About &Qt"), qApp, &QApplication::aboutQt);
}

void MainWindow::ReadState()
{
    constexpr QSize kSize(1280, 800);
    constexpr QSize kFrame(16, 48);  // frame of the window manager
    resize(kSize.boundedTo(QGuiApplication::primaryScreen()->availableSize() - kFrame));
    m_pPanes->setSizes({kPaneWidths[0], kPaneWidths[1], kPaneWidths[2]});
    m_pRows->setSizes({560, 180});
    QSettings& settings = m_session.settings;
    restoreGeometry(settings.value(QLatin1String(kGeometryKey)).toByteArray());
    m_pPanes->restoreState(settings.value(QLatin1String(kPanesKey)).toByteArray());
    m_pRows->restoreState(settings.value(QLatin1String(kRowsKey)).toByteArray());
    const std::string name = settings.value(QLatin1String(kCallKey)).toString().toStdString();
    if (const catalogue::Call* pCall = catalogue::FindCall(name)) {
        m_pCalls->Select(*pCall);
    }
}

void MainWindow::ReadContract()
{
    // After the window was painted; calls can be used meanwhile.
    QMetaObject::invokeMethod(
        this, [this] { m_contract.setFuture(QtConcurrent::run([] { return ReadEndpoints(DefaultContract()); })); },
        Qt::QueuedConnection);
}

void MainWindow::SaveState()
{
    QSettings& settings = m_session.settings;
    settings.setValue(QLatin1String(kGeometryKey), saveGeometry());
    settings.setValue(QLatin1String(kPanesKey), m_pPanes->saveState());
    settings.setValue(QLatin1String(kRowsKey), m_pRows->saveState());
    KeepDraft();
}

/// A text field would use Ctrl+E to move to its end.
bool MainWindow::eventFilter(QObject* pWatched, QEvent* pEvent)
{
    if (pEvent->type() != QEvent::ShortcutOverride) {
        return QMainWindow::eventFilter(pWatched, pEvent);
    }
    const auto* const pKey = static_cast<QKeyEvent*>(pEvent);
    return QKeySequence(int(pKey->modifiers()) + pKey->key()) == EditServersKey();
}

void MainWindow::closeEvent(QCloseEvent* pEvent)
{
    SaveState();
    m_session.runner.CancelRepeat();
    QMainWindow::closeEvent(pEvent);
}

void MainWindow::SelectCall(const catalogue::Call& call)
{
    m_pCalls->Select(call);
}

void MainWindow::Choose(const catalogue::Call& call)
{
    const bool isOther = m_pCall != &call;
    if (isOther) {
        KeepDraft();
    }
    m_pCall = &call;
    const QString name = QString::fromStdString(call.name);
    if (isOther) {
        m_runsAt.clear();  // the run was meant for the previous call
        m_session.settings.setValue(QLatin1String(kCallKey), name);
        m_pForm->SetCall(call);
        m_pForm->OfferRead(WriteGuard::ReadFor(call));
        const QByteArray lastUse = m_session.settings.value(ArgumentsKey(call)).toByteArray();
        m_pForm->SetArguments(m_session.drafts.value(name, QJsonDocument::fromJson(lastUse).object()));
        ShowHeader();
    }
    m_timed.clear();
    ShowRun(m_session.history.LastOf(call));
}

void MainWindow::KeepDraft()
{
    if (m_pCall != nullptr) {
        m_session.drafts.insert(QString::fromStdString(m_pCall->name), m_pForm->Arguments());
    }
}

void MainWindow::ShowHeader()
{
    if (m_pCall != nullptr) {
        const Endpoint endpoint = m_endpoints.value(QString::fromStdString(m_pCall->name));
        m_pHeader->Show(*m_pCall, endpoint, m_pCalls->IsFavourite(*m_pCall));
    }
    ShowFacts();
}

void MainWindow::ShowFacts()
{
    if (m_pCall != nullptr) {
        const FactsByName facts = m_endpoints.value(QString::fromStdString(m_pCall->name)).sent;
        m_pForm->Describe(
            facts, [this, &call = *m_pCall](const QString& name) { return m_session.identifiers.For(call, name); });
    }
}

void MainWindow::ToggleFavourite(bool favourite)
{
    m_pCalls->SetFavourite(*m_pCall, favourite);
    ShowHeader();
}

void MainWindow::FormChanged()
{
    m_pRequestTimer->start();
    m_pTiming->SetRepeatEnabled(m_pForm->IsValid());
    m_pRunBar->SetReady(m_pForm->IsValid(),
                        m_pCall == nullptr ? tr("Choose a call first") : tr("An argument has an invalid value"));
}

void MainWindow::EditServers()
{
    auto* const pDialog = new ServersDialog(m_session.servers, m_session.tokens, this);
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    pDialog->open();
}

void MainWindow::AskForToken()
{
    const Server server = m_session.servers.Current();
    if (m_session.servers.IsEmulator()) {
        statusBar()->showMessage(tr("The emulator gets a new token at each start."), kStatusTime);
        return;
    }
    auto* const pDialog = new TokenDialog(server.name, this);
    pDialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(pDialog, &QDialog::accepted, this, [this, pDialog, id = server.id] {
        m_session.tokens.Set(id, pDialog->Token(), pDialog->Keep());
        RunWhenReady();
    });
    connect(pDialog, &QDialog::rejected, this, [this] { m_runsAt.clear(); });
    pDialog->open();
}

void MainWindow::ShowRequest()
{
    if (m_pResults->currentWidget() != m_pRequest) {
        return;
    }
    if (m_pForm->IsValid()) {
        m_pRequest->Show(Runner::Draft(FilledIn()));
    } else {
        m_pRequest->ShowHint(m_pCall == nullptr ? tr("Choose a call to see its request here.")
                                                : tr("An argument has an invalid value"));
    }
}

RunOrder MainWindow::FilledIn() const
{
    return {m_pCall, m_pForm->Arguments(), m_session.servers.Current(), m_pRunBar->TimeoutSeconds()};
}

RunOrder MainWindow::WithWaitMode(RunOrder order)
{
    order.waitMode = m_pRunBar->ChosenWaitMode();
    if (order.waitMode == WaitMode::WaitDialog) {
        order.parent = this;
    }
    return order;
}

bool MainWindow::IsReadyFor(void (MainWindow::*step)())
{
    m_runsAt.clear();
    const bool isReady = m_session.IsReady();
    if (isReady && m_session.CurrentToken()) {
        return true;
    }
    m_runsAt = m_session.servers.Current().id;
    m_pStepThen = step;
    if (isReady) {
        AskForToken();
    } else {
        statusBar()->showMessage(tr("The call runs as soon as the emulator has started."), kStatusTime);
        m_session.emulator.Start();
    }
    return false;
}

std::optional<RunOrder> MainWindow::Order()
{
    m_runsAt.clear();
    if (m_pCall == nullptr || !m_pForm->IsValid() || !m_pRunBar->Check()) {
        return std::nullopt;
    }
    if (!IsReadyFor(&MainWindow::Run)) {
        return std::nullopt;
    }
    const RunOrder order = FilledIn();
    m_session.settings.setValue(ArgumentsKey(*m_pCall), QJsonDocument(order.arguments).toJson(QJsonDocument::Compact));
    return order;
}

void MainWindow::Run()
{
    if (const std::optional<RunOrder> filledIn = Order()) {
        const RunOrder order = WithWaitMode(*filledIn);
        m_pGuard->Check(order, [this, order] { m_session.runner.Order(order); });
    }
}

void MainWindow::Fill()
{
    if (m_pCall != nullptr && IsReadyFor(&MainWindow::Fill)) {
        m_pGuard->Fill(WithWaitMode(FilledIn()));
    }
}

void MainWindow::RunWhenReady()
{
    if (m_session.servers.Current().id == m_runsAt && m_session.IsReady()) {
        (this->*m_pStepThen)();
    }
}

void MainWindow::RepeatRun(int count)
{
    if (const std::optional<RunOrder> order = Order()) {
        m_pGuard->Check(*order, [this, order, count] { m_session.runner.Repeat(*order, count); });
    }
}

void MainWindow::RunFinished(const CallOutcome& outcome)
{
    m_pRunBar->ShowPending(m_session.runner.Pending());
    m_pCalls->Used(*outcome.call);
    if (outcome.call != m_pCall) {
        statusBar()->showMessage(QStringLiteral("%1: %2").arg(ShortName(*outcome.call), outcome.resultText),
                                 kStatusTime);
    } else if (!m_session.runner.IsRepeating()) {
        m_timed.clear();
        ShowRun(m_session.history.LastOf(*m_pCall));
    } else {
        ShowTimes();
    }
}

void MainWindow::ShowRun(const PastRunPtr& pRun)
{
    m_pShown = pRun;
    if (pRun) {
        m_pResultHeader->Show(pRun->Summary());
        m_pResult->Show(pRun->Outcome());
    } else {
        m_pResultHeader->Clear();
        m_pResult->Clear();
    }
    ShowTimes();
}

void MainWindow::ShowChosenRuns()
{
    m_timed = m_pHistory->Chosen();
    if (m_timed.size() == 1) {
        ShowRun(m_timed.front());
    } else if (m_pCall != nullptr) {
        ShowTimes();
    }
}

void MainWindow::Load(const PastRunPtr& pRun)
{
    const RunSummary& run = pRun->Summary();
    if (run.call != m_pCall) {
        SelectCall(*run.call);
    }
    m_pForm->SetArguments(run.arguments);
    ShowRun(pRun);
}

void MainWindow::ShowTimes()
{
    constexpr std::size_t kMost = 100;
    const catalogue::Call& call = m_pShown ? *m_pShown->Summary().call : *m_pCall;
    const PastRuns runs = m_timed.size() > 1 ? m_timed : m_session.history.RunsOf(call, kMost);
    std::vector<const RunSummary*> summaries;
    summaries.reserve(runs.size());
    for (const PastRunPtr& pRun : runs) {
        summaries.push_back(&pRun->Summary());
    }
    m_pTiming->Show(summaries, m_pShown ? &m_pShown->Summary() : nullptr);
}

}  // namespace explorer
