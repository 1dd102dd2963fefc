// Counts failures of calls that start at about the time their kept connection closes, compared with
// QNetworkAccessManager. Prints the table in docs/testing.md.
#include "support/TestApplication.h"
#include "TransportHost.h"

#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QThread>

#include <cstdio>
#include <map>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

constexpr int kEndsAfterMs = 2;
constexpr int kLongestPauseMs = 5;
constexpr int kTimeoutSeconds = 2;

/// Makes a call. @return 0, or the error
using Client = std::function<int(const RawServer& server, RawServer::Scheme scheme, bool bWrite, const QString& path)>;

/// @return 0, Qt's error number, or -101 if no reply arrives in time
int CallQt(QNetworkAccessManager& manager, const RawServer& server, RawServer::Scheme scheme, bool bWrite,
           const QString& path)
{
    const QString schemeText = scheme == RawServer::Http ? QStringLiteral("http") : QStringLiteral("https");
    QNetworkRequest request(QUrl(schemeText + QStringLiteral("://127.0.0.1:%1").arg(server.Port()) + path));
    QSslConfiguration configuration = request.sslConfiguration();
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    request.setSslConfiguration(configuration);
    request.setAttribute(QNetworkRequest::Http2AllowedAttribute, false);
    request.setHeader(QNetworkRequest::ContentTypeHeader, QStringLiteral("application/json"));
    const std::unique_ptr<QNetworkReply> pReply(bWrite ? manager.post(request, QByteArrayLiteral("{}"))
                                                       : manager.get(request));
    QEventLoop loop;
    QObject::connect(pReply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    QTimer::singleShot(kTimeoutSeconds * 1000, &loop, &QEventLoop::quit);
    loop.exec();
    return pReply->isFinished() ? int(pReply->error()) : kTimedOut;
}

/// A host of the library for use outside a test.
class LibraryHost : public TransportHost {
public:
    int Call(const RawServer& server, RawServer::Scheme scheme, bool bWrite, const QString& path)
    {
        Use(server, scheme);
        return Run(bWrite ? APIModule::Method_Post : APIModule::Method_Get, path, QStringLiteral("{}"), kTimeoutSeconds)
            .code;
    }

private:
    void TestBody() override {}
};

struct End {
    const char* name;
    RawReply::Then then;
};

struct Counts {
    int calls = 0;
    std::map<int, int> failures;
    int repeated = 0;
};

void PauseFor(int nMilliseconds, bool bInEventLoop)
{
    if (!bInEventLoop) {
        QThread::msleep(nMilliseconds);
        return;
    }
    QEventLoop loop;
    QTimer::singleShot(nMilliseconds, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
}

Counts Count(const Client& client, RawReply::Then then, RawServer::Scheme scheme, bool bWrite, int nCalls)
{
    RawServer server(
        [then](const RawRequest& request) {
            RawReply reply = SuccessReply();
            if (request.target == "/first") {
                reply.then = then;
                reply.thenMilliseconds = kEndsAfterMs;
            }
            return reply;
        },
        scheme);
    Counts counts;
    counts.calls = nCalls;
    for (int i = 0; i < nCalls; ++i) {
        client(server, scheme, false, QStringLiteral("/first"));
        PauseFor(i % (kLongestPauseMs + 1), i % 2 == 0);
        const int nFailure = client(server, scheme, bWrite, QStringLiteral("/second"));
        if (nFailure != 0) {
            ++counts.failures[nFailure];
        }
        int nArrivals = 0;
        for (const RawRequest& request : server.TakeRequests()) {
            nArrivals += request.target == "/second" ? 1 : 0;
        }
        counts.repeated += nArrivals > 1 ? 1 : 0;
    }
    return counts;
}

std::string Shown(const Counts& counts)
{
    std::string text;
    for (const auto& [nCode, nCalls] : counts.failures) {
        text += (text.empty() ? "" : ", ") + std::to_string(nCalls) + " x " + std::to_string(nCode);
    }
    return (text.empty() ? "0" : text) + " / " + std::to_string(counts.repeated);
}

}  // namespace

int main(int argc, char** argv)
{
    const TestApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const int nCalls = argc > 1 ? std::atoi(argv[1]) : 150;  // NOLINT(cert-err34-c): typed by a developer
    QNetworkAccessManager manager;
    const auto callQt = [&manager](const RawServer& server, RawServer::Scheme scheme, bool bWrite,
                                   const QString& path) { return CallQt(manager, server, scheme, bWrite, path); };
    std::vector<End> ends = {
        {"closed", RawReply::Close}, {"reset", RawReply::Reset}, {"half-closed", RawReply::HalfClose}};
    if (CanVanish()) {
        ends.push_back({"silently closed", RawReply::Vanish});
    }
    std::printf("| connection | over | call | calls | library: failures / repeated | Qt: failures / repeated |\n"
                "|---|---|---|---|---|---|\n");
    for (const End& end : ends) {
        for (const RawServer::Scheme scheme : {RawServer::Http, RawServer::Https}) {
            for (const bool bWrite : {false, true}) {
                LibraryHost host;
                const auto callLibrary = [&host](const RawServer& server, RawServer::Scheme callScheme,
                                                 bool bCallWrites, const QString& path) {
                    return host.Call(server, callScheme, bCallWrites, path);
                };
                const Counts library = Count(callLibrary, end.then, scheme, bWrite, nCalls);
                const Counts qt = Count(callQt, end.then, scheme, bWrite, nCalls);
                std::printf("| %s | %s | %s | %d | %s | %s |\n", end.name, scheme == RawServer::Http ? "http" : "https",
                            bWrite ? "write" : "read", nCalls, Shown(library).c_str(), Shown(qt).c_str());
                std::fflush(stdout);
            }
        }
    }
    return 0;
}
