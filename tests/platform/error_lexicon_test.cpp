#include <ErrorLexicon/ErrorLexicon.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

#include <atomic>
#include <climits>
#include <string>
#include <thread>
#include <vector>

using ErrorLexicon::ErrorLexiconQuery;
using ErrorLexicon::SetLanguage;

namespace {

std::string Text(int nErrorCode)
{
    std::string strText = "untouched";
    EXPECT_EQ(ErrorLexiconQuery(nErrorCode, strText), 0) << "code " << nErrorCode;
    return strText;
}

/// Read before main() runs, when no application object exists.
const std::string g_beforeMain = [] {
    std::string strText;
    (void)ErrorLexiconQuery(-18, strText);
    return strText;
}();

QJsonObject TextsOf(const QString& fileName)
{
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QJsonParseError error;
    QJsonObject texts = QJsonDocument::fromJson(file.readAll(), &error).object();
    EXPECT_EQ(error.error, QJsonParseError::NoError) << fileName.toStdString();
    return texts;
}

class ErrorLexiconTest : public testing::Test {
protected:
    void SetUp() override { SetLanguage("en"); }
};

TEST_F(ErrorLexiconTest, WorksBeforeMain)
{
    EXPECT_EQ(g_beforeMain, "The server cannot be reached because of a network error");
}

TEST_F(ErrorLexiconTest, UnknownCodeLeavesTheTextUnchanged)
{
    for (const int nErrorCode : {0, 1, 399, 600, 1000, 1007, 424242, -2, INT_MIN, INT_MAX}) {
        std::string strText = "untouched";
        EXPECT_EQ(ErrorLexiconQuery(nErrorCode, strText), -1) << "code " << nErrorCode;
        EXPECT_EQ(strText, "untouched") << "code " << nErrorCode;
    }
}

TEST_F(ErrorLexiconTest, HasEveryDocumentedCodeInEveryLanguage)
{
    std::vector<int> codes{-1, -4, -18, -101, 3101, 7000, 1001, 1002, 1003, 1004, 1005, 1006};
    for (int nStatus = 400; nStatus <= 599; ++nStatus) {
        codes.push_back(nStatus);
    }
    for (const char* language : {"en", "de", "zh"}) {
        SetLanguage(language);
        for (const int nErrorCode : codes) {
            const std::string strText = Text(nErrorCode);
            EXPECT_FALSE(strText.empty()) << language << " " << nErrorCode;
            EXPECT_NE(strText, "untouched") << language << " " << nErrorCode;
        }
    }
}

TEST_F(ErrorLexiconTest, StatusWithoutATextUsesTheTextOfItsClass)
{
    EXPECT_EQ(Text(477), Text(400));
    EXPECT_EQ(Text(577), Text(500));
    EXPECT_NE(Text(404), Text(400));
    EXPECT_NE(Text(503), Text(500));
}

TEST_F(ErrorLexiconTest, LanguagesHaveTheSameCodesAndNoEmptyText)
{
    const QDir folder(QStringLiteral(ERROR_TEXTS));
    const QFileInfoList files = folder.entryInfoList({QStringLiteral("*.json")});
    ASSERT_GE(files.size(), 3);
    const QStringList codes = TextsOf(files.first().filePath()).keys();
    for (const QFileInfo& file : files) {
        const QJsonObject texts = TextsOf(file.filePath());
        EXPECT_EQ(texts.keys(), codes) << file.fileName().toStdString();
        SetLanguage(file.baseName().toStdString());
        for (auto entry = texts.begin(); entry != texts.end(); ++entry) {
            const std::string strText = entry.value().toString().toStdString();
            EXPECT_FALSE(strText.empty()) << entry.key().toStdString();
            EXPECT_EQ(Text(entry.key().toInt()), strText) << "differs from " << file.fileName().toStdString();
        }
    }
}

TEST_F(ErrorLexiconTest, EveryRegisteredHttpStatusHasItsOwnText)
{
    const QJsonObject texts = TextsOf(QStringLiteral(ERROR_TEXTS "/en.json"));
    for (const int nStatus : {400, 401, 402, 403, 404, 405, 406, 407, 408, 409, 410, 411, 412, 413, 414, 415,
                              416, 417, 421, 422, 423, 424, 425, 426, 428, 429, 431, 451, 500, 501, 502, 503,
                              504, 505, 506, 507, 508, 510, 511, 499, 520, 521, 522, 523, 524, 525, 526}) {
        EXPECT_TRUE(texts.contains(QString::number(nStatus))) << nStatus;
    }
}

TEST_F(ErrorLexiconTest, LanguageIsMatchedByItsFirstPartIgnoringCase)
{
    struct Row {
        const char* language;
        const char* textOf3101;
    };
    const char* const english = "The reply of the server could not be read";
    const char* const german = "Die Antwort des Servers konnte nicht gelesen werden";
    const char* const chinese = "无法解析服务器的响应";
    const Row rows[] = {{"en", english},    {"de", german},       {"DE", german},          {"de_AT", german},
                        {"De-de", german},  {"de-", german},      {"de_AT.UTF-8", german}, {"zh", chinese},
                        {"zh-CN", chinese}, {"ZH_hans", chinese}, {"en-GB", english},      {"xx", english},
                        {"", english},      {"deu", english},     {"-de", english},        {"../de", english}};
    for (const Row& row : rows) {
        SetLanguage("de");
        SetLanguage(row.language);
        EXPECT_EQ(Text(3101), row.textOf3101) << "language \"" << row.language << '"';
    }
}

TEST_F(ErrorLexiconTest, WorksOnManyThreadsWhileTheLanguageChanges)
{
    const std::string english = Text(-1);
    SetLanguage("de");
    const std::string german = Text(-1);
    ASSERT_NE(english, german);

    std::atomic<int> nWrong = 0;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&, i] {
            for (int n = 0; n < 5000; ++n) {
                SetLanguage((n + i) % 2 == 0 ? "en" : "de");
                std::string strText;
                if (ErrorLexiconQuery(-1, strText) != 0 || (strText != english && strText != german)) {
                    ++nWrong;
                }
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(nWrong, 0);
}

}  // namespace
