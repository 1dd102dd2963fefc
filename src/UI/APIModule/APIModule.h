#pragma once

#include "APIModuleGlobal.h"

#include <UserLogical/IUserManager.h>

#include <QJsonObject>
#include <QMetaType>
#include <QObject>
#include <QString>

#include <boost/function.hpp>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>

class QNetworkRequest;
class QWidget;

/// Typed calls to the REST services of the platform server.
namespace APIModule {

/// HTTP verb of a call.
enum Method {
    Method_Get = 0,     ///< GET, never with a body
    Method_Put = 1,     ///< PUT with a body
    Method_Post = 2,    ///< POST with a body
    Method_Delete = 3,  ///< DELETE with a body
};

/// The name under which the meta-type system knows Method.
using Method_e = Method;

/// A request. A Pack receives it as `void*` and fills it through CAPIModule::GetRequestParam().
struct RequestParam {
    int nPort = 443;                ///< TCP port of the server
    int nTimeout = 10;              ///< longest wait for the reply, in seconds; 0 or less does not wait
    bool bHttps = true;             ///< HTTPS instead of HTTP
    bool bCompress = false;         ///< send the header "Compress-Type" with the value "1"
    Method eMethod = Method_Get;    ///< HTTP verb
    std::string strIp;              ///< host name or IP address, used as given (an IPv6 address needs its brackets)
    std::string strUrl;             ///< path and query, for example "/brms/api/v1.1/config/time-sync"
    std::string strBody;            ///< JSON body as UTF-8 text, empty for none
    std::string strToken;           ///< session token, sent as "X-Subject-Token"
    std::string strSequence;        ///< sent as "X-Subject-Sequence" unless it is empty
    bool bExcludeUserInput = true;  ///< hold back user input while a call waits without a wait dialog
};

struct ObservedExchange;
struct ReplyInfo;
struct ServerTrust;
class CAPIModulePrivate;
class OutcomeBase;

/// The façade through which every call runs.
///
/// A host calls Init() once with its user manager and then makes calls: typed ones with Run() and Start() (Call.h), or
/// pairs of a Pack and a Parse with ExecuteFuncs(). A Pack describes the request, a Parse reads the data of the reply.
///
/// The object belongs to the thread of the application object. No exception crosses this interface. Not supported are
/// blocking calls without an event loop, and calls on other threads: a host posts the work to the application's thread
/// instead.
///
/// A Pack describes its request in the RequestParam behind `pReqParamData`. Where it takes a server `nServerId`, -1
/// selects the user manager's current one. It returns 0, or the -1 of GetRequestParam() with the record untouched, and
/// writes one log line either way. A Parse reads the "data" object of the reply. It returns 0, or stops with -1 at the
/// first key that cannot be read: fields read before keep their new values, the others are untouched. Lists are
/// appended to the caller's vector, each element once it was read completely, including its inner lists.
class APIMODULE_EXPORT CAPIModule : public QObject {
    Q_OBJECT

public:
    /// @return the instance of the process, created on first use from whichever thread; it lives until the process ends
    static CAPIModule& GetInstance();

    ~CAPIModule() override;

    /// Attaches the user manager, which supplies servers and tokens for all calls, and enables notifications.
    ///
    /// A null argument, and every call after the first until UnInit(), is ignored without a message.
    ///
    /// @param pUserManager owned by the host; must exist until UnInit()
    void Init(UserLogical::IUserManager* pUserManager);

    /// Detaches the user manager and stops showing notifications. A call that waits still returns its result. Calls of
    /// Start() end as cancelled.
    void UnInit();

    /// Selects https or http for all calls packed from now on.
    ///
    /// @param nHttpsMode 0 for http, any other value for https, which is the default
    void SetHttpsMode(int nHttpsMode);

    /// Sets the language of the server's replies. The error-text library has a separate setting for its texts.
    ///
    /// @param strLanguage value of "Accept-Language", "en" by default
    void SetLanguage(const std::string& strLanguage);

    /// Limits the size of replies for all calls that begin from now on. A larger reply ends its call at once as a
    /// network error, -18.
    ///
    /// @param nBytes largest size in bytes, counted as received and again after decompression; 512 MiB by
    ///        default. Values outside the range from 1 to 2,000,000,000 are clamped to it.
    void SetMaximumReplySize(qint64 nBytes);

    /// Names the trusted servers for calls over HTTPS from now on. By default every server is trusted.
    ///
    /// Nothing is sent to a server before it is trusted. A call to an untrusted server ends as a network error, -18,
    /// with a log line that names host, port, reason and the digest of its certificate. Calls that wait continue;
    /// existing connections are not reused. Calls over HTTP are not affected.
    ///
    /// @param trust pins, authorities and the host's decision (ServerTrust.h); a default-constructed one trusts every
    ///        server
    void SetServerTrust(const ServerTrust& trust);

    /// Sets the time-out of all typed calls (Call.h) that begin from now on without Request::Within().
    ///
    /// @param timeout replaces the time-out of the Pack; `std::nullopt`, the default, keeps that of the Pack
    void SetCallTimeout(std::optional<std::chrono::milliseconds> timeout);

    /// Sets the delay after which a typed call with a parent shows the wait dialog. ExecuteFuncs() shows the dialog at
    /// once.
    ///
    /// @param delay 300 ms by default; 0 shows the dialog at once
    void SetWaitDialogDelay(std::chrono::milliseconds delay);

