// The secrets of a session appear in nothing that a client logs, shows or prints.
#include "rows/Rows.h"
#include "support/EmulatorProcess.h"

#include <support/Host.h>
#include <support/TestApplication.h>

#include <catalogue/Run.h>
#include <libornl/TalPrintLog.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QUrl>

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <optional>
#include <set>

namespace e2e {
namespace {

using Json = nlohmann::json;

const std::string kToken = "t0ken-of-a-session-that-must-stay-secret";
const std::string kBodySecret = "pass-word-that-must-stay-secret";
/// A secret for a path or a query value. Ten of its characters look like a token.
const std::string kUrlSecret = "/found?token=0123456789abcdef";

bool Contains(const std::string& text, const std::string& part)
{
    return text.find(part) != std::string::npos;
}

/// Redirects the standard error of the process to a file during its lifetime.
class ErrorOutput {
public:
    explicit ErrorOutput(const QString& fileName) : m_file(fileName)
    {
        EXPECT_TRUE(m_file.open(QIODevice::WriteOnly));
        ::dup2(m_file.handle(), STDERR_FILENO);
    }
    ~ErrorOutput()
    {
        ::dup2(m_previous, STDERR_FILENO);
        ::close(m_previous);
    }
    ErrorOutput(const ErrorOutput&) = delete;
    ErrorOutput& operator=(const ErrorOutput&) = delete;
    ErrorOutput(ErrorOutput&&) = delete;
    ErrorOutput& operator=(ErrorOutput&&) = delete;

private:
    const int m_previous = ::dup(STDERR_FILENO);
    QFile m_file;
};

/// The URL as it may be logged: the ten characters after the first "token=" are replaced by asterisks.
std::string Masked(const APIModule::RequestParam& request)
{
    const QString url = QString::fromStdString((request.bHttps ? "https://" : "http://") + request.strIp + ":" +
                                               std::to_string(request.nPort) + request.strUrl);
    static const QRegularExpression token(QStringLiteral("^(.*?token=).{1,10}"),
                                          QRegularExpression::DotMatchesEverythingOption);
    return QUrl(url).toString().replace(token, QStringLiteral("\\1**********")).toStdString();
}

/// Replaces each text in the arguments.
void ReplaceTexts(Json& arguments, const std::function<std::string(const Json::json_pointer& pointer)>& replacement,
                  const Json::json_pointer& pointer = Json::json_pointer())
{
    if (arguments.is_string()) {
        arguments = replacement(pointer);
        return;
    }
    if (arguments.is_object()) {
        for (auto& [key, value] : arguments.items()) {
            ReplaceTexts(value, replacement, pointer / key);
        }
    } else if (arguments.is_array()) {
        for (std::size_t index = 0; index < arguments.size(); ++index) {
            ReplaceTexts(arguments[index], replacement, pointer / index);
        }
    }
}

/// How the server replies, so that every path of a call writes its log lines.
struct ReplyKind {
    std::string name;
    Json fault;                                        ///< null for an unchanged reply
    std::optional<std::chrono::milliseconds> timeout;  ///< overrides the call's time-out
};

const std::vector<ReplyKind>& ReplyKinds()
{
    static const std::vector<ReplyKind> kinds = {
        {"unchanged", {}, {}},
        {"status", {{"kind", "status"}, {"status", 500}, {"times", 0}}, {}},
        {"unauthorised", {{"kind", "status"}, {"status", 401}, {"times", 0}}, {}},
        {"envelope", {{"kind", "envelope"}, {"code", 2001}, {"desc", kToken}, {"times", 0}}, {}},
        {"not JSON", {{"kind", "notJson"}, {"times", 0}}, {}},
        {"closed", {{"kind", "closeBefore"}, {"times", 0}}, {}},
        {"no time", {}, std::chrono::milliseconds(0)}};
    return kinds;
}

class Secrets : public testing_support::Host {
protected:
    Secrets()
    {
        users.servers[1] = {"127.0.0.1", m_platform.HttpsPort(), kToken};
        ornl::TalPrintLog::instance().SetFile(LogFile().toStdString());
    }
    ~Secrets() override { ornl::TalPrintLog::instance().SetFile(std::string()); }

    QString LogFile() const { return m_folder.filePath(QStringLiteral("client.log")); }
    QString ErrorFile() const { return m_folder.filePath(QStringLiteral("stderr.txt")); }

    /// Runs a call with every kind of reply and checks what it logs and notifies.
    void Run(const Row& row, const Json& arguments)
    {
        for (const ReplyKind& kind : ReplyKinds()) {
            SCOPED_TRACE(row.Name() + ", " + kind.name);
            if (!kind.fault.is_null()) {
                ASSERT_EQ(m_platform.Control().post("/emulator/v1/faults", kind.fault).status, 201);
            }
            APIModule::RequestParam request;
            catalogue::RunSettings settings;
            settings.timeout = kind.timeout;
            settings.onPacked = [&request](const APIModule::RequestParam& packed) { request = packed; };
            const catalogue::Call& call = *catalogue::FindCall(row.call);
            const catalogue::Outcome outcome =
                catalogue::Run(call, catalogue::ReadArguments(call, arguments), settings);
            APIModule::CAPIModule::GetInstance().NotifyOutcome(outcome, QStringLiteral("The call failed"),
                                                               QStringLiteral("The call succeeded"));
            m_codes.insert(outcome.Code());
            m_platform.Control().remove("/emulator/v1/faults");

            EXPECT_EQ(request.strToken, kToken);
            EXPECT_FALSE(Contains(request.strUrl, kToken));
            const QStringList texts = notifications.Take();
            EXPECT_EQ(texts.size(), 1);
            for (const QString& text : texts) {
                ExpectClean(text.toStdString());
            }
            ExpectCleanLog(Masked(request));
        }
    }

