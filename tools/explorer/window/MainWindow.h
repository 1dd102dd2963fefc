#pragma once

#include "../CallOutcome.h"
#include "../core/CallIndex.h"
#include "../core/History.h"
#include "../core/Runner.h"

#include <QFutureWatcher>
#include <QHash>
#include <QMainWindow>

#include <optional>

class QLabel;
class QSplitter;
class QTabWidget;
class QTimer;

namespace explorer {

class ArgumentForm;
class CallHeader;
class CallPanel;
class HistoryPanel;
class RequestView;
class ResultHeader;
class ResultView;
class RunBar;
class RunningCalls;
class ServerBar;
class Session;
class TimingView;
class WriteGuard;

/// The window: select a call, enter its arguments, run it and see the result.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// @param session must outlive the window
    explicit MainWindow(Session& session, QWidget* pParent = nullptr);
    ~MainWindow() override;

    void SelectCall(const catalogue::Call& call);
    /// Runs the selected call with the arguments of the form.
    void Run();
    /// Stores positions and sizes for the next window.
    void SaveState();

signals:
    /// Requires a new window.
    void LanguageChosen(const QString& language);

private:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void closeEvent(QCloseEvent* pEvent) override;

    void MakeLayout();
    [[nodiscard]] QWidget* MakeCallPane();
    [[nodiscard]] QWidget* MakeResultPane();
    [[nodiscard]] QWidget* MakeFeeds();
    void MakeMenus();
    void MakeCallMenu();
    void MakeServerMenu();
    void MakeViewMenu();
    void MakeGoToMenu(QMenu* pMenu);
    void FocusPane(int steps);
    void FocusArguments();
    void FocusTab(QTabWidget* pTabs, int index);
    void MakeHelpMenu();
    void ReadState();
    void ReadContract();

    void Choose(const catalogue::Call& call);
    void ShowHeader();
    void FormChanged();
    void EditServers();
    void AskForToken();
    /// The selected call with its arguments, for the current server.
    [[nodiscard]] RunOrder FilledIn() const;
    [[nodiscard]] RunOrder WithWaitMode(RunOrder order);
    /// Nothing while a required value is missing or still loading.
    [[nodiscard]] std::optional<RunOrder> Order();
    void ShowRequest();
    void RepeatRun(int count);
    /// Fills the form from the read that matches its call.
    void Fill();
    /// Whether the current server is ready. If not, @p step runs as soon as it is.
    [[nodiscard]] bool IsReadyFor(void (MainWindow::*step)());
    /// Runs the pending step when its server is ready.
    void RunWhenReady();
    void ShowFacts();
    void RunFinished(const CallOutcome& outcome);
    /// Null if there is none.
    void ShowRun(const PastRunPtr& pRun);
    void ShowTimes();
    void ShowChosenRuns();
    /// Shows its call and its arguments.
    void Load(const PastRunPtr& pRun);
    void KeepDraft();
    void ToggleFavourite(bool favourite);

    Session& m_session;
    Endpoints m_endpoints;
    QFutureWatcher<Endpoints> m_contract;
    const catalogue::Call* m_pCall = nullptr;
    PastRunPtr m_pShown;
    PastRuns m_timed;      // runs selected for the figures; empty for the recent ones of the call
    QString m_runsAt;      // server of a run that waits for the emulator or a token
    QString m_enteredFor;  // server for which the form was filled in
    void (MainWindow::*m_pStepThen)() = nullptr;  // the pending step
    ServerBar* m_pServerBar;
    CallPanel* m_pCalls;
    CallHeader* m_pHeader;
    ArgumentForm* m_pForm;
    WriteGuard* m_pGuard;
    RunBar* m_pRunBar;
    RunningCalls* m_pRunning;
    ResultHeader* m_pResultHeader;
    ResultView* m_pResult;
    RequestView* m_pRequest;
    TimingView* m_pTiming;
    QTabWidget* m_pResults = nullptr;
    QTimer* m_pRequestTimer;  // combines changes into one request
    QTabWidget* m_pFeeds = nullptr;
    HistoryPanel* m_pHistory = nullptr;
    QAction* m_pShowFeeds = nullptr;
    QSplitter* m_pPanes;
    QSplitter* m_pRows;
};

}  // namespace explorer
