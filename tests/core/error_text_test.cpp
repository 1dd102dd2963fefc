// Texts of error codes and their notification.
#include "support/Host.h"
#include "support/Rows.h"

#include <ErrorLexicon/ErrorLexicon.h>

#include <QCoreApplication>
#include <QTranslator>

#include <cstring>

using namespace testing_support;
using APIModule::CAPIModule;

namespace {

constexpr const char* kFunction = "APIModule::CAPIModule::GetErroCodeInfor";
constexpr int kUnknownCode = 987654;

std::string KnownText(int code)
{
    std::string text;
    EXPECT_EQ(ErrorLexicon::ErrorLexiconQuery(code, text), 0);
    EXPECT_FALSE(text.empty());
    return text;
}

class ErrorText : public Host {};

TEST_F(ErrorText, KnownCodeHasItsTextAfterTheCaption)
{
    const QString text = QString::fromStdString(KnownText(-101));
    EXPECT_EQ(CAPIModule::GetErroCodeInfor(QStringLiteral("No settings"), -101, true),
              QStringLiteral("No settings: ") + text);
    EXPECT_EQ(CAPIModule::GetErroCodeInfor(QStringLiteral("No settings"), -101, false), text);
    EXPECT_EQ(CAPIModule::GetErroCodeInfor(QString(), -101, true), text);
    EXPECT_EQ(CAPIModule::GetErroCodeInfor(QString(), -101, false), text);
    EXPECT_EQ(logs.Take(), LogLines());
}

TEST_F(ErrorText, UnknownCodeReturnsTheUiTextAndLogs)
{
    for (const bool bAppend : {true, false}) {
        EXPECT_EQ(CAPIModule::GetErroCodeInfor(QStringLiteral("No %s settings"), kUnknownCode, bAppend),
                  QStringLiteral("No %s settings"));
        EXPECT_EQ(logs.Take(), (LogLines{{kFacadeFile, kFunction, 6,
                                          "Error code is not exist, strUIError=No %s settings, errorCode=987654"}}));
    }
}

TEST_F(ErrorText, UnknownCodeWithoutUiTextReturnsOperationFailed)
{
    EXPECT_EQ(CAPIModule::GetErroCodeInfor(QString(), kUnknownCode, true), QStringLiteral("Operation failed"));
    const char* const line = "Error code is not exist, strUIError=, errorCode=987654";
    EXPECT_EQ(logs.Take(), (LogLines{{kFacadeFile, kFunction, 6, line}, {kFacadeFile, kFunction, 4, line}}));
}

TEST_F(ErrorText, TextsAreTranslatedInTheContextOfTheClass)
{
    class Translator : public QTranslator {
    public:
        QString translate(const char* context, const char* source, const char*, int) const override
        {
            return std::strcmp(context, "APIModule::CAPIModule") == 0
                       ? QLatin1Char('<') + QLatin1String(source) + QLatin1Char('>')
                       : QString();
        }
        bool isEmpty() const override { return false; }
    } translator;
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(CAPIModule::GetErroCodeInfor(QStringLiteral("No settings"), -101, true),
              QStringLiteral("No settings<:> ") + QString::fromStdString(KnownText(-101)));
    EXPECT_EQ(CAPIModule::GetErroCodeInfor(QString(), kUnknownCode, true), QStringLiteral("<Operation failed>"));
    QCoreApplication::removeTranslator(&translator);
}

/// The notification of a call that fails with an envelope code.
struct Notice {
    const char* name;
    const char* uiError;
    int code;
    bool showErrorCode;
    const char* shown;  ///< null for no notification
};

class FailureNotice : public Host, public testing::WithParamInterface<Notice> {};

TEST_P(FailureNotice, ShowsTheExpectedText)
{
    const Notice& row = GetParam();
    Serve(HttpReply(200, "{\"code\":" + QByteArray::number(row.code) + "}"));
    HostCall call;
    call.uiError = QString::fromUtf8(row.uiError);
    call.showErrorCode = row.showErrorCode;
    EXPECT_EQ(Execute(call), -1);
    QStringList expected;
    if (row.shown) {
        expected.append(
            QString::fromUtf8(row.shown).replace(QStringLiteral("<7000>"), QString::fromStdString(KnownText(7000))));
    }
    EXPECT_EQ(notifications.Take(), expected);
}

const Notice kNotices[] = {
    {"text_and_known_code", "No settings", 7000, true, "No settings: <7000>"},
    {"only_known_code", "", 7000, true, "<7000>"},
    {"text_and_unknown_code", "No settings", kUnknownCode, true, "No settings"},
    {"only_unknown_code", "", kUnknownCode, true, "Operation failed"},
    {"text_without_code", "No settings", 7000, false, "No settings"},
    {"nothing_to_show", "", 7000, false, nullptr},
};

INSTANTIATE_TEST_SUITE_P(Notices, FailureNotice, testing::ValuesIn(kNotices), RowName());

}  // namespace
