// Texts of apicall and platform-emulator in the language of their environment.
#include "support/Program.h"
#include "support/Rows.h"

#include <catalogue/Call.h>

#include <QFileInfo>
#include <QTranslator>

#include <gtest/gtest.h>

#include <regex>
#include <sstream>

using testing_support::ProgramResult;
using testing_support::RowName;
using testing_support::RunProgram;

namespace {

struct Texts {
    const char* language;
    const char* usage;
    const char* options;
    const char* noServer;
    const char* noSuchCall;
    const char* notExpected;
    const char* outOfRange;
    const char* wrongType;
    const char* summary;
    const char* noFolder;
    const char* noSeed;
    const char* unreachable;
};

constexpr Texts kEnglish{
    "en",
    "Usage: ",
    "Options:",
    "--server is missing",
    "unknown call \"NoCall\"; run 'apicall --list' for all calls",
    "unexpected argument: --no-such-option",
    "--server-id: 7 is not an integer from -1 to 1",
    "/settingType: expected int, got text",
    "Reads one client setting",
    "--seed: folder /nowhere does not exist",
    "folder /proc/self/task contains no seed file",
    "BRMS.GetTimeSyncConfig failed with -18: The server cannot be reached because of a network error",
};

constexpr Texts kGerman{
    "de",
    "Aufruf: ",
    "Optionen:",
    "--server fehlt",
    "unbekannter Aufruf „NoCall“; „apicall --list“ zeigt alle Aufrufe",
    "unerwartetes Argument: --no-such-option",
    "--server-id: 7 ist keine ganze Zahl von -1 bis 1",
    "/settingType: int erwartet, Text erhalten",
    "Liest eine Einstellung des Clients",
    "--seed: der Ordner /nowhere existiert nicht",
    "der Ordner /proc/self/task enthält keine Datei mit Anfangsdaten",
    "BRMS.GetTimeSyncConfig fehlgeschlagen mit Code -18: Der Server ist wegen eines Netzwerkfehlers nicht erreichbar",
};

constexpr Texts kChinese{
    "zh",
    "用法: ",
    "选项:",
    "缺少 --server",
    "未知的调用“NoCall”；运行“apicall --list”可查看所有调用",
    "多余的参数：--no-such-option",
    "--server-id: 7 不是 -1 到 1 之间的整数",
    "/settingType: 应为 int，实为 文本",
    "读取客户端的一项设置",
    "--seed: 文件夹 /nowhere 不存在",
    "文件夹 /proc/self/task 中没有初始数据文件",
    "BRMS.GetTimeSyncConfig 失败，代码 -18：网络错误，无法连接服务器",
};

struct Environment {
    const char* name;
    const char* variable;
    const char* value;
    Texts texts;
};

class Programs : public testing::TestWithParam<Environment> {
protected:
    static ProgramResult Run(const char* program, const QStringList& arguments)
    {
        testing_support::Variables variables;
        for (const char* variable : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
            variables[QLatin1String(variable)] = QString();
        }
        variables[QLatin1String(GetParam().variable)] = QLatin1String(GetParam().value);
        ProgramResult ended = RunProgram(QString::fromUtf8(program), arguments, variables);
        // Recent versions of Qt print a note where the locale is not installed.
        static const std::regex kNoteOfQt("^Detected locale [^]*?manual\nfor more information\\.\n");
        ended.err = std::regex_replace(ended.err, kNoteOfQt, "");
        return ended;
    }

    static ProgramResult Apicall(const QStringList& arguments) { return Run(APICALL_FILE, arguments); }
    static ProgramResult Emulator(const QStringList& arguments) { return Run(EMULATOR_FILE, arguments); }

    static void ExpectRefusal(const ProgramResult& ended, const std::string& program, const char* text)
    {
        EXPECT_EQ(ended.status, 2);
        EXPECT_EQ(ended.out, "");
        EXPECT_EQ(ended.err, program + ": " + text + "\n");
    }

