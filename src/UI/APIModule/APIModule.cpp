#include "APIModule.h"

#include "APIModule_p.h"
#include "Log_p.h"
#include "RunHosted_p.h"

#include <ErrorLexicon/ErrorLexicon.h>
#include <OrnGui/OrnMessageNotify.h>
#include <OrnGui/OrnSingleton.h>

#include <QPointer>
#include <QWidget>

#include <boost/thread/lock_guard.hpp>
#include <boost/thread/mutex.hpp>

#include <atomic>

namespace APIModule {

using namespace detail;

namespace {

constexpr int kCurrentServer = -1;

constexpr const char* kGetRequestParam = "APIModule::CAPIModule::GetRequestParam";
constexpr const char* kNoUserManager = "GetRequestParam failed! no user manager.";

/// Address and token of the server of a call, from the user manager.
struct ServerOfCall {
    UserLogical::ServerConnection connection;
    std::string strToken;
};

/// Asks the user manager, whose code may call UnInit(), which sets @p pUserManager to null. @return 0 or -1
int AskUserManager(UserLogical::IUserManager* const& pUserManager, int nServerId, ServerOfCall& server)
{
    if (nServerId == kCurrentServer) {
        nServerId = pUserManager->GetCurrentServerId();
    }
    if (!pUserManager) {
        LogFailure({kModuleFile, kGetRequestParam}, kNoUserManager);
        return -1;
    }
    const std::shared_ptr<UserLogical::IServer> pServer = pUserManager->GetServer(nServerId);
    if (!pServer) {
        return -1;
    }
    pServer->GetConnection(server.connection);
    server.strToken = pServer->GetToken();
    return 0;
}

void Notify(const QString& text)
{
    ORNGUI::OrnSingleton<ORNGUI::OrnMessageNotify>::Instance().AddTextNotification(text, false, QString(), QString(),
                                                                                   false);
}

/// Destroys the callables when a call returns, not at the end of the caller's full expression.
class ReleaseOnReturn {
public:
    ReleaseOnReturn(boost::function<int(void*)>& packetFunc, boost::function<int(QJsonObject const&)>& parseFunc)
        : m_packetFunc(packetFunc), m_parseFunc(parseFunc)
    {}
    ~ReleaseOnReturn()
    {
        m_packetFunc.clear();
        m_parseFunc.clear();
    }
    ReleaseOnReturn(const ReleaseOnReturn&) = delete;
    ReleaseOnReturn& operator=(const ReleaseOnReturn&) = delete;

private:
    boost::function<int(void*)>& m_packetFunc;
    boost::function<int(QJsonObject const&)>& m_parseFunc;
};

}  // namespace

CAPIModule& CAPIModule::GetInstance()
{
    static std::atomic<CAPIModule*> pInstance{nullptr};
    static boost::mutex mutex;

    CAPIModule* pCreated = pInstance.load(std::memory_order_acquire);
    if (!pCreated) {
        const boost::lock_guard<boost::mutex> lock(mutex);
        pCreated = pInstance.load(std::memory_order_relaxed);
        if (!pCreated) {
            pCreated = new CAPIModule;
            pInstance.store(pCreated, std::memory_order_release);
        }
    }
    pCreated->d_func()->AttachToApplication();  // belongs to the application object as soon as there is one
    return *pCreated;
}

CAPIModule::CAPIModule() : d_ptr(std::make_unique<CAPIModulePrivate>(this)) {}

CAPIModule::~CAPIModule() = default;

void CAPIModule::Init(UserLogical::IUserManager* pUserManager)
{
    if (!pUserManager || m_pUserManager) {
        return;
    }
    m_pUserManager = pUserManager;
    m_bInitialised = true;
    LogInfo({kModuleFile, "APIModule::CAPIModule::Init"}, "Init Sucess");
}

void CAPIModule::UnInit()
{
    Q_D(CAPIModule);
    m_pUserManager = nullptr;
    m_bInitialised = false;
    d->EndStarted(&StartedCall::EndAsCancelled);
    d->ForgetConnections();
    LogInfo({kModuleFile, "APIModule::CAPIModule::UnInit"}, "unInit Sucess");
}

void CAPIModule::SetHttpsMode(int nHttpsMode)
{
    m_nHttpsMode = nHttpsMode;
}

void CAPIModule::SetLanguage(const std::string& strLanguage)
{
    Q_D(CAPIModule);
    d->m_strLanguage = strLanguage;
}

void CAPIModule::SetMaximumReplySize(qint64 nBytes)
{
    Q_D(CAPIModule);
    d->SetMaximumReplySize(nBytes);
}

void CAPIModule::SetCallTimeout(std::optional<std::chrono::milliseconds> timeout)
{
    Q_D(CAPIModule);
    d->m_callTimeout = timeout;
}

void CAPIModule::SetWaitDialogDelay(std::chrono::milliseconds delay)
{
    Q_D(CAPIModule);
    d->m_waitDialogDelay = delay;
}

void CAPIModule::SetExchangeObserver(const std::function<void(const ObservedExchange&)>& observer)
{
    Q_D(CAPIModule);
    d->m_observer = observer;
}

void CAPIModule::SetServerTrust(const ServerTrust& trust)
{
    Q_D(CAPIModule);
    d->SetServerTrust(trust);
}

int CAPIModule::GetRequestParam(void* pReqParamData, const Method& method, const QString& strUrl, int nServerId,
                                const QString& strBody, const QString& strSequence, int nTimeout, bool bCompress)
{
    Q_D(CAPIModule);
    const char* pRefusal = nullptr;
    if (!d->AttachToApplication()) {
        pRefusal = "GetRequestParam failed! wrong thread or no application.";
    } else if (!pReqParamData) {
        pRefusal = "GetRequestParam failed! pReqParamData can not be null.";
    } else if (strUrl.isEmpty()) {
        pRefusal = "GetRequestParam failed! strUrl can not be empty.";
    } else if (!m_pUserManager) {
        pRefusal = kNoUserManager;
    }
    if (pRefusal) {
        LogFailure({kModuleFile, kGetRequestParam}, pRefusal);
        return -1;
    }

    ServerOfCall server;
    if (RunHosted({kModuleFile, kGetRequestParam}, QStringLiteral("userManager"),
                  [&] { return AskUserManager(m_pUserManager, nServerId, server); }) != 0) {
        return -1;
    }

    auto& param = *static_cast<RequestParam*>(pReqParamData);
    param.strToken = server.strToken;
    param.strIp = server.connection.strHost;
    param.nPort = server.connection.nPort;
    param.bHttps = m_nHttpsMode != 0;
    param.strUrl = strUrl.toStdString();
    param.strBody = strBody.toStdString();
    param.strSequence = strSequence.toStdString();
    param.eMethod = method;
    param.bCompress = bCompress;
    param.nTimeout = nTimeout;
    return 0;
}

// Passed by value because the public signature requires it; the callables are destroyed before the call returns.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
int CAPIModule::ExecuteFuncs(boost::function<int(void*)> packetFunc, boost::function<int(QJsonObject const&)> parseFunc,
                             const QString& strUIError, QWidget* pParent, const QString& strSuccessTip,
                             bool bShowErrorCode, bool bNotifyOnFailure)
{
    Q_D(CAPIModule);
    const ReleaseOnReturn release(packetFunc, parseFunc);
    // The host may delete its objects while the call waits.
    const QPointer<QWidget> parent(pParent);
    const QString uiError(strUIError);        // NOLINT(performance-unnecessary-copy-initialization)
    const QString successTip(strSuccessTip);  // NOLINT(performance-unnecessary-copy-initialization)

    CallSteps steps;
    steps.pEntry = "ExecuteFuncs";
    if (packetFunc) {
        steps.pack = std::cref(packetFunc);
    }
    if (parseFunc) {
        steps.read = std::cref(parseFunc);
    }
    const CallResult result = d->Perform(steps, parent);

    if (result.eEnd == CallEnd::NotPacked) {
        return -1;
    }
    if (result.eEnd != CallEnd::Success) {
        const bool bJudged = result.reply.eEnd == CallEnd::Success && !result.reply.parsed;
        if (bJudged && !bNotifyOnFailure) {
            return result.nCode;
        }
        NotifyErrorMessage(uiError, result.nCode, bShowErrorCode);
        return result.reply.parsed.value_or(-1);
    }
    const bool bDelivered = result.reply.jsonData.isEmpty() || steps.read;
    if (bDelivered && !successTip.isEmpty() && m_bInitialised) {
        Notify(successTip);
    }
    return 0;
}

void CAPIModule::NotifyOutcome(const OutcomeBase& outcome, const QString& strUIError, const QString& strSuccessTip,
                               bool bShowErrorCode)
{
    if (!outcome) {
        if (outcome.End() != CallEnd::NotPacked) {
            NotifyErrorMessage(strUIError, outcome.Code(), bShowErrorCode);
        }
    } else if (!strSuccessTip.isEmpty() && m_bInitialised) {
        Notify(strSuccessTip);
    }
}

int CAPIModule::BuildRequest(const RequestParam& param, QNetworkRequest& request)
{
    Q_D(CAPIModule);
    return d->BuildRequest(param, request);
}

int CAPIModule::ExecuteRequest(const QNetworkRequest& request, QWidget* pParent, ReplyInfo& reply)
{
    Q_D(CAPIModule);
    return pParent ? d->ExecuteRequestWithWaitDlg(request, pParent, reply)
                   : d->ExecuteRequestWithoutWaitDlg(request, reply);
}

QString CAPIModule::GetErroCodeInfor(const QString& strUIError, int errorCode, bool bAppend)
{
    std::string strText;
    if (ErrorLexicon::ErrorLexiconQuery(errorCode, strText) == 0) {
        QString codeText = QString::fromStdString(strText);
        if (bAppend && !strUIError.isEmpty()) {
            //: Separates the description of the failure from the text of its code; a blank follows
            return strUIError + tr(":") + QLatin1Char(' ') + codeText;
        }
        return codeText;
    }

    const LogSite site{kModuleFile, "APIModule::CAPIModule::GetErroCodeInfor"};
    const QString line = QLatin1String("Error code is not exist, strUIError=") + strUIError +
                         QLatin1String(", errorCode=") + QString::number(errorCode);
    LogFailure(site, line);
    if (!strUIError.isEmpty()) {
        return strUIError;
    }
    LogInfo(site, line);
    return tr("Operation failed");
}

void CAPIModule::NotifyErrorMessage(const QString& strUIError, int errorCode, bool bShowErrorCode)
{
    if (!m_bInitialised) {
        return;
    }
    const QString text = bShowErrorCode ? GetErroCodeInfor(strUIError, errorCode, true) : strUIError;
    if (bShowErrorCode || !text.isEmpty()) {
        Notify(text);
    }
}

}  // namespace APIModule

// Defined in this file because abidw loses functions of a class that is defined in several units.
#include "moc_APIModule.cpp"  // NOLINT(bugprone-suspicious-include)
