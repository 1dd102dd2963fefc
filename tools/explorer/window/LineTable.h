#pragma once

#include <QString>

class QAbstractItemModel;
class QLineEdit;
class QTableView;

namespace explorer {

/// A table of lines that come at its end, which stays in sight until the user scrolls back. The chosen ones can be
/// copied.
/// @param hint stands there while there are no lines
QTableView* NewLineTable(const QString& objectName, QAbstractItemModel& lines, const QString& hint);

/// A field for what lines are searched for.
QLineEdit* NewSearch();

}  // namespace explorer
