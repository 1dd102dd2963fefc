#include "Faults.h"

#include "RequestReader.h"
#include "Text.h"

#include <algorithm>
#include <array>
#include <climits>

namespace emulator {
namespace {

using KindName = std::pair<Fault::Kind, const char*>;
constexpr std::array kKinds = {KindName{Fault::Kind::Delay, "delay"},
                               KindName{Fault::Kind::Status, "status"},
                               KindName{Fault::Kind::Envelope, "envelope"},
                               KindName{Fault::Kind::Empty, "empty"},
                               KindName{Fault::Kind::Cut, "cut"},
                               KindName{Fault::Kind::NotJson, "notJson"},
                               KindName{Fault::Kind::Text, "text"},
                               KindName{Fault::Kind::Large, "large"},
                               KindName{Fault::Kind::CloseBefore, "closeBefore"},
                               KindName{Fault::Kind::CloseMiddle, "closeMiddle"},
                               KindName{Fault::Kind::Silent, "silent"},
                               KindName{Fault::Kind::Reset, "reset"},
                               KindName{Fault::Kind::Slow, "slow"}};
constexpr int kMillisecondsPerDay = 24 * 60 * 60 * 1000;
constexpr int kLargestReply = 1024 * 1024 * 1024;

Fault::Kind KindOf(const std::string& name)
{
    const auto* found =
        std::find_if(kKinds.begin(), kKinds.end(), [&](const KindName& entry) { return name == entry.second; });
    if (found == kKinds.end()) {
        throw std::invalid_argument("kind: unknown '" + name + "'");
    }
    return found->first;
}

int NumberIn(const Json& value, const std::string& name, int least, int most)
{
    if (!value.is_number_integer() || value < least || value > most) {
        throw std::invalid_argument(name + ": expected a number from " + std::to_string(least) + " to " +
                                    std::to_string(most));
    }
    return value;
}

std::string TextIn(const Json& value, const std::string& name)
{
    if (!value.is_string()) {
        throw std::invalid_argument(name + ": expected a string");
    }
    return value;
}

std::string MethodIn(const Json& value, const std::string& name)
{
    std::string method = TextIn(value, name);
    if (!method.empty() && !IsServed(method)) {
        throw std::invalid_argument(name + ": unknown '" + method + "'");
    }
    return method;
}

void SetMember(Fault& fault, const std::string& name, const Json& value)
{
    if (name == "path") {
        fault.path = TextIn(value, name);
    } else if (name == "method") {
        fault.method = MethodIn(value, name);
    } else if (name == "kind") {
        fault.kind = KindOf(TextIn(value, name));
    } else if (name == "times") {
        fault.times = NumberIn(value, name, 0, INT_MAX);
    } else if (name == "delayMs") {
        fault.delay = std::chrono::milliseconds(NumberIn(value, name, 0, kMillisecondsPerDay));
    } else if (name == "status") {
        fault.status = NumberIn(value, name, 200, 599);
    } else if (name == "headers" && value.is_object()) {
        for (const auto& header : value.items()) {
            fault.headers.emplace_back(header.key(), TextIn(header.value(), "headers"));
        }
    } else if (name == "code") {
        fault.code = NumberIn(value, name, INT_MIN, INT_MAX);
    } else if (name == "desc") {
        fault.desc = TextIn(value, name);
    } else if (name == "body") {
        fault.body = TextIn(value, name);
    } else if (name == "size") {
        fault.size = static_cast<std::size_t>(NumberIn(value, name, 0, kLargestReply));
    } else if (name == "bytesPerSecond") {
        fault.bytesPerSecond = static_cast<std::size_t>(NumberIn(value, name, 1, kLargestReply));
    } else if (name == "operation") {
        fault.operation = TextIn(value, name);
    } else if (name == "skip") {
        fault.skip = NumberIn(value, name, 0, INT_MAX);
    } else {
        throw std::invalid_argument(name + ": not expected");
    }
}

}  // namespace

Fault Fault::FromJson(const Json& json)
{
    if (!json.is_object() || !json.contains("kind")) {
        throw std::invalid_argument("expected an object with \"kind\"");
    }
    Fault fault;
    for (const auto& member : json.items()) {
        SetMember(fault, member.key(), member.value());
    }
    return fault;
}

Json Fault::toJson() const
{
    const auto* found =
        std::find_if(kKinds.begin(), kKinds.end(), [this](const KindName& entry) { return entry.first == kind; });
    Json json{{"path", path},
              {"method", method},
              {"kind", found->second},
              {"times", times},
              {"delayMs", delay.count()},
              {"status", status},
              {"code", code},
              {"desc", desc},
              {"body", body},
              {"size", size},
              {"bytesPerSecond", bytesPerSecond},
              {"operation", operation},
              {"skip", skip}};
    json["headers"] = Json::object();
    for (const auto& [name, value] : headers) {
        json["headers"][name] = value;
    }
    return json;
}

std::size_t Faults::add(Fault fault)
{
    const std::lock_guard lock(m_mutex);
    m_faults.emplace(++m_lastNumber, std::move(fault));
    return m_lastNumber;
}

std::map<std::size_t, Fault> Faults::list() const
{
    const std::lock_guard lock(m_mutex);
    return m_faults;
}

bool Faults::remove(std::size_t number)
{
    const std::lock_guard lock(m_mutex);
    return m_faults.erase(number) > 0;
}

void Faults::clear()
{
    const std::lock_guard lock(m_mutex);
    m_faults.clear();
}

std::optional<Fault> Faults::take(const std::string& method, std::string_view target,
                                  const std::function<std::string()>& operation)
{
    const std::lock_guard lock(m_mutex);
    for (auto entry = m_faults.begin(); entry != m_faults.end(); ++entry) {
        Fault& fault = entry->second;
        if (!(fault.method.empty() || fault.method == method) || !StartsWith(target, fault.path) ||
            !(fault.operation.empty() || fault.operation == operation())) {
            continue;
        }
        if (fault.skip > 0) {
            --fault.skip;
            continue;
        }
        Fault taken = fault;
        if (fault.times > 0 && --fault.times == 0) {
            m_faults.erase(entry);
        }
        return taken;
    }
    return std::nullopt;
}

}  // namespace emulator
