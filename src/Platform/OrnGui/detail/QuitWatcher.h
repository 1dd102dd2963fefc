#pragma once

#include <QObject>

namespace ORNGUI::detail {

/// Reports that the application is about to quit, for instance because its last window was closed. Qt abandons the
/// quit when a visible window refuses to close.
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
