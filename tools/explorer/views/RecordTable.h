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

/// The lists of a record as tables to sort, to filter and to export, with the totals of their counts.
class RecordTable : public QWidget {
    Q_OBJECT

public:
    explicit RecordTable(QWidget* pParent = nullptr);

    /// False, and then it is empty, when there is no list in the record.
    bool SetRecord(const catalogue::Type& type, const SharedRecord& pRecord);

    /// What the table shows, in its order, with a row of titles above.
    [[nodiscard]] QByteArray ToCsv() const;
    /// False when the file cannot be written.
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
