#include "PlatformEmulator.h"
#include "TestClient.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <future>
#include <iterator>
#include <list>
#include <thread>
#include <vector>

namespace {

constexpr const char* kTimeSync = "/brms/api/v1.1/config/time-sync";
constexpr const char* kToken = "a-secret-token";
constexpr int kLongMilliseconds = 60'000;

/// The program with its output and its error output in one pipe.
class Program {
public:
    explicit Program(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), EMULATOR_PROGRAM);
        std::vector<char*> argv;
        argv.reserve(arguments.size() + 1);
        for (std::string& argument : arguments) {
            argv.push_back(argument.data());
        }
        argv.push_back(nullptr);
        std::array<int, 2> ends{};
        EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        posix_spawn_file_actions_t actions{};
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
        posix_spawn_file_actions_adddup2(&actions, ends[1], STDERR_FILENO);
        EXPECT_EQ(::posix_spawn(&m_process, EMULATOR_PROGRAM, &actions, nullptr, argv.data(), environ), 0);
        posix_spawn_file_actions_destroy(&actions);
        ::close(ends[1]);
        m_output = ends[0];
    }
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;
    Program(Program&&) = delete;
    Program& operator=(Program&&) = delete;
    ~Program()
    {
        if (!m_ended) {
            ::kill(m_process, SIGKILL);
            ::waitpid(m_process, nullptr, 0);
        }
        ::close(m_output);
    }

    /// Reads until the text is there or the program ends.
    bool waitFor(const std::string& text)
    {
        while (m_read.find(text) == std::string::npos) {
            if (!readSome()) {
                return false;
            }
        }
        return true;
    }

    /// The port of the line that begins with the scheme.
    int port(const std::string& scheme)
    {
        const std::string start = scheme + " 127.0.0.1:";
        EXPECT_TRUE(waitFor(start)) << m_read;
        EXPECT_TRUE(waitFor("https 127.0.0.1:")) << m_read;
        while (m_read.back() != '\n' && readSome()) {
        }
        const std::size_t at = m_read.find(start);
        return at == std::string::npos ? 0 : std::stoi(m_read.substr(at + start.size()));
    }

    void signal(int number) const { ::kill(m_process, number); }

    [[nodiscard]] std::size_t threads() const
    {
        const std::filesystem::directory_iterator all("/proc/" + std::to_string(m_process) + "/task");
        return static_cast<std::size_t>(std::distance(begin(all), end(all)));
    }

    /// The exit status; -1 when the program was ended by a signal or does not end.
    int exitStatus()
    {
        while (readSome()) {
        }
        int status = 0;
        m_ended = ::waitpid(m_process, &status, 0) == m_process;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    [[nodiscard]] const std::string& output() const { return m_read; }

private:
    bool readSome()
    {
        pollfd readable{m_output, POLLIN, 0};
        std::array<char, 4096> buffer{};
        const ssize_t count =
            ::poll(&readable, 1, kLongMilliseconds) > 0 ? ::read(m_output, buffer.data(), buffer.size()) : 0;
        m_read.append(buffer.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
        return count > 0;
    }

    pid_t m_process = 0;
    int m_output = -1;
    bool m_ended = false;
    std::string m_read;
};

struct BadOption {
    const char* name;
    std::vector<std::string> arguments;
    const char* message;
};

std::string NameOf(const testing::TestParamInfo<BadOption>& row)
{
    return row.param.name;
}

}  // namespace

class BadOptionTest : public testing::TestWithParam<BadOption> {};

TEST_P(BadOptionTest, IsNamedAndEndsWithStatus2)
{
    Program program(GetParam().arguments);
    EXPECT_EQ(program.exitStatus(), 2);
    EXPECT_NE(program.output().find(GetParam().message), std::string::npos) << program.output();
}

INSTANTIATE_TEST_SUITE_P(
    Options, BadOptionTest,
    testing::Values(BadOption{"Unknown", {"--port", "1"}, "--port"}, BadOption{"Surplus", {"word"}, "word"},
                    BadOption{"PortNoNumber", {"--http-port", "x"}, "--http-port"},
                    BadOption{"PortTooHigh", {"--https-port", "65536"}, "--https-port"},
                    BadOption{"PortNegative", {"--http-port", "-1"}, "--http-port"},
                    BadOption{"ValueMissing", {"--token"}, "--token"},
                    BadOption{"TokenEmpty", {"--token", ""}, "--token"},
                    BadOption{"ReadTimeoutZero", {"--read-timeout", "0"}, "--read-timeout"},
                    BadOption{"ScaleZero", {"--scale", "0"}, "--scale"},
                    BadOption{"ContractMissing", {"--contract", "/nowhere"}, "/nowhere"},
                    BadOption{"ContractEmpty", {"--contract", "/proc/self/task"}, "no operation"},
                    BadOption{"SeedMissing", {"--seed", "/nowhere"}, "/nowhere"},
                    BadOption{"SeedEmpty", {"--seed", "/proc/self/task"}, "no seed file"},
                    BadOption{"AddressNotOurs", {"--address", "192.0.2.1"}, "cannot listen on 192.0.2.1"}),
    NameOf);

TEST(ProgramTest, HelpAndVersion)
{
    Program help({"--help"});
    EXPECT_EQ(help.exitStatus(), 0);
    for (const char* text : {"platform-emulator", "--http-port", "--https-port", "--token", "--seed", "--contract",
                             "--scale", "--address", "--no-control", "--read-timeout", "--verbose"}) {
        EXPECT_NE(help.output().find(text), std::string::npos) << text;
    }
    Program version({"--version"});
    EXPECT_EQ(version.exitStatus(), 0);
    EXPECT_EQ(version.output().find("platform-emulator "), 0U) << version.output();
}

