#include "support/ExplorerTest.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QCryptographicHash>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QToolButton>

namespace {

using namespace explorer_test;
using testing_support::RawRequest;
using testing_support::RawServer;

class ServersTest : public ExplorerTest {
protected:
    /// Opens the servers dialog and adds a server.
    void AddServer(const QString& name, const QString& host, int port, const QString& token)
    {
        OpenNewServer();
        TypeInto("serverName", name);
        TypeInto("serverHost", host);
        Find<QSpinBox>("serverPort").setValue(port);
        auto& scheme = Find<QComboBox>("serverScheme");
        scheme.setCurrentIndex(scheme.findData(false));
        Find<QSpinBox>("serverPort").setValue(port);
        TypeInto("serverToken", token);
        Press("serversDialog", QDialogButtonBox::Ok);
    }

    void OpenNewServer() const
    {
        Click("editServers");
        Click("addServer");
    }

    void TypeInto(const char* field, const QString& text) const
    {
        auto& line = Find<QLineEdit>(field);
        line.setFocus();
        line.selectAll();
        QTest::keyClicks(&line, text);
    }

    void Press(const char* dialog, QDialogButtonBox::StandardButton button) const
    {
        QTest::mouseClick(Find<QDialog>(dialog).findChild<QDialogButtonBox*>()->button(button), Qt::LeftButton);
    }

    void ChooseServer(const QString& name)
    {
        auto& servers = Find<QComboBox>("servers");
        const int index = servers.findText(name);
        ASSERT_GE(index, 0);
        servers.setCurrentIndex(index);
        emit servers.activated(index);
    }

    /// The contents of all files that the program has written.
    QByteArray WrittenBytes()
    {
        settings->sync();
        QByteArray bytes;
        QDirIterator files(folder.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            QFile file(files.next());
            EXPECT_TRUE(file.open(QIODevice::ReadOnly));
            bytes += file.readAll();
        }
        return bytes;
    }
};

TEST_F(ServersTest, AreKeptAcrossRestartsWithTheirTokensInTheSecretService)
{
    RawServer server([](const RawRequest&) { return Success("{}"); });
    AddServer(QStringLiteral("Night shift"), QStringLiteral("127.0.0.1"), server.Port(),
              QStringLiteral("s3cret-t0ken"));
    ChooseServer(QStringLiteral("Night shift"));
    EXPECT_TRUE(Run("BRMS.GetRemoteLogConfig").succeeded);
    Close();

    Start();
    EXPECT_EQ(Find<QComboBox>("servers").currentText(), QStringLiteral("Night shift"));
    EXPECT_EQ(TextOf("serverAddress"), QStringLiteral("http://127.0.0.1:%1").arg(server.Port()));
    EXPECT_TRUE(Run("BRMS.GetRemoteLogConfig").succeeded);
    const auto requests = server.TakeRequests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests.back().Value("X-Subject-Token"), "s3cret-t0ken");
}

TEST_F(ServersTest, WritesNoTokenToAFile)
{
    RawServer server(
        [](const RawRequest& request) { return Success("{\"echo\": \"" + request.Value("X-Subject-Token") + "\"}"); });
    AddServer(QStringLiteral("Night shift"), QStringLiteral("127.0.0.1"), server.Port(),
              QStringLiteral("s3cret-t0ken"));
    ChooseServer(QStringLiteral("Night shift"));
    Run("BRMS.GetRemoteLogConfig");
    Close();
    settings = std::make_unique<QSettings>(folder.filePath(QStringLiteral("explorer.ini")), QSettings::IniFormat);
    const QByteArray written = WrittenBytes();
    EXPECT_TRUE(written.contains("Night shift"));
    EXPECT_FALSE(written.contains("s3cret-t0ken"));
    EXPECT_FALSE(written.contains(QByteArray("s3cret-t0ken").toBase64()));
    EXPECT_FALSE(written.contains(QByteArray("s3cret-t0ken").toHex()));
}

