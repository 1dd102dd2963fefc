// A program that has made calls over HTTPS ends cleanly, with the state that TLS leaves in threads cleaned up as late
// as it can be.
#include "support/RawServer.h"

#include <QCoreApplication>
#include <QProcess>

#include <gtest/gtest.h>

using testing_support::HttpAnswer;
using testing_support::RawRequest;
using testing_support::RawServer;

namespace {

constexpr int kLateExit = 86;

/// How a program ended.
struct End {
    bool crashed;
    int code;
    QByteArray errors;
};

End RunToEnd(const QString& program, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(LATE_THREAD_STATE));
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60000));
    return {process.exitStatus() == QProcess::CrashExit, process.exitCode(), process.readAllStandardError()};
}

class ExitTest : public testing::TestWithParam<const char*> {};

TEST_P(ExitTest, HostEndsCleanly)
{
    const RawServer server([](const RawRequest&) { return HttpAnswer(200, R"({"code":1000})"); }, RawServer::Https);
    for (int i = 0; i < 3; ++i) {
        const End end =
            RunToEnd(QStringLiteral(HOST), {QString::number(server.Port()), QString::fromLatin1(GetParam())});
        EXPECT_FALSE(end.crashed) << end.errors.constData();
        EXPECT_EQ(end.code, 0) << end.errors.constData();
    }
}

INSTANTIATE_TEST_SUITE_P(Ends, ExitTest,
                         testing::Values("return", "quit", "call_after_exec", "application_left_alive",
                                         "exit_in_a_slot"),
                         [](const auto& row) { return std::string(row.param); });

/// What the test above would see.
TEST(LateThreadStateTest, FindsAThreadThatIsCleanedUpAfterTheProgram)
{
    const End end = RunToEnd(QStringLiteral(CARELESS), {});
    EXPECT_TRUE(end.crashed || end.code == kLateExit) << end.code << end.errors.constData();
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
