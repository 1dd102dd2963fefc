// Connections that fail, and servers with invalid certificates or old versions of TLS.
#include "FaultMatrix.h"

#include <QHostAddress>
#include <QSslSocket>
#include <QTcpSocket>

using namespace testing_support;

namespace {

FaultSetup Refuses(RawServer::Scheme scheme)
{
    const auto bound = std::make_shared<QTcpSocket>();  // does not listen
    EXPECT_TRUE(bound->bind(QHostAddress::LocalHost, 0, QAbstractSocket::DontShareAddress));
    FaultSetup setup = BesideHealthy(scheme, bound->localPort());
    setup.other = bound;
    return setup;
}

FaultSetup NameIsUnknown(RawServer::Scheme scheme)
{
    FaultSetup setup = BesideHealthy(scheme, 443);
    setup.faulty.host = "no-such-host.invalid";
    return setup;
}

/// The faulty server and a healthy one.
FaultSetup Beside(const std::shared_ptr<RawServer>& faulty, RawServer::Scheme scheme)
{
    FaultSetup setup = BesideHealthy(scheme, faulty->Port());
    setup.servers.push_back(faulty);
    return setup;
}

RawReply Succeed(const RawRequest&)
{
    return SuccessReply();
}

FaultSetup HasTlsOnThePort(RawServer::Scheme scheme)
{
    return Beside(std::make_shared<RawServer>(Succeed, RawServer::Https), scheme);
}

FaultSetup HasNoTlsOnThePort(RawServer::Scheme scheme)
{
    const auto server = std::make_shared<RawServer>([](const RawRequest&) { return HttpReply(400, "no TLS here"); });
    server->ReplyToAnything();
    return Beside(server, scheme);
}

std::function<FaultSetup(RawServer::Scheme)> ShowsCertificate(const CertificateSubject& subject)
{
    return [configuration = ServerConfiguration(MakeCertificate(subject))](RawServer::Scheme scheme) {
        FaultSetup setup = Beside(std::make_shared<RawServer>(Succeed, configuration), scheme);
        setup.keepsConnection = true;
        return setup;
    };
}

/// Accepts what OpenSSL's default settings refuse, so that only the client can refuse an old version.
void LowerLevel(QSslConfiguration& configuration)
{
    configuration.setBackendConfigurationOption("CipherString", QByteArrayLiteral("ALL:@SECLEVEL=0"));
}

QSslConfiguration Speaking(QSsl::SslProtocol protocol)
{
    QSslConfiguration configuration = ServerConfiguration(MakeCertificate());
    LowerLevel(configuration);
    configuration.setProtocol(protocol);
    return configuration;
}

std::function<FaultSetup(RawServer::Scheme)> Speaks(QSsl::SslProtocol protocol, bool bUnderstood)
{
    return [configuration = Speaking(protocol), bUnderstood](RawServer::Scheme scheme) {
        FaultSetup setup = Beside(std::make_shared<RawServer>(Succeed, configuration), scheme);
        setup.keepsConnection = bUnderstood;
        return setup;
    };
}

const std::vector<RawServer::Scheme> kHttp = {RawServer::Http};
const std::vector<RawServer::Scheme> kHttps = {RawServer::Https};

// Deprecated with Qt 6, which still speaks them.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
constexpr QSsl::SslProtocol kTls1_0 = QSsl::TlsV1_0;
constexpr QSsl::SslProtocol kTls1_1 = QSsl::TlsV1_1;
constexpr QSsl::SslProtocol kAnyTls = QSsl::TlsV1_0OrLater;
#pragma GCC diagnostic pop

const std::vector<Fault> kFaults = {
    {"refused", Refuses, NetworkFails("1", "Connection refused")},
    {"name_unknown", NameIsUnknown, NetworkFails("3", "Host no-such-host.invalid not found")},
    {"tls_on_the_port", HasTlsOnThePort, NetworkFails("2", "Connection closed"), 20, kHttp},
    {"no_tls_on_the_port", HasNoTlsOnThePort, NetworkFails("6"), 20, kHttps},
    {"certificate_self_signed", ShowsCertificate({"127.0.0.1"}), Succeeds(), 20, kHttps},
    {"certificate_expired", ShowsCertificate({"127.0.0.1", -20, -10}), Succeeds(), 20, kHttps},
    {"certificate_not_yet_valid", ShowsCertificate({"127.0.0.1", 10, 20}), Succeeds(), 20, kHttps},
    {"certificate_of_another_host", ShowsCertificate({"other.example"}), Succeeds(), 20, kHttps},
    // Depending on the version of OpenSSL, the client refuses or the server closes without an alert.
    {"tls_1_0", Speaks(kTls1_0, false), NetworkFails(), 20, kHttps},
    {"tls_1_1", Speaks(kTls1_1, false), NetworkFails(), 20, kHttps},
    {"tls_1_2", Speaks(QSsl::TlsV1_2, true), Succeeds(), 20, kHttps},
    {"tls_1_3", Speaks(QSsl::TlsV1_3, true), Succeeds(), 20, kHttps},
};

INSTANTIATE_TEST_SUITE_P(Connections, FaultMatrix, testing::ValuesIn(Matrix(kFaults)), RowName());

/// The servers of the rows accept their TLS version, so that a refusal is the client's.
class Version : public testing::TestWithParam<QSsl::SslProtocol> {};

TEST_P(Version, IsAcceptedByServer)
{
    const RawServer server(Succeed, Speaking(GetParam()));
    QSslSocket client;
    QSslConfiguration configuration = client.sslConfiguration();
    LowerLevel(configuration);
    configuration.setProtocol(kAnyTls);
    configuration.setPeerVerifyMode(QSslSocket::VerifyNone);
    client.setSslConfiguration(configuration);
    client.connectToHostEncrypted(QStringLiteral("127.0.0.1"), quint16(server.Port()));
    ASSERT_TRUE(client.waitForEncrypted(10000)) << client.errorString().toStdString();
    EXPECT_EQ(client.sessionProtocol(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(Tls, Version, testing::Values(kTls1_0, kTls1_1, QSsl::TlsV1_2, QSsl::TlsV1_3));

}  // namespace