    /// Checks the log lines; each URL in them must be this one.
    void ExpectCleanLog(const std::string& url)
    {
        int urls = 0;
        for (const testing_support::LogLine& line : logs.Take()) {
            ExpectClean(line.message);
            for (const std::string& start : {std::string("ExecuteRequest url="), std::string("request url: ")}) {
                const std::size_t at = line.message.find(start);
                if (at != std::string::npos) {
                    ++urls;
                    EXPECT_EQ(line.message.substr(at + start.size()), url);
                }
            }
        }
        EXPECT_GT(urls, 0);
    }

    static void ExpectClean(const std::string& text)
    {
        EXPECT_FALSE(Contains(text, kToken)) << text;
        EXPECT_FALSE(Contains(text, kBodySecret)) << text;
    }

    static void ExpectCleanFile(const QString& name)
    {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
        const QByteArray content = file.readAll();
        EXPECT_FALSE(content.contains(kToken.c_str())) << name.toStdString();
        EXPECT_FALSE(content.contains(kBodySecret.c_str())) << name.toStdString();
    }

    /// Replaces each text of the arguments by a secret: one for texts in the URL, another for texts in the body.
    Json WithSecrets(const Row& row, const Json& arguments)
    {
        Json secret = arguments;
        ReplaceTexts(secret, [&](const Json::json_pointer& pointer) {
            Json probe = arguments;
            probe[pointer] = "probe";
            const APIModule::RequestParam request = Packed(*catalogue::FindCall(row.call), probe);
            const bool isInUrl = Contains(request.strUrl, "probe");
            m_inUrl += isInUrl ? 1 : 0;
            m_inBody += Contains(request.strBody, "probe") ? 1 : 0;
            return isInUrl ? kUrlSecret : kBodySecret;
        });
        logs.Take();
        return secret;
    }

    const QTemporaryDir m_folder;
    EmulatorProcess m_platform{
        {QStringLiteral("--verbose"), QStringLiteral("--token"), QString::fromStdString(kToken)}};
    std::set<int> m_codes;
    int m_inBody = 0;
    int m_inUrl = 0;

private:
    static APIModule::RequestParam Packed(const catalogue::Call& call, const Json& arguments)
    {
        const std::vector<catalogue::Value> values = catalogue::ReadArguments(call, arguments);
        std::vector<void*> data(values.size());
        std::transform(values.begin(), values.end(), data.begin(),
                       [](const catalogue::Value& value) { return value.Data(); });
        APIModule::RequestParam request;
        EXPECT_EQ(call.pack(&request, data.data(), -1), 0);
        return request;
    }
};

TEST_F(Secrets, AreAbsentFromLogsNotificationsFilesAndEmulatorOutput)
{
    std::set<std::string> called;
    {
        const ErrorOutput errors(ErrorFile());
        for (const Row& row : Rows()) {
            const Json arguments = row.arguments.is_null() ? Json::object() : row.arguments;
            Run(row, arguments);
            Run(row, WithSecrets(row, arguments));
            ASSERT_EQ(m_platform.Control().post("/emulator/v1/reset").status, 204);
            called.insert(row.call);
        }
    }
    EXPECT_EQ(called.size(), catalogue::Calls().size());
    for (const int code : {0, 500, 2001, 7000, -1, -18, -101}) {
        EXPECT_EQ(m_codes.count(code), 1U) << code;
    }
    EXPECT_GT(m_inUrl, 20);
    EXPECT_GT(m_inBody, 50);

    const Json requests = m_platform.Control().get("/emulator/v1/requests").json();
    EXPECT_GT(requests.size(), called.size());
    for (const Json& request : requests) {
        EXPECT_FALSE(Contains(request.at("target"), kToken)) << request.dump(4);
        EXPECT_FALSE(Contains(request.at("body"), kToken)) << request.dump(4);
        EXPECT_TRUE(Contains(request.at("headers").dump(), kToken)) << request.dump(4);
    }

    const std::string printed = m_platform.End();
    EXPECT_TRUE(Contains(printed, "POST ")) << printed;
    ExpectClean(printed);

    int files = 0;
    for (const QString& folder : {m_folder.path(), QDir::homePath()}) {
        QDirIterator file(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        for (; file.hasNext(); ++files) {
            ExpectCleanFile(file.next());
        }
    }
    EXPECT_GE(files, 2) << "the log on standard error and in a file";
    EXPECT_GT(QFileInfo(ErrorFile()).size(), 0);
    EXPECT_GT(QFileInfo(LogFile()).size(), 0);
}

}  // namespace
}  // namespace e2e

int main(int argc, char** argv)
{
    // Files that the process writes to its usual folders are checked as well.
    const QTemporaryDir home;
    for (const char* place : {"HOME", "TMPDIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        qputenv(place, QFile::encodeName(home.path()));
    }
    const testing_support::TestApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
