// Each test creates the application objects that it needs, or none.
#include "support/TestApplication.h"

#include <OrnGui/OrnMessageNotify.h>
#include <OrnGui/OrnWaitDialog.h>

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using ORNGUI::OrnMessageNotify;
using ORNGUI::OrnSingleton;
using ORNGUI::OrnWaitDialog;
using testing_support::TestApplication;

namespace {

int g_nArguments = 1;
char g_name[] = "test";
char* g_arguments[] = {g_name, nullptr};

void Notify(const char* text, bool bStayOpen = true)
{
    OrnSingleton<OrnMessageNotify>::Instance().AddTextNotification(QString::fromUtf8(text), true,
                                                                   QStringLiteral("Open"), QString(), bStayOpen);
}

int VisibleWindows()
{
    int n = 0;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (const QWidget* pWindow : windows) {
        n += pWindow->isVisible() ? 1 : 0;
    }
    return n;
}

/// The texts that one AddTextNotification() emits.
QStringList Emitted()
{
    QStringList texts;
    QObject context;
    QObject::connect(&OrnSingleton<OrnMessageNotify>::Instance(), &OrnMessageNotify::TextNotificationAdded, &context,
                     [&](const QString& strText) { texts.append(strText); });
    Notify("hello");
    return texts;
}

TEST(ApplicationLifetimeTest, WithoutApplicationOnlyEmitsTheSignal)
{
    EXPECT_EQ(Emitted(), QStringList(QStringLiteral("hello")));
}

TEST(ApplicationLifetimeTest, WithoutWindowsOnlyEmitsTheSignal)
{
    const QCoreApplication application(g_nArguments, g_arguments);
    EXPECT_EQ(Emitted(), QStringList(QStringLiteral("hello")));
}

TEST(ApplicationLifetimeTest, SurvivesSeveralApplicationsWithOpenToasts)
{
    for (int i = 0; i < 3; ++i) {
        const TestApplication application(g_nArguments, g_arguments);
        Notify("one");
        Notify("two", false);
        EXPECT_EQ(VisibleWindows(), 2) << "application " << i;
    }
    EXPECT_EQ(Emitted(), QStringList(QStringLiteral("hello")));
}

TEST(ApplicationLifetimeTest, ClosedToastIsDeletedWithTheApplication)
{
    const TestApplication application(g_nArguments, g_arguments);
    Notify("one");
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* pWindow : windows) {
        pWindow->close();
    }
    EXPECT_EQ(VisibleWindows(), 0);
}

TEST(ApplicationLifetimeTest, QuitClosesOpenToasts)
{
    const TestApplication application(g_nArguments, g_arguments);
    for (int i = 0; i < 20; ++i) {
        Notify("stays");
    }
    ASSERT_GT(VisibleWindows(), 0);
    QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    QApplication::exec();
    EXPECT_EQ(VisibleWindows(), 0);
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}

TEST(ApplicationLifetimeTest, ToastsAndWaitDialogsDoNotKeepTheApplicationRunning)
{
    const TestApplication application(g_nArguments, g_arguments);
    QWidget window;
    window.show();
    OrnWaitDialog over(&window, true);
    OrnWaitDialog alone(nullptr, true);
    over.show();
    alone.show();
    Notify("stays");
    bool bEndedByItself = true;
    QTimer::singleShot(0, &window, &QWidget::close);
    QTimer::singleShot(10000, &window, [&] {
        bEndedByItself = false;
        QCoreApplication::quit();
    });
    QApplication::exec();
    EXPECT_TRUE(bEndedByItself);
}

TEST(ApplicationLifetimeTest, LastWindowClosedDuringAWaitQuitsTheApplication)
{
    const TestApplication application(g_nArguments, g_arguments);
    for (const bool bOverTheWindow : {true, false}) {
        QWidget window;
        window.show();
        OrnWaitDialog dialog(bOverTheWindow ? &window : nullptr, true);
        Notify("stays");
        bool bEndedByItself = true;
        QTimer::singleShot(0, &window, [&] {
            QTimer::singleShot(0, &window, &QWidget::close);
            dialog.exec();
            EXPECT_FALSE(dialog.isVisible());
        });
        QTimer::singleShot(10000, &window, [&] {
            bEndedByItself = false;
            QCoreApplication::quit();
        });
        QApplication::exec();
        EXPECT_TRUE(bEndedByItself) << bOverTheWindow;
    }
}

TEST(ApplicationLifetimeTest, ClosedToastOrStoppedWaitDialogDoesNotQuitTheApplication)
{
    const TestApplication application(g_nArguments, g_arguments);
    QSignalSpy lastWindowClosed(qApp, &QGuiApplication::lastWindowClosed);
    OrnWaitDialog dialog(nullptr, false);
    dialog.show();
    dialog.OnStopWaitImmediately();
    Notify("one");
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* pWindow : windows) {
        pWindow->close();
    }
    EXPECT_EQ(lastWindowClosed.count(), 0);
}

TEST(ApplicationLifetimeTest, QuitEndsAWaitAndClosesTheDialog)
{
    const TestApplication application(g_nArguments, g_arguments);
    QWidget window;
    window.show();
    OrnWaitDialog dialog(&window, true);
    bool bReturned = false;
    QTimer::singleShot(0, &window, [&] {
        QTimer::singleShot(0, qApp, &QCoreApplication::quit);
        dialog.exec();
        bReturned = true;
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    });
    QApplication::exec();
    EXPECT_TRUE(bReturned);
}

}  // namespace
