#pragma once

#include "../core/History.h"

#include <QWidget>

class QLabel;
class QPushButton;
class QSortFilterProxyModel;
class QTableView;

namespace explorer {

/// The runs of the session, which can be searched, shown, repeated, compared and exported.
class HistoryPanel : public QWidget {
    Q_OBJECT

public:
    /// @param history must outlive the panel
    explicit HistoryPanel(History& history, QWidget* pParent = nullptr);

    /// The selected runs, oldest first.
    [[nodiscard]] PastRuns Chosen() const;

signals:
    void ChosenChanged();
    /// The user asked to load the run into the form.
    void LoadRequested(const explorer::PastRunPtr& pRun);
    void RunRequested(const explorer::PastRunPtr& pRun);

private:
    QWidget* MakeKeeping();
    void Update();
    void Compare();
    void Export();

    History& m_history;
    QSortFilterProxyModel* m_pShown;
    QTableView* m_pTable;
    QPushButton* m_pRun;
    QPushButton* m_pLoad;
    QPushButton* m_pCompare;
    QPushButton* m_pExport;
    QPushButton* m_pClear;
    QLabel* m_pBytes;
};

}  // namespace explorer
