// The emulator's handling of requests: reading them from a connection, checking them against the contract, the state,
// the faults and the log.
#include "Fuzz.h"

#include <Contract.h>
#include <Faults.h>
#include <Handlers.h>
#include <Platform.h>
#include <PlatformEmulator.h>
#include <RequestLog.h>
#include <RequestReader.h>
#include <State.h>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <string>
#include <string_view>
#include <strings.h>
#include <utility>
#include <vector>

namespace {

using emulator::HttpRequest;
using emulator::Json;
using emulator::Operation;
using emulator::RequestReader;

/// The parts of an emulator except its sockets.
struct Server {
    emulator::Contract contract = emulator::Contract::Load(emulator::Options().contract);
    emulator::Platform platform{emulator::Contract::Load(emulator::Options().contract),
                                emulator::State(emulator::LoadSeeds(emulator::Options().seed), 1),
                                emulator::kDefaultToken};
    emulator::Faults faults;
    emulator::RequestLog log;
};

Server& SharedServer()
{
    static Server server;
    return server;
}

template <typename List>
const auto& OneOf(const List& list, FuzzedDataProvider& data)
{
    return list[data.ConsumeIntegralInRange<std::size_t>(0, list.size() - 1)];
}

/// Random text, or one that is likely to be an identifier or a number.
std::string Text(FuzzedDataProvider& data)
{
    static const std::vector<std::string> known = {"1",       "0",   "-1",   "2147483648", "true", "1000001$1$0$0",
                                                   "1000001", "a,b", "%31%2"};
    return data.ConsumeBool() ? OneOf(known, data) : data.ConsumeRandomLengthString(32);
}

/// A target with random path and query values, sometimes with an extra query value.
std::string Target(const Operation& operation, FuzzedDataProvider& data)
{
    std::string target = operation.path;
    for (std::size_t at = target.find('{'); at != std::string::npos; at = target.find('{', at)) {
        const std::string value = Text(data);
        target.replace(at, target.find('}', at) - at + 1, value);
        at += value.size();
    }
    char separator = '?';
    for (const emulator::QueryParameter& parameter : operation.query) {
        if (data.ConsumeIntegralInRange(0, 15) != 0) {
            target += separator + parameter.name + '=' + Text(data);
            separator = '&';
        }
    }
    return data.ConsumeIntegralInRange(0, 15) != 0 ? target : target + separator + data.ConsumeRandomLengthString(32);
}

Json Value(FuzzedDataProvider& data)
{
    const Json parsed = Json::parse(data.ConsumeRandomLengthString(64), nullptr, false);
    return parsed.is_discarded() ? Json(Text(data)) : parsed;
}

/// An example of the contract, sometimes with one value replaced.
std::string Body(const Operation& operation, FuzzedDataProvider& data)
{
    if (operation.bodyExamples.empty() || data.ConsumeIntegralInRange(0, 7) == 0) {
        return data.ConsumeIntegralInRange(0, 3) == 0 ? data.ConsumeRandomLengthString() : std::string();
    }
    Json body = OneOf(operation.bodyExamples, data);
    for (int left = data.ConsumeIntegralInRange(0, 3); left > 0; --left) {
        const Json values = body.flatten();
        const auto value = std::next(values.begin(), data.ConsumeIntegralInRange<int>(0, int(values.size()) - 1));
        if (!values.empty() && !value.key().empty()) {
            body[Json::json_pointer(value.key())] = Value(data);
        }
    }
    return body.dump(-1, ' ', false, Json::error_handler_t::replace);
}

HttpRequest Request(FuzzedDataProvider& data)
{
    HttpRequest request;
    const Operation& operation = OneOf(SharedServer().contract.operations(), data);
    const bool bAnything = data.ConsumeIntegralInRange(0, 15) == 0;
    request.method = bAnything ? data.ConsumeRandomLengthString(8) : operation.method;
    request.target = bAnything ? data.ConsumeRandomLengthString() : Target(operation, data);
    request.body = Body(operation, data);
    const bool bToken = data.ConsumeIntegralInRange(0, 15) != 0;
    request.headers.emplace_back("X-Subject-Token",
                                 bToken ? emulator::kDefaultToken : data.ConsumeRandomLengthString(32));
    return request;
}

void ExpectValidReply(const HttpRequest& request)
{
    const emulator::HttpResponse response = SharedServer().platform.answer(request);
    const bool bToken = std::any_of(request.headers.begin(), request.headers.end(), [](const auto& header) {
        return ::strcasecmp(header.first.c_str(), "X-Subject-Token") == 0 && header.second == emulator::kDefaultToken;
    });
    const std::string shown = request.method + ' ' + request.target + '\n' + request.body + "\nhas the reply " +
                              std::to_string(response.status) + '\n' + response.body;
    fuzz::Require(response.status == (bToken ? 200 : 401), shown);
    const Json envelope = Json::parse(response.body, nullptr, false);
    fuzz::Require(envelope.is_object() && envelope.value("code", Json()).is_number_integer() &&
                      envelope.value("desc", Json()).is_string(),
                  shown);
    fuzz::Require(envelope.at("code") != emulator::code::ContractBroken, shown);
}

constexpr const char* kMethod = "PUT";
constexpr const char* kOperation = "BRMS.SetTimeSyncConfig";

/// Checks that an accepted fault is reported unchanged and applies to exactly the requests that it selects.
void ExpectFaultToApply(const std::string& text, const std::string& target)
{
    const Json json = Json::parse(text, nullptr, false);
    if (json.is_discarded()) {
        return;
    }
    try {
        emulator::Fault fault = emulator::Fault::FromJson(json);
        const Json reported = fault.toJson();
        fuzz::Require(emulator::Fault::FromJson(reported).toJson() == reported, reported.dump());
        const bool bHits = fault.skip == 0 && (fault.method.empty() || fault.method == kMethod) &&
                           (fault.operation.empty() || fault.operation == kOperation) &&
                           target.compare(0, fault.path.size(), fault.path) == 0;
        SharedServer().faults.clear();
        SharedServer().faults.add(std::move(fault));
        const bool bTaken = SharedServer().faults.take(kMethod, target, [] { return kOperation; }).has_value();
        fuzz::Require(bTaken == bHits, reported.dump() + " for " + target);
    } catch (const std::invalid_argument&) {
        return;
    }
}

/// The requests in the bytes of a connection.
struct Reading {
    std::vector<HttpRequest> requests;
    int fault = 0;  ///< status of the error reply; 0 while the bytes are valid
};

bool AreSame(const Reading& one, const Reading& other)
{
    const auto same = [](const HttpRequest& left, const HttpRequest& right) {
        return left.method == right.method && left.target == right.target && left.headers == right.headers &&
               left.body == right.body;
    };
    return one.fault == other.fault &&
           std::equal(one.requests.begin(), one.requests.end(), other.requests.begin(), other.requests.end(), same);
}

/// Reads requests until the reader needs more bytes.
/// @return false if it rejects the bytes
bool ReadOn(RequestReader& reader, Reading& reading)
{
    for (;;) {
        switch (reader.read()) {
        case RequestReader::Progress::NeedsMore:
            return true;
        case RequestReader::Progress::ExpectsContinue:
            break;
        case RequestReader::Progress::Complete:
            reading.requests.push_back(reader.request());
            reader.next();
            break;
        case RequestReader::Progress::Refused:
            reading.fault = reader.fault().status;
            return false;
        }
    }
}

/// @param pieces sizes of the pieces in which the bytes arrive, used cyclically
Reading Read(std::string_view bytes, const std::vector<std::size_t>& pieces)
{
    Reading reading;
    RequestReader reader;
    bool bReads = true;
    for (std::size_t i = 0; bReads && !bytes.empty(); ++i) {
        const std::size_t size = std::min(pieces[i % pieces.size()], bytes.size());
        reader.add(bytes.substr(0, size));
        bytes.remove_prefix(size);
        bReads = ReadOn(reader, reading);
    }
    if (bReads && reader.readEnd() == RequestReader::Progress::Refused) {
        reading.fault = reader.fault().status;
    }
    return reading;
}

/// Checks that the result does not depend on how the bytes are split, and that requests contain only received bytes.
/// @return the requests
std::vector<HttpRequest> ExpectReading(std::string_view bytes)
{
    const Reading complete = Read(bytes, {bytes.size()});
    for (const std::vector<std::size_t>& pieces : {std::vector<std::size_t>{1}, {2, 3, 7, 1}}) {
        const Reading split = Read(bytes, pieces);
        fuzz::Require(AreSame(split, complete), "status " + std::to_string(complete.fault) + " in one piece, " +
                                                    std::to_string(split.fault) + " in several pieces:\n" +
                                                    std::string(bytes));
    }
    for (const HttpRequest& request : complete.requests) {
        const auto isReceived = [bytes](const std::string& text) { return bytes.find(text) != std::string_view::npos; };
        fuzz::Require(isReceived(request.method + ' ' + request.target + " HTTP/1."), request.target);
        for (const auto& [name, value] : request.headers) {
            fuzz::Require(isReceived(name + ':') && isReceived(value), name);
        }
    }
    return complete.requests;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size)
{
    Server& server = SharedServer();
    server.log.clear();
    // Input that starts like a request is treated as the bytes of a connection, all other input as random choices.
    const bool bWire = size > 0 && (bytes[0] == '\r' || (bytes[0] >= 'A' && bytes[0] <= 'Z'));
    std::vector<HttpRequest> requests;
    FuzzedDataProvider data(bytes, bWire ? 0 : size);
    if (bWire) {
        requests = ExpectReading({reinterpret_cast<const char*>(bytes), size});
    } else {
        for (int left = data.ConsumeIntegralInRange(1, 8); left > 0; --left) {
            requests.push_back(Request(data));
        }
    }
    bool bWrote = false;
    for (const HttpRequest& request : requests) {
        server.log.add(request);
        ExpectValidReply(request);
        bWrote = bWrote || request.method != "GET";
    }
    if (bWrote) {
        server.platform.reset();
    }
    for (const emulator::RecordedRequest& recorded : server.log.list()) {
        recorded.toJson().dump(-1, ' ', false, Json::error_handler_t::replace);
    }
    const std::string target = data.ConsumeRandomLengthString(32);
    ExpectFaultToApply(data.ConsumeRemainingBytesAsString(), target);
    return 0;
}
