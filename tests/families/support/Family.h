#pragma once

#include "Readings.h"
#include "Records.h"

#include "support/Recorders.h"
#include "support/Rows.h"

#include <APIModule.h>

#include <boost/type_index.hpp>

#include <QJsonObject>

#include <gtest/gtest.h>

#include <functional>
#include <iosfwd>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

/// The name of a function as it appears in the log, and the function.
#define NAMED(function) #function, &function

/// Tables of Packs and Parses: a test file lists its rows and instantiates PackTest and ParseTest with them.
namespace family_testing {

using testing_support::RowName;

/// The server identifier that a Pack uses.
enum class Server {
    OfCaller,  ///< the caller's argument
    One,       ///< always 1
    Current,   ///< always -1, the user manager's current server
};

/// A record and its fields, separated by spaces, in the order of the interface.
struct RecordRow {
    /// The address of each field in a record, and its name.
    using Fields = std::vector<std::pair<const void*, std::string>>;

    std::string name;
    std::string fields;
    Fields described;  ///< in the order of the description
    Json fresh;        ///< a default-constructed record
    Json initial;      ///< its values that are not empty, zero or false
};

template <typename T>
RecordRow FieldsOf(const std::string& fields, const Json& initial = Json::object())
{
    static const auto pRecord = std::make_unique<T>();
    const std::string type = boost::typeindex::type_id<T>().pretty_name();
    RecordRow row{type.substr(type.rfind(':') + 1), fields, {}, ToJson(*pRecord), initial};
    ForEachField<T>([&row](auto field) { row.described.emplace_back(&((*pRecord).*field.pointer), field.name); });
    return row;
}

/// Compares the fields with the description and with their order in the record, and checks their initial values.
class RecordTest : public testing::TestWithParam<RecordRow> {};

/// One call of a Pack with the expected request.
struct PackRow {
    std::string name;
    std::string call;                    ///< such as "CBRMSModule::PacketGetTimeSyncConfig"
    std::function<int(void*, int)> run;  ///< calls the Pack with the RequestParam and the server identifier
    APIModule::Method method;
    std::string url;
    std::string body = {};  ///< JSON text, empty if the Pack sends none
    Server server = Server::OfCaller;
    std::string failed = {};   ///< log text, unless it is the Pack's name followed by " failed."
    std::string success = {};  ///< log text, unless it is the Pack's name followed by " success."
};

std::ostream& operator<<(std::ostream& stream, const PackRow& row);

/// Runs the Pack for known servers and for an unknown one. Compares the request, the server identifier passed to the
/// user manager, the result and the log line.
class PackTest : public testing::TestWithParam<PackRow> {};

/// A Parse with its record as JSON; a value that is not a record is used directly.
struct Parse {
    std::string call;                                   ///< such as "CBRMSModule::ParseGetTimeSyncConfig"
    Json fresh;                                         ///< a default-constructed record
    Json filled;                                        ///< the record with other values in every field
    std::function<Json(const Json&, const Json&)> add;  ///< the record with more fields and elements
    std::function<int(const QJsonObject&, Json&)> run;  ///< reads a reply into the given record
};

/// Accepts a Parse, or a captureless lambda (+[](...) {...}) that combines several outputs in one record.
template <typename Record>
Parse MakeParse(const std::string& call, int (*parse)(const QJsonObject&, Record&))
{
    Record filled{};
    Fill(filled);
    const auto add = [](const Json& json, const Json& added) {
        Record record{};
        FromJson(json, record);
        FromJson(added, record);
        return ToJson(record);
    };
    const auto run = [parse](const QJsonObject& reply, Json& json) {
        Record record{};
        FromJson(json, record);
        const int nResult = parse(reply, record);
        json = ToJson(record);
        return nResult;
    };
    return {call, ToJson(Record{}), ToJson(filled), add, run};
}

/// Parses a JSON object from a constant text.
QJsonObject JsonObject(const std::string& text);

/// One call of a Parse with the expected record.
struct ParseRow {
    std::string name;
    Parse parse;
    QJsonObject reply;
    Json start;  ///< the record before the call
    int result;
    Json record;  ///< the record after the call
    testing_support::LogLines lines;
};

std::ostream& operator<<(std::ostream& stream, const ParseRow& row);

/// Runs the Parse and compares the result, the record and the log lines.
class ParseTest : public testing::TestWithParam<ParseRow> {};

/// A row written by hand, of JSON texts. The record before the call omits fields with their default value; @p added
/// holds the fields that the call changes and the elements that it appends to lists. The call fails if a line is
/// expected.
ParseRow Row(const std::string& name, const Parse& parse, const std::string& reply, const std::string& start,
             const std::string& added, const std::optional<testing_support::LogLine>& line = {});

/// Rows for a complete reply and for variations of it: a key, two keys or an element removed, a value replaced, a list
/// or an object emptied; each with a fresh and with a filled record. The expected outcome follows from @p readings.
/// Also registers the Parse for random replies. Every list of the complete reply must have at least two elements,
/// except lists inside the second and later elements of a list.
std::vector<ParseRow> Variations(const Parse& parse, const Readings& readings, const char* completeReply);

/// A row or several.
template <typename T>
struct RowList : std::vector<T> {
    RowList(const T& row) : std::vector<T>{row} {}
    RowList(const std::vector<T>& rows) : std::vector<T>(rows) {}
};

/// Rows and lists of rows as one list.
template <typename T>
std::vector<T> Joined(const std::vector<RowList<T>>& lists)
{
    std::vector<T> rows;
    for (const RowList<T>& list : lists) {
        rows.insert(rows.end(), list.begin(), list.end());
    }
    return rows;
}

}  // namespace family_testing
