#include <OrnGui/OrnMessageNotify.h>
#include <OrnGui/OrnWaitDialog.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QDialog>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPointer>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <algorithm>

using ORNGUI::OrnMessageNotify;
using ORNGUI::OrnSingleton;
using ORNGUI::OrnWaitDialog;

namespace {

OrnMessageNotify& Notify()
{
    return OrnSingleton<OrnMessageNotify>::Instance();
}

void AddTransient(const QString& strText)
{
    Notify().AddTextNotification(strText, false, QString(), QString(), false);
}

void AddPersistent(const QString& strText)
{
    Notify().AddTextNotification(strText, false, QString(), QString(), true);
}

/// The toasts on the screen, the lowest first.
QWidgetList Toasts()
{
    QWidgetList toasts;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* pWindow : windows) {
        if (pWindow->isVisible() && pWindow->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus)) {
            toasts.append(pWindow);
        }
    }
    std::sort(toasts.begin(), toasts.end(), [](const QWidget* a, const QWidget* b) { return a->y() > b->y(); });
    return toasts;
}

QString TextOf(const QWidget* pToast)
{
    return pToast->findChild<QLabel*>()->text();
}

/// The text that a toast shows for the number of its notifications; empty for one.
QString CountOf(const QWidget* pToast)
{
    const auto* pCount = pToast->findChild<QLabel*>(QStringLiteral("count"));
    return pCount != nullptr && pCount->isVisible() ? pCount->text() : QString();
}

QStringList Texts()
{
    QStringList texts;
    const QWidgetList toasts = Toasts();
    for (const QWidget* pToast : toasts) {
        texts.append(TextOf(pToast));
    }
    return texts;
}

QAbstractButton* ButtonOf(const QWidget* pToast)
{
    return pToast->findChild<QAbstractButton*>();
}

/// Replaces the desktop, which opens links.
class Desktop : public QObject {
    Q_OBJECT

public:
    Desktop() { QDesktopServices::setUrlHandler(QStringLiteral("vms"), this, "Open"); }
    ~Desktop() override { QDesktopServices::unsetUrlHandler(QStringLiteral("vms")); }

    QList<QUrl> opened;

public Q_SLOTS:  // NOLINT(readability-redundant-access-specifiers): moc needs it
    void Open(const QUrl& url) { opened.append(url); }
};

class NotificationTest : public testing::Test {
protected:
    void SetUp() override
    {
        window.setGeometry(100, 20, 500, 400);
        window.show();
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        ASSERT_TRUE(Toasts().isEmpty());
    }

    void TearDown() override
    {
        ASSERT_TRUE(QTest::qWaitFor([] {
            const QWidgetList toasts = Toasts();
            for (QWidget* pToast : toasts) {
                pToast->close();
            }
            QCoreApplication::sendPostedEvents();  // shows the queued toasts
            return Toasts().isEmpty();
        }));
    }

    QWidget window;
};

TEST_F(NotificationTest, SignalIsEmittedOnceInsideTheCall)
{
    QSignalSpy added(&Notify(), &OrnMessageNotify::TextNotificationAdded);
    AddTransient(QStringLiteral("<i>text</i>"));
    ASSERT_EQ(added.count(), 1);
    EXPECT_EQ(added.first().first().toString(), QStringLiteral("<i>text</i>"));
}

