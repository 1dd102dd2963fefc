#include "RecordTableModel.h"

#include "Json.h"

namespace explorer {
namespace {

using catalogue::Kind;
using catalogue::Type;
using nlohmann::json;

QString Joined(const QString& path, std::string_view name)
{
    const QString last = QString::fromUtf8(name.data(), int(name.size()));
    return path.isEmpty() ? last : path + QLatin1Char('.') + last;
}

/// Numbers are right-aligned; a list shows its number of elements.
int AlignmentOf(Kind kind)
{
    const bool isText = kind == Kind::Text || kind == Kind::Bool;
    return int(isText ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignRight | Qt::AlignVCenter);
}

void AddLists(std::vector<ListInRecord>& lists, const QString& path, const Type& type, const json& value)
{
    if (type.kind == Kind::List) {
        lists.push_back({path, &type, &value});
    }
    for (const catalogue::Field& field : type.fields) {
        AddLists(lists, Joined(path, field.name), *field.type, value.at(std::string(field.name)));
    }
}

}  // namespace

std::vector<ListInRecord> ListsIn(const Type& type, const json& record)
{
    std::vector<ListInRecord> lists;
    AddLists(lists, QString(), type, record);
    return lists;
}

void RecordTableModel::SetList(const Type& type, const json& list)
{
    beginResetModel();
    m_pList = &list;
    m_columns.clear();
    AddColumns(*type.element, QString(), json::json_pointer());
    endResetModel();
}

void RecordTableModel::Clear()
{
    beginResetModel();
    m_pList = nullptr;
    m_columns.clear();
    endResetModel();
}

bool RecordTableModel::IsCount(int column) const
{
    const Column& asked = m_columns[std::size_t(column)];
    const bool isWhole = asked.type->kind == Kind::Int || asked.type->kind == Kind::Int64;
    return asked.type->kind == Kind::List || (isWhole && asked.title.endsWith(QLatin1String("Count")));
}

qint64 RecordTableModel::Count(int row, int column) const
{
    const json& cell = Cell(row, column);
    return cell.is_array() ? qint64(cell.size()) : cell.get<qint64>();
}

QString RecordTableModel::Exported(int row, int column) const
{
    const json& cell = Cell(row, column);
    return cell.is_string() ? QString::fromStdString(cell.get_ref<const std::string&>()) : CompactJsonText(cell);
}

int RecordTableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_pList == nullptr ? 0 : int(m_pList->size());
}

int RecordTableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant RecordTableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid()) {
        return {};
    }
    const Kind kind = m_columns[std::size_t(index.column())].type->kind;
    switch (role) {
    case Qt::DisplayRole:
        return kind == Kind::List ? QString::number(Count(index.row(), index.column()))
                                  : Exported(index.row(), index.column());
    case Qt::ToolTipRole:
        return Exported(index.row(), index.column());
    case Qt::TextAlignmentRole:
        return AlignmentOf(kind);
    case kSortRole:
        return SortValue(index.row(), index.column());
    default:
        return {};
    }
}

QVariant RecordTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Vertical) {
        return role == Qt::DisplayRole ? QVariant(section + 1) : QVariant();
    }
    const Column& column = m_columns[std::size_t(section)];
    switch (role) {
    case Qt::DisplayRole:
        return column.title.isEmpty() ? tr("Value") : column.title;
    case Qt::ToolTipRole:
        return QString::fromStdString(NameOf(*column.type));
    case Qt::TextAlignmentRole:
        return AlignmentOf(column.type->kind);
    default:
        return {};
    }
}

void RecordTableModel::AddColumns(const Type& type, const QString& title, const json::json_pointer& place)
{
    if (type.kind != Kind::Record) {
        m_columns.push_back({title, place, &type});
        return;
    }
    for (const catalogue::Field& field : type.fields) {
        AddColumns(*field.type, Joined(title, field.name), place / std::string(field.name));
    }
}

QVariant RecordTableModel::SortValue(int row, int column) const
{
    const json& cell = Cell(row, column);
    switch (m_columns[std::size_t(column)].type->kind) {
    case Kind::List:
        return Count(row, column);
    case Kind::Bool:
        return cell.get<bool>();
    case Kind::Double:
        return cell.get<double>();
    case Kind::Text:
        return Exported(row, column);
    default:
        return cell.get<qint64>();
    }
}

const json& RecordTableModel::Cell(int row, int column) const
{
    return m_pList->at(std::size_t(row)).at(m_columns[std::size_t(column)].place);
}

}  // namespace explorer
