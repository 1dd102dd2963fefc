#pragma once

#include <QAbstractItemModel>
#include <QStringList>

namespace explorer_test {

/// The texts of all rows of a model, nested rows included. The cells of a row are joined by '|'.
inline QStringList RowsOf(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        QStringList cells;
        for (int column = 0; column < model.columnCount(parent); ++column) {
            cells.append(index.sibling(row, column).data().toString());
        }
        rows.append(cells.join(QLatin1Char('|')));
        rows += RowsOf(model, index);
    }
    return rows;
}

}  // namespace explorer_test
