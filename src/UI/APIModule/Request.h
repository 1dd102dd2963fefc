#pragma once

#include "ObservedExchange.h"
#include "Outcome.h"

#include <chrono>
#include <functional>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

/// @file
/// Calls as values. A Call is a constant; called with its arguments it returns a Request, which Run() and Start() of
/// Call.h run.

namespace APIModule {

/// @cond
namespace detail {

/// Everything that describes a request.
struct RequestParts {
    std::function<int(void* pReqParamData, int nServerId)> pack;
    int nServerId = -1;
    std::optional<std::chrono::milliseconds> timeout;
    ExchangeObserver observer;
};

}  // namespace detail
/// @endcond

/// A call with its arguments: a value that can be stored, copied and run any number of times.
///
/// The call determines the server. Most calls return a Request instead, which can be sent to any server.
template <typename Record>
class FixedRequest {
public:
    /// Reads the data of the reply into the record.
    using Parse = int (*)(const QJsonObject&, Record&);

    /// Made by a Call.
    /// @param parts the Pack with its arguments
    /// @param parse null for a call without a Parse
    FixedRequest(detail::RequestParts parts, Parse parse) : m_parts(std::move(parts)), m_parse(parse) {}

    /// The same request with a time-out, which replaces those of CAPIModule::SetCallTimeout() and of the Pack. It
    /// begins when the request is sent, not while it queues.
    /// @param timeout longest wait for the reply; 0 does not wait
    /// @return the request
    [[nodiscard]] FixedRequest Within(std::chrono::milliseconds timeout) const
    {
        FixedRequest request(*this);
        request.m_parts.timeout = timeout;
        return request;
    }

    /// The same request, with an observer in addition to that of CAPIModule::SetExchangeObserver().
    /// @param observer called at the end of each exchange of the request
    /// @return the request
    [[nodiscard]] FixedRequest Observed(const ExchangeObserver& observer) const
    {
        FixedRequest request(*this);
        request.m_parts.observer = observer;
        return request;
    }

    /// @return the parts that Run() and Start() need
    [[nodiscard]] const detail::RequestParts& Parts() const { return m_parts; }
    /// @return null for a call without a Parse
    [[nodiscard]] Parse GetParse() const { return m_parse; }

protected:
    /// Changed by Request.
    detail::RequestParts m_parts;  // NOLINT(cppcoreguidelines-non-private-member-variables-in-classes)

private:
    Parse m_parse;
};

/// A call with its arguments, for the user manager's current server unless OnServer() names one.
template <typename Record>
class Request : public FixedRequest<Record> {
public:
    using FixedRequest<Record>::FixedRequest;

    /// The same request for another server.
    /// @param nServerId a server of the user manager; -1 for the current one
    /// @return the request
    [[nodiscard]] Request OnServer(int nServerId) const
    {
        Request request(*this);
        request.m_parts.nServerId = nServerId;
        return request;
    }

    /// As FixedRequest::Within().
    /// @param timeout longest wait for the reply
    /// @return the request
    [[nodiscard]] Request Within(std::chrono::milliseconds timeout) const
    {
        return Request(FixedRequest<Record>::Within(timeout));
    }

