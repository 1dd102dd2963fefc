// The wait dialog as a scope object of the host.
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
    for (QWidget* pWidget : QApplication::topLevelWidgets()) {
        if (auto* pDialog = qobject_cast<ORNGUI::OrnWaitDialog*>(pWidget)) {
            dialogs.append(pDialog);
        }
    }
    return dialogs;
}

/// Records whether a widget was hidden before it was destroyed.
class HideWatch : public QObject {
public:
    explicit HideWatch(QWidget* pWidget) { pWidget->installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* pEvent) override
    {
        hidden = hidden || pEvent->type() == QEvent::Hide;
        return false;
    }
    bool hidden = false;
};

TEST(WaitDialog, IsShownForAsLongAsTheObjectLives)
{
    for (const bool bWithParent : {true, false}) {
        QWidget parent;
        parent.show();
        auto wait = std::make_unique<CAPIWaitDialog>(bWithParent ? &parent : nullptr);
        ASSERT_EQ(Dialogs().size(), 1);
        const QPointer<ORNGUI::OrnWaitDialog> dialog = Dialogs().first();
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_FALSE(dialog->isModal());
        EXPECT_EQ(dialog->parentWidget(), bWithParent ? &parent : nullptr);
        const HideWatch watch(dialog);
        wait.reset();
        EXPECT_TRUE(dialog.isNull());
        EXPECT_TRUE(watch.hidden);
    }
}

TEST(WaitDialog, ParentGoesFirst)
{
    auto parent = std::make_unique<QWidget>();
    parent->show();
    const CAPIWaitDialog wait(parent.get());
    ASSERT_EQ(Dialogs().size(), 1);
    parent.reset();
    for (const ORNGUI::OrnWaitDialog* pDialog : Dialogs()) {
        EXPECT_FALSE(pDialog->isVisible());
    }
}

TEST(WaitDialog, IsAnObjectAndNoWidget)
{
    EXPECT_STREQ(CAPIWaitDialog::staticMetaObject.className(), "APIModule::CAPIWaitDialog");
    EXPECT_EQ(CAPIWaitDialog::staticMetaObject.superClass(), &QObject::staticMetaObject);
    EXPECT_EQ(CAPIWaitDialog::staticMetaObject.methodOffset(), CAPIWaitDialog::staticMetaObject.methodCount());
    EXPECT_EQ(CAPIWaitDialog::staticMetaObject.propertyOffset(), CAPIWaitDialog::staticMetaObject.propertyCount());
    EXPECT_TRUE(std::has_virtual_destructor<CAPIWaitDialog>::value);
}

}  // namespace
