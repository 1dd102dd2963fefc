#pragma once

#include "../CallOutcome.h"
#include "../views/Theme.h"

#include <QScrollArea>

class QLabel;

namespace explorer {

/// The outcome of a run as text, with its code and duration. Long texts scroll.
class ResultHeader : public QScrollArea {
    Q_OBJECT

public:
    explicit ResultHeader(QWidget* pParent = nullptr);

    void Show(const RunSummary& outcome);
    void ShowRunning(const QString& name);
    void Clear();

private:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;
    void changeEvent(QEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void Show(const QString& words, const QString& details);
    void Fit();
    void ShowLight(theme::Tint tint);

    theme::Tint m_light = nullptr;
    QLabel* m_pLight;
    QLabel* m_pWords;
    QLabel* m_pDetails;
};

}  // namespace explorer
