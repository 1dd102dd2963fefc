#include <libornl/TalPrintLog.h>

#include <gtest/gtest.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <cwchar>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <thread>
#include <vector>

#include <unistd.h>

using ornl::LogRecord;
using ornl::TalPrintLog;
namespace fs = std::filesystem;

namespace {

TalPrintLog& Log()
{
    return TalPrintLog::instance();
}

void LogText(const char* text)
{
    Log().Log("Here.cpp", 7, "Here::Log", "", 4, "%s", text);
}

std::string Content(const fs::path& file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

int Count(const std::string& text, const std::string& part)
{
    int n = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
        ++n;
    }
    return n;
}

class LogTest : public testing::Test {
protected:
    void SetUp() override
    {
        std::string name = (fs::temp_directory_path() / "ornl-test-XXXXXX").string();
        ASSERT_NE(mkdtemp(name.data()), nullptr);
        folder = name;
        Log().SetObserver([this](const LogRecord& record) { records.push_back(record); });
        testing::internal::CaptureStderr();
    }

    void TearDown() override
    {
        if (capturing) {
            (void)Stderr();
        }
        Log().SetObserver({});
        Log().SetFile({});
        fs::remove_all(folder);
    }

    std::string Stderr()
    {
        capturing = false;
        return testing::internal::GetCapturedStderr();
    }

    std::vector<LogRecord> records;
    fs::path folder;
    bool capturing = true;
};

TEST_F(LogTest, ObserverReceivesTheRecordOnceAndStandardErrorTheLine)
{
    Log().Log("src/File", 42, "Space::Function", "tag", 6, "%s is %d %%", "answer", 42);

    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].strFile, "src/File");
    EXPECT_EQ(records[0].nLine, 42);
    EXPECT_EQ(records[0].strFunction, "Space::Function");
    EXPECT_EQ(records[0].strTag, "tag");
    EXPECT_EQ(records[0].nLevel, 6);
    EXPECT_EQ(records[0].strMessage, "answer is 42 %");

    const std::string line = Stderr();
    EXPECT_NE(line.find("error src/File:42 Space::Function: [tag] answer is 42 %\n"), std::string::npos) << line;
    EXPECT_EQ(Count(line, "\n"), 1) << line;
}

TEST_F(LogTest, LevelsAreNamedOnStandardError)
{
    struct Row {
        int nLevel;
        const char* name;
    };
    const Row rows[] = {{-5, "trace"},  {2, "trace"}, {3, "debug"},    {4, "info"},
                        {5, "warning"}, {6, "error"}, {7, "critical"}, {99, "critical"}};
    for (const Row& row : rows) {
        Log().Log("f", row.nLevel, "g", "", row.nLevel, "level-%d-end", row.nLevel);
        EXPECT_EQ(records.back().nLevel, row.nLevel);
    }
    const std::string text = Stderr();
    for (const Row& row : rows) {
        const std::string number = std::to_string(row.nLevel);
        std::string line = " ";
        line.append(row.name).append(" f:").append(number).append(" g: level-").append(number).append("-end");
        EXPECT_NE(text.find(line), std::string::npos) << text;
    }
}

TEST_F(LogTest, NullTextsAreEmpty)
{
    const char* const null = nullptr;
    Log().Log(null, 0, null, null, 4, null);
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].strFile, "");
    EXPECT_EQ(records[0].strFunction, "");
    EXPECT_EQ(records[0].strTag, "");
    EXPECT_EQ(records[0].strMessage, "");
}

TEST_F(LogTest, TextsThatLookLikeFormatsAreLoggedUnchanged)
{
    Log().Log("{}", 1, "{0}%s", "%n{}", 4, "%s", "%s%n {} {:>99999}");
    EXPECT_EQ(records.at(0).strMessage, "%s%n {} {:>99999}");
    EXPECT_NE(Stderr().find("{}:1 {0}%s: [%n{}] %s%n {} {:>99999}\n"), std::string::npos);
}