TEST_F(ServersTest, AsksForTheTokenOncePerStartWithoutASecretService)
{
    RawServer server([](const RawRequest&) { return Success("{}"); });
    AddServer(QStringLiteral("Night shift"), QStringLiteral("127.0.0.1"), server.Port(), QStringLiteral("first"));
    ChooseServer(QStringLiteral("Night shift"));
    Close();
    usedVault = nullptr;
    Start();

    Choose("BRMS.GetRemoteLogConfig");
    ClickRun();
    ASSERT_TRUE(Await([this] { return Window().findChild<QDialog*>(QStringLiteral("tokenDialog")) != nullptr; }));
    TypeInto("token", QStringLiteral("second"));
    Press("tokenDialog", QDialogButtonBox::Ok);
    ASSERT_TRUE(AwaitRuns(1));
    EXPECT_TRUE(Run("BRMS.GetRemoteLogConfig").succeeded);  // not asked again
    const auto requests = server.TakeRequests();
    ASSERT_EQ(requests.size(), 2U);
    EXPECT_EQ(requests.front().Value("X-Subject-Token"), "second");
    EXPECT_EQ(requests.back().Value("X-Subject-Token"), "second");
}

TEST_F(ServersTest, DoesNotSendARefusedTokenAgain)
{
    RawServer server([](const RawRequest& request) {
        return request.Value("X-Subject-Token") == "right" ? Success("{}") : testing_support::HttpReply(401, "");
    });
    Use(server.Port());
    EXPECT_EQ(Run("BRMS.GetRemoteLogConfig").result, 7000);
    ClickRun();
    ASSERT_TRUE(Await([this] { return Window().findChild<QDialog*>(QStringLiteral("tokenDialog")) != nullptr; }));
    TypeInto("token", QStringLiteral("right"));
    Press("tokenDialog", QDialogButtonBox::Ok);
    ASSERT_TRUE(AwaitRuns(2));
    EXPECT_TRUE(outcomes.back().succeeded);
    EXPECT_EQ(server.TakeRequests().size(), 2U);

    // Refusing the old token keeps the one that was entered in the meantime.
    const QString id = session->servers.Current().id;
    session->tokens.Refuse(id, QLatin1String(kToken));
    EXPECT_EQ(session->tokens.Find(id), QStringLiteral("right"));
}

TEST_F(ServersTest, DoesNotFetchARefusedTokenFromTheVaultAgain)
{
    vault.tokens.insert(QStringLiteral("id"), QStringLiteral("old"));
    session->tokens.Fetch(QStringLiteral("id"));
    ASSERT_EQ(session->tokens.Find(QStringLiteral("id")), QStringLiteral("old"));
    session->tokens.Refuse(QStringLiteral("id"), QStringLiteral("old"));
    session->tokens.Fetch(QStringLiteral("id"));
    EXPECT_EQ(session->tokens.Find(QStringLiteral("id")), std::nullopt);
}

struct Url {
    const char* text;
    const char* host;
    bool https;
    int port;
};

TEST_F(ServersTest, UrlPastedAsTheHostFillsSchemeHostAndPort)
{
    OpenNewServer();
    auto& host = Find<QLineEdit>("serverHost");
    const Url urls[] = {{"http://vms.example:8080/login?x=1", "vms.example", false, 8080},
                        {" https://vms.example/ ", "vms.example", true, 443},
                        {"http://[fe80::1]", "[fe80::1]", false, 80},
                        {"https://10.0.0.7:8443", "10.0.0.7", true, 8443}};
    for (const Url& url : urls) {
        QApplication::clipboard()->setText(QString::fromUtf8(url.text));
        host.selectAll();
        host.setFocus();
        host.paste();
        EXPECT_EQ(host.text().toStdString(), url.host);
        EXPECT_EQ(Find<QComboBox>("serverScheme").currentData().toBool(), url.https) << url.text;
        EXPECT_EQ(Find<QSpinBox>("serverPort").value(), url.port) << url.text;
    }
    Press("serversDialog", QDialogButtonBox::Ok);
    EXPECT_EQ(session->servers.Current().Address(), QStringLiteral("https://10.0.0.7:8443"));
}