TEST_F(NotificationTest, ToastIsShownAtOnceWithoutTakingFocus)
{
    AddTransient(QStringLiteral("Saved"));
    ASSERT_EQ(Texts(), QStringList(QStringLiteral("Saved")));
    const QWidget* pToast = Toasts().at(0);
    EXPECT_TRUE(pToast->testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_TRUE(pToast->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_FALSE(pToast->testAttribute(Qt::WA_QuitOnClose));
    QTest::qWait(50);
    EXPECT_EQ(QApplication::activeWindow(), &window);
}

TEST_F(NotificationTest, TextIsPlain)
{
    const QString strText = QStringLiteral("<b>bold</b> &amp; <a href=\"x\">link</a>");
    AddTransient(strText);
    const auto* pLabel = Toasts().at(0)->findChild<QLabel*>();
    EXPECT_EQ(pLabel->textFormat(), Qt::PlainText);
    EXPECT_EQ(pLabel->text(), strText);
    EXPECT_EQ(ButtonOf(Toasts().at(0)), nullptr);
}

TEST_F(NotificationTest, ToastsStackInTheCornerOfTheActiveWindowAndFollowIt)
{
    for (const char* text : {"one", "two", "three"}) {
        AddPersistent(QString::fromUtf8(text));
    }
    AddTransient(QStringLiteral("four"));
    const auto expectStacked = [&](const char* step) {
        const QWidgetList toasts = Toasts();
        ASSERT_GE(toasts.size(), 3) << step;
        QRect free = window.geometry();
        for (const QWidget* pToast : toasts) {
            EXPECT_TRUE(free.contains(pToast->geometry())) << step;
            EXPECT_EQ(window.geometry().right() - pToast->geometry().right(), 16) << step;
            free.setBottom(pToast->y() - 1);
        }
        EXPECT_EQ(window.geometry().bottom() - toasts.first()->geometry().bottom(), 16) << step;
    };
    expectStacked("shown");
    window.move(180, 60);
    expectStacked("moved");
    window.resize(450, 430);
    expectStacked("resized");
}

TEST_F(NotificationTest, WithoutAnActiveWindowToastsStackInTheCornerOfTheScreen)
{
    window.hide();
    ASSERT_TRUE(QTest::qWaitFor([] { return QApplication::activeWindow() == nullptr; }));
    AddPersistent(QStringLiteral("one"));
    const QRect area = QGuiApplication::primaryScreen()->availableGeometry();
    EXPECT_EQ(area.bottomRight() - Toasts().at(0)->geometry().bottomRight(), QPoint(16, 16));
}

TEST_F(NotificationTest, ToastsMoveToTheWindowThatBecomesActive)
{
    AddPersistent(QStringLiteral("one"));
    QWidget other;
    other.setGeometry(20, 20, 400, 300);
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    EXPECT_TRUE(QTest::qWaitFor([&] { return other.geometry().contains(Toasts().at(0)->geometry()); }));
}

TEST_F(NotificationTest, ToastsIgnoreTheWaitDialog)
{
    OrnWaitDialog dialog(&window, true);
    dialog.show();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    AddPersistent(QStringLiteral("one"));
    EXPECT_EQ(window.geometry().bottomRight() - Toasts().at(0)->geometry().bottomRight(), QPoint(16, 16));
}

TEST_F(NotificationTest, ToastsStayOnTheScreenWhereverTheWindowIs)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    for (const QRect& geometry : {QRect(screen.right() - 50, screen.bottom() - 50, 300, 300),
                                  QRect(-400, -300, 420, 320), QRect(0, 0, 60, 40)}) {
        window.setGeometry(geometry);
        AddPersistent(QStringLiteral("one"));
        AddTransient(QStringLiteral("two"));
        ASSERT_GE(Toasts().size(), 2);
        const QWidgetList toasts = Toasts();
        for (const QWidget* pToast : toasts) {
            EXPECT_TRUE(screen.contains(pToast->geometry())) << geometry.x() << ' ' << geometry.y();
        }
    }
}

TEST_F(NotificationTest, ClickClosesAPersistentToastAndTheOthersMoveUp)
{
    AddPersistent(QStringLiteral("one"));
    AddPersistent(QStringLiteral("two"));
    QTest::mouseClick(Toasts().at(0), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return Texts() == QStringList(QStringLiteral("two")) &&
               window.geometry().bottom() - Toasts().at(0)->geometry().bottom() == 16;
    }));
}

TEST_F(NotificationTest, ClickOnTheTextClosesTheToast)
{
    AddPersistent(QStringLiteral("one"));
    QTest::mouseClick(Toasts().at(0)->findChild<QLabel*>(), Qt::LeftButton);
    EXPECT_TRUE(Toasts().isEmpty());
}

TEST_F(NotificationTest, ManyPersistentToastsAreShownInTurn)
{
    constexpr int kMany = 40;
    for (int i = 0; i < kMany; ++i) {
        AddPersistent(QString::number(i));
    }
    QStringList seen;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        EXPECT_LE(Toasts().size(), 6);
        if (!Toasts().isEmpty()) {
            seen.append(TextOf(Toasts().at(0)));
            QTest::mouseClick(Toasts().at(0), Qt::LeftButton);
        }
        return seen.size() == kMany;
    }));
    seen.removeDuplicates();
    EXPECT_EQ(seen.size(), kMany);
}

