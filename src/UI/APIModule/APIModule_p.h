#pragma once

#include "APIModule.h"
#include "ReplyInfo_p.h"

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QObject>
#include <QPointer>

#include <optional>
#include <string>

namespace APIModule {

class Wait;

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

    int Execute(const QNetworkRequest& request, ReplyInfo& reply, Wait& wait, const char* pFunction);
    QNetworkReply* Send(const QNetworkRequest& request);
    void DropConnectionsAfter(int nResult);

    CAPIModule* const q_ptr;
    std::string m_strLanguage = "en";
    std::string m_strTimeZoneId;
    QPointer<QNetworkAccessManager> m_pNetworkManager;
    QPointer<QCoreApplication> m_pApplication;
    int m_nUnderWay = 0;                 ///< requests that wait, each inside the one before
    bool m_bConnectionsSuspect = false;  ///< one of them got no answer
};

}  // namespace APIModule
