#pragma once

#include "Readings.h"
#include "Records.h"

#include "support/Recorders.h"
#include "support/Rows.h"

#include <APIModule.h>

#include <QJsonObject>

#include <gtest/gtest.h>

#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// The name of a function as the log has it, and the function.
#define NAMED(function) #function, &function

/// Tables of Packs and Parses: a test file lists its rows and instantiates PackTest and ParseTest with them.
namespace family_testing {

using testing_support::RowName;

/// Which server identifier a Pack hands on.
enum class Server {
    OfCaller,  ///< the one that it is given
    One,       ///< always 1
    Current,   ///< always -1, the user manager's current server
};

/// A record and its fields, separated by blanks, as the interface lists them.
struct RecordRow {
    /// A field's place in a record, and its name.
    using Fields = std::vector<std::pair<const void*, std::string>>;

    std::string name;
    std::string fields;
    Fields described;  ///< as the description lists them
};

template <typename T>
RecordRow FieldsOf(const std::string& name, const std::string& fields)
{
    static const auto pRecord = std::make_unique<T>();
    RecordRow row{name, fields, {}};
    ForEachField<T>([&row](auto field) { row.described.emplace_back(&((*pRecord).*field.pointer), field.name); });
    return row;
}

/// Compares the fields with the description and with their places in the record.
class RecordTest : public testing::TestWithParam<RecordRow> {};

/// One call of a Pack with the expected request.
struct PackRow {
    std::string name;
    std::string call;                    ///< such as "CBRMSModule::PacketGetTimeSyncConfig"
    std::function<int(void*, int)> run;  ///< calls the Pack with the RequestParam and the server identifier
    APIModule::Method method;
    std::string url;
    std::string body = {};  ///< JSON text, empty where the Pack sends none
    Server server = Server::OfCaller;
    std::string failed = {};   ///< log text, where it is not the Pack's name followed by " failed."
    std::string success = {};  ///< log text, where it is not the Pack's name followed by " success."
};

std::ostream& operator<<(std::ostream& stream, const PackRow& row);

/// Runs the Pack for known servers and for an unknown one and compares the request, the server identifier that
/// reached the user manager, the result and the log line.
class PackTest : public testing::TestWithParam<PackRow> {};

/// A Parse with its record as JSON; a value that is not a record is used directly.
struct Parse {
    std::string call;                                   ///< such as "CBRMSModule::ParseGetTimeSyncConfig"
    Json fresh;                                         ///< the record as it is made
    Json filled;                                        ///< the record with other values in every field
    std::function<int(const QJsonObject&, Json&)> run;  ///< starts with the given record and updates it
};

/// Also for a function of the test that combines several outputs in one record (+[](...) {...}).
template <typename Record>
Parse MakeParse(const std::string& call, int (*parse)(const QJsonObject&, Record&))
{
    Record filled{};
    Fill(filled);
    return {call, ToJson(Record{}), ToJson(filled), [parse](const QJsonObject& reply, Json& json) {
                Record record{};
                FromJson(json, record);
                const int nResult = parse(reply, record);
                json = ToJson(record);
                return nResult;
            }};
}

/// One call of a Parse with the expected record.
struct ParseRow {
    std::string name;
    Parse parse;
    QJsonObject reply;
    Json start;  ///< the caller's record before the call
    int result;
    Json record;  ///< and after it
    testing_support::LogLines lines;
};

std::ostream& operator<<(std::ostream& stream, const ParseRow& row);

/// Runs the Parse and compares the result, the record and the log lines.
class ParseTest : public testing::TestWithParam<ParseRow> {};

/// A row written by hand: reply and records are JSON texts.
ParseRow Row(const std::string& name, const Parse& parse, const char* reply, const char* start, int result,
             const char* record, const testing_support::LogLines& lines = {});

/// Rows for a whole reply and for every reply that differs from it in one place: a key, two keys or an element
/// removed, a value replaced by others, a list or an object emptied; each with a fresh and with a filled record. What
/// must come of them is told from @p readings. The Parse is given random replies as well. In the whole reply every list
/// has two elements or more; only those inside a later element may be shorter.
std::vector<ParseRow> Variations(const Parse& parse, const Readings& readings, const char* wholeReply);

/// Several lists of rows as one.
std::vector<ParseRow> Joined(const std::vector<std::vector<ParseRow>>& lists);

}  // namespace family_testing
