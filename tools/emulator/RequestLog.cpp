#include "RequestLog.h"

#include "Text.h"

#include <algorithm>
#include <ctime>
#include <iomanip>
#include <sstream>
#include <strings.h>

namespace emulator {
namespace {

constexpr std::size_t kMostRequests = 10000;
constexpr std::size_t kMostBodyBytes = 64UL * 1024 * 1024;

Json PairsOf(const std::vector<std::pair<std::string, std::string>>& pairs)
{
    Json json = Json::array();
    for (const auto& [name, value] : pairs) {
        json.push_back(Json{{"name", name}, {"value", value}});
    }
    return json;
}

/// "2026-01-31T23:59:59.123Z"
std::string TextOf(std::chrono::system_clock::time_point time)
{
    const std::time_t seconds = std::chrono::system_clock::to_time_t(time);
    const auto milliseconds = std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch()).count();
    std::tm parts{};
    ::gmtime_r(&seconds, &parts);
    std::ostringstream text;
    text << std::put_time(&parts, "%FT%T.") << std::setw(3) << std::setfill('0') << milliseconds % 1000 << 'Z';
    return text.str();
}

}  // namespace

std::string RecordedRequest::header(const std::string& name) const
{
    const auto found = std::find_if(headers.begin(), headers.end(), [&](const auto& header) {
        return ::strcasecmp(header.first.c_str(), name.c_str()) == 0;
    });
    return found == headers.end() ? std::string() : found->second;
}

Json RecordedRequest::toJson() const
{
    return Json{{"number", number},
                {"method", method},
                {"target", target},
                {"path", path},
                {"query", PairsOf(query)},
                {"headers", PairsOf(headers)},
                {"body", body},
                {"connection", connection},
                {"status", status},
                {"code", code ? Json(*code) : Json()},
                {"time", TextOf(time)},
                {"ended", ended}};
}

std::size_t RequestLog::add(const HttpRequest& request)
{
    RecordedRequest record;
    record.method = request.method;
    record.target = request.target;
    record.path = PercentDecode(PathOf(request.target), false);
    record.query = QueryOf(request.target);
    record.headers = request.headers;
    record.body = request.body;
    record.connection = request.connection;
    record.time = std::chrono::system_clock::now();

    const std::lock_guard lock(m_mutex);
    record.number = ++m_lastNumber;
    m_bodyBytes += record.body.size();
    m_requests.push_back(std::move(record));
    removeOldest();
    m_arrived.notify_all();
    return m_lastNumber;
}

void RequestLog::answered(std::size_t number, int status, std::optional<int> code)
{
    const std::lock_guard lock(m_mutex);
    const auto found = std::find_if(m_requests.rbegin(), m_requests.rend(),
                                    [&](const RecordedRequest& request) { return request.number == number; });
    if (found != m_requests.rend()) {
        found->status = status;
        found->code = code;
        found->ended = true;
    }
}

std::vector<RecordedRequest> RequestLog::list(std::size_t after) const
{
    const std::lock_guard lock(m_mutex);
    const auto first = std::find_if(m_requests.begin(), m_requests.end(),
                                    [after](const RecordedRequest& request) { return request.number > after; });
    return {first, m_requests.end()};
}

void RequestLog::clear()
{
    const std::lock_guard lock(m_mutex);
    m_requests.clear();
    m_bodyBytes = 0;
}

bool RequestLog::waitFor(std::size_t count, std::chrono::milliseconds time) const
{
    std::unique_lock lock(m_mutex);
    return m_arrived.wait_for(lock, time, [&] { return m_requests.size() >= count; });
}

void RequestLog::removeOldest()
{
    while (m_requests.size() > kMostRequests || (m_requests.size() > 1 && m_bodyBytes > kMostBodyBytes)) {
        m_bodyBytes -= m_requests.front().body.size();
        m_requests.pop_front();
    }
}

std::vector<std::pair<std::string, std::string>> QueryOf(const std::string& target)
{
    std::vector<std::pair<std::string, std::string>> query;
    const std::size_t mark = target.find('?');
    if (mark == std::string::npos) {
        return query;
    }
    for (const std::string& pair : Split(std::string_view(target).substr(mark + 1), '&')) {
        if (!pair.empty()) {
            const std::size_t equals = std::min(pair.find('='), pair.size());
            const std::size_t value = std::min(equals + 1, pair.size());
            query.emplace_back(PercentDecode(std::string_view(pair).substr(0, equals), true),
                               PercentDecode(std::string_view(pair).substr(value), true));
        }
    }
    return query;
}

std::string_view OriginForm(std::string_view target)
{
    const std::size_t scheme = target.find("://");
    if (StartsWith(target, "/") || scheme == std::string_view::npos || scheme > target.find('?')) {
        return target;
    }
    const std::size_t origin = target.find_first_of("/?", scheme + 3);
    return origin == std::string_view::npos ? "/" : target.substr(origin);
}

std::string PathOf(const std::string& target)
{
    const std::string_view origin = OriginForm(target);
    const std::string path(origin.substr(0, origin.find('?')));
    return path.empty() ? "/" : path;
}

}  // namespace emulator
