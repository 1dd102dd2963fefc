#include "Family.h"
#include "RandomReplies.h"

#include <QJsonArray>
#include <QJsonValue>

#include <cctype>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace family_testing {

namespace {

/// A changed value, named after the change.
struct Variation {
    std::string name;
    QJsonValue value;
};

std::vector<Variation> Replacements(const QJsonValue& value)
{
    std::vector<Variation> variations{{"by_null", QJsonValue()},
                                      {"by_true", true},
                                      {"by_fraction", 2.5},
                                      {"by_digits", QStringLiteral("12")},
                                      {"by_letters", QStringLiteral("abc")},
                                      {"by_object", QJsonObject{{QStringLiteral("other"), 1}}},
                                      {"by_array", QJsonArray{1}}};
    if (value.isObject()) {
        variations.push_back({"emptied", QJsonObject()});
    }
    if (value.isArray()) {
        variations.push_back({"emptied", QJsonArray()});
    }
    return variations;
}

/// Replacements of the value, and the value with one change inside.
std::vector<Variation> Changes(const QJsonValue& value)
{
    std::vector<Variation> changes = Replacements(value);
    const QJsonObject object = value.toObject();
    const QStringList keys = object.keys();
    for (const QString& key : keys) {
        const std::string name = key.toStdString() + "_";
        QJsonObject changed = object;
        changed.remove(key);
        changes.push_back({name + "removed", changed});
        const QStringList others = keys.mid(keys.indexOf(key) + 1);
        for (const QString& other : others) {  // the log line names the key that is read first
            QJsonObject without = changed;
            without.remove(other);
            changes.push_back({name + "and_" + other.toStdString() + "_removed", without});
        }
        for (const Variation& inner : Changes(object.value(key))) {
            changed[key] = inner.value;
            changes.push_back({name + inner.name, changed});
        }
    }
    const QJsonArray array = value.toArray();
    for (int i = 0; i < array.size(); ++i) {
        const std::string name = std::to_string(i) + "_";
        QJsonArray changed = array;
        changed.removeAt(i);
        changes.push_back({name + "removed", changed});
        for (const Variation& inner : Changes(array.at(i))) {
            changed = array;
            changed[i] = inner.value;
            changes.push_back({name + inner.name, changed});
        }
    }
    return changes;
}

std::string TestName(std::string text)
{
    for (char& character : text) {
        if (std::isalnum(static_cast<unsigned char>(character)) == 0) {
            character = '_';
        }
    }
    return text;
}

/// The function name without its class.
std::string FunctionName(const std::string& call)
{
    return call.substr(call.rfind(':') + 1);
}

ParseRow Expected(const std::string& name, const Parse& parse, const Readings& readings, const QJsonObject& reply,
                  const Json& start)
{
    ParseRow row{FunctionName(parse.call) + TestName(name), parse, reply, start, 0, start, {}};
    row.result = ReadReference(reply, readings, row.record, row.lines);
    return row;
}

/// Inside a list, checks only the first element, which keeps deeply nested replies small.
void RequireTwoElements(const QJsonValue& value)
{
    if (value.isArray()) {
        const QJsonArray array = value.toArray();
        if (array.size() < 2) {
            throw std::logic_error("a list of the complete reply has fewer than two elements");
        }
        RequireTwoElements(array.first());
    }
    const QJsonObject object = value.toObject();
    for (const QJsonValue& inner : object) {
        RequireTwoElements(inner);
    }
}

}  // namespace

std::vector<ParseRow> Variations(const Parse& parse, const Readings& readings, const char* completeReply)
{
    const QJsonObject complete = JsonObject(completeReply);
    RequireTwoElements(complete);
    KnownParses().push_back({parse, readings});

    std::vector<ParseRow> rows;
    const std::pair<const char*, Json> starts[] = {{"_fresh_", parse.fresh}, {"_filled_", parse.filled}};
    for (const auto& [startName, start] : starts) {
        rows.push_back(Expected(startName + std::string("complete"), parse, readings, complete, start));
        if (rows.back().result != 0) {
            throw std::logic_error(parse.call + ": the complete reply is incomplete");
        }
        for (const Variation& change : Changes(complete)) {
            if (change.value.isObject()) {
                rows.push_back(Expected(startName + change.name, parse, readings, change.value.toObject(), start));
            }
        }
    }
    return rows;
}

}  // namespace family_testing
