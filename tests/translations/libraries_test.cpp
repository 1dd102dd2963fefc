// Texts of the libraries in a host that loads their translations.
#include "support/Rows.h"

#include <APIModule.h>
#include <APIWaitDialog.h>
#include <ErrorLexicon/ErrorLexicon.h>
#include <OrnGui/OrnMessageNotify.h>
#include <OrnGui/OrnWaitDialog.h>

#include <QApplication>
#include <QLocale>
#include <QPushButton>
#include <QTranslator>

#include <gtest/gtest.h>

#include <memory>
#include <vector>

using APIModule::CAPIModule;
using testing_support::RowName;

namespace {

constexpr int kUnknownCode = 987654;
constexpr int kSignInNeeded = 7000;

/// Installs the libraries' translations during its lifetime.
class Translations {
public:
    explicit Translations(const QLocale& locale)
    {
        const QString folder =
            QCoreApplication::applicationDirPath() + QLatin1String("/../share/apimodule/translations");
        for (const char* library : {"apimodule", "orngui"}) {
            m_translators.push_back(std::make_unique<QTranslator>());
            if (m_translators.back()->load(locale, QLatin1String(library), QStringLiteral("_"), folder)) {
                QCoreApplication::installTranslator(m_translators.back().get());
            }
        }
    }

private:
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};

struct Language {
    const char* name;
    const char* locale;
    const char* operationFailed;
    const char* colon;
    const char* pleaseWait;
    const char* notification;
    const char* open;
};

class Texts : public testing::TestWithParam<Language> {
protected:
    Texts() { ErrorLexicon::SetLanguage(GetParam().locale); }
    ~Texts() override { ErrorLexicon::SetLanguage("en"); }

    const Translations m_translations{QLocale(QLatin1String(GetParam().locale))};
};

QString Text(const char* utf8)
{
    return QString::fromUtf8(utf8);
}

/// Returns the window on the screen with this title, or null.
template <typename Window>
Window* WindowOnScreen(const QString& title)
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* pWindow : windows) {
        auto* const pFound = qobject_cast<Window*>(pWindow);
        if (pFound != nullptr && pWindow->isVisible() && pWindow->windowTitle() == title) {
            return pFound;
        }
    }
    return nullptr;
}

TEST_P(Texts, UnknownCodeIsReportedAsFailedOperation)
{
    EXPECT_EQ(CAPIModule::GetErroCodeInfor(QString(), kUnknownCode, true), Text(GetParam().operationFailed));
}

TEST_P(Texts, TextOfACodeFollowsTheCaption)
{
    std::string code;
    ASSERT_EQ(ErrorLexicon::ErrorLexiconQuery(kSignInNeeded, code), 0);
    EXPECT_EQ(CAPIModule::GetErroCodeInfor(QStringLiteral("BRMS"), kSignInNeeded, true),
              QLatin1String("BRMS") + Text(GetParam().colon) + QLatin1Char(' ') + QString::fromStdString(code));
}

TEST_P(Texts, WaitDialogAsksTheUserToWait)
{
    const APIModule::CAPIWaitDialog wait(nullptr);
    const auto* const pDialog = WindowOnScreen<ORNGUI::OrnWaitDialog>(Text(GetParam().pleaseWait));
    ASSERT_NE(pDialog, nullptr);
    EXPECT_EQ(pDialog->accessibleName(), Text(GetParam().pleaseWait));
}

TEST_P(Texts, ToastWithALinkHasAnOpenButton)
{
    ORNGUI::OrnSingleton<ORNGUI::OrnMessageNotify>::Instance().AddTextNotification(
        QStringLiteral("BRMS"), true, QString(), QStringLiteral("file:///"), true);
    auto* const pToast = WindowOnScreen<QWidget>(Text(GetParam().notification));
    ASSERT_NE(pToast, nullptr);
    EXPECT_EQ(pToast->findChild<QPushButton*>()->text(), Text(GetParam().open));
    pToast->close();
}

constexpr Language kLanguages[] = {
    {"English", "en_GB", "Operation failed", ":", "Please wait", "Notification", "Open"},
    {"German", "de_AT", "Der Vorgang ist fehlgeschlagen", ":", "Bitte warten", "Benachrichtigung", "Öffnen"},
    {"Chinese", "zh_CN", "操作失败", "：", "请稍候", "通知", "打开"},
    {"Untranslated", "fr_FR", "Operation failed", ":", "Please wait", "Notification", "Open"},
};

INSTANTIATE_TEST_SUITE_P(Languages, Texts, testing::ValuesIn(kLanguages), RowName());

}  // namespace
