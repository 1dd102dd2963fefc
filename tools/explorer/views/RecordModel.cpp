#include "RecordModel.h"

#include "Plain.h"
#include "Theme.h"

#include <catalogue/Identity.h>

#include <QApplication>
#include <QFont>
#include <QPalette>

#include <algorithm>
#include <vector>

namespace explorer {

using catalogue::Kind;
using catalogue::Type;
using nlohmann::json;

struct RecordModel::Node {
    Node(const Node* pAbove, int row_, QString name_, const Type* pType, const json* pValue, bool whole)
        : parent(pAbove), row(row_), isWhole(whole), name(std::move(name_)), type(pType), value(pValue)
    {}

    const Node* parent;
    int row;
    bool isOpened = false;
    bool isWhole;  // shown with all its children, whatever the filter
    QString name;
    const Type* type;
    const json* value;
    std::vector<std::unique_ptr<Node>> children;
};

namespace {

/// Calls @p visit with the name, the type and the value of each field or element until it returns false.
template <typename Visit>
bool ForEachInside(const Type& type, const json& value, const Visit& visit)
{
    if (type.kind == Kind::Record) {
        return std::all_of(type.fields.begin(), type.fields.end(), [&](const catalogue::Field& field) {
            const std::string key(field.name);
            return visit(QString::fromStdString(key), *field.type, value.at(key));
        });
    }
    if (type.kind == Kind::List) {
        for (std::size_t index = 0; index < value.size(); ++index) {
            if (!visit(QStringLiteral("[%1]").arg(index), *type.element, value[index])) {
                return false;
            }
        }
    }
    return true;
}

/// Types are dimmed.
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

/// Name and identifier of a list element, or its first value if it has neither.
QString TellingValue(const Type& type, const json& value)
{
    const catalogue::Identity identity = catalogue::IdentityOf(type, value);
    QStringList parts{QString::fromStdString(identity.name), QString::fromStdString(identity.identifier)};
    parts.removeAll(QString());
    for (auto field = type.fields.begin(); parts.isEmpty() && field != type.fields.end(); ++field) {
        const std::string key(field->name);
        const QString text =
            IsPlain(*field->type) ? QString::fromStdString(catalogue::PlainText(value.at(key))) : QString();
        if (!text.isEmpty()) {
            parts.append(QStringLiteral("%1: %2").arg(QString::fromStdString(key), text));
        }
    }
    return parts.join(QStringLiteral(" \u00b7 "));
}

QString ValueText(const Type& type, const json& value, bool isElement)
{
    switch (type.kind) {
    case Kind::Record:
        return isElement ? TellingValue(type, value) : QString();
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

void RecordModel::SetRecord(const Type& type, const SharedRecord& pRecord, const catalogue::MissingFields& missing)
{
    beginResetModel();
    m_pType = &type;
    m_pRecord = pRecord;
    m_missing = missing;
    Reset();
    endResetModel();
}

void RecordModel::Clear()
{
    beginResetModel();
    m_pRecord.reset();
    m_missing.clear();
    Reset();
    endResetModel();
}

void RecordModel::Filter(const QString& text)
{
    beginResetModel();
    m_filter = text;
    Reset();
    endResetModel();
}

void RecordModel::Reset()
{
    m_pRoot.reset();
    m_matches = 0;
    if (!m_pRecord) {
        return;
    }
    const QString name = tr("Result");
    m_matches = m_filter.isEmpty() ? 0 : Count(name, *m_pType, *m_pRecord);
    m_pRoot = std::make_unique<Node>(nullptr, 0, QString(), nullptr, nullptr, false);
    m_pRoot->isOpened = true;
    if (m_filter.isEmpty() || m_matches > 0) {
        m_pRoot->children.push_back(
            std::make_unique<Node>(m_pRoot.get(), 0, name, m_pType, m_pRecord.get(), m_filter.isEmpty()));
    }
}

bool RecordModel::Contains(const QString& name, const Type& type, const json& value) const
{
    return name.contains(m_filter, Qt::CaseInsensitive) ||
           (IsPlain(type) && ValueText(type, value, false).contains(m_filter, Qt::CaseInsensitive));
}

bool RecordModel::ContainsInside(const QString& name, const Type& type, const json& value) const
{
    return Contains(name, type, value) ||
           !ForEachInside(type, value, [this](const QString& inner, const Type& innerType, const json& innerValue) {
               return !ContainsInside(inner, innerType, innerValue);
           });
}

int RecordModel::Count(const QString& name, const Type& type, const json& value) const
{
    int count = Contains(name, type, value) ? 1 : 0;
    ForEachInside(type, value, [this, &count](const QString& inner, const Type& innerType, const json& innerValue) {
        count += Count(inner, innerType, innerValue);
        return true;
    });
    return count;
}

const json* RecordModel::Value(const QModelIndex& index) const
{
    return index.isValid() ? NodeOf(index).value : nullptr;
}

QString RecordModel::Path(const QModelIndex& index) const
{
    if (!index.isValid() || !index.parent().isValid()) {
        return {};
    }
    QString name = NodeOf(index).name;
    if (NodeOf(index).parent->type->kind == Kind::List) {
        name = name.mid(1, name.size() - 2);
    }
    return Path(index.parent()) + QLatin1Char('/') + name;
}

QModelIndex RecordModel::index(int row, int column, const QModelIndex& parent) const
{
    if (!hasIndex(row, column, parent)) {
        return {};
    }
    return createIndex(row, column, Opened(parent).children[std::size_t(row)].get());
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
    return m_pRoot == nullptr || parent.column() > 0 ? 0 : int(Opened(parent).children.size());
}

bool RecordModel::hasChildren(const QModelIndex& parent) const
{
    if (!parent.isValid() || parent.column() > 0) {
        return rowCount(parent) > 0;
    }
    const Node& node = NodeOf(parent);
    return node.type->kind == Kind::List ? !node.value->empty() : !node.type->fields.empty();
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
    if (index.column() == ValueColumn) {
        return ValueData(node, role);
    }
    return role == Qt::DisplayRole || role == Qt::ToolTipRole ? QVariant(node.name) : QVariant();
}

QVariant RecordModel::ValueData(const Node& node, int role) const
{
    const bool isElement = node.parent != m_pRoot.get() && node.parent->type->kind == Kind::List;
    switch (role) {
    case Qt::DisplayRole:
    case Qt::ToolTipRole: {
        const QString text = ValueText(*node.type, *node.value, isElement);
        if (!IsMissing(node)) {
            return text;
        }
        const QString mark = tr("not in the reply");
        return text.isEmpty() ? QStringLiteral("(%1)").arg(mark) : QStringLiteral("%1 (%2)").arg(text, mark);
    }
    case Qt::ForegroundRole:
        return IsMissing(node) || node.type->kind == Kind::Record ? QVariant(theme::Hint(QApplication::palette()))
                                                                  : QVariant();
    default:
        return {};
    }
}

QVariant RecordModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
        return {};
    }
    const QStringList headers{tr("Name"), tr("Value"), tr("Type")};
    return headers.value(section);
}

const RecordModel::Node& RecordModel::NodeOf(const QModelIndex& index) const
{
    return index.isValid() ? *static_cast<const Node*>(index.internalPointer()) : *m_pRoot;
}

const RecordModel::Node& RecordModel::Opened(const QModelIndex& index) const
{
    auto& node = const_cast<Node&>(NodeOf(index));
    if (node.isOpened) {
        return node;
    }
    node.isOpened = true;
    const bool isWhole = node.isWhole || (node.parent != m_pRoot.get() && Contains(node.name, *node.type, *node.value));
    ForEachInside(*node.type, *node.value, [&](const QString& name, const Type& type, const json& value) {
        if (isWhole || ContainsInside(name, type, value)) {
            node.children.push_back(
                std::make_unique<Node>(&node, int(node.children.size()), name, &type, &value, isWhole));
        }
        return true;
    });
    return node;
}

bool RecordModel::IsMissing(const Node& node) const
{
    if (m_missing.empty()) {
        return false;
    }
    std::string path;
    for (const Node* pNode = &node; pNode->parent != m_pRoot.get(); pNode = pNode->parent) {
        const bool isElement = pNode->parent->type->kind == Kind::List;
        path.insert(0, '/' + (isElement ? std::string("-") : pNode->name.toStdString()));
    }
    return m_missing.count(path) > 0;
}

}  // namespace explorer
