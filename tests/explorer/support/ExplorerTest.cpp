#include "ExplorerTest.h"

#include <explorer/core/EmulatorProcess.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>

namespace explorer_test {

std::string WaitModeName(const testing::TestParamInfo<explorer::WaitMode>& row)
{
    constexpr const char* kNames[] = {"BehindTheWaitDialog", "InTheEventLoop", "WithoutWaiting"};
    return kNames[int(row.param)];
}

bool Await(const std::function<bool()>& holds)
{
    return QTest::qWaitFor(holds, kPatience);
}

void MemoryVault::Read(const QString& serverId, std::function<void(std::optional<QString>)> done)
{
    const auto found = tokens.constFind(serverId);
    done(found == tokens.cend() ? std::nullopt : std::optional<QString>(*found));
}

void MemoryVault::Write(const QString& serverId, const QString& token, std::function<void(bool)> done)
{
    tokens.insert(serverId, token);
    done(true);
}

void MemoryVault::Remove(const QString& serverId)
{
    tokens.remove(serverId);
}

std::optional<QString> ReadFrom(explorer::Tokens::Vault& vault, const QString& serverId)
{
    bool answered = false;
    std::optional<QString> token;
    vault.Read(serverId, [&](const std::optional<QString>& found) {
        answered = true;
        token = found;
    });
    EXPECT_TRUE(Await([&answered] { return answered; }));
    return token;
}

testing_support::RawReply Success(const QByteArray& data, int delayMilliseconds)
{
    testing_support::RawReply reply =
        testing_support::HttpReply(200, "{\"code\": 1000, \"desc\": \"Success\", \"data\": " + data + "}");
    reply.delayMilliseconds = delayMilliseconds;
    return reply;
}

ExplorerTest::ExplorerTest()
{
    Start();
}

ExplorerTest::~ExplorerTest()
{
    Close();
}

void ExplorerTest::Start()
{
    settings = std::make_unique<QSettings>(folder.filePath(QStringLiteral("explorer.ini")), QSettings::IniFormat);
    session = std::make_unique<explorer::Session>(*settings, usedVault, explorer::EmulatorProcess::DefaultProgram());
    QObject::connect(&session->runner, &explorer::Runner::Finished, session.get(),
                     [this](const CallOutcome& outcome) { outcomes.push_back(outcome); });
    m_windows = std::make_unique<explorer::Windows>(*session);
}

void ExplorerTest::Close()
{
    if (m_windows) {
        Window().close();
    }
    m_windows.reset();
    session.reset();
    settings.reset();
}

std::unique_ptr<QTimer> ExplorerTest::When(std::function<bool()> holds, std::function<void()> happens)
{
    auto timer = std::make_unique<QTimer>();
    QObject::connect(timer.get(), &QTimer::timeout, timer.get(),
                     [pTimer = timer.get(), holds = std::move(holds), happens = std::move(happens)] {
                         if (holds()) {
                             pTimer->stop();
                             happens();
                         }
                     });
    timer->start(10);
    return timer;
}

bool ExplorerTest::Activate() const
{
    Window().activateWindow();
    return QTest::qWaitForWindowActive(&Window());
}

void ExplorerTest::Press(int key, Qt::KeyboardModifiers modifiers) const
{
    QWidget* const pFocus = QApplication::focusWidget();
    QTest::keyClick(pFocus != nullptr ? pFocus : &Window(), static_cast<Qt::Key>(key), modifiers);
}

void ExplorerTest::Use(int port, bool https)
{
    QVector<explorer::Server> servers = session->servers.All();
    explorer::Server server = explorer::Servers::Fresh(QStringLiteral("Server of the test %1").arg(port));
    server.host = QStringLiteral("127.0.0.1");
    server.port = port;
    server.https = https;
    servers.append(server);
    session->servers.Replace(servers);
    session->tokens.Set(server.id, QLatin1String(kToken), false);
    session->servers.SetCurrent(servers.size() - 1);
}

void ExplorerTest::UseEmulator()
{
    session->servers.SetCurrent(0);
    session->emulator.Start();
    ASSERT_TRUE(Await([this] { return session->emulator.GetState() == explorer::EmulatorProcess::Running; }));
}

testing_support::RawServer& ExplorerTest::Serve(const testing_support::RawReply& reply)
{
    auto& server = m_servers.emplace_back([reply](const testing_support::RawRequest&) { return reply; });
    Use(server.Port());
    return server;
}

QString ExplorerTest::TextOf(const char* label) const
{
    return Find<QLabel>(label).text();
}

void ExplorerTest::Choose(const char* call)
{
    const catalogue::Call* const pCall = catalogue::FindCall(call);
    ASSERT_NE(pCall, nullptr) << call;
    Window().SelectCall(*pCall);
}

void ExplorerTest::MarkAllKnown()
{
    Form().SetArguments(Form().Arguments(), explorer::Origin::Known);
}

void ExplorerTest::Use(explorer::WaitMode waitMode)
{
    auto& modes = Find<QComboBox>("wait");
    modes.setCurrentIndex(modes.findData(int(waitMode)));
}

void ExplorerTest::Click(const char* button) const
{
    QTest::mouseClick(&Find<QAbstractButton>(button), Qt::LeftButton);
}

void ExplorerTest::ClickRun()
{
    Click("run");
}

explorer::RunOrder ExplorerTest::OrderOf(const char* call) const
{
    explorer::RunOrder order;
    order.call = catalogue::FindCall(call);
    order.server = session->servers.Current();
    return order;
}

bool ExplorerTest::AwaitRuns(int count) const
{
    return Await([this, count] { return static_cast<int>(outcomes.size()) >= count; });
}

CallOutcome ExplorerTest::Run(const char* call)
{
    Choose(call);
    MarkAllKnown();
    const int runs = static_cast<int>(outcomes.size());
    ClickRun();
    if (!AwaitRuns(runs + 1)) {
        ADD_FAILURE() << call << " has not ended";
        return {};
    }
    return outcomes.back();
}

}  // namespace explorer_test
