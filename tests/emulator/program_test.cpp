#include "EmulatorTest.h"

#include <support/Program.h>

#include <gtest/gtest.h>
#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <future>
#include <list>
#include <thread>
#include <vector>

namespace {

constexpr const char* kToken = "a-secret-token";

QStringList Words(const std::vector<std::string>& words)
{
    QStringList list;
    for (const std::string& word : words) {
        list.append(QString::fromStdString(word));
    }
    return list;
}

/// A running platform-emulator.
class Program : public testing_support::RunningProgram {
public:
    explicit Program(const std::vector<std::string>& arguments = {}, const testing_support::Variables& variables = {})
        : RunningProgram(QStringLiteral(EMULATOR_PROGRAM), Words(arguments), variables)
    {}

    TestClient Client(const std::string& token = emulator::kDefaultToken)
    {
        return {TestClient::Scheme::Http, Port("http"), token};
    }

    /// Terminates the program, which must end cleanly.
    void End()
    {
        Signal(SIGTERM);
        EXPECT_EQ(ExitStatus(), 0) << Output();
    }

    /// The peak resident set size.
    [[nodiscard]] std::size_t MostKilobytes() const
    {
        std::ifstream status("/proc/" + std::to_string(ProcessId()) + "/status");
        std::string word;
        while (status >> word && word != "VmHWM:") {
        }
        std::size_t kilobytes = 0;
        status >> kilobytes;
        EXPECT_GT(kilobytes, 0U);
        return kilobytes;
    }
};

struct BadOption {
    const char* name;
    std::vector<std::string> arguments;
    const char* message;
};

}  // namespace

class BadOptionTest : public testing::TestWithParam<BadOption> {};

TEST_P(BadOptionTest, IsReportedWithExitStatus2)
{
    Program program(GetParam().arguments);
    EXPECT_EQ(program.ExitStatus(), 2);
    EXPECT_NE(program.Output().find(GetParam().message), std::string::npos) << program.Output();
}

INSTANTIATE_TEST_SUITE_P(
    Options, BadOptionTest,
    testing::Values(BadOption{"Unknown", {"--port", "1"}, "--port"}, BadOption{"UnexpectedArgument", {"word"}, "word"},
                    BadOption{"PortNotNumber", {"--http-port", "x"}, "--http-port"},
                    BadOption{"PortTooHigh", {"--https-port", "65536"}, "--https-port"},
                    BadOption{"PortNegative", {"--http-port", "-1"}, "--http-port"},
                    BadOption{"ValueMissing", {"--token"}, "--token"},
                    BadOption{"TokenEmpty", {"--token", ""}, "--token"},
                    BadOption{"ControlTokenEmpty", {"--control-token", ""}, "--control-token"},
                    BadOption{"ReadTimeoutZero", {"--read-timeout", "0"}, "--read-timeout"},
                    BadOption{"ScaleZero", {"--scale", "0"}, "--scale"},
                    BadOption{"ContractMissing", {"--contract", "/nowhere"}, "/nowhere"},
                    BadOption{"ContractEmpty", {"--contract", "/proc/self/task"}, "no operation"},
                    BadOption{"SeedMissing", {"--seed", "/nowhere"}, "/nowhere"},
                    BadOption{"SeedEmpty", {"--seed", "/proc/self/task"}, "contains no seed file"},
                    BadOption{"AddressNotLocal", {"--address", "192.0.2.1"}, "cannot listen on 192.0.2.1"}),
    RowName());

TEST(ProgramTest, PrintsHelpAndVersion)
{
    Program help({"--help"});
    EXPECT_EQ(help.ExitStatus(), 0);
    for (const char* text : {"platform-emulator", "--http-port", "--https-port", "--token", "--seed", "--contract",
                             "--scale", "--address", "--control-token", "--no-control", "--read-timeout", "--verbose",
                             "PLATFORM_EMULATOR_TOKEN", "PLATFORM_EMULATOR_CONTROL_TOKEN"}) {
        EXPECT_NE(help.Output().find(text), std::string::npos) << text;
    }
    Program version({"--version"});
    EXPECT_EQ(version.ExitStatus(), 0);
    EXPECT_EQ(version.Output().find("platform-emulator "), 0U) << version.Output();
}

TEST(ProgramTest, ServesThePrintedPorts)
{
    Program program({"--token", kToken, "--verbose"});
    TestClient plain = program.Client(kToken);
    TestClient secure(TestClient::Scheme::Https, program.Port("https"), kToken);
    EXPECT_EQ(plain.get(kTimeSync).code(), 1000);
    EXPECT_EQ(secure.get(std::string(kTimeSync) + "?x=" + kToken).code(), 1003);
    EXPECT_TRUE(program.WaitFor("-> 200 1003"));
    program.End();
    EXPECT_NE(program.Output().find("GET /brms/api/v1.1/config/time-sync -> 200 1000"), std::string::npos)
        << program.Output();
    EXPECT_EQ(program.Output().find(kToken), std::string::npos) << program.Output();
}

TEST(ProgramTest, IsQuietUnlessVerbose)
{
    Program program;
    TestClient client = program.Client();
    EXPECT_EQ(client.get(kTimeSync).code(), 1000);
    program.End();
    EXPECT_EQ(std::count(program.Output().begin(), program.Output().end(), '\n'), 2) << program.Output();
}