TEST_F(LogTest, MessagesOfAnyLengthAreLoggedCompletely)
{
    for (const std::size_t length : {0U, 1U, 255U, 256U, 1023U, 4096U, 65536U, 20U * 1024U * 1024U}) {
        const std::string message(length, 'm');
        Log().SetFile((folder / std::to_string(length)).string());
        LogText(message.c_str());
        EXPECT_EQ(records.back().strMessage, message) << length;
        EXPECT_NE(Content(folder / std::to_string(length)).find(": " + message + '\n'), std::string::npos) << length;
    }
    EXPECT_NE(Stderr().find(std::string(std::size_t{20} * 1024 * 1024, 'm')), std::string::npos);
}

TEST_F(LogTest, ZeroByteDoesNotTruncateAMessage)
{
    Log().Log("f", 1, "g", "", 4, "a%cb", '\0');
    EXPECT_EQ(records.at(0).strMessage, std::string("a\0b", 3));
}

TEST_F(LogTest, InvalidFormatIsLoggedAsItsText)
{
    const wchar_t invalid[] = {static_cast<wchar_t>(0x7fffffff), 0};
    Log().Log("f", 1, "g", "", 4, "wide %ls", invalid);
    EXPECT_EQ(records.at(0).strMessage, "wide %ls");
}

TEST_F(LogTest, FileReceivesRecordsUntilTheNameIsEmpty)
{
    const fs::path file = folder / fs::u8path("Protokoll-üß-日志.log");
    LogText("before");
    Log().SetFile(file.u8string());
    LogText("during");
    Log().SetFile({});
    LogText("after");
    const std::string content = Content(file);
    EXPECT_EQ(Count(content, "\n"), 1) << content;
    EXPECT_NE(content.find("info Here.cpp:7 Here::Log: during\n"), std::string::npos) << content;
    const std::string text = Stderr();
    EXPECT_EQ(Count(text, "before") + Count(text, "during") + Count(text, "after"), 3) << text;
}

TEST_F(LogTest, SetFileReplacesTheFileAndAppendsToTheSameOne)
{
    const fs::path first = folder / "first.log";
    const fs::path second = folder / "made" / "for it" / "second.log";
    Log().SetFile(first.string());
    LogText("one");
    Log().SetFile(second.string());
    LogText("two");
    Log().SetFile(first.string());
    Log().SetFile(first.string());
    LogText("three");
    EXPECT_EQ(Count(Content(first), "\n"), 2) << Content(first);
    EXPECT_NE(Content(first).find("one"), std::string::npos);
    EXPECT_NE(Content(first).find("three"), std::string::npos);
    EXPECT_EQ(Count(Content(second), "two"), 1);
}

TEST_F(LogTest, FileRotatesAndStaysBounded)
{
    Log().SetFile((folder / "rotating.log").string());
    const std::string message(std::size_t{1024} * 1024, 'r');
    for (int i = 0; i < 40; ++i) {
        LogText(message.c_str());
    }
    std::uintmax_t nBytes = 0;
    int nFiles = 0;
    for (const auto& file : fs::directory_iterator(folder)) {
        nBytes += file.file_size();
        ++nFiles;
    }
    EXPECT_EQ(nFiles, 4);
    EXPECT_LE(nBytes, 21U * 1024U * 1024U);
}

TEST_F(LogTest, UnopenableFileIsReportedAndStandardErrorContinues)
{
    const fs::path good = folder / "good.log";
    Log().SetFile(good.string());
    EXPECT_NO_THROW(Log().SetFile(folder.string()));
    EXPECT_NO_THROW(Log().SetFile("/proc/no/such/file.log"));
    LogText("still logging");
    EXPECT_EQ(Content(good), "");
    const std::string text = Stderr();
    EXPECT_EQ(Count(text, folder.string()) > 0, true) << text;
    EXPECT_NE(text.find("/proc/no/such/file.log"), std::string::npos) << text;
    EXPECT_NE(text.find("still logging"), std::string::npos) << text;
}

/// What another program does to the file between two records.
struct Loss {
    const char* name;
    void (*act)(const fs::path& file);
};

class LostFileTest : public LogTest, public testing::WithParamInterface<Loss> {};

