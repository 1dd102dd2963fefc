#pragma once

#include <QStandardItemModel>
#include <QStringList>
#include <QWidget>

class QHeaderView;
class QLabel;
class QTableView;

namespace explorer {

/// A row below a table whose cells follow the columns of the table.
class TotalsRow : public QWidget {
    Q_OBJECT

public:
    explicit TotalsRow(QTableView& table, QWidget* pParent = nullptr);

    /// The texts of the cells; empty for none.
    void SetTotals(const QStringList& totals);
    [[nodiscard]] QString Total(int column) const;

protected:
    bool eventFilter(QObject* pWatched, QEvent* pEvent) override;

private:
    void Align();

    QTableView& m_table;
    QStandardItemModel m_model;
    QLabel* m_pTitle;
    QHeaderView* m_pCells;
};

}  // namespace explorer
