#pragma once

#include "Json.h"

#include <catalogue/Type.h>

#include <QAbstractItemModel>

#include <memory>

namespace explorer {

/// A record as a tree: the name, the value and the type of each field.
class RecordModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column {
        NameColumn,
        ValueColumn,
        TypeColumn,
        ColumnCount
    };

    explicit RecordModel(QObject* pParent = nullptr);
    ~RecordModel() override;

    /// @p record fits the type.
    void SetRecord(const catalogue::Type& type, const SharedRecord& pRecord);
    void Clear();

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    struct Node;

    [[nodiscard]] const Node& NodeOf(const QModelIndex& index) const;

    SharedRecord m_pRecord;
    std::unique_ptr<Node> m_pRoot;  // above the record itself
};

}  // namespace explorer
