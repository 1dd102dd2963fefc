#pragma once

#include <QObject>

namespace ORNGUI::detail {

/// Tells that the application wants to end, for instance because its last window was closed. Qt gives that up again
/// when a window that is still visible refuses to close.
class QuitWatcher : public QObject {
    Q_OBJECT

public:
    explicit QuitWatcher(QObject* pParent);

signals:
    void Quitting();

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
};

}  // namespace ORNGUI::detail
