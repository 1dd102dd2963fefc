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

/// The source file that log lines of the façade and its steps name.
inline constexpr const char* kModuleFile = "src/UI/APIModule/APIModule";

/// The steps of a call: builds requests, executes them, judges replies, delivers their data.
class CAPIModulePrivate : public QObject {
    Q_OBJECT

public:
    explicit CAPIModulePrivate(CAPIModule* q);
    ~CAPIModulePrivate() override;

    /// The private part of the CAPIModule instance.
    static CAPIModulePrivate& Get() { return *CAPIModule::GetInstance().d_func(); }

    /// Whether the calling thread is the application object's and may run calls. Moves the façade to that thread.
    bool AttachToApplication();

    void SetMaximumReplySize(qint64 nBytes);
    void SetServerTrust(const ServerTrust& trust);

    /// Packs, sends, waits, judges and parses, with log lines but without notifications.
    /// @param parent of the wait dialog; null waits in a local event loop
    detail::CallResult Perform(const CallSteps& steps, const QPointer<QWidget>& parent);

    /// Packs and builds. @return whether the request can be sent; otherwise @p result has the reason
    bool Prepare(const CallSteps& steps, QNetworkRequest& request, detail::CallResult& result);

    /// Judges the reply in @p result and delivers its data.
    static void Conclude(const detail::ReadData& read, detail::CallResult& result);

    /// Begins a call without waiting for it.
    CallHandle Start(const CallSteps& steps, QObject* pContext, const detail::Finished& finished);

    /// Sets URL, headers and attributes. @return 0, or -4 for a request that cannot be sent
    int BuildRequest(const RequestParam& param, QNetworkRequest& request);

    /// Sends the request and waits behind a modal wait dialog. @return 0, -4, -18, -101 or 7000
    int ExecuteRequestWithWaitDlg(const QNetworkRequest& request, QWidget* pParent, ReplyInfo& reply);

    /// Sends the request and waits in a local event loop. @return as above
    int ExecuteRequestWithoutWaitDlg(const QNetworkRequest& request, ReplyInfo& reply);

    /// The HTTP status or envelope code that makes a reply a failure; nothing for a success. 0 can be such a code.
    static std::optional<int> Judge(const ReplyInfo& reply);

    /// Runs the Parse on the data of a successful reply. Its result is -1 when it throws.
    static void Deliver(const detail::ReadData& read, ReplyInfo& reply);

    /// Configures an exchange as its call and the host require.
    void SetUp(Exchange& exchange, const CallSteps& steps) const;

    /// Packs and builds a request without sending it. See APIModule::Preview().
    std::optional<ObservedExchange> Preview(const CallSteps& steps);

    /// The time-out of a request: that of the Pack, or of a typed call.
    std::chrono::milliseconds TimeoutOf(const QNetworkRequest& request, const CallSteps& steps) const;

    http::Reply* Send(const QNetworkRequest& request) { return Send(*m_pNetworkManager, request); }

    /// Deletes earlier network managers whose calls have ended.
    void RetireManagers();

    /// Must be called when a started call to @p origin has left the transport.
    void OnLeft(const QString& origin);

private:
    friend class CAPIModule;

    /// Calls to one server.
    struct Line {
        int nOnTheirWay = 0;
        QQueue<QPointer<StartedCall>> waiting;  ///< including calls that ended while they queued
    };

    static http::Reply* Send(http::AccessManager& manager, const QNetworkRequest& request);
    void MoveTo(QThread* pThread);
    void AttachTo(QCoreApplication& application);
    void DetachFromApplication();
    void MakeNetworkManager();

    /// Makes later calls use new connections. Calls that wait keep theirs.
    void ForgetConnections();

    int Execute(const QNetworkRequest& request, QWidget* pParent, ReplyInfo& reply, Wait& wait, const char* pFunction);

    /// Sends queued calls to a server as far as its limit permits.
    void BeginNext(const QString& origin);
    /// Ends the calls of Start(). Their functions are called later, or before this returns.
    void EndStarted(void (StartedCall::*pEnd)());

    CAPIModule* const q_ptr;
    std::string m_strLanguage = "en";
    std::string m_strTimeZoneId;
    qint64 m_nMaximumReplySize = http::AccessManager::kDefaultMaximumReplySize;
    std::chrono::milliseconds m_waitDialogDelay{300};
    std::optional<std::chrono::milliseconds> m_callTimeout;
    ExchangeObserver m_observer;
    QHash<QString, Line> m_lines;                       ///< the calls of Start(), by server
    bool m_bEndingStarted = false;                      ///< while set, queued calls are not sent
    std::shared_ptr<const ServerTrust> m_pServerTrust;  ///< null when every server is trusted
    QPointer<http::AccessManager> m_pNetworkManager;
    QList<QPointer<http::AccessManager>> m_networkManagers;  ///< including earlier ones whose calls still wait
    QPointer<QCoreApplication> m_pApplication;
};

}  // namespace APIModule
