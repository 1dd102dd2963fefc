#pragma once

#include "../CallOutcome.h"

#include <QScrollArea>

class QLabel;

namespace explorer {

/// How a run ended: in words, with its number and the time it took. Longer texts scroll.
class ResultHeader : public QScrollArea {
    Q_OBJECT

public:
    explicit ResultHeader(QWidget* pParent = nullptr);

    void Show(const RunSummary& outcome);
    void ShowRunning(const QString& name);
    void Clear();

private:
    using Tint = QColor (*)(const QPalette& palette);

    void changeEvent(QEvent* pEvent) override;
    void resizeEvent(QResizeEvent* pEvent) override;
    void Show(const QString& words, const QString& details);
    void Fit();
    void ShowLight(Tint tint);

    Tint m_light = nullptr;
    QLabel* m_pLight;
    QLabel* m_pWords;
    QLabel* m_pDetails;
};

}  // namespace explorer