TEST_F(ServersTest, NewServerBecomesTheCurrentOne)
{
    AddServer(QStringLiteral("First"), QStringLiteral("first.example"), 80, QStringLiteral("t"));
    EXPECT_EQ(session->servers.Current().name, QStringLiteral("First"));
    session->servers.SetCurrent(0);
    Click("editServers");
    Press("serversDialog", QDialogButtonBox::Ok);
    EXPECT_TRUE(session->servers.IsEmulator()) << "no server was added";
}

TEST_F(ServersTest, CancellingTheTokenDialogCancelsTheRun)
{
    testing_support::RawServer& server = Serve(Success("{}"));
    session->tokens.Forget(session->servers.Current().id);
    Choose("BRMS.GetRemoteLogConfig");
    ClickRun();
    Press("tokenDialog", QDialogButtonBox::Cancel);
    QTest::qWait(0);
    EXPECT_EQ(session->runner.Pending(), 0);
    EXPECT_TRUE(server.TakeRequests().empty());
}

TEST_F(ServersTest, RemovingAServerRemovesItsToken)
{
    AddServer(QStringLiteral("Old"), QStringLiteral("old.example"), 80, QStringLiteral("gone"));
    ASSERT_EQ(vault.tokens.size(), 1);
    Click("editServers");
    Find<QListWidget>("serverList").setCurrentRow(1);
    Click("removeServer");
    Press("serversDialog", QDialogButtonBox::Ok);
    EXPECT_EQ(session->servers.All().size(), 1);
    EXPECT_TRUE(vault.tokens.isEmpty());
}

TEST_F(ServersTest, CancellingTheServersDialogChangesNothing)
{
    OpenNewServer();
    Press("serversDialog", QDialogButtonBox::Cancel);
    EXPECT_EQ(session->servers.All().size(), 1);
}

class CertificateTest : public ServersTest {
protected:
    CertificateTest()
        : m_certificate(testing_support::MakeCertificate()),
          server([](const RawRequest&) { return Success("{}"); }, testing_support::ServerConfiguration(m_certificate))
    {
        Use(server.Port(), true);
    }

    [[nodiscard]] QByteArray Digest() const { return m_certificate.certificate.digest(QCryptographicHash::Sha256); }

    /// Opens the servers dialog and selects the last server.
    void Edit()
    {
        Click("editServers");
        Find<QListWidget>("serverList").setCurrentRow(session->servers.All().size() - 1);
    }

    void ShowCertificate()
    {
        Click("showCertificate");
        ASSERT_TRUE(Await([this] { return Find<QPushButton>("showCertificate").isEnabled(); }));
    }

    /// The digest that a label shows.
    [[nodiscard]] QByteArray DigestIn(const char* label) const
    {
        const QString text = TextOf(label);
        return QByteArray::fromHex(text.mid(text.indexOf(QLatin1Char('\n'))).remove(QLatin1Char('\n')).toLatin1());
    }

    void Trust(const QByteArray& digest)
    {
        QVector<explorer::Server> servers = session->servers.All();
        servers.last().pin = digest;
        session->servers.Replace(servers);
    }

    void ExpectRefused()
    {
        server.ReplyToAnything();
        const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");
        EXPECT_FALSE(outcome.succeeded);
        EXPECT_EQ(outcome.result, -18);
        EXPECT_TRUE(outcome.request.headers.isEmpty());
        EXPECT_FALSE(outcome.reply);
        EXPECT_TRUE(server.TakeRequests().empty()) << "an untrusted server received a request";
    }

private:
    const testing_support::Certificate m_certificate;

protected:
    RawServer server;
};

TEST_F(CertificateTest, IsStoredWithTheServerOnceTheUserTrustsIt)
{
    Edit();
    EXPECT_FALSE(Find<QPushButton>("trustCertificate").isEnabled()) << "no certificate has been shown yet";
    ShowCertificate();
    EXPECT_EQ(DigestIn("presentedCertificate"), Digest());
    EXPECT_TRUE(TextOf("changedCertificate").isEmpty());
    EXPECT_TRUE(server.TakeRequests().empty());
    Click("trustCertificate");
    EXPECT_EQ(DigestIn("trustedCertificate"), Digest());
    Press("serversDialog", QDialogButtonBox::Ok);
    EXPECT_EQ(session->servers.Current().pin, Digest());
    EXPECT_TRUE(Run("BRMS.GetRemoteLogConfig").succeeded);
    Close();

    Start();
    EXPECT_EQ(session->servers.Current().pin, Digest());
}

