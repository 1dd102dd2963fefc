// Which HTTPS servers a host trusts.
#include "support/Host.h"
#include "support/Rows.h"

#include <ServerTrust.h>

#include <QCryptographicHash>
#include <QEventLoop>
#include <QPointer>
#include <QTest>
#include <QTimer>

#include <stdexcept>

using namespace testing_support;
using APIModule::CAPIModule;
using APIModule::PresentedServer;
using APIModule::ServerPin;
using APIModule::ServerTrust;

namespace {

constexpr const char* kAddress = "127.0.0.1";

QByteArray DigestOf(const QByteArray& der)
{
    return QCryptographicHash::hash(der, QCryptographicHash::Sha256);
}

/// An HTTPS server and its certificate.
class TlsServer {
public:
    explicit TlsServer(const CertificateSubject& subject = {kAddress})
        : certificate(MakeCertificate(subject)),
          server([](const RawRequest&) { return HttpReply(200, R"({"code":1000})"); }, ServerConfiguration(certificate))
    {}

    QByteArray CertificateDigest() const { return DigestOf(certificate.certificate.toDer()); }
    QByteArray KeyDigest() const { return DigestOf(certificate.certificate.publicKey().toDer()); }
    std::string Line(const std::string& reason) const
    {
        return "Request failed, the server is not known, host: 127.0.0.1, port: " + std::to_string(server.Port()) +
               ", reason: " + reason + ", SHA-256 of its certificate: " + CertificateDigest().toHex(':').toStdString();
    }

    const Certificate certificate;
    RawServer server;
};

class Trust : public Host {
protected:
    ~Trust() override { CAPIModule::GetInstance().SetServerTrust({}); }

    int CallWith(TlsServer& server, const ServerTrust& trust)
    {
        CAPIModule::GetInstance().SetServerTrust(trust);
        return CallAgain(server);
    }

    int CallAgain(TlsServer& server)
    {
        Use(server.server, RawServer::Https);
        logs.Take();
        HostCall call;
        call.uiError = QStringLiteral("No settings");
        return Execute(call);
    }

    void ExpectTrusted(TlsServer& server, const ServerTrust& trust)
    {
        EXPECT_EQ(CallWith(server, trust), 0);
        EXPECT_FALSE(server.server.TakeRequests().empty());
    }

    void ExpectNotTrusted(TlsServer& server, const ServerTrust& trust, const std::string& reason)
    {
        server.server.ReplyToAnything();  // so that even a partial request would be recorded
        EXPECT_EQ(CallWith(server, trust), -1);
        const LogLines lines = logs.Take();
        EXPECT_EQ(lines.back().message, server.Line(reason));
        EXPECT_EQ(lines.back().level, 6);
        EXPECT_EQ(lines.back().function, "APIModule::CAPIModulePrivate::ExecuteRequestWithoutWaitDlg");
        EXPECT_EQ(notifications.Take(),
                  QStringList{CAPIModule::GetErroCodeInfor(QStringLiteral("No settings"), -18, true)});
        EXPECT_TRUE(server.server.TakeRequests().empty()) << "nothing is sent to a server that is not trusted";
    }

    static ServerTrust Pinned(const QByteArray& digest, const QString& host = QString(), int nPort = 0)
    {
        ServerTrust trust;
        trust.pins = {{digest, host, nPort}};
        return trust;
    }

    static ServerTrust SignedBy(const QSslCertificate& authority)
    {
        ServerTrust trust;
        trust.authorities = {authority};
        return trust;
    }

