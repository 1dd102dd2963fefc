#pragma once

#include "Json.h"

#include <catalogue/MissingFields.h>
#include <catalogue/Type.h>

#include <QAbstractItemModel>

#include <memory>

namespace explorer {

/// A record as a tree with name, value and type of each field. Creates its nodes on demand.
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

    /// @param record fits the type
    void SetRecord(const catalogue::Type& type, const SharedRecord& pRecord,
                   const catalogue::MissingFields& missing = {});
    void Clear();

    /// Shows the nodes whose name or value contains the text, ignoring case, with their parents and everything inside
    /// them.
    void Filter(const QString& text);
    /// The number of nodes that match the filter.
    [[nodiscard]] int Matches() const { return m_matches; }

    /// The value of a node; null for an invalid index.
    [[nodiscard]] const nlohmann::json* Value(const QModelIndex& index) const;
    /// The JSON pointer of a node.
    [[nodiscard]] QString Path(const QModelIndex& index) const;

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& index) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role = Qt::DisplayRole) const override;

private:
    struct Node;

    void Reset();
    [[nodiscard]] const Node& NodeOf(const QModelIndex& index) const;
    /// The node with its children.
    [[nodiscard]] const Node& Opened(const QModelIndex& index) const;
    [[nodiscard]] bool IsMissing(const Node& node) const;
    [[nodiscard]] bool Contains(const QString& name, const catalogue::Type& type, const nlohmann::json& value) const;
    /// Whether the node or anything in it matches the filter.
    [[nodiscard]] bool ContainsInside(const QString& name, const catalogue::Type& type,
                                      const nlohmann::json& value) const;
    [[nodiscard]] int Count(const QString& name, const catalogue::Type& type, const nlohmann::json& value) const;
    [[nodiscard]] QVariant ValueData(const Node& node, int role) const;

    const catalogue::Type* m_pType = nullptr;
    SharedRecord m_pRecord;
    catalogue::MissingFields m_missing;
    QString m_filter;
    int m_matches = 0;
    std::unique_ptr<Node> m_pRoot;  // parent of the record
};

}  // namespace explorer
