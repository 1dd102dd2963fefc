#include "Identifiers.h"

#include "CallIndex.h"

#include <catalogue/Identity.h>

#include <QRegularExpression>

#include <algorithm>
#include <tuple>

namespace explorer {
namespace {

using catalogue::Kind;
using nlohmann::json;

constexpr int kMost = 500;  // per source or list

/// "channelId" of "channelIds".
QString Singular(const QString& name)
{
    static const QRegularExpression plural(QStringLiteral("(?:Id|Code|^id|^code)s$"));
    return plural.match(name).hasMatch() ? name.chopped(1) : name;
}

/// The subject of a call, in lower case: "quickcommand" of "DelQuickCommand".
QString SubjectOf(const catalogue::Call& call)
{
    static const QRegularExpression verb(QStringLiteral("^[A-Z][a-z]+"));
    return ShortName(call).remove(verb).toLower();
}

}  // namespace

bool Identifiers::Source::operator<(const Source& other) const
{
    return std::tie(field, record) < std::tie(other.field, other.record);
}

void Identifiers::Add(const CallOutcome& outcome)
{
    if (outcome.call->result != nullptr && !outcome.record.is_null() &&
        AddInside(*outcome.call->result, outcome.record)) {
        emit Changed();
    }
}

bool Identifiers::AddInside(const catalogue::Type& type, const json& value)
{
    bool isNew = false;
    if (type.kind == Kind::List && (type.element->kind == Kind::List || type.element->kind == Kind::Record)) {
        for (std::size_t index = 0; index < std::min(value.size(), std::size_t(kMost)); ++index) {
            isNew = AddInside(*type.element, value[index]) || isNew;
        }
    } else if (type.kind == Kind::Record) {
        isNew = AddRecord(type, value);
        for (const catalogue::Field& field : type.fields) {
            isNew = AddInside(*field.type, value.at(std::string(field.name))) || isNew;
        }
    }
    return isNew;
}

bool Identifiers::AddRecord(const catalogue::Type& type, const json& record)
{
    bool isNew = false;
    const QString name = QString::fromStdString(IdentityOf(type, record).name);
    for (const catalogue::Field& field : type.fields) {
        const bool isPlain = field.type->kind != Kind::Record && field.type->kind != Kind::List;
        if (!isPlain || !catalogue::IsIdentifier(field.name)) {
            continue;
        }
        const std::string key(field.name);
        const QString identifier = QString::fromStdString(catalogue::PlainText(record.at(key)));
        const QString enclosing = QString::fromUtf8(type.name.data(), int(type.name.size())).toLower();
        Known& known = m_known[{QString::fromStdString(key), enclosing}];
        if (!identifier.isEmpty() && known.size() < kMost && !known.contains(identifier)) {
            known.insert(identifier, name);
            isNew = true;
        }
    }
    return isNew;
}

QVector<Completion> Identifiers::For(const catalogue::Call& call, const QString& name) const
{
    const QString wanted = Singular(name);
    if (!catalogue::IsIdentifier(wanted.toStdString())) {
        return {};
    }
    const bool isBare = wanted == QLatin1String("id");
    const QString about = isBare ? SubjectOf(call) : wanted.left(wanted.size() - 2).toLower();
    QMap<QString, QString> found;
    for (auto source = m_known.cbegin(); source != m_known.cend(); ++source) {
        const bool isSame = !isBare && wanted.endsWith(source.key().field, Qt::CaseInsensitive) &&
                            source.key().field != QLatin1String("id");
        const bool isOfRecord = source.key().field == QLatin1String("id") && source.key().record.contains(about);
        if (isSame || isOfRecord) {
            for (auto known = source->cbegin(); known != source->cend(); ++known) {
                found.insert(known.key(), known.value());
            }
        }
    }
    QVector<Completion> completions;
    for (auto known = found.cbegin(); known != found.cend(); ++known) {
        completions.append({known.key(), known.value()});
    }
    return completions;
}

}  // namespace explorer