    /// As FixedRequest::Observed().
    /// @param observer called at the end of each exchange of the request
    /// @return the request
    [[nodiscard]] Request Observed(const ExchangeObserver& observer) const
    {
        return Request(FixedRequest<Record>::Observed(observer));
    }

private:
    explicit Request(const FixedRequest<Record>& request) : FixedRequest<Record>(request) {}
};

/// @cond
namespace detail {

/// A stored argument, passed as the Pack takes it; for a reference to non-const it is a fresh copy.
template <typename Parameter>
class Passed {
    using Value = std::decay_t<Parameter>;
    static constexpr bool kMayChange =
        std::is_lvalue_reference_v<Parameter> && !std::is_const_v<std::remove_reference_t<Parameter>>;

public:
    explicit Passed(const Value& value) : m_value(value) {}  // NOLINT(modernize-pass-by-value): most refer to it
    operator std::conditional_t<kMayChange, Value&, const Value&>() { return m_value; }

private:
    std::conditional_t<kMayChange, Value, const Value&> m_value;
};

template <typename... All>
struct ParameterList {};

/// The parameters of a Pack between the request and the server identifier. An `int` by value at the end is the server
/// identifier; a few Packs take none.
template <typename Done, typename... Rest>
struct SplitParameters;

template <typename... Done, typename Last>
struct SplitParameters<ParameterList<Done...>, Last> {
    static constexpr bool kTakesServerId = std::is_same_v<Last, int>;
    using Arguments = std::conditional_t<kTakesServerId, ParameterList<Done...>, ParameterList<Done..., Last>>;
};

template <typename... Done, typename Next, typename... Rest>
struct SplitParameters<ParameterList<Done...>, Next, Rest...> : SplitParameters<ParameterList<Done..., Next>, Rest...> {
};

template <typename Function>
struct PackSignature;

template <typename... All>
struct PackSignature<int (*)(void*, All...)> : SplitParameters<ParameterList<>, All...> {};

template <typename Function>
struct ParseSignature;

template <typename Out>
struct ParseSignature<int (*)(const QJsonObject&, Out&)> {
    using Record = Out;
};

template <>
struct ParseSignature<std::nullptr_t> {
    using Record = NoRecord;
};

/// Makes requests from the arguments of a Pack.
template <auto Pack, auto Parse, typename Arguments>
class CallOf;

template <auto Pack, auto Parse, typename... Arguments>
class CallOf<Pack, Parse, ParameterList<Arguments...>> {
    static constexpr bool kTakesServerId = PackSignature<decltype(Pack)>::kTakesServerId;

    template <typename... Given>
    static constexpr bool Fits()
    {
        if constexpr (sizeof...(Given) == sizeof...(Arguments)) {
            return (... && std::is_convertible_v<Given, std::decay_t<Arguments>>);
        } else {
            return false;
        }
    }

    template <typename... Given>
    static constexpr bool kNever = false;

public:
    using Record = typename ParseSignature<decltype(Parse)>::Record;
    using RequestType = std::conditional_t<kTakesServerId, Request<Record>, FixedRequest<Record>>;

    /// A request with these arguments, which are those of the Pack between request and server identifier.
    RequestType operator()(std::decay_t<Arguments>... arguments) const
    {
        RequestParts parts;
        parts.pack = [values = std::tuple<std::decay_t<Arguments>...>(std::move(arguments)...)](
                         void* pReqParamData, [[maybe_unused]] int nServerId) {
            return std::apply(
                [&](const std::decay_t<Arguments>&... value) {
                    if constexpr (kTakesServerId) {
                        return Pack(pReqParamData, Passed<Arguments>(value)..., nServerId);
                    } else {
                        return Pack(pReqParamData, Passed<Arguments>(value)...);
                    }
                },
                values);
        };
        return RequestType(std::move(parts), Parse);
    }

    /// Accepts all other arguments, to fail with a readable message.
    template <typename... Given, typename = std::enable_if_t<!Fits<Given...>()>>
    RequestType operator()(const Given&... /*given*/) const
    {
        static_assert(kNever<Given...>,
                      "These are not the arguments of the call: it takes those of its Pack, without the request and "
                      "the server identifier; OnServer() names the server.");
        return operator()(std::decay_t<Arguments>()...);
    }
};

}  // namespace detail
/// @endcond

/// A call of the library: a Pack and, if the reply has data for the caller, its Parse.
///
/// Called with the arguments of the Pack, without the request and the server identifier, it returns a request:
/// @code
/// const Request<std::vector<RuleInfo>> rules = OBMS::GetPointRules(GetPointAccessRules{"7", 1, false}).OnServer(2);
/// @endcode
template <auto Pack, auto Parse = nullptr>
class Call : public detail::CallOf<Pack, Parse, typename detail::PackSignature<decltype(Pack)>::Arguments> {};

}  // namespace APIModule
