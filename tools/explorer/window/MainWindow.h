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

/// Every call of the library: choose it, fill it in, run it, see what came.
class MainWindow : public QMainWindow {
    Q_OBJECT

public:
    /// @param session must outlive the window
    explicit MainWindow(Session& session, QWidget* pParent = nullptr);
    ~MainWindow() override;

    void SelectCall(const catalogue::Call& call);
    /// Runs the call that is shown with the arguments that are filled in.
    void Run();
    /// Places and sizes, for the next window.
    void SaveState();

signals:
    /// Takes a new window.
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
    void MakeAppearanceMenu(QMenu* pMenu);
    void MakeLanguageMenu(QMenu* pMenu);
    void MakeHelpMenu();
    void ReadState();
    void ReadContract();

    void Choose(const catalogue::Call& call);
    void ShowHeader();
    void FormChanged();
    void EditServers();
    void AskForToken();
    /// The call that is filled in, for the current server.
    [[nodiscard]] RunOrder FilledIn() const;
    [[nodiscard]] RunOrder InTheChosenWay(RunOrder order);
    /// Nothing while something is missing that was asked for, or that is about to come.
    [[nodiscard]] std::optional<RunOrder> Order();
    void ShowRequest();
    void RepeatRun(int count);
    /// Fills the form with what the matching read of its call returns.
    void Fill();
    /// Whether the current server can be asked now. If not, @p step is taken as soon as it can.
    [[nodiscard]] bool IsReadyFor(void (MainWindow::*step)());
    /// What was asked for, as soon as its server can be asked.
    void RunWhenReady();
    void ShowFacts();
    void RunFinished(const CallOutcome& outcome);
    /// Null for none.
    void ShowRun(const PastRunPtr& pRun);
    void ShowTimes();
    void ShowChosenRuns();
    /// Its call and its arguments.
    void Load(const PastRunPtr& pRun);
    void KeepDraft();
    void ToggleFavourite(bool favourite);

    Session& m_session;
    Endpoints m_endpoints;
    QFutureWatcher<Endpoints> m_contract;
    const catalogue::Call* m_pCall = nullptr;
    PastRunPtr m_pShown;
    PastRuns m_timed;      // those that were chosen to be timed; empty for the last ones of the call
    QString m_runsAt;      // the server of a run that waits for the emulator or a token
    QString m_enteredFor;  // the server for which the form was filled in
    void (MainWindow::*m_pStepThen)() = nullptr;  // that was asked for
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
    QTimer* m_pRequestTimer;  // one request for all that changes at once
    QTabWidget* m_pFeeds = nullptr;
    HistoryPanel* m_pHistory = nullptr;
    QAction* m_pShowFeeds = nullptr;
    QSplitter* m_pPanes;
    QSplitter* m_pRows;
};

}  // namespace explorer