    static void ExpectLineWith(const std::string& out, const std::string& text)
    {
        EXPECT_NE(("\n" + out).find("\n" + text), std::string::npos) << out;
    }
};

TEST_P(Programs, HelpIsTranslated)
{
    for (const ProgramResult& ended : {Apicall({QStringLiteral("--help")}), Emulator({QStringLiteral("--help")})}) {
        EXPECT_EQ(ended.status, 0);
        ExpectLineWith(ended.out, GetParam().texts.usage);
        ExpectLineWith(ended.out, GetParam().texts.options);
    }
}

TEST_P(Programs, ErrorsAreTranslated)
{
    const Texts& texts = GetParam().texts;
    const QString call = QStringLiteral("BRMS.GetLocalSetting");
    ExpectRefusal(Apicall({call, QStringLiteral("settingType=3")}), "apicall", texts.noServer);
    ExpectRefusal(Apicall({QStringLiteral("NoCall")}), "apicall", texts.noSuchCall);
    ExpectRefusal(Apicall({QStringLiteral("--no-such-option")}), "apicall", texts.notExpected);
    ExpectRefusal(Apicall({QStringLiteral("--server-id"), QStringLiteral("7"), call}), "apicall", texts.outOfRange);
    ExpectRefusal(Apicall({call, QStringLiteral("settingType=\"3\"")}), "apicall", texts.wrongType);
    ExpectRefusal(Emulator({QStringLiteral("--no-such-option")}), "platform-emulator", texts.notExpected);
    ExpectRefusal(Emulator({QStringLiteral("--seed"), QStringLiteral("/nowhere")}), "platform-emulator",
                  texts.noFolder);
    ExpectRefusal(Emulator({QStringLiteral("--seed"), QStringLiteral("/proc/self/task")}), "platform-emulator",
                  texts.noSeed);
}

TEST_P(Programs, FailedCallIsReportedInOneLanguage)
{
    const ProgramResult ended = Apicall(
        {QStringLiteral("--server"), QStringLiteral("http://127.0.0.1:0"), QStringLiteral("BRMS.GetTimeSyncConfig")});
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.out, "");
    ExpectLineWith(ended.err, std::string("apicall: ") + GetParam().texts.unreachable + "\n");
}

TEST_P(Programs, ListHasSameNamesAndTranslatedSummariesInEveryLanguage)
{
    QTranslator translations;
    ASSERT_TRUE(translations.load(QStringLiteral("tools_") + QLatin1String(GetParam().texts.language),
                                  QFileInfo(QStringLiteral(APICALL_FILE)).path() +
                                      QStringLiteral("/../share/apimodule/translations")));
    std::istringstream lines(Apicall({QStringLiteral("--list")}).out);
    std::string line;
    for (const catalogue::Call& call : catalogue::Calls()) {
        ASSERT_TRUE(std::getline(lines, line)) << call.name;
        EXPECT_EQ(line.substr(0, line.find(' ')), call.name);
        const std::string summary = line.substr(line.find_first_not_of(' ', line.find(' ')));
        const QString translated = translations.translate("catalogue::Call", std::string(call.summary).c_str());
        EXPECT_EQ(summary, translated.isEmpty() ? std::string(call.summary) : translated.toStdString());
        if (call.name == "BRMS.GetLocalSetting") {
            EXPECT_EQ(summary, GetParam().texts.summary);
        }
    }
    EXPECT_FALSE(std::getline(lines, line)) << line;
}

constexpr Environment kEnvironments[] = {
    {"English", "LANG", "en_US.UTF-8", kEnglish},
    {"German", "LANG", "de_DE.UTF-8", kGerman},
    {"Chinese", "LANG", "zh_CN.UTF-8", kChinese},
    {"Untranslated", "LANG", "fr_FR.UTF-8", kEnglish},
    {"CLocale", "LC_ALL", "C", kEnglish},
    {"GermanByLcAll", "LC_ALL", "de_AT.UTF-8", kGerman},
    {"ChineseByLcMessages", "LC_MESSAGES", "zh_TW.UTF-8", kChinese},
    {"EnglishBeforeGerman", "LANGUAGE", "en:de", kEnglish},
    {"GermanAfterUntranslated", "LANGUAGE", "fr:de", kGerman},
};

INSTANTIATE_TEST_SUITE_P(Environments, Programs, testing::ValuesIn(kEnvironments), RowName());

}  // namespace
