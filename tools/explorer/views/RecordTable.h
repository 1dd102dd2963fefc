#pragma once

#include "Json.h"
#include "NaturalOrder.h"
#include "RecordTableModel.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTableView;

namespace explorer {

class TotalsRow;

/// The lists of a record as tables that can be sorted, filtered and exported, with the totals of their counts.
class RecordTable : public QWidget {
    Q_OBJECT

public:
    explicit RecordTable(QWidget* pParent = nullptr);

    /// @return false, with an empty table, if the record has no list
    bool SetRecord(const catalogue::Type& type, const SharedRecord& pRecord);

    /// The visible rows in their order, below a row of titles.
    [[nodiscard]] QByteArray ToCsv() const;
    /// @return false if the file cannot be written
    [[nodiscard]] bool ExportTo(const QString& fileName) const;

private:
    void ShowList(int choice);
    void Update();
    void Export();

    SharedRecord m_pRecord;
    std::vector<ListInRecord> m_lists;
    RecordTableModel m_model;
    NaturalOrder m_shown;
    QLabel* m_pListLabel;
    QComboBox* m_pList;
    QLineEdit* m_pFilter;
    QPushButton* m_pExport;
    QTableView* m_pTable;
    TotalsRow* m_pTotals;
    QLabel* m_pRows;
};

}  // namespace explorer
