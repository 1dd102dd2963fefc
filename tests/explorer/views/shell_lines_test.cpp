// The curl and apicall commands of a call send the same request as the library.
#include "e2e/rows/Rows.h"
#include "e2e/support/EndToEnd.h"
#include "support/Program.h"

#include <explorer/views/Json.h>
#include <explorer/views/ShellLines.h>

#include <gtest/gtest.h>

#include <map>

namespace e2e {
namespace {

using emulator::RecordedRequest;
using testing_support::ProgramResult;

/// Runs the command in a shell, with the token in the environment as a user has it.
ProgramResult RunInShell(const QString& command)
{
    return testing_support::RunProgram(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), command},
                                       {{QStringLiteral("TOKEN"), QString::fromLatin1(emulator::kDefaultToken)}});
}

/// The server adds the addresses of both ends to the received headers, under names with underscores.
bool IsAddedByServer(const std::string& name)
{
    return name.find('_') != std::string::npos;
}

/// The headers that depend on the call, without those of the connection and the client.
std::multimap<std::string, std::string> HeadersOf(const RecordedRequest& request)
{
    static const QStringList connectionNames{QStringLiteral("host"), QStringLiteral("connection"),
                                             QStringLiteral("user-agent"), QStringLiteral("accept-encoding"),
                                             QStringLiteral("accept")};
    std::multimap<std::string, std::string> headers;
    for (const auto& [name, value] : request.headers) {
        const QString lower = QString::fromStdString(name).toLower();
        if (!IsAddedByServer(name) && !connectionNames.contains(lower)) {
            headers.emplace(lower.toStdString(), value);
        }
    }
    return headers;
}

class ShellLines : public EndToEnd, public testing::WithParamInterface<Row> {
protected:
    /// The request that the library sends for a call.
    static RecordedRequest Sent(const std::string& call, const Json& arguments)
    {
        Platform().clearRequests();
        Run(call, arguments);
        const std::vector<RecordedRequest> requests = Platform().requests();
        EXPECT_EQ(requests.size(), 1U);
        return requests.empty() ? RecordedRequest() : requests.front();
    }

    static explorer::SentRequest WithoutToken(const RecordedRequest& request)
    {
        explorer::SentRequest masked;
        masked.method = QString::fromStdString(request.method);
        masked.url =
            QStringLiteral("https://127.0.0.1:%1").arg(Platform().httpsPort()) + QString::fromStdString(request.target);
        masked.body = QByteArray::fromStdString(request.body);
        for (const auto& [name, value] : request.headers) {
            if (IsAddedByServer(name)) {
                continue;
            }
            const char* text = value == emulator::kDefaultToken ? explorer::kTokenMask : value.c_str();
            masked.headers.append({QString::fromStdString(name), QString::fromUtf8(text)});
        }
        return masked;
    }

    /// @return the standard output of the command
    static std::string ExpectTheSame(const QString& command, const RecordedRequest& sent)
    {
        EXPECT_FALSE(command.contains(QLatin1String(emulator::kDefaultToken))) << command.toStdString();

        Platform().reset();
        Platform().clearRequests();
        const ProgramResult ended = RunInShell(command);
        EXPECT_EQ(ended.status, 0) << ended.err << "\n" << command.toStdString();
        const std::vector<RecordedRequest> requests = Platform().requests();
        if (requests.size() != 1U) {
            ADD_FAILURE() << requests.size() << " requests instead of 1 from " << command.toStdString();
            return {};
        }
        EXPECT_EQ(requests.front().method, sent.method);
        EXPECT_EQ(requests.front().target, sent.target);
        EXPECT_EQ(requests.front().body, sent.body);
        EXPECT_EQ(HeadersOf(requests.front()), HeadersOf(sent));
        return ended.out;
    }
};

TEST_P(ShellLines, CurlSendsTheSameRequest)
{
    const RecordedRequest sent = Sent(GetParam().call, GetParam().arguments);
    const std::string printed = ExpectTheSame(explorer::CurlLine(WithoutToken(sent)), sent);
    EXPECT_TRUE(Json::parse(printed, nullptr, false).contains("code")) << printed;
}

TEST_P(ShellLines, ApicallSendsTheSameRequest)
{
    const RecordedRequest sent = Sent(GetParam().call, GetParam().arguments);
    const QString server = QStringLiteral("https://127.0.0.1:%1").arg(Platform().httpsPort());
    QString command = explorer::ApicallLine({catalogue::FindCall(GetParam().call),
                                             explorer::ToQt(GetParam().arguments),
                                             {},
                                             {QStringLiteral("--server"), server}});
    const QString program = QStringLiteral(" apicall ");
    ASSERT_TRUE(command.contains(program)) << command.toStdString();
    command.replace(command.indexOf(program), program.size(), QStringLiteral(" '" APICALL_FILE "' "));
    ExpectTheSame(command, sent);
}

std::string NameOf(const testing::TestParamInfo<Row>& info)
{
    return info.param.Name();
}

INSTANTIATE_TEST_SUITE_P(EveryCall, ShellLines, testing::ValuesIn(Rows()), NameOf);

INSTANTIATE_TEST_SUITE_P(
    CharactersSpecialToShells, ShellLines,
    testing::Values(
        Row{"BRMS.UpdateLocalSetting",
            "Quotes",
            {{"apply", true}, {"content", "it's \"so\" $HOME `id` \\ !1 *\n\xC3\xBC %41 @file"}}},
        Row{"BRMS.UpdateLocalSetting", "AtSign", {{"apply", true}, {"content", "@/etc/hostname"}}},
        Row{"BRMS.GetUserGroupList", "UrlCharacters", {{"keyword", "it's [1-3]{a,b} \xC3\xBC/../x;y?z=$TOKEN"}}}),
    NameOf);

}  // namespace
}  // namespace e2e
