// The wait dialog as a scoped object in the host.
#include <APIWaitDialog.h>

#include <OrnGui/OrnWaitDialog.h>

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <gtest/gtest.h>

using APIModule::CAPIWaitDialog;

namespace {

QList<ORNGUI::OrnWaitDialog*> Dialogs()
{
    QList<ORNGUI::OrnWaitDialog*> dialogs;
    const QWidgetList widgets = QApplication::topLevelWidgets();
    for (QWidget* pWidget : widgets) {
        if (auto* pDialog = qobject_cast<ORNGUI::OrnWaitDialog*>(pWidget)) {
            dialogs.append(pDialog);
        }
    }
    return dialogs;
}

/// Records what happens to a dialog before its destructor runs.
class EndWatch : public QObject {
public:
    explicit EndWatch(QWidget* pWidget) { pWidget->installEventFilter(this); }
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override
    {
        if (const auto* pDialog = qobject_cast<ORNGUI::OrnWaitDialog*>(pWatched)) {
            if (pEvent->type() == QEvent::Hide) {
                parentWhenHidden = pDialog->parentWidget();
                hidden = true;
            }
            detached = detached || (hidden && pEvent->type() == QEvent::ParentChange && !pDialog->parentWidget());
        }
        return false;
    }
    bool hidden = false;
    bool detached = false;
    const QWidget* parentWhenHidden = nullptr;
};

TEST(WaitDialog, IsShownAsLongAsTheObjectExists)
{
    for (const bool bWithParent : {true, false}) {
        QWidget parent;
        parent.show();
        auto wait = std::make_unique<CAPIWaitDialog>(bWithParent ? &parent : nullptr);
        ASSERT_EQ(Dialogs().size(), 1);
        const QPointer<ORNGUI::OrnWaitDialog> dialog = Dialogs().at(0);
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_FALSE(dialog->isModal());
        EXPECT_EQ(dialog->parentWidget(), bWithParent ? &parent : nullptr);
        const EndWatch watch(dialog);
        wait.reset();
        EXPECT_TRUE(dialog.isNull());
        EXPECT_TRUE(watch.hidden);
        EXPECT_EQ(watch.parentWhenHidden, bWithParent ? &parent : nullptr);
        EXPECT_EQ(watch.detached, bWithParent);
    }
}

TEST(WaitDialog, SurvivesDestructionOfItsParent)
{
    auto parent = std::make_unique<QWidget>();
    parent->show();
    const CAPIWaitDialog wait(parent.get());
    ASSERT_EQ(Dialogs().size(), 1);
    parent.reset();
    const QList<ORNGUI::OrnWaitDialog*> dialogs = Dialogs();
    for (const ORNGUI::OrnWaitDialog* pDialog : dialogs) {
        EXPECT_FALSE(pDialog->isVisible());
    }
}

TEST(WaitDialog, IsAnObjectButNotAWidget)
{
    EXPECT_STREQ(CAPIWaitDialog::staticMetaObject.className(), "APIModule::CAPIWaitDialog");
    EXPECT_EQ(CAPIWaitDialog::staticMetaObject.superClass(), &QObject::staticMetaObject);
    EXPECT_EQ(CAPIWaitDialog::staticMetaObject.methodOffset(), CAPIWaitDialog::staticMetaObject.methodCount());
    EXPECT_EQ(CAPIWaitDialog::staticMetaObject.propertyOffset(), CAPIWaitDialog::staticMetaObject.propertyCount());
    EXPECT_TRUE(std::has_virtual_destructor<CAPIWaitDialog>::value);
}

}  // namespace
