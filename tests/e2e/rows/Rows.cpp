#include "Rows.h"

#include <algorithm>
#include <utility>

namespace e2e {

Trace ReadBack(std::string call, Json arguments, Json record)
{
    return {std::move(call), std::move(arguments), {}, std::move(record)};
}

Trace Held(std::string place, Json value)
{
    return {{}, {}, std::move(place), std::move(value)};
}

Trace Accepted(const std::string& operation, Json path, Json body)
{
    return Held("/accepted/" + operation + "/0",
                {{"path", std::move(path)}, {"query", Json::object()}, {"body", std::move(body)}});
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
        return all;
    }();
    return rows;
}

const Row& RowOf(const std::string& call)
{
    const std::vector<Row>& rows = Rows();
    return *std::find_if(rows.begin(), rows.end(), [&call](const Row& row) { return row.call == call; });
}

}  // namespace e2e
