#pragma once

#include "OrnDialog.h"

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QVector>

class QEventLoop;

namespace ORNGUI {

/// A moving busy indicator over a widget, without a title bar.
///
/// Shown with show() it leaves the client usable, with exec() it is modal. Escape, the close button, accept(), reject()
/// and done() do not end it, nor does hiding or closing its parent's window; OnStopWaitImmediately() does. It takes no
/// focus from the window under it, and does not keep the application from ending with its last window.
///
/// The dialog belongs to whoever made it. @p pParent is its Qt parent while both live; when the parent is destroyed,
/// the dialog ends as by OnStopWaitImmediately() and stays behind hidden, without a parent, to be deleted by its maker.
/// GUI thread only.
class ORNGUI_EXPORT OrnWaitDialog : public OrnDialog {
    Q_OBJECT

public:
    /// @param pParent widget that the indicator is centred over, wherever it moves; null centres it on the screen
    /// @param bCoverParent dim the parent and keep the mouse from it while the indicator shows
    OrnWaitDialog(QWidget* pParent, bool bCoverParent);
    ~OrnWaitDialog() override;

public Q_SLOTS:  // NOLINT(readability-redundant-access-specifiers): tells moc that these are slots
    /// Ends exec() or show() at once. Harmless when the dialog is not shown: a later exec() or show() is not affected.
    void OnStopWaitImmediately();

    /// Shows the dialog modally until it is stopped, its parent is destroyed or the application quits.
    int exec() override;

    /// Does nothing: only OnStopWaitImmediately() ends the dialog.
    void done(int nResult) override;

private:
    bool event(QEvent* pEvent) override;
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void showEvent(QShowEvent* pEvent) override;
    void hideEvent(QHideEvent* pEvent) override;
    void paintEvent(QPaintEvent* pEvent) override;

    void EndExecution();
    void WatchParent();
    void WatchAncestors();
    void ParentDestroyed();
    void PlaceOverParent();
    void Cover(const QRect& area);
    void Uncover();

    const bool m_bCoverParent;
    QEventLoop* m_pLoop = nullptr;  // of exec(), until it is to end
    QMetaObject::Connection m_parentDestroyed;
    QVector<QPointer<QWidget>> m_watched;
    QPointer<QWidget> m_pVeil;
    QTimer m_frameTimer;
    QElapsedTimer m_clock;
};

}  // namespace ORNGUI
