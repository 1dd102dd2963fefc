// The C++ lines of every call compile without warnings, as client code does, and make the same call.
#include "e2e/rows/Rows.h"
#include "e2e/support/EndToEnd.h"

#include <catalogue/Call.h>
#include <explorer/views/CppLines.h>

#include <QFile>
#include <QLibrary>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <tuple>

namespace e2e {
namespace {

struct CompilerResult {
    int status;
    QString output;
};

/// A library with a function for each row and a source file for each family, compiled on first use.
class GeneratedCalls {
public:
    static GeneratedCalls& Instance()
    {
        static GeneratedCalls calls;
        return calls;
    }

    [[nodiscard]] const CompilerResult& Compiled() const { return m_compiled; }

    using Function = int (*)(void* pRecord);
    Function Find(const std::string& row) { return reinterpret_cast<Function>(m_library.resolve(row.c_str())); }

private:
    GeneratedCalls() : m_library(m_folder.filePath(QStringLiteral("calls.so")))
    {
        std::map<std::string, QString> sources;
        for (const Row& row : Rows()) {
            const catalogue::Call& call = *catalogue::FindCall(row.call);
            QString& source = sources[call.family];
            // The first function includes the headers at file scope, so later includes, in namespaces, add nothing.
            source += source.isEmpty() ? First(call, row) : Wrapped(call, row);
        }
        m_compiled = Compile(sources);
    }

    static QString Lines(const catalogue::Call& call, const Row& row)
    {
        return explorer::CppLines(call, row.arguments.is_null() ? Json::object() : row.arguments, -1);
    }

    static QString Entry(const QString& scope, const catalogue::Call& call, const Row& row)
    {
        const QString function = QString::fromStdString(call.name.substr(call.family.size() + 1));
        return QStringLiteral(
                   "extern \"C\" int %1(void* pRecord)\n{\n    return Take(%2::%3(nullptr), pRecord);\n}\n\n")
            .arg(QString::fromStdString(row.Name()), scope, function);
    }

    static QString First(const catalogue::Call& call, const Row& row)
    {
        return Lines(call, row) + QStringLiteral(R"(
namespace {

template <typename Record>
[[maybe_unused]] int Take(const APIModule::Outcome<Record>& outcome, void* pRecord)
{
    if (pRecord) {
        *static_cast<Record*>(pRecord) = *outcome;
    }
    return outcome.Code();
}

}  // namespace

)") + Entry(QString(), call, row);
    }

    static QString Wrapped(const catalogue::Call& call, const Row& row)
    {
        const QString scope = QStringLiteral("of_%1").arg(QString::fromStdString(row.Name()));
        return QStringLiteral("namespace %1 {\n%2}\n\n").arg(scope, Lines(call, row)) + Entry(scope, call, row);
    }

    CompilerResult Compile(const std::map<std::string, QString>& sources)
    {
        QStringList arguments{QStringLiteral("@" COMPILER_FLAGS_FILE), QStringLiteral("-shared"), QStringLiteral("-o"),
                              m_library.fileName()};
        for (const auto& [family, source] : sources) {
            QFile file(m_folder.filePath(QString::fromStdString(family) + QStringLiteral(".cpp")));
            EXPECT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(source.toUtf8());
            arguments.append(file.fileName());
        }
        QProcess compiler;
        compiler.setWorkingDirectory(m_folder.path());
        compiler.setProcessChannelMode(QProcess::MergedChannels);
        compiler.start(QStringLiteral(COMPILER), arguments);
        constexpr int kMilliseconds = 240000;
        EXPECT_TRUE(compiler.waitForFinished(kMilliseconds)) << compiler.errorString().toStdString();
        return {compiler.exitCode(), QString::fromUtf8(compiler.readAll())};
    }

    QTemporaryDir m_folder;
    QLibrary m_library;
    CompilerResult m_compiled{};
};

class CppLines : public EndToEnd, public testing::WithParamInterface<Row> {
protected:
    static void SetUpTestSuite()
    {
        EndToEnd::SetUpTestSuite();
        const CompilerResult& compiled = GeneratedCalls::Instance().Compiled();
        ASSERT_EQ(compiled.status, 0) << compiled.output.toStdString();
    }

    /// Sets the row's state and clears the recorded requests.
    static void Prepare()
    {
        Platform().reset();
        Json state = Platform().state();
        for (const auto& [path, value] : GetParam().state.items()) {
            state[Json::json_pointer(path)] = value;
        }
        Platform().setState(state);
        Platform().clearRequests();
    }

    /// Method, target and body of the requests since Prepare().
    static std::vector<std::tuple<std::string, std::string, std::string>> Requests()
    {
        std::vector<std::tuple<std::string, std::string, std::string>> seen;
        for (const emulator::RecordedRequest& request : Platform().requests()) {
            seen.emplace_back(request.method, request.target, request.body);
        }
        return seen;
    }
};

TEST_P(CppLines, MakeTheSameCall)
{
    const Row& row = GetParam();
    Prepare();
    const Json expected = Run(row.call, row.arguments).record;
    const auto expectedRequests = Requests();
    ASSERT_EQ(expectedRequests.size(), 1U);

    Prepare();
    const auto function = GeneratedCalls::Instance().Find(row.Name());
    ASSERT_NE(function, nullptr);
    const catalogue::Call& call = *catalogue::FindCall(row.call);
    std::optional<catalogue::Value> record;
    if (call.result != nullptr) {
        record.emplace(*call.result);
    }
    EXPECT_EQ(function(record ? record->Data() : nullptr), 0);
    EXPECT_EQ(Requests(), expectedRequests);
    EXPECT_EQ(record ? record->ToJson() : Json(), expected);
}

std::string NameOf(const testing::TestParamInfo<Row>& info)
{
    return info.param.Name();
}

INSTANTIATE_TEST_SUITE_P(EveryCall, CppLines, testing::ValuesIn(Rows()), NameOf);

TEST(Completeness, LinesOfEveryCallAreCompiled)
{
    for (const catalogue::Call& call : catalogue::Calls()) {
        EXPECT_NE(GeneratedCalls::Instance().Find(Row{call.name, {}}.Name()), nullptr) << call.name;
    }
}

}  // namespace
}  // namespace e2e
