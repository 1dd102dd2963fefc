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

/// Description of one request. A Pack receives it as `void*` and fills it through CAPIModule::GetRequestParam.
struct RequestParam {
    int nPort = 443;                ///< TCP port of the server
    int nTimeout = 10;              ///< longest wait for the reply, in seconds; 0 or less does not wait for it
    bool bHttps = true;             ///< HTTPS instead of HTTP
    bool bCompress = false;         ///< send the header "Compress-Type" with the value "1"
    Method eMethod = Method_Get;    ///< HTTP verb
    std::string strIp;              ///< host name or IP address, used as given (an IPv6 address needs its brackets)
    std::string strUrl;             ///< path and query, for example "/brms/api/v1.1/config/time-sync"
    std::string strBody;            ///< JSON body as UTF-8 text, empty for none
    std::string strToken;           ///< session token, sent as "X-Subject-Token"
    std::string strSequence;        ///< sent as "X-Subject-Sequence" unless it is empty
    bool bExcludeUserInput = true;  ///< hold back user input while a call without wait dialog waits
};

struct ObservedExchange;
struct ReplyInfo;
struct ServerTrust;
class CAPIModulePrivate;
class OutcomeBase;

/// The one object through which every call runs.
///
/// A call family supplies a Pack, which describes the request, and a Parse, which reads the data of the reply;
/// ExecuteFuncs() runs the pair. The object belongs to the thread of the application object, and only that thread
/// may call GetRequestParam() and ExecuteFuncs(). No exception crosses this interface.
///
/// A Pack describes its request in the RequestParam behind `pReqParamData`, for the server `nServerId` (-1 for the user
/// manager's current one) where it takes one; it returns 0, or the -1 of GetRequestParam() with the record untouched,
/// and writes one log line either way. A Parse reads the "data" object of the reply; it returns 0, or -1 at the first
/// key that cannot be read: what was read before that key stays filled, the rest is untouched. Lists are appended to
/// what the caller's vector holds, each element when all of it was read, its inner lists included.
class APIMODULE_EXPORT CAPIModule : public QObject {
    Q_OBJECT

public:
    /// @return the instance of the process, created on first use from whichever thread; it lives until the process ends
    static CAPIModule& GetInstance();

    ~CAPIModule() override;

    /// Starts use: from now on calls reach their server through @p pUserManager and notifications are shown.
    ///
    /// A null argument, and every call after the first until UnInit(), is ignored without a message.
    ///
    /// @param pUserManager stays the host's and must live until UnInit()
    void Init(UserLogical::IUserManager* pUserManager);

    /// Ends use: the user manager is forgotten and nothing is notified any more. A call that is waiting goes on to
    /// its own result. Calls begun by Start() end as cancelled.
    void UnInit();

    /// Chooses https or http for the calls that are packed from now on.
    ///
    /// @param nHttpsMode 0 for http, any other value for https, which is the default
    void SetHttpsMode(int nHttpsMode);

    /// Sets the language that the server answers in. The language of error texts is the error-text library's own
    /// setting.
    ///
    /// @param strLanguage value of "Accept-Language", "en" by default
    void SetLanguage(const std::string& strLanguage);

    /// Limits the replies of the calls that begin from now on. A larger reply ends its call at once as a network error,
    /// -18.
    ///
    /// @param nBytes largest size in bytes, counted as received and again after decompression; 512 MiB by default. 1 is
    ///        the least and 2,000,000,000 the most that has an effect.
    void SetMaximumReplySize(qint64 nBytes);

    /// Names the servers that calls over HTTPS may talk to from now on; without this call they talk to every server.
    ///
    /// Nothing is sent to a server before it is known. A call to one that is not known ends as a network error, -18,
    /// with a log line that names host, port, reason and the digest of its certificate. Calls that wait go on;
    /// connections made before are not used again. Calls over HTTP are not concerned.
    ///
    /// @param trust pins, authorities and the host's decision (ServerTrust.h); a default-made one trusts every server
    void SetServerTrust(const ServerTrust& trust);

