#pragma once

#include <QString>

class QAbstractItemModel;
class QLineEdit;
class QTableView;

namespace explorer {

/// A table to which lines are appended. It shows the last line unless the user scrolls back. Selected lines can be
/// copied.
/// @param hint shown while there are no lines
QTableView* NewLineTable(const QString& objectName, QAbstractItemModel& lines, const QString& hint);

/// A field to search the lines.
QLineEdit* NewSearch();

}  // namespace explorer
