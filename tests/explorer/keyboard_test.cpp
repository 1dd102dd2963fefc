#include "support/ExplorerTest.h"

#include <explorer/views/ArgumentForm.h>
#include <explorer/window/CallPanel.h>

#include <QAbstractButton>
#include <QAction>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTabWidget>

namespace {

using namespace explorer_test;

class KeyboardTest : public ExplorerTest {
protected:
    static bool HasFocus(const QWidget& part)
    {
        return QApplication::focusWidget() == &part || part.isAncestorOf(QApplication::focusWidget());
    }
};

TEST_F(KeyboardTest, F6AndShiftF6MoveBetweenThePanes)
{
    Choose("BRMS.SetRemoteLogConfig");
    ASSERT_TRUE(Activate());
    Find<QLineEdit>("callFilter").setFocus();
    const QWidget* const panes[] = {Form().parentWidget(), Find<QTabWidget>("results").parentWidget(),
                                    &Find<QTabWidget>("feeds"), Window().findChild<explorer::CallPanel*>()};
    for (const QWidget* pPane : panes) {
        Press(Qt::Key_F6);
        EXPECT_TRUE(HasFocus(*pPane)) << pPane->objectName().toStdString();
    }
    for (const int pane : {2, 1, 0, 3}) {
        Press(Qt::Key_F6, Qt::ShiftModifier);
        EXPECT_TRUE(HasFocus(*panes[pane])) << pane;
    }

    // A hidden pane is skipped.
    Press(Qt::Key_F8);
    EXPECT_FALSE(Find<QTabWidget>("feeds").isVisible());
    Press(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_TRUE(HasFocus(*panes[1]));
}

TEST_F(KeyboardTest, TabReachesWidgetsInScreenOrder)
{
    Choose("BRMS.SetRemoteLogConfig");
    ASSERT_TRUE(Activate());
    Find<QWidget>("servers").setFocus();
    QList<const QWidget*> reached;
    for (int step = 0; step < 200; ++step) {
        if (!reached.contains(QApplication::focusWidget())) {
            reached.append(QApplication::focusWidget());
        }
        Press(Qt::Key_Tab);
    }
    int last = -1;
    for (const char* name : {"servers", "editServers", "emulator", "callFilter", "callTree", "enable", "ip", "wait",
                             "timeout", "run", "logTable"}) {
        const int position = reached.indexOf(&Find<QWidget>(name));
        EXPECT_GT(position, last) << name;
        last = position;
    }
}

TEST_F(KeyboardTest, CtrlEInATextFieldOpensTheServersDialog)
{
    Choose("BRMS.SetRemoteLogConfig");
    ASSERT_TRUE(Activate());
    auto& field = Find<QLineEdit>("ip");
    field.setFocus();
    QKeyEvent shortcutOverride(QEvent::ShortcutOverride, Qt::Key_E, Qt::ControlModifier);
    shortcutOverride.ignore();
    QApplication::sendEvent(&field, &shortcutOverride);
    EXPECT_FALSE(shortcutOverride.isAccepted());
    Press(Qt::Key_E, Qt::ControlModifier);
    EXPECT_NE(Window().findChild<QDialog*>(QStringLiteral("serversDialog")), nullptr);
}

TEST_F(KeyboardTest, CtrlFSearchesTheResultWhenItHasFocusAndTheCallsOtherwise)
{
    Serve(Success("{\"results\": []}"));
    Run("OMMS.GetAlertTypes");
    ASSERT_TRUE(Activate());
    const auto expectField = [this](QWidget& from, const char* field) {
        from.setFocus();
        Press(Qt::Key_F, Qt::ControlModifier);
        EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), field);
    };
    auto& tabs = *Find<QTabWidget>("results").currentWidget()->findChild<QTabWidget*>();
    expectField(Find<QWidget>("record"), "recordFilter");
    for (const int text : {1, 3}) {  // JSON, raw exchange
        tabs.setCurrentIndex(text);
        expectField(*tabs.currentWidget()->findChild<QPlainTextEdit*>(), "find");
    }
    expectField(Find<QWidget>("servers"), "callFilter");
}

struct Shortcut {
    std::string name;
    Qt::Key key;
    int results;  // index of the tab that the key shows; -1 for none
    int feeds;
};

class ShortcutTest : public KeyboardTest, public testing::WithParamInterface<Shortcut> {
protected:
    [[nodiscard]] const QWidget& Pane() const
    {
        if (GetParam().name == "Calls") {
            return Find<QWidget>("callTree");
        }
        if (GetParam().name == "Arguments") {
            return Form();
        }
        return Find<QTabWidget>(GetParam().results >= 0 ? "results" : "feeds");
    }
};

