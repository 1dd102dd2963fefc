// A program that has made calls over HTTPS exits cleanly, even when the TLS state of its threads is cleaned up as late
// as possible.
#include "support/Program.h"
#include "support/RawServer.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

using testing_support::HttpReply;
using testing_support::ProgramResult;
using testing_support::RawRequest;
using testing_support::RawServer;
using testing_support::RunProgram;

namespace {

constexpr int kLateExit = 86;

ProgramResult RunToEnd(const char* program, const QStringList& arguments)
{
    return RunProgram(QString::fromUtf8(program), arguments,
                      {{QStringLiteral("LD_PRELOAD"), QStringLiteral(LATE_THREAD_STATE)}});
}

class ExitTest : public testing::TestWithParam<const char*> {};

TEST_P(ExitTest, HostExitsCleanly)
{
    const RawServer server([](const RawRequest&) { return HttpReply(200, R"({"code":1000})"); }, RawServer::Https);
    for (int i = 0; i < 3; ++i) {
        const ProgramResult end = RunToEnd(HOST, {QString::number(server.Port()), QString::fromLatin1(GetParam())});
        EXPECT_FALSE(end.crashed) << end.err;
        EXPECT_EQ(end.status, 0) << end.err;
    }
}

INSTANTIATE_TEST_SUITE_P(Ends, ExitTest,
                         testing::Values("return", "quit", "call_after_exec", "application_left_alive",
                                         "exit_in_a_slot"),
                         [](const auto& row) { return std::string(row.param); });

/// Checks that the test above can fail.
TEST(LateThreadStateTest, DetectsThreadCleanUpAfterTheProgram)
{
    const ProgramResult end = RunToEnd(CARELESS, {});
    EXPECT_TRUE(end.crashed || end.status == kLateExit) << end.status << end.err;
}

}  // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