TEST_F(NotificationTest, PersistentToastsLeaveRoomForTransientOnes)
{
    for (int i = 0; i < 40; ++i) {
        AddPersistent(QString::number(i));
    }
    AddTransient(QStringLiteral("passing"));
    EXPECT_TRUE(Texts().contains(QStringLiteral("passing")));
}

TEST_F(NotificationTest, ButtonOpensTheLinkAndClosesItsToast)
{
    Desktop desktop;
    Notify().AddTextNotification(QStringLiteral("Export finished"), true, QStringLiteral("Show & tell"),
                                 QStringLiteral("vms://export/7?a=b&c=%20d"), true);
    AddPersistent(QStringLiteral("other"));
    QAbstractButton* pButton = ButtonOf(Toasts().at(0));
    ASSERT_NE(pButton, nullptr);
    EXPECT_EQ(pButton->text(), QStringLiteral("Show && tell"));
    EXPECT_EQ(pButton->focusPolicy(), Qt::NoFocus);
    QTest::mouseClick(pButton, Qt::LeftButton);
    EXPECT_EQ(Texts(), QStringList(QStringLiteral("other")));
    EXPECT_EQ(desktop.opened, QList<QUrl>{QUrl(QStringLiteral("vms://export/7?a=b&c=%20d"))});
}