    /// Reports every exchange with a server, of typed calls and of ExecuteFuncs(), to the host.
    ///
    /// @param observer called at the end of each exchange that begins from now on (ObservedExchange.h); null for none
    void SetExchangeObserver(const std::function<void(const ObservedExchange&)>& observer);

    /// Notifies the outcome of a typed call as ExecuteFuncs() does for its calls: a failure with @p strUIError and the
    /// text of its code, unless the call was not packed, and a success with its tip.
    ///
    /// @param outcome the outcome that Run() returned or that Start() delivered
    /// @param strUIError description of the failure for the user; may be empty
    /// @param strSuccessTip notified after success unless empty
    /// @param bShowErrorCode add the text of the failure's code to the notification
    void NotifyOutcome(const OutcomeBase& outcome, const QString& strUIError, const QString& strSuccessTip = QString(),
                       bool bShowErrorCode = true);

    /// Fills the RequestParam of a Pack; every Pack ends with this call.
    ///
    /// Host, port and session token come from the user manager, the scheme from SetHttpsMode().
    ///
    /// @param pReqParamData the RequestParam
    /// @param method HTTP verb
    /// @param strUrl path and query; not empty
    /// @param nServerId server to call, -1 for the user manager's current one
    /// @param strBody JSON body, empty for none
    /// @param strSequence value of "X-Subject-Sequence", empty for none
    /// @param nTimeout longest wait in seconds
    /// @param bCompress send "Compress-Type"
    /// @return 0; -1 with a log line for a null record, an empty URL, a missing user manager, the wrong thread or no
    ///         application object, and without one for a server that the user manager does not know. The record is
    ///         untouched on failure.
    int GetRequestParam(void* pReqParamData, const Method& method, const QString& strUrl, int nServerId,
                        const QString& strBody, const QString& strSequence, int nTimeout, bool bCompress);

    /// Runs one call: packs the request, sends it, waits, judges the reply, parses its data and notifies the user.
    ///
    /// The call waits behind a modal wait dialog over @p pParent, or in a local event loop without a parent. The event
    /// loop keeps running, so timers and paint events are delivered. The call returns whatever happens meanwhile: the
    /// parent or the dialog is deleted, other code stops the dialog, UnInit(), another call, the end of the
    /// application. If the wait ends without a reply, the result is that of a time-out. From quit() until aboutToQuit()
    /// Qt runs no nested event loop, so calls return at once with the result of a time-out; before and after that they
    /// work.
    ///
    /// @warning A refusal whose code is 0, missing, a fraction or a text is returned as 0, like a success, unless
    /// @p bNotifyOnFailure is set; the record keeps its values. Run() and Start() (Call.h) distinguish the two.
    ///
    /// @param packetFunc describes the request in the RequestParam passed to it; a result other than 0 ends the call
    /// @param parseFunc reads the "data" object of the reply into the caller's record; empty (`{}`) if there is
    ///        nothing to read. `nullptr` does not compile.
    /// @param strUIError description of the failure for notifications; may be empty
    /// @param pParent parent of the wait dialog, or null to wait without one
    /// @param strSuccessTip notified after success unless empty; not if the reply has data and @p parseFunc is empty
    /// @param bShowErrorCode add the text of the failure's code to the notification
    /// @param bNotifyOnFailure notify a failing HTTP status or envelope code and return -1, instead of returning the
    ///        status or the code itself
    /// @return
    ///  - 0: success
    ///  - -1: no Pack, a failing Pack (neither is notified), and every failure that was notified: -4 invalid URL or
    ///    request, -18 network error, -101 time-out, 7000 authentication required, 3101 a Parse that threw, and with
    ///    @p bNotifyOnFailure the HTTP status or envelope code
    ///  - the HTTP status, or the envelope code (0 included, see the warning), of a failure that is not notified
    ///  - the result of the Parse when it is not 0 (notified as 3101)
    int ExecuteFuncs(boost::function<int(void*)> packetFunc, boost::function<int(QJsonObject const&)> parseFunc,
                     const QString& strUIError, QWidget* pParent, const QString& strSuccessTip, bool bShowErrorCode,
                     bool bNotifyOnFailure);

    /// Returns the text of an error code for the user.
    ///
    /// @param strUIError description of the failure for the user; may be empty
    /// @param errorCode a result of this library, an HTTP status or an envelope code
    /// @param bAppend put @p strUIError and a colon before the text of a known code
    /// @return the text of a known code; for an unknown one @p strUIError, or "Operation failed" when that is empty
    static QString GetErroCodeInfor(const QString& strUIError, int errorCode, bool bAppend);

private:
    CAPIModule();
    Q_DECLARE_PRIVATE(CAPIModule)
    Q_DISABLE_COPY(CAPIModule)

    int BuildRequest(const RequestParam& param, QNetworkRequest& request);
    int ExecuteRequest(const QNetworkRequest& request, QWidget* pParent, ReplyInfo& reply);
    void NotifyErrorMessage(const QString& strUIError, int errorCode, bool bShowErrorCode);

    const std::unique_ptr<CAPIModulePrivate> d_ptr;
    UserLogical::IUserManager* m_pUserManager = nullptr;
    int m_nHttpsMode = 1;
    bool m_bInitialised = false;
};

}  // namespace APIModule

Q_DECLARE_METATYPE(APIModule::Method_e)