TEST_P(LostFileTest, IsOpenedAgain)
{
    const fs::path file = folder / "logs" / "one.log";
    Log().SetFile(file.string());
    LogText("before");
    GetParam().act(file);
    LogText("after");
    LogText("then");
    const std::string content = Content(file);
    EXPECT_EQ(Count(content, ": after\n"), 1) << content;
    EXPECT_EQ(Count(content, ": then\n"), 1) << content;
    EXPECT_EQ(Count(content, "before"), 0) << content;
    EXPECT_EQ(Count(Stderr(), "\n"), 3) << "only the three lines, no report of the loss";
}

INSTANTIATE_TEST_SUITE_P(
    Losses, LostFileTest,
    testing::Values(Loss{"deleted", [](const fs::path& file) { fs::remove(file); }},
                    Loss{"moved", [](const fs::path& file) { fs::rename(file, file.string() + ".1"); }},
                    Loss{"replaced",
                         [](const fs::path& file) {
                             fs::rename(file, file.string() + ".1");
                             std::ofstream(file) << "by another program\n";
                         }},
                    Loss{"deleted_with_its_folder", [](const fs::path& file) { fs::remove_all(file.parent_path()); }}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(LogTest, LostFileIsRetriedUntilItCanBeOpened)
{
    const fs::path file = folder / "logs" / "one.log";
    Log().SetFile(file.string());
    fs::remove_all(file.parent_path());
    std::ofstream(file.parent_path()) << "no folder\n";
    EXPECT_NO_THROW(LogText("without file"));
    fs::remove(file.parent_path());
    LogText("with file");
    const std::string content = Content(file);
    EXPECT_EQ(Count(content, "with file"), 1) << content;
    EXPECT_EQ(Count(content, "without"), 0) << content;
    const std::string text = Stderr();
    EXPECT_EQ(Count(text, ": without file\n"), 1) << text;
    EXPECT_EQ(Count(text, file.string()), 1) << "the failure is reported: " << text;
}

TEST_F(LogTest, ObserverMayLog)
{
    int nCalls = 0;
    Log().SetObserver([&](const LogRecord& record) {
        ++nCalls;
        if (record.strMessage == "outer") {
            LogText("inner");
        }
    });
    LogText("outer");
    EXPECT_EQ(nCalls, 2);
}

TEST_F(LogTest, ObserverMayReplaceItself)
{
    int nFirst = 0;
    int nSecond = 0;
    const auto alive = std::make_shared<int>(1);
    Log().SetObserver([&nFirst, &nSecond, alive](const LogRecord&) {
        Log().SetObserver([&nSecond](const LogRecord&) { ++nSecond; });
        nFirst += *alive;  // the captured state outlives the replacement of the running observer
    });
    LogText("one");
    LogText("two");
    EXPECT_EQ(nFirst, 1);
    EXPECT_EQ(nSecond, 1);
    EXPECT_EQ(alive.use_count(), 1);
}

TEST_F(LogTest, ObserverMayLogInItsDestructor)
{
    const std::shared_ptr<int> farewell(new int, [](const int* p) {
        delete p;
        LogText("farewell");
    });
    Log().SetObserver([held = std::shared_ptr<int>(farewell)](const LogRecord&) {});
    std::weak_ptr<int> watch = farewell;
    const_cast<std::shared_ptr<int>&>(farewell).reset();
    Log().SetObserver({});
    EXPECT_TRUE(watch.expired());
    EXPECT_NE(Stderr().find("farewell"), std::string::npos);
}

TEST_F(LogTest, EmptyObserverStopsObserving)
{
    LogText("seen");
    Log().SetObserver({});
    LogText("unseen");
    ASSERT_EQ(records.size(), 1U);
    EXPECT_EQ(records[0].strMessage, "seen");
}

TEST_F(LogTest, ExceptionsOfAnObserverAreDropped)
{
    Log().SetObserver([](const LogRecord&) { throw std::runtime_error("from the observer"); });
    EXPECT_NO_THROW(LogText("first"));
    Log().SetObserver([](const LogRecord&) { throw 5; });
    EXPECT_NO_THROW(LogText("second"));
    const std::string text = Stderr();
    EXPECT_NE(text.find("first"), std::string::npos);
    EXPECT_NE(text.find("second"), std::string::npos);
}

TEST_F(LogTest, ObserverRunsOnTheThreadThatLogs)
{
    std::thread::id seen;
    Log().SetObserver([&](const LogRecord&) { seen = std::this_thread::get_id(); });
    std::thread other([] { LogText("other"); });
    const std::thread::id expected = other.get_id();
    other.join();
    EXPECT_EQ(seen, expected);
}

TEST_F(LogTest, ManyThreadsLogWhileObserverAndFileChange)
{
    constexpr int kThreads = 4;
    constexpr int kRecords = 500;
    std::atomic<int> nSeen = 0;
    const auto count = [&](const LogRecord&) { ++nSeen; };
    Log().SetObserver(count);
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (int i = 0; i < kThreads; ++i) {
        threads.emplace_back([] {
            for (int n = 0; n < kRecords; ++n) {
                LogText("from a thread");
            }
        });
    }
    for (int n = 0; n < 50; ++n) {
        Log().SetObserver(count);
        Log().SetFile((folder / std::to_string(n % 2)).string());
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(nSeen, kThreads * kRecords);
    EXPECT_EQ(Count(Stderr(), "Here::Log: from a thread\n"), kThreads * kRecords);
}

/// Each test ends its process.
class ClosedPipeTest : public testing::Test {
protected:
    ClosedPipeTest() { testing::FLAGS_gtest_death_test_style = "threadsafe"; }

    static void CloseStandardError()
    {
        int ends[2];
        if (pipe(ends) != 0 || dup2(ends[1], STDERR_FILENO) < 0 || close(ends[0]) != 0) {
            std::_Exit(2);
        }
    }

    static bool IsPending()
    {
        sigset_t pending;
        sigpending(&pending);
        return sigismember(&pending, SIGPIPE) == 1;
    }
};

TEST_F(ClosedPipeTest, DoesNotEndTheProcess)
{
    const auto log = [] {
        const fs::path file = fs::temp_directory_path() / ("ornl-closed-pipe-" + std::to_string(getpid()));
        CloseStandardError();
        Log().SetFile(file.string());
        LogText("one");
        std::thread([] { LogText("two"); }).join();
        Log().SetFile("/proc/no/such/file.log");  // the failure is also reported on standard error
        const std::string content = Content(file);
        fs::remove(file);
        std::_Exit(Count(content, "one") == 1 && Count(content, "two") == 1 && !IsPending() ? 0 : 1);
    };
    EXPECT_EXIT(log(), testing::ExitedWithCode(0), "");
}

TEST_F(ClosedPipeTest, StillSignalsWritesOutsideTheLog)
{
    const auto write = [] {
        CloseStandardError();
        LogText("one");
        (void)!::write(STDERR_FILENO, "x", 1);
        std::_Exit(0);
    };
    EXPECT_EXIT(write(), testing::KilledBySignal(SIGPIPE), "");
}

TEST_F(ClosedPipeTest, KeepsASignalBlockedByTheHost)
{
    const auto log = [] {
        CloseStandardError();
        sigset_t sigpipe;
        sigemptyset(&sigpipe);
        sigaddset(&sigpipe, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &sigpipe, nullptr);
        LogText("one");
        const bool bNoneFromTheLog = !IsPending();
        std::raise(SIGPIPE);
        LogText("two");
        std::_Exit(bNoneFromTheLog && IsPending() ? 0 : 1);
    };
    EXPECT_EXIT(log(), testing::ExitedWithCode(0), "");
}

struct LogsAtTheEnd {
    ~LogsAtTheEnd() { LogText("from a static destructor"); }
};

TEST(LogLifetimeTest, StaticDestructorsMayLog)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    const auto end = [] {
        static const LogsAtTheEnd logsAtTheEnd;  // destroyed after everything that logging creates below
        LogText("first record");
        std::exit(0);
    };
    EXPECT_EXIT(end(), testing::ExitedWithCode(0), "from a static destructor");
}

}  // namespace
