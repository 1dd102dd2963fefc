#include "Rows.h"

#include <catalogue/Call.h>
#include <Contract.h>
#include <PlatformEmulator.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <utility>

namespace e2e {
namespace {

/// A row whose arguments, and whose record if the call reads, are the contract's examples.
Row RowFromContract(const catalogue::Call& call)
{
    static const emulator::Contract contract = emulator::Contract::Load(emulator::Options().contract);
    const emulator::Operation& operation = contract.operation(call.name);
    Row row{call.name, {}, Json::object()};
    for (const catalogue::Argument& argument : call.arguments) {
        const std::string name(argument.name);
        if (!operation.parameterExamples.contains(name)) {
            throw std::logic_error(call.name + " needs a row in tests/e2e/rows: the contract has no example of " +
                                   name);
        }
        row.arguments[name] = operation.parameterExamples.at(name);
    }
    if (call.parse != nullptr) {
        const Json data = operation.dataExample();
        const bool bInside = call.result->kind != catalogue::Kind::Record;  // otherwise it is the only member
        row.record = [record = bInside ? data.front() : data](const Json& /*state*/) { return record; };
    }
    return row;
}

}  // namespace

Effect ReadBack(std::string call, Json arguments, Json record)
{
    return {std::move(call), std::move(arguments), {}, std::move(record)};
}

Effect StateAt(std::string pointer, Json value)
{
    return {{}, {}, std::move(pointer), std::move(value)};
}

Effect Accepted(const std::string& operation, Json path, Json body)
{
    return StateAt("/accepted/" + operation + "/0",
                   {{"path", std::move(path)}, {"query", Json::object()}, {"body", std::move(body)}});
}

Row Reads(const std::string& name, Json arguments, Expectation record, Json state)
{
    Row row = WritesAndReads(name, std::move(arguments), {}, std::move(record));
    row.state = std::move(state);
    return row;
}

Row Writes(const std::string& name, Json arguments, std::vector<Effect> effects)
{
    return WritesAndReads(name, std::move(arguments), std::move(effects), {});
}

Row WritesAndReads(const std::string& name, Json arguments, std::vector<Effect> effects, Expectation record)
{
    const std::size_t space = std::min(name.find(' '), name.size());
    return {name.substr(0, space), name.substr(std::min(space + 1, name.size())), std::move(arguments),
            std::move(record), std::move(effects)};
}

std::string Row::Name() const
{
    std::string name = variant.empty() ? call : call + "_" + variant;
    std::replace(name.begin(), name.end(), '.', '_');
    return name;
}

const std::vector<Row>& Rows()
{
    static const std::vector<Row> rows = [] {
        std::vector<Row> all;
        for (std::vector<Row>& subject : std::vector<std::vector<Row>>{
                 SystemConfigRows(), DeviceConfigRows(), UserGroupRows(), QuickCommandRows(), DeviceControlRows(),
                 ServerWarningRows(), AlarmEventRows(), AccountAccessRows(), DmsRows(), IamsRows(), IpmsRows(),
                 ObmsRows(), OmmsRows()}) {
            std::move(subject.begin(), subject.end(), std::back_inserter(all));
        }
        std::set<std::string> known;
        for (const Row& row : all) {
            known.insert(row.call);
        }
        for (const catalogue::Call& call : catalogue::Calls()) {
            if (known.count(call.name) == 0) {
                all.push_back(RowFromContract(call));
            }
        }
        return all;
    }();
    return rows;
}

const Row& RowOf(std::string_view call)
{
    const std::vector<Row>& rows = Rows();
    return *std::find_if(rows.begin(), rows.end(), [call](const Row& row) { return row.call == call; });
}

}  // namespace e2e