    /// Sets the time-out of the typed calls (Call.h) that begin from now on and do not name one themselves.
    ///
    /// @param timeout in the place of the time-out of the Pack; nothing leaves it to the Pack, as by default
    void SetCallTimeout(std::optional<std::chrono::milliseconds> timeout);

    /// Sets how long a typed call that waits over a parent lasts before the wait dialog appears. ExecuteFuncs() shows
    /// the dialog at once.
    ///
    /// @param delay 300 ms by default; 0 shows the dialog at once
    void SetWaitDialogDelay(std::chrono::milliseconds delay);

    /// Shows every exchange with a server, of typed calls and of ExecuteFuncs(), to the host.
    ///
    /// @param observer called at the end of each exchange that begins from now on (ObservedExchange.h); null for none
    void SetExchangeObserver(const std::function<void(const ObservedExchange&)>& observer);

    /// Notifies the end of a typed call as ExecuteFuncs() notifies its own: a failure, unless the call was not packed,
    /// in the host's words and those of its code, a success by its tip.
    ///
    /// @param outcome what Run() returned or the function of Start() was given
    /// @param strUIError the failure in the user's words; may be empty
    /// @param strSuccessTip notified after success unless empty
    /// @param bShowErrorCode add the text of the failure's code to the notification
    void NotifyOutcome(const OutcomeBase& outcome, const QString& strUIError, const QString& strSuccessTip = QString(),
                       bool bShowErrorCode = true);

    /// Fills the RequestParam that a Pack was given; every Pack ends in this call.
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
    /// Waiting runs the event loop, behind a modal wait dialog over @p pParent or, without a parent, in a local event
    /// loop, so timers and paint events go on. Whatever happens meanwhile (the parent or the dialog is deleted,
    /// somebody else stops the dialog, UnInit(), another call, the end of the application) the call returns, with the
    /// result of a time-out where the wait ended without a reply. From quit() until aboutToQuit() Qt runs no nested
    /// event loop, so calls return at once with the result of a time-out; before and after that they work.
    ///
    /// @warning A refusal whose code is 0, missing, a fraction or a text is returned as 0, like a success, unless
    /// @p bNotifyOnFailure is set: the record keeps what it held. Run() and Start() (Call.h) do not confuse the two.
    ///
    /// @param packetFunc describes the request in the RequestParam that it is given; a result other than 0 ends the
    /// call
    /// @param parseFunc reads the "data" object of the reply into the caller's record; empty (`{}`) where there is
    ///        nothing to read. `nullptr` does not compile.
    /// @param strUIError the failure in the user's words, for notifications; may be empty
    /// @param pParent widget under the wait dialog, or null to wait without one
    /// @param strSuccessTip notified after success unless empty; not shown when data came and @p parseFunc is empty
    /// @param bShowErrorCode add the text of the failure's code to the notification
    /// @param bNotifyOnFailure notify a failing HTTP status or envelope code and return -1, instead of returning the
    ///        status or the code itself
    /// @return
    ///  - 0: success
    ///  - -1: no Pack, a failing Pack (neither is notified), and every failure that was notified: -4 invalid URL or
    ///    request, -18 network error, -101 time-out, 7000 authentication required, 3101 a Parse that threw, and with
    ///    @p bNotifyOnFailure the HTTP status or envelope code
    ///  - the HTTP status, or the envelope code (0 included, see the warning), of a failure that is not to be notified
    ///  - the result of the Parse when it is not 0 (notified as 3101)
    int ExecuteFuncs(boost::function<int(void*)> packetFunc, boost::function<int(QJsonObject const&)> parseFunc,
                     const QString& strUIError, QWidget* pParent, const QString& strSuccessTip, bool bShowErrorCode,
                     bool bNotifyOnFailure);

    /// The user's text for an error code.
    ///
    /// @param strUIError the failure in the user's words; may be empty
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