TEST(ProgramTest, SecondEmulatorOnSamePortFails)
{
    Program first;
    const std::string port = std::to_string(first.Port("http"));
    Program second({"--http-port", port});
    EXPECT_EQ(second.ExitStatus(), 2);
    EXPECT_NE(second.Output().find("cannot listen on 127.0.0.1:" + port + ": the port is in use"), std::string::npos)
        << second.Output();
    first.Signal(SIGINT);
    EXPECT_EQ(first.ExitStatus(), 0);
}

TEST(ProgramTest, ClosesIdleConnectionsAfterTheReadTimeout)
{
    Program program({"--read-timeout", "1"});
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(SendRaw(program.Port("http"), "GET / HTTP/1.1\r\n"), "");
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
}

TEST(ProgramTest, ReadsTokensFromTheEnvironment)
{
    constexpr const char* kControlToken = "another-token";
    Program program({}, {{QStringLiteral("PLATFORM_EMULATOR_TOKEN"), QString::fromLatin1(kToken)},
                         {QStringLiteral("PLATFORM_EMULATOR_CONTROL_TOKEN"), QString::fromLatin1(kControlToken)}});
    TestClient calls = program.Client(kToken);
    EXPECT_EQ(calls.get(kTimeSync).code(), 1000);
    EXPECT_EQ(calls.get("/emulator/v1/state").status, 401);
    TestClient control = program.Client(kControlToken);
    EXPECT_EQ(control.get("/emulator/v1/state").status, 200);
    EXPECT_EQ(control.get(kTimeSync).status, 401);
}

TEST(ProgramTest, ServesAThousandConnectionsWithFewThreads)
{
    constexpr std::size_t kConnections = 1000;
    constexpr std::size_t kMostThreads = 8;
    rlimit files{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &files), 0);
    rlimit few = files;
    few.rlim_cur = 256;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    Program program;
    const int port = program.Port("http");
    files.rlim_cur = files.rlim_max;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &files), 0);
    std::list<RawConnection> idle;
    for (std::size_t i = 0; i < kConnections; ++i) {
        idle.emplace_back(port, "GET");
    }
    TestClient client(TestClient::Scheme::Http, port, "");
    EXPECT_EQ(client.get("/emulator/v1/connections").json().at("connections"), kConnections + 1);
    EXPECT_LE(ThreadsOf(std::to_string(program.ProcessId())), kMostThreads);
    program.End();
}

TEST(ProgramTest, ListensOnIpv6)
{
    Program program({"--address", "::1"});
    EXPECT_TRUE(program.WaitFor("https [::1]:")) << program.Output();
    program.End();
}

class SignalTest : public testing::TestWithParam<int> {};

TEST_P(SignalTest, StopsCleanlyWhileRequestsHang)
{
    Program program;
    const int port = program.Port("http");
    TestClient control(TestClient::Scheme::Http, port, "");
    ASSERT_EQ(control.post("/emulator/v1/faults", Json{{"kind", "silent"}}).status, 201);
    std::future<Reply> hanging = std::async(std::launch::async, [port] {
        return TestClient(TestClient::Scheme::Http, port, emulator::kDefaultToken).get(kTimeSync);
    });
    while (control.get("/emulator/v1/requests").json().empty()) {
        std::this_thread::yield();
    }
    program.Signal(GetParam());
    EXPECT_EQ(program.ExitStatus(), 0) << program.Output();
    EXPECT_FALSE(hanging.get().arrived);
}

INSTANTIATE_TEST_SUITE_P(Signals, SignalTest, testing::Values(SIGTERM, SIGINT),
                         [](const testing::TestParamInfo<int>& row) {
                             return row.param == SIGTERM ? "Terminate" : "Interrupt";
                         });

/// A copy of the seeds with one family's file replaced.
class EditedSeeds : public Folder {
public:
    EditedSeeds(const std::string& file, const std::string& text)
    {
        std::filesystem::copy(emulator::Options().seed, path(), std::filesystem::copy_options::overwrite_existing);
        write(file, text);
    }
};

TEST(ProgramTest, LargeScaleTakesNoMemoryUntilListsAreRead)
{
    constexpr std::size_t kMostKilobytes = 500UL * 1000;
    Program program({"--scale", "10000"});
    TestClient client = program.Client();
    EXPECT_EQ(client.get(kTimeSync).code(), 1000);
    EXPECT_LT(program.MostKilobytes(), kMostKilobytes);
    EXPECT_EQ(client.get("/brms/api/v1.1/user/group/12-10000").code(), 1000);
}

TEST(ProgramTest, EditedSeedsAreServed)
{
    const EditedSeeds seeds("omms.json", R"({"alertTypes": [{"alertTypeId": "a", "alertTypeName": "b"}]})");
    Program program({"--seed", seeds.path()});
    TestClient client = program.Client();
    EXPECT_EQ(client.get("/omms/api/v1.1/alert/rule/alert-type/list").data(),
              Json::parse(R"({"results": [{"alertTypeId": "a", "alertTypeName": "b"}]})"));
    program.End();
}

TEST(ProgramTest, WrongTypeInASeedFailsAtStart)
{
    const EditedSeeds seeds("omms.json", R"({"alertTypes": [{"alertTypeId": 7, "alertTypeName": "b"}]})");
    Program program({"--seed", seeds.path()});
    EXPECT_EQ(program.ExitStatus(), 2);
    EXPECT_EQ(program.Output(),
              "platform-emulator: omms.json: /alertTypes/0/alertTypeId: expected string, got number\n");
}
