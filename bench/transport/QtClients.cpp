#include "Clients.h"

#include "../Bench.h"

#include <libornl/TalPrintLog.h>
#include <support/UserManager.h>

#include <QEventLoop>
#include <QJsonDocument>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QPointer>
#include <QSslConfiguration>
#include <QTemporaryDir>
#include <QTimeZone>

#include <fcntl.h>
#include <unistd.h>

namespace bench {
namespace {

constexpr const char* kToken = "token-of-the-session";
constexpr int kTimeoutSeconds = 60;

QNetworkRequest Request(const Exchange& exchange)
{
    QNetworkRequest request;
    if (exchange.bHttps) {
        QSslConfiguration configuration = request.sslConfiguration();
        configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
        configuration.setProtocol(QSsl::TlsV1SslV3);
        request.setSslConfiguration(configuration);
    }
    request.setUrl(QUrl((exchange.bHttps ? QStringLiteral("https://127.0.0.1:") : QStringLiteral("http://127.0.0.1:")) +
                        QString::number(exchange.nPort) + QString::fromLatin1(exchange.path)));
    static const QByteArray timeZone = QTimeZone::systemTimeZoneId();
    request.setRawHeader("Content-Type", "application/json;charset=UTF-8");
    request.setRawHeader("Accept-Language", "en");
    request.setRawHeader("Time-Zone", timeZone);
    request.setRawHeader("X-Subject-Token", kToken);
    constexpr int kFirst = QNetworkRequest::User + 100;
    request.setAttribute(QNetworkRequest::Attribute(kFirst), QVariant::fromValue(exchange.eMethod));
    request.setAttribute(QNetworkRequest::Attribute(kFirst + 1), exchange.body);
    request.setAttribute(QNetworkRequest::Attribute(kFirst + 2), kTimeoutSeconds);
    request.setAttribute(QNetworkRequest::Attribute(kFirst + 3), true);
    return request;
}

class Qt : public Client {
public:
    Reply Run(const Exchange& exchange) override
    {
        QEventLoop loop;
        const std::unique_ptr<QNetworkReply> pReply(SendByQt(m_manager, exchange));
        QObject::connect(pReply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
        return {pReply->readAll(), {}};
    }

private:
    QNetworkAccessManager m_manager;
};

class QtWithJson : public Qt {
public:
    Reply Run(const Exchange& exchange) override
    {
        const QJsonObject envelope = QJsonDocument::fromJson(Qt::Run(exchange).text).object();
        return {{}, envelope.value(QLatin1String("data")).toObject()};
    }
};

/// Discards standard error during its lifetime, so that the cost of a terminal is not measured.
class NoStandardError {
public:
    NoStandardError()
    {
        const int nNowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        ::dup2(nNowhere, STDERR_FILENO);
        ::close(nNowhere);
    }
    ~NoStandardError()
    {
        ::dup2(m_nKept, STDERR_FILENO);
        ::close(m_nKept);
    }
    NoStandardError(const NoStandardError&) = delete;
    NoStandardError& operator=(const NoStandardError&) = delete;

private:
    const int m_nKept = ::dup(STDERR_FILENO);
};

APIModule::CAPIModule& Facade()
{
    return APIModule::CAPIModule::GetInstance();
}

/// The host of the façade, which all clients share.
struct Host {
    Host()
    {
        users.servers[1].token = kToken;
        ornl::TalPrintLog::instance().SetFile(folder.filePath(QStringLiteral("calls.log")).toStdString());
        Facade().Init(&users);
    }
    ~Host()
    {
        Facade().UnInit();
        ornl::TalPrintLog::instance().SetFile({});
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    const QTemporaryDir folder;
    testing_support::UserManager users{};
};

Host& SharedHost()
{
    static Host host;
    return host;
}

class Library : public Client {
public:
    explicit Library(QWidget* pParent) : m_pParent(pParent) {}

    Reply Run(const Exchange& exchange) override
    {
        Reply reply;
        const auto take = [&](const QJsonObject& data) {
            reply.data = data;
            return 0;
        };
        Require(Read(exchange, take) == 0, "a call of the library succeeds");
        return reply;
    }

    int Read(const Exchange& exchange, const Parse& parse) override
    {
        UseServerOf(exchange);
        return Facade().ExecuteFuncs([&](void* pReqParamData) { return PackExchange(pReqParamData, exchange, -1); },
                                     parse, QString(), m_pParent, QString(), false, true);
    }

private:
    const NoStandardError m_noStandardError;
    const QPointer<QWidget> m_pParent;
};

}  // namespace

QNetworkReply* SendByQt(QNetworkAccessManager& manager, const Exchange& exchange)
{
    const QNetworkRequest request = Request(exchange);
    return exchange.eMethod == APIModule::Method_Post ? manager.post(request, exchange.body) : manager.get(request);
}

int PackExchange(void* pReqParamData, const Exchange& exchange, int nServerId)
{
    const int nResult =
        Facade().GetRequestParam(pReqParamData, exchange.eMethod, QString::fromLatin1(exchange.path), nServerId,
                                 QString::fromUtf8(exchange.body), QString(), kTimeoutSeconds, false);
    ornl::TalPrintLog::instance().Log("src/UI/APIModule/BRMS/BRMSModule", __LINE__,
                                      "APIModule::CBRMSModule::PacketGetRemoteLogConfig", "", 4, "%s",
                                      "PacketGetRemoteLogConfig success.");
    return nResult;
}

void UseServerOf(const Exchange& exchange)
{
    Facade().SetHttpsMode(exchange.bHttps ? 1 : 0);
    SharedHost().users.servers[1].port = exchange.nPort;
}

int Client::Read(const Exchange& exchange, const Parse& parse)
{
    return parse(DataOf(Run(exchange)));
}

QJsonObject DataOf(const Reply& reply)
{
    return reply.text.isEmpty() ? reply.data
                                : QJsonDocument::fromJson(reply.text).object().value(QLatin1String("data")).toObject();
}

std::unique_ptr<Client> MakeQt()
{
    return std::make_unique<Qt>();
}

std::unique_ptr<Client> MakeQtWithJson()
{
    return std::make_unique<QtWithJson>();
}

std::unique_ptr<Client> MakeLibrary(QWidget* pParent)
{
    return std::make_unique<Library>(pParent);
}

}  // namespace bench
