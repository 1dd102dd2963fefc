// A mock server generated from the document accepts every request of the library, and the library reads its replies.
#include "Document.h"

#include <e2e/rows/Rows.h>
#include <support/Host.h>

#include <catalogue/Run.h>
#include <TestClient.h>

#include <QFileInfo>
#include <QProcess>

#include <gtest/gtest.h>

#include <memory>
#include <regex>

namespace contract_tests {
namespace {

/// Runs Prism with the document. It rejects requests that violate the document.
class MockServer {
public:
    /// Starts Prism and waits until it listens; Port() is 0 if that fails.
    MockServer()
    {
        m_process.setProcessChannelMode(QProcess::MergedChannels);
        m_process.start(QStringLiteral(MOCK_SERVER), {QStringLiteral("mock"), QStringLiteral(DOCUMENT_FILE),
                                                      QStringLiteral("--errors"), QStringLiteral("--port=0")});
        static const QByteArray mark("Prism is listening on http://127.0.0.1:");
        QByteArray printed;
        while (m_port == 0 && (m_process.canReadLine() || m_process.waitForReadyRead(kStartMilliseconds))) {
            printed = m_process.readLine();
            const int found = printed.indexOf(mark);
            m_port = found < 0 ? 0 : printed.mid(found + mark.size()).trimmed().toInt();
        }
        EXPECT_NE(m_port, 0) << printed.toStdString() << m_process.errorString().toStdString();
        m_process.readAll();
    }
    ~MockServer()
    {
        m_process.terminate();
        m_process.waitForFinished();
    }
    MockServer(const MockServer&) = delete;
    MockServer& operator=(const MockServer&) = delete;
    MockServer(MockServer&&) = delete;
    MockServer& operator=(MockServer&&) = delete;

    [[nodiscard]] int Port() const { return m_port; }
    /// The output since the last call.
    std::string Printed()
    {
        m_process.waitForReadyRead(0);
        return m_process.readAll().toStdString();
    }

private:
    static constexpr int kStartMilliseconds = 120000;

    QProcess m_process;
    int m_port = 0;
};

class Mock : public testing_support::Host {
protected:
    static void SetUpTestSuite()
    {
        if (QFileInfo::exists(QStringLiteral(MOCK_SERVER))) {
            s_server = std::make_unique<MockServer>();
        }
    }
    static void TearDownTestSuite() { s_server.reset(); }

    void SetUp() override
    {
        if (!s_server) {
            ASSERT_FALSE(qEnvironmentVariableIsSet("CI")) << "the tools of docs/contract are not installed";
            GTEST_SKIP() << "run 'npm ci' in docs/contract first";
        }
        users.servers[1].port = s_server->Port();
        APIModule::CAPIModule::GetInstance().SetHttpsMode(0);
    }

    static MockServer& Server() { return *s_server; }

private:
    static std::unique_ptr<MockServer> s_server;
};

std::unique_ptr<MockServer> Mock::s_server;

/// Prism treats an empty value of a query as missing, so a value is inserted.
void FillEmptyQueryValues(APIModule::RequestParam& request)
{
    static const std::regex empty("=(?=&|$)");
    request.strUrl = std::regex_replace(request.strUrl, empty, "=any");
}

class EveryCall : public Mock, public testing::WithParamInterface<e2e::Row> {};

TEST_P(EveryCall, IsAcceptedAndItsReplyRead)
{
    const e2e::Row& row = GetParam();
    const catalogue::Call& call = *catalogue::FindCall(row.call);
    const Json arguments = row.arguments.is_null() ? Json::object() : row.arguments;
    catalogue::RunSettings settings;
    settings.timeout = std::chrono::seconds(60);
    settings.onPacked = FillEmptyQueryValues;
    Server().Printed();
    const catalogue::Outcome outcome = catalogue::Run(call, catalogue::ReadArguments(call, arguments), settings);
    EXPECT_TRUE(outcome) << outcome.Code() << " " << outcome.Text().toStdString() << "\n" << Server().Printed();
    if (call.parse != nullptr) {
        const Json& example = Document().operation(call.name).replyExamples.front();
        EXPECT_EQ(outcome.record, Read(call, example.at("data")).record);
    }
}

std::string NameOf(const testing::TestParamInfo<e2e::Row>& row)
{
    return row.param.Name();
}

INSTANTIATE_TEST_SUITE_P(Rows, EveryCall, testing::ValuesIn(e2e::Rows()), NameOf);

/// Why the server rejected a request; empty if it did not.
std::string Refusal(const Reply& reply)
{
    return reply.status < 400 ? std::string() : std::to_string(reply.status) + " " + reply.body;
}

TEST_F(Mock, RefusesABodyThatViolatesTheDocument)
{
    for (const emulator::Operation& operation : Document().operations()) {
        if (operation.path.find('{') != std::string::npos || !operation.query.empty()) {
            continue;
        }
        TestClient client(TestClient::Scheme::Http, Server().Port(), "token");
        const Reply reply = client.request(operation.method, operation.path, R"({"notOfTheDocument": 1})");
        const char* reason = operation.body ? R"("location":["body"])" : "No supported content types";
        EXPECT_NE(Refusal(reply).find(reason), std::string::npos) << operation.id << ": " << Refusal(reply);
    }
}

TEST_F(Mock, RefusesARequestWithoutToken)
{
    TestClient client(TestClient::Scheme::Http, Server().Port(), "");
    EXPECT_EQ(client.get("/brms/api/v1.1/config/time-sync").status, 401);
}

}  // namespace
}  // namespace contract_tests