    static ServerTrust DecidedBy(const std::function<bool(const PresentedServer&)>& decide)
    {
        ServerTrust trust;
        trust.decide = decide;
        return trust;
    }
};

TEST_F(Trust, EveryServerIsTrustedByDefault)
{
    TlsServer server({"other.example", -20, -10});
    ExpectTrusted(server, {});
}

TEST_F(Trust, PinOfCertificateOrPublicKeyMakesAServerTrusted)
{
    TlsServer server({"other.example", -20, -10});
    const QString host = QString::fromLatin1(kAddress);
    ExpectTrusted(server, Pinned(server.CertificateDigest()));
    ExpectTrusted(server, Pinned(server.KeyDigest()));
    ExpectTrusted(server, Pinned(server.CertificateDigest(), host));
    ExpectTrusted(server, Pinned(server.CertificateDigest(), host, server.server.Port()));
}

TEST_F(Trust, WrongPinRejectsAServer)
{
    TlsServer server;
    const QByteArray other = DigestOf("other");
    ExpectNotTrusted(server, Pinned(other), "another certificate is pinned");
    ExpectNotTrusted(server, Pinned(QByteArray()), "another certificate is pinned");

    ServerTrust both = SignedBy(server.certificate.certificate);
    both.pins = {{other, QString::fromLatin1(kAddress), server.server.Port()}};
    ExpectNotTrusted(server, both, "another certificate is pinned");
}

TEST_F(Trust, PinOfAnotherServerIsIgnored)
{
    TlsServer server;
    const QString reason = QSslError(QSslError::SelfSignedCertificate).errorString();
    ExpectNotTrusted(server, Pinned(server.CertificateDigest(), QStringLiteral("other.example")), reason.toStdString());
    ExpectNotTrusted(server,
                     Pinned(server.CertificateDigest(), QString::fromLatin1(kAddress), server.server.Port() + 1),
                     reason.toStdString());
}

TEST_F(Trust, HostAuthorityMakesAServerTrusted)
{
    TlsServer server;
    ExpectTrusted(server, SignedBy(server.certificate.certificate));
}

TEST_F(Trust, VerificationRejectsWrongNameAndUnknownAuthority)
{
    TlsServer otherName({"other.example"});
    ExpectNotTrusted(otherName, SignedBy(otherName.certificate.certificate),
                     QSslError(QSslError::HostNameMismatch).errorString().toStdString());
    TlsServer server;
    const std::string selfSigned = QSslError(QSslError::SelfSignedCertificate).errorString().toStdString();
    ExpectNotTrusted(server, SignedBy(otherName.certificate.certificate), selfSigned);
    ServerTrust system;
    system.bSystemAuthorities = true;
    ExpectNotTrusted(server, system, selfSigned);
}

TEST_F(Trust, VerificationReportsEveryError)
{
    TlsServer server({"other.example", -20, -10});
    ServerTrust trust;
    trust.bSystemAuthorities = true;
    EXPECT_EQ(CallWith(server, trust), -1);
    const QString line = QString::fromStdString(logs.Take().back().message);
    for (const QSslError::SslError error :
         {QSslError::SelfSignedCertificate, QSslError::CertificateExpired, QSslError::HostNameMismatch}) {
        EXPECT_TRUE(line.contains(QSslError(error).errorString())) << line.toStdString();
    }
}

TEST_F(Trust, HostDecidesAboutAServerThatIsNotTrustedOtherwise)
{
    TlsServer server;
    PresentedServer seen;
    int nAsked = 0;
    bool bTrusted = true;
    const auto decide = [&](const PresentedServer& presented) {
        EXPECT_TRUE(server.server.TakeRequests().empty());
        seen = presented;
        ++nAsked;
        return bTrusted;
    };
    ExpectTrusted(server, DecidedBy(decide));
    EXPECT_EQ(seen.host, QLatin1String(kAddress));
    EXPECT_EQ(seen.nPort, server.server.Port());
    EXPECT_EQ(seen.chain, QList<QSslCertificate>{server.certificate.certificate});
    EXPECT_EQ(seen.certificateDigest, server.CertificateDigest());
    EXPECT_EQ(seen.publicKeyDigest, server.KeyDigest());
    ASSERT_FALSE(seen.errors.isEmpty());
    EXPECT_EQ(seen.errors.constFirst().error(), QSslError::SelfSignedCertificate);
    EXPECT_EQ(nAsked, 1);
    EXPECT_EQ(CallAgain(server), 0);
    EXPECT_EQ(nAsked, 1) << "a kept connection is already trusted";
    server.server.TakeRequests();

    bTrusted = false;
    ExpectNotTrusted(server, DecidedBy(decide), "the host refused it");
    EXPECT_EQ(nAsked, 2);

    ServerTrust pinnedToo = Pinned(server.CertificateDigest());
    pinnedToo.decide = decide;
    ExpectTrusted(server, pinnedToo);
    EXPECT_EQ(nAsked, 2) << "a trusted server needs no decision";
}

TEST_F(Trust, DecisionThatThrowsRejectsTheServer)
{
    TlsServer server;
    ExpectNotTrusted(server, DecidedBy([](const PresentedServer&) -> bool { throw std::runtime_error("no"); }),
                     "the host refused it");
}

TEST_F(Trust, DecisionMayRunAnEventLoopMakeCallsAndChangeTheTrust)
{
    TlsServer server;
    RawServer plain([](const RawRequest&) { return HttpReply(200, R"({"code":1000})"); });
    int nNested = -1;
    const auto decide = [&](const PresentedServer&) {
        QEventLoop loop;
        QTimer::singleShot(20, &loop, &QEventLoop::quit);
        loop.exec();
        Use(plain);
        nNested = Execute({});
        CAPIModule::GetInstance().SetServerTrust({});
        return true;
    };
    EXPECT_EQ(CallWith(server, DecidedBy(decide)), 0);
    EXPECT_EQ(nNested, 0);
    EXPECT_EQ(server.server.TakeRequests().size(), 1U);
}

TEST_F(Trust, ParentDeletedDuringTheDecisionEndsTheCall)
{
    TlsServer server;
    QPointer<QWidget> pParent = new QWidget;
    pParent->show();
    CAPIModule::GetInstance().SetServerTrust(DecidedBy([&](const PresentedServer&) {
        delete pParent;
        return true;
    }));
    Use(server.server, RawServer::Https);
    HostCall call;
    call.parent = pParent;
    EXPECT_EQ(Execute(call), -1);
    EXPECT_EQ(logs.Take().back().message.rfind("Request time out", 0), 0U);
}

TEST_F(Trust, ChangeOfTrustClosesEarlierConnections)
{
    TlsServer server;
    ExpectTrusted(server, {});
    ExpectNotTrusted(server, Pinned(DigestOf("other")), "another certificate is pinned");
    ExpectTrusted(server, Pinned(server.CertificateDigest()));
    EXPECT_EQ(server.server.ConnectionCount(), 3);
}

TEST_F(Trust, ReconnectionIsVerifiedAgain)
{
    TlsServer server;
    int nAsked = 0;
    const auto decide = [&](const PresentedServer&) { return ++nAsked == 1; };
    ExpectTrusted(server, DecidedBy(decide));
    // A write does not reuse a connection that has been idle for a while.
    QTest::qWait(300);
    HostCall write;
    write.method = APIModule::Method_Post;
    write.body = QStringLiteral("{}");
    EXPECT_EQ(Execute(write), -1);
    EXPECT_EQ(nAsked, 2);
    EXPECT_TRUE(server.server.TakeRequests().empty());
}

TEST_F(Trust, HttpIsNotAffected)
{
    Serve(HttpReply(200, R"({"code":1000})"));
    CAPIModule::GetInstance().SetServerTrust(Pinned(DigestOf("other")));
    EXPECT_EQ(Execute({}), 0);
}

struct DigestText {
    const char* name;
    const char* text;
    bool bDigest;
};

class DigestTextTest : public testing::TestWithParam<DigestText> {};

TEST_P(DigestTextTest, IsAcceptedOnlyIfItIsADigest)
{
    const QByteArray digest = ServerPin::DigestFromText(QLatin1String(GetParam().text));
    EXPECT_EQ(digest, GetParam().bDigest ? QByteArray(16, '\x1a') + QByteArray(16, '\xf0') : QByteArray());
}

const DigestText kDigestTexts[] = {
    {"lower_case", "1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1af0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0", true},
    {"upper_case", "1A1A1A1A1A1A1A1A1A1A1A1A1A1A1A1AF0F0F0F0F0F0F0F0F0F0F0F0F0F0F0F0", true},
    {"colons", "1a:1a:1a:1a:1a:1a:1a:1a:1a:1a:1a:1a:1a:1a:1a:1a:f0:f0:f0:f0:f0:f0:f0:f0:f0:f0:f0:f0:f0:f0:f0:f0", true},
    {"empty", "", false},
    {"too_short", "1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1af0f0f0f0f0f0f0f0f0f0f0f0f0f0f0", false},
    {"too_long", "1a1a1a1a1a1a1a1a1a1a1a1a1a1a1a1af0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f000", false},
    {"not_hexadecimal", "ga1a1a1a1a1a1a1a1a1a1a1a1a1a1a1af0f0f0f0f0f0f0f0f0f0f0f0f0f0f0f0", false},
};

INSTANTIATE_TEST_SUITE_P(Texts, DigestTextTest, testing::ValuesIn(kDigestTexts), RowName());

}  // namespace