TEST_F(CertificateTest, WarnsWhenItHasChanged)
{
    const QByteArray before(Digest().size(), 'x');
    Trust(before);
    Edit();
    EXPECT_TRUE(TextOf("changedCertificate").isEmpty());
    ShowCertificate();
    EXPECT_EQ(DigestIn("trustedCertificate"), before);
    EXPECT_EQ(DigestIn("presentedCertificate"), Digest());
    EXPECT_TRUE(TextOf("changedCertificate").contains(QStringLiteral("has changed")));
    EXPECT_TRUE(Find<QLabel>("changedCertificate").isVisible());
    Click("trustCertificate");
    EXPECT_TRUE(TextOf("changedCertificate").isEmpty());
    Press("serversDialog", QDialogButtonBox::Ok);
    EXPECT_TRUE(Run("BRMS.GetRemoteLogConfig").succeeded);
}

TEST_F(CertificateTest, TrustingAnyCertificateRemovesThePin)
{
    Trust(QByteArray(Digest().size(), 'x'));
    Edit();
    Click("trustAnyCertificate");
    Press("serversDialog", QDialogButtonBox::Ok);
    EXPECT_TRUE(session->servers.Current().pin.isEmpty());
    EXPECT_TRUE(Run("BRMS.GetRemoteLogConfig").succeeded);
}

TEST_F(CertificateTest, ReportsThatAnUnreachableServerShowsNone)
{
    Use(1, true);
    Edit();
    ShowCertificate();
    EXPECT_TRUE(TextOf("presentedCertificate").startsWith(QStringLiteral("The server presented no certificate: ")));
    EXPECT_FALSE(Find<QPushButton>("trustCertificate").isEnabled());
}

TEST_F(CertificateTest, ChangingTheAddressDiscardsTheShownCertificate)
{
    Edit();
    ShowCertificate();
    EXPECT_TRUE(Find<QPushButton>("trustCertificate").isEnabled());
    TypeInto("serverHost", QStringLiteral("other.example"));
    EXPECT_FALSE(Find<QPushButton>("trustCertificate").isEnabled());
    EXPECT_TRUE(TextOf("presentedCertificate").isEmpty());
}

class PinnedServerTest : public CertificateTest {};

TEST_F(PinnedServerTest, SucceedsWithThePinnedCertificate)
{
    Trust(Digest());
    const CallOutcome outcome = Run("BRMS.GetRemoteLogConfig");
    EXPECT_TRUE(outcome.succeeded);
    EXPECT_FALSE(outcome.request.headers.isEmpty());
    EXPECT_EQ(server.TakeRequests().size(), 1U);
}

TEST_F(PinnedServerTest, SendsNothingToAServerWithAnotherCertificate)
{
    Trust(QByteArray(Digest().size(), 'x'));
    ExpectRefused();
}

TEST_F(PinnedServerTest, DoesNotReuseAConnectionMadeBeforeThePinChanged)
{
    EXPECT_TRUE(Run("BRMS.GetRemoteLogConfig").succeeded);
    server.TakeRequests();
    Trust(QByteArray(Digest().size(), 'x'));
    ExpectRefused();
}

class HostTest : public ServersTest, public testing::WithParamInterface<std::pair<const char*, bool>> {};