TEST_F(NotificationTest, ClickOutsideTheButtonOpensNothing)
{
    Desktop desktop;
    Notify().AddTextNotification(QStringLiteral("text"), true, QString(), QStringLiteral("vms://x"), true);
    QTest::mouseClick(Toasts().at(0), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_TRUE(Toasts().isEmpty());
    EXPECT_TRUE(desktop.opened.isEmpty());
}

TEST_F(NotificationTest, ButtonMayLackTextAndLink)
{
    Notify().AddTextNotification(QStringLiteral("text"), true, QString(), QString(), true);
    ASSERT_NE(ButtonOf(Toasts().at(0)), nullptr);
    EXPECT_FALSE(ButtonOf(Toasts().at(0))->text().isEmpty());
    QTest::mouseClick(ButtonOf(Toasts().at(0)), Qt::LeftButton);
    EXPECT_TRUE(Toasts().isEmpty());
}

TEST_F(NotificationTest, EmptyTextShowsNoToast)
{
    QSignalSpy added(&Notify(), &OrnMessageNotify::TextNotificationAdded);
    AddPersistent(QString());
    AddPersistent(QStringLiteral(" \n\t"));
    EXPECT_EQ(added.count(), 2);
    EXPECT_TRUE(Toasts().isEmpty());
    Notify().AddTextNotification(QString(), true, QStringLiteral("Open"), QString(), true);
    EXPECT_EQ(Toasts().size(), 1);
}

TEST_F(NotificationTest, ToastSizeIsLimitedForLongTexts)
{
    const QString word = QStringLiteral("word ");
    for (const QString& strText :
         {QString(1'000'000, QLatin1Char('x')), word.repeated(100'000), QString(5000, QLatin1Char('\n')),
          QString(3000, QChar(0x4f1a)), QStringLiteral("a\n").repeated(100), QString(300, QLatin1Char('W'))}) {
        Notify().AddTextNotification(strText, true, strText, QString(), true);
        ASSERT_FALSE(Toasts().isEmpty() && !strText.trimmed().isEmpty());
        const QWidgetList toasts = Toasts();
        for (QWidget* pToast : toasts) {
            EXPECT_LE(pToast->height(), 160);
            EXPECT_LE(pToast->width(), 400);
            const auto* pLabel = pToast->findChild<QLabel*>();
            EXPECT_LE(pLabel->fontMetrics().size(0, pLabel->text()).width(), pLabel->width());
            EXPECT_LE(ButtonOf(pToast)->geometry().right(), pToast->width());
            EXPECT_TRUE(strText.trimmed().isEmpty() || pLabel->text().endsWith(QChar(0x2026)) || strText.size() == 300)
                << strText.left(20).toStdString();
            pToast->close();
        }
        QTest::qWait(0);
    }
}

TEST_F(NotificationTest, TextOfAFewLinesIsShownCompletely)
{
    const QString strText = QStringLiteral("A message that needs several lines of the toast to be shown completely,\n"
                                           "with its own line break.");
    AddPersistent(strText);
    EXPECT_EQ(Texts(), QStringList(strText));
    EXPECT_GT(Toasts().at(0)->height(), 60);
}

TEST_F(NotificationTest, ConsecutiveEqualNotificationsShareOneCountedToast)
{
    QSignalSpy added(&Notify(), &OrnMessageNotify::TextNotificationAdded);
    AddTransient(QStringLiteral("Saved"));
    EXPECT_EQ(CountOf(Toasts().at(0)), QString());
    for (int i = 0; i < 11; ++i) {
        AddTransient(QStringLiteral("Saved"));
    }
    EXPECT_EQ(added.count(), 12);
    ASSERT_EQ(Texts(), QStringList(QStringLiteral("Saved")));
    EXPECT_EQ(CountOf(Toasts().at(0)), QStringLiteral("\u00d7 12"));
    EXPECT_TRUE(
        Toasts().at(0)->rect().contains(Toasts().at(0)->findChild<QLabel*>(QStringLiteral("count"))->geometry()));
    EXPECT_EQ(window.geometry().bottomRight() - Toasts().at(0)->geometry().bottomRight(), QPoint(16, 16));

    AddTransient(QStringLiteral("other"));
    AddTransient(QStringLiteral("Saved"));
    EXPECT_EQ(Texts(), (QStringList{QStringLiteral("Saved"), QStringLiteral("other"), QStringLiteral("Saved")}));
    EXPECT_EQ(CountOf(Toasts().at(2)), QString());
}

TEST_F(NotificationTest, NotificationsThatDifferInMoreThanTheirTextGetSeparateToasts)
{
    const QString strText = QStringLiteral("Export finished");
    const auto add = [&](bool bWithButton, const char* button, const char* link, bool bStayOpen) {
        Notify().AddTextNotification(strText, bWithButton, QLatin1String(button), QLatin1String(link), bStayOpen);
    };
    add(true, "Show", "vms://1", true);
    add(true, "Show", "vms://2", true);
    add(true, "Open", "vms://2", true);
    EXPECT_EQ(Toasts().size(), 3);
    add(true, "Open", "vms://2", true);
    EXPECT_EQ(Toasts().size(), 3);
    EXPECT_EQ(CountOf(Toasts().at(2)), QStringLiteral("\u00d7 2"));
    QTest::mouseClick(Toasts().at(2), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(Toasts().size(), 2) << "one click closes the toast with all its notifications";
    add(true, "Open", "vms://2", true);
    EXPECT_EQ(CountOf(Toasts().at(2)), QString());
}

TEST_F(NotificationTest, EqualNotificationsAreCountedWhileTheyWaitForRoom)
{
    for (int i = 0; i < 4; ++i) {
        AddPersistent(QString::number(i));
    }
    const qsizetype nShown = Toasts().size();
    for (int i = 0; i < 3; ++i) {
        AddPersistent(QStringLiteral("waiting"));
    }
    EXPECT_EQ(Toasts().size(), nShown);
    QStringList counts;
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QWidgetList toasts = Toasts();
        for (QWidget* pToast : toasts) {
            counts += TextOf(pToast) == QLatin1String("waiting") ? QStringList(CountOf(pToast)) : QStringList();
            pToast->close();
        }
        QCoreApplication::sendPostedEvents();
        return Toasts().isEmpty();
    }));
    EXPECT_EQ(counts, QStringList(QStringLiteral("\u00d7 3")));
}

TEST_F(NotificationTest, EndlesslyRepeatedToastClosesWithinTenSeconds)
{
    AddTransient(QStringLiteral("again"));
    QPointer<QWidget> pFirst = Toasts().at(0);
    QElapsedTimer clock;
    clock.start();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            AddTransient(QStringLiteral("again"));
            return !pFirst || !pFirst->isVisible();
        },
        15000));
    EXPECT_GE(clock.elapsed(), 6000) << "the latest notification must stay long enough to be read";
    EXPECT_LE(clock.elapsed(), 10000);
    EXPECT_EQ(Toasts().size(), 1) << "a new toast must continue the count";
}

