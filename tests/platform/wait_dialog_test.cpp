#include <OrnGui/OrnWaitDialog.h>

#include <QApplication>
#include <QScreen>
#include <QSignalSpy>
#include <QSplitter>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <memory>

using ORNGUI::OrnWaitDialog;

namespace {

/// Processes pending events without waiting for more.
void Settle()
{
    QCoreApplication::sendPostedEvents();
    QTest::qWait(0);
}

QRect OnScreen(const QWidget& widget)
{
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

/// The visible widgets that dim a part of the window.
QList<QWidget*> Veils(const QWidget& window)
{
    QList<QWidget*> veils = window.findChildren<QWidget*>(QStringLiteral("OrnWaitVeil"));
    veils.erase(std::remove_if(veils.begin(), veils.end(), [](const QWidget* p) { return p->isHidden(); }),
                veils.end());
    return veils;
}

/// A window with a panel inside a frame; the panel is the widget that the dialogs wait over.
struct Window {
    Window()
    {
        window->setGeometry(50, 60, 500, 400);
        frame->setGeometry(100, 20, 350, 350);
        panel->setGeometry(30, 40, 200, 240);
        window->show();
    }

    std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
    QPointer<QWidget> frame = new QWidget(window.get());
    QPointer<QWidget> panel = new QWidget(frame);
};

TEST(WaitDialogTest, HasNoTitleBarAndTakesNoFocus)
{
    const OrnWaitDialog dialog(nullptr, false);
    EXPECT_TRUE(dialog.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(dialog.testAttribute(Qt::WA_ShowWithoutActivating));
    EXPECT_FALSE(dialog.testAttribute(Qt::WA_QuitOnClose));
}

TEST(WaitDialogTest, ParentIsItsQtParent)
{
    const Window host;
    const OrnWaitDialog dialog(host.panel, true);
    EXPECT_EQ(dialog.parentWidget(), host.panel);
    EXPECT_TRUE(dialog.isWindow());
}

TEST(WaitDialogTest, IsCentredOnTheScreenWithoutAParent)
{
    OrnWaitDialog dialog(nullptr, true);
    dialog.show();
    EXPECT_EQ(dialog.geometry().center(), QGuiApplication::primaryScreen()->availableGeometry().center());
    dialog.move(0, 0);
    dialog.hide();
    dialog.show();
    EXPECT_EQ(dialog.geometry().center(), QGuiApplication::primaryScreen()->availableGeometry().center());
}

TEST(WaitDialogTest, IsCentredOverItsParentWhereverItMoves)
{
    for (const bool bCoverParent : {false, true}) {
        const Window host;
        OrnWaitDialog dialog(host.panel, bCoverParent);
        dialog.show();
        const auto expectCentred = [&](const char* step) {
            Settle();
            EXPECT_LE((dialog.geometry().center() - OnScreen(*host.panel).center()).manhattanLength(), 2) << step;
        };
        expectCentred("shown");
        host.panel->move(60, 50);
        expectCentred("panel moved");
        host.frame->move(10, 15);
        expectCentred("frame moved");
        host.window->move(200, 100);
        expectCentred("window moved");
        host.panel->resize(150, 90);
        expectCentred("panel resized");
        dialog.OnStopWaitImmediately();
        host.window->move(20, 30);
        dialog.show();
        expectCentred("shown again");
    }
}

TEST(WaitDialogTest, FollowsAParentIntoAnotherWindow)
{
    const Window host;
    const Window other;
    other.window->move(250, 250);
    OrnWaitDialog dialog(host.panel, true);
    dialog.show();
    host.panel->setParent(other.window.get());
    host.panel->show();
    Settle();
    EXPECT_EQ(dialog.geometry().center(), OnScreen(*host.panel).center());
    EXPECT_TRUE(Veils(*host.window).isEmpty());
    ASSERT_EQ(Veils(*other.window).size(), 1);
    other.window->move(10, 10);
    Settle();
    EXPECT_EQ(dialog.geometry().center(), OnScreen(*host.panel).center());
}

TEST(WaitDialogTest, CoverDimsOnlyTheParent)
{
    const Window host;
    QPalette white;
    white.setColor(QPalette::Window, Qt::white);
    host.window->setPalette(white);
    OrnWaitDialog dialog(host.panel, true);
    dialog.show();
    Settle();
    const auto brightness = [&](const QPoint& inWindow) {
        return qGray(host.window->grab().toImage().pixel(inWindow));
    };
    const QPoint inPanel = host.panel->mapTo(host.window.get(), QPoint(3, 3));
    EXPECT_LT(brightness(inPanel), 200);
    EXPECT_GT(brightness(inPanel), 50);
    EXPECT_EQ(brightness(inPanel - QPoint(6, 6)), 255);

    dialog.OnStopWaitImmediately();
    EXPECT_EQ(brightness(inPanel), 255);
    EXPECT_TRUE(Veils(*host.window).isEmpty());
}

TEST(WaitDialogTest, WithoutCoverOnlyTheIndicatorShows)
{
    const Window host;
    const QImage before = host.window->grab().toImage();
    OrnWaitDialog dialog(host.panel, false);
    dialog.show();
    Settle();
    EXPECT_EQ(host.window->grab().toImage(), before);
}

TEST(WaitDialogTest, CoverFollowsResizesOfTheParentWithinTheVisibleArea)
{
    const Window host;
    OrnWaitDialog dialog(host.panel, true);
    dialog.show();
    ASSERT_EQ(Veils(*host.window).size(), 1);
    host.panel->resize(1000, 1000);
    EXPECT_EQ(OnScreen(*Veils(*host.window).at(0)), OnScreen(*host.panel) & OnScreen(*host.frame));
    host.panel->hide();
    EXPECT_EQ(OnScreen(*Veils(*host.window).at(0)), OnScreen(*host.window));
    host.window->hide();
    EXPECT_TRUE(Veils(*host.window).isEmpty());
}

TEST(WaitDialogTest, CoverDoesNotBecomeAPaneOfASplitter)
{
    QSplitter splitter;
    splitter.addWidget(new QWidget);
    splitter.addWidget(new QWidget);
    QWidget window;
    QVBoxLayout layout(&window);
    layout.addWidget(&splitter);
    window.resize(300, 200);
    window.show();
    OrnWaitDialog dialog(&splitter, true);
    dialog.show();
    EXPECT_EQ(splitter.count(), 2);
    splitter.setParent(nullptr);
}

TEST(WaitDialogTest, CoverKeepsTheMouseFromTheParent)
{
    const Window host;
    OrnWaitDialog dialog(host.panel, true);
    dialog.show();
    const QPoint inPanel = host.panel->mapTo(host.window.get(), QPoint(3, 3));
    EXPECT_EQ(host.window->childAt(inPanel), Veils(*host.window).value(0));
}

TEST(WaitDialogTest, IndicatorMovesAtAModerateRate)
{
    struct PaintCounter : QObject {
        bool eventFilter(QObject* /*pWatched*/, QEvent* pEvent) override
        {
            nPaints += pEvent->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int nPaints = 0;
    } counter;
    OrnWaitDialog dialog(nullptr, false);
    dialog.installEventFilter(&counter);
    dialog.show();
    const QImage first = dialog.grab().toImage();
    EXPECT_TRUE(QTest::qWaitFor([&] { return dialog.grab().toImage() != first; }));
    counter.nPaints = 0;
    QTest::qWait(1000);
    EXPECT_GE(counter.nPaints, 5);
    EXPECT_LE(counter.nPaints, 30);
    dialog.OnStopWaitImmediately();
    counter.nPaints = 0;
    QTest::qWait(100);
    EXPECT_EQ(counter.nPaints, 0);
}

struct Attempt {
    const char* name;
    std::function<void(OrnWaitDialog&, Window&)> action;
};

class WaitDialogPersistenceTest : public testing::TestWithParam<Attempt> {};

TEST_P(WaitDialogPersistenceTest, DoesNotEndShow)
{
    Window host;
    OrnWaitDialog dialog(host.panel, true);
    dialog.show();
    GetParam().action(dialog, host);
    Settle();
    EXPECT_TRUE(dialog.isVisible());
}

TEST_P(WaitDialogPersistenceTest, DoesNotEndExec)
{
    Window host;
    OrnWaitDialog dialog(host.panel, true);
    bool bStillVisible = false;
    QTimer::singleShot(0, &dialog, [&] {
        GetParam().action(dialog, host);
        QTimer::singleShot(20, &dialog, [&] {
            bStillVisible = dialog.isVisible();
            dialog.OnStopWaitImmediately();
        });
    });
    dialog.exec();
    EXPECT_TRUE(bStillVisible);
    EXPECT_FALSE(dialog.isVisible());
}

INSTANTIATE_TEST_SUITE_P(
    , WaitDialogPersistenceTest,
    testing::Values(
        Attempt{"Escape", [](OrnWaitDialog& dialog, Window&) { QTest::keyClick(&dialog, Qt::Key_Escape); }},
        Attempt{"EscapeToTheParent", [](OrnWaitDialog&, Window& host) { QTest::keyClick(host.panel, Qt::Key_Escape); }},
        Attempt{"AltF4", [](OrnWaitDialog& dialog, Window&) { QTest::keyClick(&dialog, Qt::Key_F4, Qt::AltModifier); }},
        Attempt{"Close", [](OrnWaitDialog& dialog, Window&) { EXPECT_FALSE(dialog.close()); }},
        Attempt{"CloseButton",
                [](OrnWaitDialog& dialog, Window&) {
                    QCloseEvent event;
                    QCoreApplication::sendEvent(&dialog, &event);
                    EXPECT_FALSE(event.isAccepted());
                }},
        Attempt{"Reject", [](OrnWaitDialog& dialog, Window&) { dialog.reject(); }},
        Attempt{"Accept", [](OrnWaitDialog& dialog, Window&) { dialog.accept(); }},
        Attempt{"Done", [](OrnWaitDialog& dialog, Window&) { static_cast<QDialog&>(dialog).done(1); }},
        Attempt{"ParentHidden", [](OrnWaitDialog&, Window& host) { host.panel->hide(); }},
        Attempt{"WindowHidden", [](OrnWaitDialog&, Window& host) { host.window->hide(); }},
        Attempt{"WindowClosed", [](OrnWaitDialog&, Window& host) { host.window->close(); }},
        Attempt{"WindowMinimised", [](OrnWaitDialog&, Window& host) { host.window->showMinimized(); }},
        Attempt{"SecondExec",
                [](OrnWaitDialog& dialog, Window&) {
                    if (dialog.isModal()) {
                        dialog.exec();
                    }
                }}),
    [](const auto& row) { return row.param.name; });

TEST(WaitDialogTest, StopEndsShow)
{
    OrnWaitDialog dialog(nullptr, true);
    dialog.show();
    EXPECT_FALSE(dialog.isModal());
    dialog.OnStopWaitImmediately();
    EXPECT_FALSE(dialog.isVisible());
}

TEST(WaitDialogTest, StopBeforeShowingDoesNotAffectALaterExec)
{
    OrnWaitDialog dialog(nullptr, true);
    QSignalSpy finished(&dialog, &QDialog::finished);
    dialog.OnStopWaitImmediately();
    dialog.OnStopWaitImmediately();
    EXPECT_EQ(finished.count(), 0);
    bool bShown = false;
    QTimer::singleShot(20, &dialog, [&] {
        bShown = dialog.isVisible();
        dialog.OnStopWaitImmediately();
        dialog.OnStopWaitImmediately();
    });
    dialog.exec();
    EXPECT_TRUE(bShown);
    EXPECT_EQ(finished.count(), 1);
}

TEST(WaitDialogTest, ExecIsModalEvenAfterShow)
{
    const Window host;
    for (const bool bShownBefore : {false, true}) {
        OrnWaitDialog dialog(host.panel, true);
        dialog.setVisible(bShownBefore);
        bool bModal = false;
        QTimer::singleShot(0, &dialog, [&] {
            bModal = QApplication::activeModalWidget() == &dialog && dialog.isVisible();
            dialog.OnStopWaitImmediately();
        });
        dialog.exec();
        EXPECT_TRUE(bModal) << bShownBefore;
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }
}

TEST(WaitDialogTest, StopIsASlot)
{
    OrnWaitDialog dialog(nullptr, true);
    QTimer timer;
    timer.setSingleShot(true);
    ASSERT_TRUE(QObject::connect(&timer, SIGNAL(timeout()), &dialog, SLOT(OnStopWaitImmediately())));
    timer.start(10);
    dialog.exec();
    EXPECT_FALSE(timer.isActive());
}

struct Destruction {
    const char* name;
    std::function<void(Window&)> destroy;
};

class WaitDialogParentDestroyedTest : public testing::TestWithParam<std::tuple<Destruction, bool>> {
protected:
    void Destroy() { std::get<0>(GetParam()).destroy(host); }

    void ExpectOrphaned()
    {
        ASSERT_TRUE(dialog);
        EXPECT_FALSE(dialog->isVisible());
        EXPECT_EQ(dialog->parent(), nullptr);
        EXPECT_TRUE(host.panel.isNull());
        // It can still be shown, centred on the screen.
        QTimer::singleShot(0, dialog, [this] {
            EXPECT_TRUE(dialog->isVisible());
            EXPECT_TRUE(dialog->windowFlags().testFlag(Qt::FramelessWindowHint));
            EXPECT_EQ(dialog->geometry().center(), QGuiApplication::primaryScreen()->availableGeometry().center());
            dialog->OnStopWaitImmediately();
        });
        dialog->exec();
        delete dialog;
    }

    Window host;
    QPointer<OrnWaitDialog> dialog = new OrnWaitDialog(host.panel, std::get<1>(GetParam()));
};

TEST_P(WaitDialogParentDestroyedTest, EndsExec)
{
    QTimer::singleShot(0, qApp, [this] { Destroy(); });
    dialog->exec();
    ExpectOrphaned();
}

TEST_P(WaitDialogParentDestroyedTest, EndsShow)
{
    dialog->show();
    Settle();
    QSignalSpy finished(dialog, &QDialog::finished);
    Destroy();
    EXPECT_EQ(finished.count(), 1);
    ExpectOrphaned();
}

TEST_P(WaitDialogParentDestroyedTest, LeavesAHiddenDialogUsable)
{
    Destroy();
    ExpectOrphaned();
}

TEST_P(WaitDialogParentDestroyedTest, LetsAnObserverDeleteTheDialog)
{
    dialog->show();
    QObject context;
    QObject::connect(dialog, &QDialog::finished, &context, [this] { delete dialog; });
    Destroy();
    EXPECT_TRUE(dialog.isNull());
}

INSTANTIATE_TEST_SUITE_P(
    , WaitDialogParentDestroyedTest,
    testing::Combine(testing::Values(Destruction{"Parent", [](Window& host) { delete host.panel; }},
                                     Destruction{"ParentWithSignalsBlocked",
                                                 [](Window& host) {
                                                     host.panel->blockSignals(true);
                                                     delete host.panel;
                                                 }},
                                     Destruction{"Grandparent", [](Window& host) { delete host.frame; }},
                                     Destruction{"Window", [](Window& host) { host.window.reset(); }},
                                     Destruction{"WindowDeletedOnClose",
                                                 [](Window& host) {
                                                     QWidget* pWindow = host.window.release();
                                                     pWindow->setAttribute(Qt::WA_DeleteOnClose);
                                                     pWindow->close();
                                                     QCoreApplication::sendPostedEvents(pWindow,
                                                                                        QEvent::DeferredDelete);
                                                 }}),
                     testing::Bool()),
    [](const auto& row) {
        return std::string(std::get<0>(row.param).name) + (std::get<1>(row.param) ? "Covered" : "Uncovered");
    });

TEST(WaitDialogTest, DestroyedParentWindowEndsTheWait)
{
    for (const bool bCoverParent : {false, true}) {
        auto window = std::make_unique<QWidget>();
        window->show();
        OrnWaitDialog dialog(window.get(), bCoverParent);
        QTimer::singleShot(0, qApp, [&] { window.reset(); });
        dialog.exec();
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(dialog.parent(), nullptr);
    }
}

TEST(WaitDialogTest, IgnoresTheFormerParentAfterReparenting)
{
    auto window = std::make_unique<QWidget>();
    window->show();
    OrnWaitDialog dialog(window.get(), true);
    dialog.show();
    dialog.setParent(nullptr, dialog.windowFlags());
    EXPECT_TRUE(Veils(*window).isEmpty());
    dialog.show();
    window.reset();
    EXPECT_TRUE(dialog.isVisible());
}

TEST(WaitDialogTest, DeletionWhileShownLeavesNothingOnTheParent)
{
    const Window host;
    {
        OrnWaitDialog dialog(host.panel, true);
        dialog.show();
        ASSERT_EQ(Veils(*host.window).size(), 1);
    }
    EXPECT_TRUE(Veils(*host.window).isEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(host.window->findChildren<QWidget*>(QStringLiteral("OrnWaitVeil")).isEmpty());
    host.window->move(5, 5);
    Settle();
}

TEST(WaitDialogTest, ExecReturnsWhenTheDialogIsDeleted)
{
    QPointer<OrnWaitDialog> dialog = new OrnWaitDialog(nullptr, true);
    QTimer::singleShot(0, qApp, [&] { delete dialog; });
    dialog->exec();
    EXPECT_TRUE(dialog.isNull());
}

}  // namespace