TEST_P(ShortcutTest, FocusesItsPane)
{
    Choose("BRMS.SetRemoteLogConfig");
    ASSERT_TRUE(Activate());
    auto& results = Find<QTabWidget>("results");
    auto& feeds = Find<QTabWidget>("feeds");
    Press(Qt::Key_F8);
    ASSERT_FALSE(feeds.isVisible());
    Find<QWidget>("servers").setFocus();
    Press(GetParam().key, Qt::ControlModifier);
    EXPECT_TRUE(HasFocus(Pane()));
    if (GetParam().results >= 0) {
        EXPECT_EQ(results.currentIndex(), GetParam().results);
    }
    if (GetParam().feeds >= 0) {
        EXPECT_TRUE(feeds.isVisible());
        EXPECT_EQ(feeds.currentIndex(), GetParam().feeds);
    }
}

INSTANTIATE_TEST_SUITE_P(Shortcuts, ShortcutTest,
                         testing::Values(Shortcut{"Calls", Qt::Key_1, -1, -1}, Shortcut{"Arguments", Qt::Key_2, -1, -1},
                                         Shortcut{"Result", Qt::Key_3, 0, -1}, Shortcut{"Request", Qt::Key_4, 1, -1},
                                         Shortcut{"Timing", Qt::Key_5, 2, -1}, Shortcut{"Log", Qt::Key_6, -1, 0},
                                         Shortcut{"History", Qt::Key_8, -1, 2},
                                         Shortcut{"Notifications", Qt::Key_7, -1, 1},
                                         Shortcut{"Emulator", Qt::Key_9, 3, -1}),
                         [](const auto& row) { return row.param.name; });

TEST_F(KeyboardTest, ReturnOnACallWithoutArgumentsFocusesTheRunControls)
{
    Choose("BRMS.GetTimeSyncConfig");
    ASSERT_TRUE(Activate());
    Press(Qt::Key_1, Qt::ControlModifier);
    Press(Qt::Key_Return);
    EXPECT_TRUE(Find<QWidget>("run").parentWidget()->isAncestorOf(QApplication::focusWidget()));
}

class MnemonicTest : public KeyboardTest, public testing::WithParamInterface<const char*> {
protected:
    /// The letter after the &, empty if there is none.
    static QString Letter(const QString& text)
    {
        const QKeySequence mnemonic = QKeySequence::mnemonic(text);
        return mnemonic.isEmpty() ? QString() : mnemonic.toString(QKeySequence::PortableText);
    }

    /// The texts of all visible parts of the window that can have a mnemonic.
    [[nodiscard]] QStringList Shown() const
    {
        QStringList texts = TextsOf(Window().menuBar()->actions());
        const auto buttons = Window().findChildren<QAbstractButton*>();
        for (const auto* pButton : buttons) {
            texts += pButton->isVisible() ? pButton->text() : QString();
        }
        const auto labels = Window().findChildren<QLabel*>();
        for (const auto* pLabel : labels) {
            texts += pLabel->isVisible() && pLabel->buddy() != nullptr ? pLabel->text() : QString();
        }
        const auto bars = Window().findChildren<QTabBar*>();
        for (const auto* pBar : bars) {
            for (int tab = 0; tab < pBar->count(); ++tab) {
                texts += pBar->isVisible() ? pBar->tabText(tab) : QString();
            }
        }
        return texts;
    }

    static QStringList TextsOf(const QList<QAction*>& actions)
    {
        QStringList texts;
        for (const QAction* pAction : actions) {
            texts.append(pAction->text());
        }
        return texts;
    }

    static void ExpectUnique(const QStringList& texts, const std::string& where)
    {
        QHash<QString, QString> owners;
        for (const QString& text : texts) {
            const QString letter = Letter(text);
            if (!letter.isEmpty()) {
                EXPECT_FALSE(owners.contains(letter))
                    << where << ": " << text.toStdString() << " and " << owners.value(letter).toStdString();
                owners.insert(letter, text);
            }
        }
    }
};

TEST_P(MnemonicTest, MnemonicsAreUnique)
{
    Serve(Success("[]"));
    emit Window().LanguageChosen(QLatin1String(GetParam()));
    Run("OMMS.GetAlertTypes");
    Choose("BRMS.SetTimeSyncConfig");
    ExpectUnique(Shown(), "a write");
    Choose("OMMS.GetAlertTypes");
    auto& results = Find<QTabWidget>("results");
    for (int tab = 0; tab < results.count(); ++tab) {
        results.setCurrentIndex(tab);
        auto* const pInner = results.currentWidget()->findChild<QTabWidget*>();
        for (int inner = 0; inner < (pInner == nullptr ? 1 : pInner->count()); ++inner) {
            if (pInner != nullptr) {
                pInner->setCurrentIndex(inner);
            }
            ExpectUnique(Shown(), "tab " + std::to_string(tab) + '.' + std::to_string(inner));
        }
    }
    const auto menus = Window().findChildren<QMenu*>();
    for (const QMenu* pMenu : menus) {
        ExpectUnique(TextsOf(pMenu->actions()), pMenu->title().toStdString());
    }
}

INSTANTIATE_TEST_SUITE_P(Languages, MnemonicTest, testing::Values("en", "de", "zh"),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
