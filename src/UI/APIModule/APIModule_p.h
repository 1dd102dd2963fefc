#pragma once

#include "APIModule.h"
#include "http/AccessManager.h"
#include "ReplyInfo_p.h"

#include <QCoreApplication>
#include <QNetworkRequest>
#include <QObject>
#include <QPointer>

#include <memory>
#include <optional>
#include <string>

namespace APIModule {

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

    /// Whether the calling thread is the application object's and may run calls; the façade then belongs to it.
    bool AttachToApplication();

    void SetMaximumReplySize(qint64 nBytes);
    void SetServerTrust(const ServerTrust& trust);

    /// Runs the Pack. @return 0, its own result, or -1 when it throws
    static int Describe(const boost::function<int(void*)>& packetFunc, RequestParam& param);

    /// Makes URL, headers and attributes. @return 0, or -4 for what cannot be sent
    int BuildRequest(const RequestParam& param, QNetworkRequest& request);

    /// Sends the request and waits behind a modal wait dialog. @return 0, -4, -18, -101 or 7000
    int ExecuteRequestWithWaitDlg(const QNetworkRequest& request, QWidget* pParent, ReplyInfo& reply);

    /// Sends the request and waits in a local event loop. @return as above
    int ExecuteRequestWithoutWaitDlg(const QNetworkRequest& request, ReplyInfo& reply);

    /// The HTTP status or envelope code that makes a reply a failure; nothing for a success. 0 can be such a code.
    static std::optional<int> Judge(const ReplyInfo& reply);

    /// Runs the Parse on the data of a successful reply. @return 0, its own result, or -1 when it throws
    static int Deliver(const boost::function<int(QJsonObject const&)>& parseFunc, const ReplyInfo& reply);

private:
    friend class CAPIModule;

    void MoveTo(QThread* pThread);
    void AttachTo(QCoreApplication& application);
    void DetachFromApplication();
    void MakeNetworkManager();

    /// What comes from now on reaches its server over new connections. Calls that wait keep theirs.
    void ForgetConnections();

    int Execute(const QNetworkRequest& request, ReplyInfo& reply, Wait& wait, const char* pFunction);
    http::Reply* Send(const QNetworkRequest& request);

    CAPIModule* const q_ptr;
    std::string m_strLanguage = "en";
    std::string m_strTimeZoneId;
    qint64 m_nMaximumReplySize = http::AccessManager::kDefaultMaximumReplySize;
    std::shared_ptr<const ServerTrust> m_pServerTrust;  ///< null when every server is trusted
    QPointer<http::AccessManager> m_pNetworkManager;
    QList<QPointer<http::AccessManager>> m_networkManagers;  ///< with earlier ones whose calls still wait
    QPointer<QCoreApplication> m_pApplication;
};

}  // namespace APIModule