class DialogTest : public NotificationTest {
protected:
    void SetUp() override
    {
        NotificationTest::SetUp();
        auto* pLayout = new QVBoxLayout(&dialog);
        pLayout->addWidget(new QPlainTextEdit);
        pLayout->addWidget(new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel));
    }

    void Open(const QRect& geometry)
    {
        dialog.setGeometry(geometry);
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }

    [[nodiscard]] bool CoversADialog() const
    {
        const QWidgetList toasts = Toasts();
        return std::any_of(toasts.begin(), toasts.end(), [this](const QWidget* pToast) {
            return pToast->geometry().intersects(dialog.frameGeometry());
        });
    }

    [[nodiscard]] static bool OnScreen()
    {
        const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
        const QWidgetList toasts = Toasts();
        return std::all_of(toasts.begin(), toasts.end(),
                           [&](const QWidget* pToast) { return screen.contains(pToast->geometry()); });
    }

    QDialog dialog{&window};
};

TEST_F(DialogTest, ToastsAppearBesideTheActiveDialog)
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    const QRect places[] = {{120, 60, 300, 300},
                            {screen.right() - 320, 100, 300, 300},
                            {screen.left() + 20, screen.bottom() - 220, screen.width() - 40, 200},
                            {screen.left() + 20, screen.top() + 20, screen.width() - 40, 200}};
    for (const QRect& place : places) {
        Open(place);
        AddPersistent(QStringLiteral("one"));
        AddTransient(QStringLiteral("two"));
        ASSERT_FALSE(Toasts().isEmpty());
        EXPECT_FALSE(CoversADialog()) << place.x() << ' ' << place.y();
        EXPECT_TRUE(OnScreen()) << place.x() << ' ' << place.y();
    }
}

TEST_F(DialogTest, ToastsMakeRoomForADialogThatOpensOrMoves)
{
    AddPersistent(QStringLiteral("one"));
    dialog.setGeometry(Toasts().at(0)->geometry());
    dialog.show();
    EXPECT_FALSE(CoversADialog()) << "shown";
    dialog.move(Toasts().at(0)->pos());
    EXPECT_FALSE(CoversADialog()) << "moved";
    dialog.setGeometry(100, 200, 650, 500);
    EXPECT_FALSE(CoversADialog()) << "resized";
    dialog.hide();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return window.geometry().bottomRight() - Toasts().at(0)->geometry().bottomRight() == QPoint(16, 16); }));
}

TEST_F(DialogTest, ToastsDoNotCoverTheControlsOfAFullScreenDialog)
{
    const auto buttons = dialog.findChildren<QAbstractButton*>();
    dialog.findChild<QPlainTextEdit*>()->setFocusPolicy(Qt::NoFocus);  // only the buttons in the corner
    Open(QGuiApplication::primaryScreen()->availableGeometry());
    AddPersistent(QStringLiteral("one"));
    for (const QAbstractButton* pButton : buttons) {
        const QRect button(pButton->mapToGlobal(QPoint()), pButton->size());
        EXPECT_FALSE(Toasts().at(0)->geometry().intersects(button)) << pButton->text().toStdString();
    }
    EXPECT_TRUE(OnScreen());
}

TEST_F(NotificationTest, TransientToastClosesAfterAboutFiveSecondsAndPersistentOneStays)
{
    QElapsedTimer clock;
    clock.start();
    AddTransient(QStringLiteral("passing"));
    AddPersistent(QStringLiteral("staying"));
    EXPECT_TRUE(QTest::qWaitFor([] { return Texts() == QStringList(QStringLiteral("staying")); }, 8000));
    EXPECT_GE(clock.elapsed(), 4000);
    EXPECT_LE(clock.elapsed(), 6500);
}

TEST_F(NotificationTest, ThousandsOfToastsCloseWithinTenSeconds)
{
    constexpr int kMany = 3000;
    QSignalSpy added(&Notify(), &OrnMessageNotify::TextNotificationAdded);
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < kMany; ++i) {
        AddTransient(QString::number(i));
    }
    EXPECT_EQ(added.count(), kMany);

    const qint64 nAdded = clock.elapsed();
    QStringList seen;
    EXPECT_TRUE(QTest::qWaitFor(
        [&] {
            QCoreApplication::sendPostedEvents();  // shows the queued toasts
            seen += Texts();
            EXPECT_LE(Toasts().size(), 6);
            return Toasts().isEmpty();
        },
        15000));
    EXPECT_LE(clock.elapsed() - nAdded, 10000);
    EXPECT_TRUE(seen.contains(QStringLiteral("0")));
    EXPECT_TRUE(seen.contains(QString::number(kMany - 1))) << "the latest toast is shown as well";
}

}  // namespace

#include "notification_test.moc"