TEST_P(HostTest, OkIsEnabledOnlyForValidHost)
{
    OpenNewServer();
    TypeInto("serverHost", QString::fromUtf8(GetParam().first));
    EXPECT_EQ(Find<QDialog>("serversDialog").findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled(),
              GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Hosts, HostTest,
                         testing::Values(std::pair("server.example", true), std::pair("10.0.0.7", true),
                                         std::pair("[::1]", true), std::pair("::1", false), std::pair("a b", false),
                                         std::pair("host:80", false), std::pair("user@host", false),
                                         std::pair("host/path", false), std::pair("ftp://host", false)));

TEST_F(ServersTest, ButtonStartsAndStopsTheEmulator)
{
    auto& button = Find<QPushButton>("emulator");
    EXPECT_EQ(TextOf("serverAddress"), QStringLiteral("The emulator is not running"));
    QTest::mouseClick(&button, Qt::LeftButton);
    ASSERT_TRUE(Await([this] { return session->IsReady(); }));
    EXPECT_TRUE(TextOf("serverAddress").startsWith(QStringLiteral("https://127.0.0.1:")));
    EXPECT_TRUE(Run("BRMS.GetTimeSyncConfig").succeeded);
    QTest::mouseClick(&button, Qt::LeftButton);
    ASSERT_TRUE(Await([this] { return session->emulator.GetState() == explorer::EmulatorProcess::Stopped; }));
    EXPECT_EQ(TextOf("serverAddress"), QStringLiteral("The emulator is not running"));
}

TEST_F(ServersTest, RunStartsTheEmulatorWhenItIsTheCurrentServer)
{
    EXPECT_TRUE(Run("BRMS.GetTimeSyncConfig").succeeded);
    EXPECT_EQ(session->emulator.GetState(), explorer::EmulatorProcess::Running);
}

TEST_F(ServersTest, ChangingTheServerCancelsARunThatWaitsForTheEmulator)
{
    RawServer server([](const RawRequest&) { return Success("{}"); });
    Choose("BRMS.GetTimeSyncConfig");
    ClickRun();
    ASSERT_EQ(session->emulator.GetState(), explorer::EmulatorProcess::Starting);
    Use(server.Port());
    ASSERT_TRUE(Await([this] { return session->emulator.GetState() == explorer::EmulatorProcess::Running; }));
    QTest::qWait(0);
    EXPECT_EQ(session->runner.Pending(), 0);
    EXPECT_TRUE(outcomes.empty());
    EXPECT_TRUE(server.TakeRequests().empty());
}

TEST_F(ServersTest, ChoosingAnotherCallCancelsARunThatWaitsForTheEmulator)
{
    Choose("BRMS.GetTimeSyncConfig");
    ClickRun();
    ASSERT_EQ(session->emulator.GetState(), explorer::EmulatorProcess::Starting);
    Choose("BRMS.ImmediatelySyncTime");
    ASSERT_TRUE(Await([this] { return session->emulator.GetState() == explorer::EmulatorProcess::Running; }));
    QTest::qWait(0);
    EXPECT_EQ(session->runner.Pending(), 0);
    EXPECT_TRUE(outcomes.empty());
}

TEST_F(ServersTest, EmulatorTokenIsInNoCommandLine)
{
    UseEmulator();
    bool isListed = false;
    const QStringList processes = QDir(QStringLiteral("/proc")).entryList({QStringLiteral("[1-9]*")}, QDir::Dirs);
    for (const QString& process : processes) {
        QFile line(QStringLiteral("/proc/%1/cmdline").arg(process));
        const QByteArray words = line.open(QIODevice::ReadOnly) ? line.readAll() : QByteArray();
        isListed = isListed || words.contains("platform-emulator");
        EXPECT_FALSE(words.contains(session->emulator.Token().toLatin1())) << words.toStdString();
    }
    EXPECT_TRUE(isListed);
}

TEST_F(ServersTest, ReportsAMissingEmulatorProgram)
{
    explorer::EmulatorProcess emulator(folder.filePath(QStringLiteral("no-such-program")));
    QString why;
    QObject::connect(&emulator, &explorer::EmulatorProcess::Failed, &emulator,
                     [&why](const QString& text) { why = text; });
    emulator.Start();
    ASSERT_TRUE(Await([&why] { return !why.isEmpty(); }));
    EXPECT_EQ(emulator.GetState(), explorer::EmulatorProcess::Stopped);
}

TEST(SecretServiceTest, ReturnsNoTokenForAnUnknownServer)
{
    explorer::SecretService service;
    EXPECT_FALSE(ReadFrom(service, QStringLiteral("no-such-server")));
}

}  // namespace
