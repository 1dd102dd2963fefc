#include "RecordModel.h"

#include "Json.h"
#include "Theme.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

#include <vector>

namespace explorer {

using catalogue::Kind;
using catalogue::Type;
using nlohmann::json;

struct RecordModel::Node {
    Node(const Node* pAbove, int place, QString label, const Type* pType, const json* pValue)
        : parent(pAbove), row(place), name(std::move(label)), type(pType), value(pValue)
    {}

    void Add(const QString& label, const Type& childType, const json& childValue)
    {
        children.push_back(std::make_unique<Node>(this, int(children.size()), label, &childType, &childValue));
        children.back()->AddChildren();
    }

    void AddChildren()
    {
        if (type->kind == Kind::Record) {
            for (const catalogue::Field& field : type->fields) {
                const std::string key(field.name);
                Add(QString::fromStdString(key), *field.type, value->at(key));
            }
        } else if (type->kind == Kind::List) {
            for (std::size_t index = 0; index < value->size(); ++index) {
                Add(QStringLiteral("[%1]").arg(index), *type->element, (*value)[index]);
            }
        }
    }

    const Node* parent;
    int row;
    QString name;
    const Type* type;
    const json* value;
    std::vector<std::unique_ptr<Node>> children;
};

namespace {

/// Types stand back behind names and values.
QVariant TypeData(const Type& type, int role)
{
    switch (role) {
    case Qt::DisplayRole:
        return type.kind == Kind::List ? QString::fromStdString(NameOf(*type.element)) + QLatin1String("[]")
                                       : QString::fromStdString(NameOf(type));
    case Qt::ToolTipRole:
        return QString::fromStdString(NameOf(type));
    case Qt::FontRole: {
        constexpr double kSmaller = 0.85;
        QFont font = QApplication::font("QTreeView");
        font.setPointSizeF(font.pointSizeF() * kSmaller);
        return font;
    }
    case Qt::ForegroundRole:
        return theme::Hint(QApplication::palette());
    default:
        return {};
    }
}

QString ValueText(const Type& type, const json& value)
{
    switch (type.kind) {
    case Kind::Record:
        return {};
    case Kind::List:
        return RecordModel::tr("Elements: %1").arg(value.size());
    case Kind::Text:
        return QString::fromStdString(value.get_ref<const std::string&>());
    default:
        return CompactJsonText(value);
    }
}

}  // namespace

RecordModel::RecordModel(QObject* pParent) : QAbstractItemModel(pParent) {}

RecordModel::~RecordModel() = default;

void RecordModel::SetRecord(const Type& type, const SharedRecord& pRecord)
{
    beginResetModel();
    m_pRecord = pRecord;
    m_pRoot = std::make_unique<Node>(nullptr, 0, QString(), nullptr, nullptr);
    m_pRoot->Add(tr("Result"), type, *m_pRecord);
    endResetModel();
}

void RecordModel::Clear()
{
    beginResetModel();
    m_pRoot.reset();
    m_pRecord.reset();
    endResetModel();
}

QModelIndex RecordModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, NodeOf(parent).children[std::size_t(row)].get());
}

QModelIndex RecordModel::parent(const QModelIndex& index) const
{
    if (!index.isValid()) {
        return {};
    }
    const Node* pParent = NodeOf(index).parent;
    return pParent == m_pRoot.get() ? QModelIndex() : createIndex(pParent->row, 0, const_cast<Node*>(pParent));
}

int RecordModel::rowCount(const QModelIndex& parent) const
{
    return m_pRoot == nullptr || parent.column() > 0 ? 0 : int(NodeOf(parent).children.size());
}

int RecordModel::columnCount(const QModelIndex& /*parent*/) const
{
    return ColumnCount;
}

QVariant RecordModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Node& node = NodeOf(index);
    if (index.column() == TypeColumn) {
        return TypeData(*node.type, role);
    }
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole) {
        return {};
    }
    return index.column() == NameColumn ? node.name : ValueText(*node.type, *node.value);
}

QVariant RecordModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    switch (section) {
    case NameColumn:
        return tr("Name");
    case ValueColumn:
        return tr("Value");
    default:
        return tr("Type");
    }
}

const RecordModel::Node& RecordModel::NodeOf(const QModelIndex& index) const
{
    return index.isValid() ? *static_cast<const Node*>(index.internalPointer()) : *m_pRoot;
}

}  // namespace explorer
