#pragma once

#include <catalogue/Type.h>

#include <nlohmann/json.hpp>

#include <QAbstractTableModel>
#include <QList>
#include <QStringList>

#include <vector>

namespace explorer {

/// A list that can be shown as a table.
struct ListInRecord {
    QString path;  ///< "pageData"; empty for the record itself
    const catalogue::Type* type;
    const nlohmann::json* list;
};

/// The lists of a record outside other lists. @param record must outlive the result
std::vector<ListInRecord> ListsIn(const catalogue::Type& type, const nlohmann::json& record);

/// A list as a table with a row for each element. Fields of nested records have their own columns.
class RecordTableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    /// The value to sort by: a number, a Boolean or a text.
    static constexpr int kSortRole = Qt::UserRole;

    using QAbstractTableModel::QAbstractTableModel;

    /// @param list must outlive the model
    void SetList(const catalogue::Type& type, const nlohmann::json& list);
    void Clear();

    /// Whether the column holds counts, which have a total: numbers with such a name, and lists.
    [[nodiscard]] bool IsCount(int column) const;
    /// The count in a cell of such a column.
    [[nodiscard]] qint64 Count(int row, int column) const;
    /// The complete text of a cell: lists are JSON.
    [[nodiscard]] QString Exported(int row, int column) const;

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    struct Column {
        QString title;
        nlohmann::json::json_pointer place;  // in an element
        const catalogue::Type* type;
    };

    void AddColumns(const catalogue::Type& type, const QString& title, const nlohmann::json::json_pointer& place);
    [[nodiscard]] QVariant SortValue(int row, int column) const;
    [[nodiscard]] const nlohmann::json& Cell(int row, int column) const;

    const nlohmann::json* m_pList = nullptr;
    std::vector<Column> m_columns;
};

}  // namespace explorer