TEST(ProgramTest, PrintsItsPortsAndServesThem)
{
    Program program({"--token", kToken, "--verbose"});
    TestClient plain(TestClient::Scheme::Http, program.port("http"), kToken);
    TestClient secure(TestClient::Scheme::Https, program.port("https"), kToken);
    EXPECT_EQ(plain.get(kTimeSync).code(), 1000);
    EXPECT_EQ(secure.get(std::string(kTimeSync) + "?x=" + kToken).code(), 1003);
    EXPECT_TRUE(program.waitFor("-> 200 1003"));
    program.signal(SIGTERM);
    EXPECT_EQ(program.exitStatus(), 0) << program.output();
    EXPECT_NE(program.output().find("GET /brms/api/v1.1/config/time-sync -> 200 1000"), std::string::npos)
        << program.output();
    EXPECT_EQ(program.output().find(kToken), std::string::npos) << program.output();
}

TEST(ProgramTest, IsQuietUnlessVerbose)
{
    Program program({});
    TestClient client(TestClient::Scheme::Http, program.port("http"), emulator::kDefaultToken);
    EXPECT_EQ(client.get(kTimeSync).code(), 1000);
    program.signal(SIGTERM);
    EXPECT_EQ(program.exitStatus(), 0);
    EXPECT_EQ(std::count(program.output().begin(), program.output().end(), '\n'), 2) << program.output();
}

TEST(ProgramTest, SecondOneOnTheSamePortIsRefused)
{
    Program first({});
    const std::string port = std::to_string(first.port("http"));
    Program second({"--http-port", port});
    EXPECT_EQ(second.exitStatus(), 2);
    EXPECT_NE(second.output().find("cannot listen on 127.0.0.1:" + port + ": the port is taken"), std::string::npos)
        << second.output();
    first.signal(SIGINT);
    EXPECT_EQ(first.exitStatus(), 0);
}

TEST(ProgramTest, ClosesIdleConnectionsAfterTheReadTimeout)
{
    Program program({"--read-timeout", "1"});
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(SendRaw(program.port("http"), "GET / HTTP/1.1\r\n"), "");
    EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::seconds(1));
}

TEST(ProgramTest, TakesAThousandConnectionsWithoutAThreadForEach)
{
    constexpr std::size_t kConnections = 1000;
    constexpr std::size_t kMostThreads = 8;
    rlimit files{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &files), 0);
    rlimit few = files;
    few.rlim_cur = 256;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &few), 0);
    Program program({});
    const int port = program.port("http");
    files.rlim_cur = files.rlim_max;
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &files), 0);
    std::list<RawConnection> idle;
    for (std::size_t i = 0; i < kConnections; ++i) {
        idle.emplace_back(port).send("GET");
    }
    TestClient client(TestClient::Scheme::Http, port, "");
    EXPECT_EQ(client.get("/emulator/v1/connections").json().at("connections"), kConnections + 1);
    EXPECT_LE(program.threads(), kMostThreads);
    program.signal(SIGTERM);
    EXPECT_EQ(program.exitStatus(), 0) << program.output();
}

TEST(ProgramTest, ListensOnIpv6)
{
    Program program({"--address", "::1"});
    EXPECT_TRUE(program.waitFor("https [::1]:")) << program.output();
    program.signal(SIGTERM);
    EXPECT_EQ(program.exitStatus(), 0) << program.output();
}

class SignalTest : public testing::TestWithParam<int> {};

TEST_P(SignalTest, EndsCleanlyWhileRequestsHang)
{
    Program program({});
    const int port = program.port("http");
    TestClient control(TestClient::Scheme::Http, port, "");
    ASSERT_EQ(control.post("/emulator/v1/faults", Json{{"kind", "silent"}}).status, 201);
    std::future<Answer> hanging = std::async(std::launch::async, [port] {
        return TestClient(TestClient::Scheme::Http, port, emulator::kDefaultToken).get(kTimeSync);
    });
    while (control.get("/emulator/v1/requests").json().empty()) {
        std::this_thread::yield();
    }
    program.signal(GetParam());
    EXPECT_EQ(program.exitStatus(), 0) << program.output();
    EXPECT_FALSE(hanging.get().arrived);
}

INSTANTIATE_TEST_SUITE_P(Signals, SignalTest, testing::Values(SIGTERM, SIGINT),
                         [](const testing::TestParamInfo<int>& row) {
                             return row.param == SIGTERM ? "Terminate" : "Interrupt";
                         });

TEST(ProgramTest, EditedSeedsAreServed)
{
    std::string name = std::filesystem::temp_directory_path() / "emulator-seed-XXXXXX";
    const std::filesystem::path folder = ::mkdtemp(name.data());
    std::filesystem::copy(emulator::Options().seed, folder, std::filesystem::copy_options::overwrite_existing);
    std::ofstream(folder / "omms.json") << R"({"alertTypes": [{"alertTypeId": "a", "alertTypeName": "b"}]})";
    Program program({"--seed", folder});
    TestClient client(TestClient::Scheme::Http, program.port("http"), emulator::kDefaultToken);
    EXPECT_EQ(client.get("/omms/api/v1.1/alert/rule/alert-type/list").data(),
              Json::parse(R"({"results": [{"alertTypeId": "a", "alertTypeName": "b"}]})"));
    program.signal(SIGTERM);
    EXPECT_EQ(program.exitStatus(), 0) << program.output();
    std::filesystem::remove_all(folder);
}
