#pragma once

#include "APIModule.h"
#include "CallResult_p.h"
#include "CallSteps_p.h"
#include "http/AccessManager.h"
#include "ReplyInfo_p.h"
#include "StartedCall_p.h"

#include <QCoreApplication>
#include <QHash>
#include <QNetworkRequest>
#include <QObject>
#include <QPointer>
#include <QQueue>

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace APIModule {

class Exchange;
class Wait;

namespace http {
class Reply;
}

/// Where the log lines of the façade and of its steps say that they come from.
inline constexpr const char* kModuleFile = "src/UI/APIModule/APIModule";

/// The steps of a call: builds requests, executes them, judges replies, delivers their data.
class CAPIModulePrivate : public QObject {
    Q_OBJECT

public:
    explicit CAPIModulePrivate(CAPIModule* q);
    ~CAPIModulePrivate() override;

    /// Of the one CAPIModule.
    static CAPIModulePrivate& Get() { return *CAPIModule::GetInstance().d_func(); }

    /// Whether the calling thread is the application object's and may run calls; the façade then belongs to it.
    bool AttachToApplication();

    void SetMaximumReplySize(qint64 nBytes);
    void SetServerTrust(const ServerTrust& trust);

    /// Packs, sends, waits, judges and parses. Log lines and waits, but no notification.
    /// @param parent of the wait dialog; null waits in a local event loop
    detail::CallResult Perform(const CallSteps& steps, const QPointer<QWidget>& parent);

    /// Packs and builds. @return whether the request can be sent; otherwise @p result says why not
    bool Prepare(const CallSteps& steps, QNetworkRequest& request, detail::CallResult& result);

    /// Judges the reply in @p result and delivers its data.
    static void Conclude(const detail::ReadData& read, detail::CallResult& result);

    /// Begins a call that nobody waits for.
    CallHandle Start(const CallSteps& steps, QObject* pContext, const detail::Finished& finished);

    /// Makes URL, headers and attributes. @return 0, or -4 for what cannot be sent
    int BuildRequest(const RequestParam& param, QNetworkRequest& request);

    /// Sends the request and waits behind a modal wait dialog. @return 0, -4, -18, -101 or 7000
    int ExecuteRequestWithWaitDlg(const QNetworkRequest& request, QWidget* pParent, ReplyInfo& reply);

    /// Sends the request and waits in a local event loop. @return as above
    int ExecuteRequestWithoutWaitDlg(const QNetworkRequest& request, ReplyInfo& reply);

    /// The HTTP status or envelope code that makes a reply a failure; nothing for a success. 0 can be such a code.
    static std::optional<int> Judge(const ReplyInfo& reply);

    /// Runs the Parse on the data of a successful reply. Its result is -1 when it throws.
    static void Deliver(const detail::ReadData& read, ReplyInfo& reply);

    /// Lets an exchange have what its call and the host want of it.
    void SetUp(Exchange& exchange, const CallSteps* pSteps) const;

    /// Packs and builds a request that is not sent. See APIModule::Preview().
    std::optional<ObservedExchange> Preview(const CallSteps& steps);

    /// How long a request may be on its way.
    /// @param pSteps of a typed call, null for ExecuteFuncs()
    std::chrono::milliseconds TimeoutOf(const QNetworkRequest& request, const CallSteps* pSteps) const;

    http::Reply* Send(const QNetworkRequest& request) { return Send(*m_pNetworkManager, request); }

    /// Deletes earlier network managers whose calls have ended.
    void RetireManagers();

    /// A call is no longer on its way to @p origin.
    void OnLeft(const QString& origin);

private:
    friend class CAPIModule;

    /// Calls to one server.
    struct Line {
        int nOnTheirWay = 0;
        QQueue<QPointer<StartedCall>> waiting;  ///< among them those that ended before their turn
    };

    static http::Reply* Send(http::AccessManager& manager, const QNetworkRequest& request);
    void MoveTo(QThread* pThread);
    void AttachTo(QCoreApplication& application);
    void DetachFromApplication();
    void MakeNetworkManager();

    /// What comes from now on reaches its server over new connections. Calls that wait keep theirs.
    void ForgetConnections();

    int Execute(const QNetworkRequest& request, QWidget* pParent, ReplyInfo& reply, Wait& wait, const char* pFunction);

    /// Begins the calls to a server that have their turn.
    void BeginNext(const QString& origin);
    /// Ends the calls that Start() began, whose functions are called later, or before this returns.
    void EndStarted(void (StartedCall::*pEnd)());

    CAPIModule* const q_ptr;
    std::string m_strLanguage = "en";
    std::string m_strTimeZoneId;
    qint64 m_nMaximumReplySize = http::AccessManager::kDefaultMaximumReplySize;
    std::chrono::milliseconds m_waitDialogDelay{300};
    std::optional<std::chrono::milliseconds> m_callTimeout;
    ExchangeObserver m_observer;
    QHash<QString, Line> m_lines;                       ///< the calls of Start(), for each server
    bool m_bEndingStarted = false;                      ///< no call has its turn
    std::shared_ptr<const ServerTrust> m_pServerTrust;  ///< null when every server is trusted
    QPointer<http::AccessManager> m_pNetworkManager;
    QList<QPointer<http::AccessManager>> m_networkManagers;  ///< with earlier ones whose calls still wait
    QPointer<QCoreApplication> m_pApplication;
};

}  // namespace APIModule
