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
/// With show() the client stays usable, with exec() the dialog is modal. Escape, the close button, accept(), reject()
/// and done() do not end it, nor does hiding or closing its parent's window; OnStopWaitImmediately() does. It takes no
/// focus from the window under it, and does not keep the application running after its last window.
///
/// The creator owns the dialog. @p pParent is its Qt parent while both exist; when the parent is destroyed, the dialog
/// ends as if by OnStopWaitImmediately() and remains hidden, without a parent, until its owner deletes it. GUI thread
/// only.
class ORNGUI_EXPORT OrnWaitDialog : public OrnDialog {
    Q_OBJECT

public:
    /// @param pParent widget that the indicator is centred over, wherever it moves; null centres it on the screen
    /// @param bCoverParent dim the parent and block the mouse over it while the indicator is shown
    OrnWaitDialog(QWidget* pParent, bool bCoverParent);
    ~OrnWaitDialog() override;

public Q_SLOTS:  // NOLINT(readability-redundant-access-specifiers): required by moc
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
