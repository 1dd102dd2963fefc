#pragma once

#include "../Run.h"
#include "TypeOf.h"

#include <Call.h>

#include <array>
#include <cstddef>
#include <optional>
#include <type_traits>
#include <utility>

namespace catalogue::detail {

/// The Pack and Parse of a call of the library.
template <typename Constant>
struct Functions;

template <auto Pack, auto Parse>
struct Functions<APIModule::Call<Pack, Parse>> {
    static constexpr auto kPack = Pack;
    static constexpr auto kParse = Parse;
    static constexpr bool kHasParse = !std::is_null_pointer_v<decltype(Parse)>;
    using Signature = APIModule::detail::PackSignature<decltype(Pack)>;
};

template <typename... Parameters>
constexpr std::size_t Size(APIModule::detail::ParameterList<Parameters...> /*parameters*/)
{
    return sizeof...(Parameters);
}

/// A call with name and family taken from the name of its constant, such as "APIModule::BRMS::GetTimeSyncConfig".
inline Call NamedCall(std::string_view constantName)
{
    Call call;
    call.family = Unqualified(constantName.substr(0, constantName.rfind("::")));
    call.name = call.family + "." + std::string(Unqualified(constantName));
    return call;
}

/// The parts of a request with the settings applied.
APIModule::detail::RequestParts Adapted(const APIModule::detail::RequestParts& parts, const RunSettings& settings);

template <typename Record>
APIModule::FixedRequest<Record> Adapted(const APIModule::FixedRequest<Record>& request, const RunSettings& settings)
{
    return {Adapted(request.Parts(), settings), request.GetParse()};
}

template <typename Record>
Outcome Untyped(const APIModule::Outcome<Record>& outcome)
{
    if constexpr (std::is_same_v<Record, APIModule::NoRecord>) {
        return {outcome, {}};
    } else {
        return {outcome, Value(TypeOf<Record>(), std::make_shared<Record>(outcome.Incomplete())).ToJson()};
    }
}

/// The functions of a call, with its arguments and record type-erased.
template <const auto& kCall, typename Parameters, typename Indices>
struct Erased;

template <const auto& kCall, typename... Parameters, std::size_t... Index>
struct Erased<kCall, APIModule::detail::ParameterList<Parameters...>, std::index_sequence<Index...>> {
    using Constant = std::decay_t<decltype(kCall)>;
    using CallFunctions = Functions<Constant>;

    static int Pack(void* pReqParamData, [[maybe_unused]] void* const* arguments, [[maybe_unused]] int nServerId)
    {
        if constexpr (CallFunctions::Signature::kTakesServerId) {
            return CallFunctions::kPack(pReqParamData, Argument<Parameters>(arguments[Index])..., nServerId);
        } else {
            return CallFunctions::kPack(pReqParamData, Argument<Parameters>(arguments[Index])...);
        }
    }

    static int Parse(const QJsonObject& data, void* record)
    {
        return CallFunctions::kParse(data, *static_cast<typename Constant::Record*>(record));
    }

    static Outcome Run(void* const* arguments, const RunSettings& settings, QWidget* parent)
    {
        return Untyped(APIModule::Run(RequestFor(arguments, settings), parent));
    }

    static APIModule::CallHandle Start(void* const* arguments, const RunSettings& settings, QObject* context,
                                       const std::function<void(const Outcome&)>& finished)
    {
        return APIModule::Start(RequestFor(arguments, settings), context,
                                [finished](const auto& outcome) { finished(Untyped(outcome)); });
    }

    static std::optional<APIModule::ObservedExchange> Preview(void* const* arguments, const RunSettings& settings)
    {
        return APIModule::Preview(RequestFor(arguments, settings));
    }

    static Call Describe(const std::array<std::string_view, sizeof...(Parameters)>& argumentNames)
    {
        Call call = NamedCall(ConstantName<kCall>());
        call.packName = FunctionName<CallFunctions::kPack>();
        call.takesServerId = CallFunctions::Signature::kTakesServerId;
        call.arguments = {{argumentNames[Index], &TypeOf<std::decay_t<Parameters>>()}...};
        call.pack = Pack;
        call.run = Run;
        call.start = Start;
        call.preview = Preview;
        if constexpr (CallFunctions::kHasParse) {
            call.parseName = FunctionName<CallFunctions::kParse>();
            call.result = &TypeOf<typename Constant::Record>();
            call.parse = Parse;
        }
        return call;
    }

private:
    template <typename Parameter>
    static auto& Argument(void* argument)
    {
        return *static_cast<std::decay_t<Parameter>*>(argument);
    }

    static auto RequestFor([[maybe_unused]] void* const* arguments, const RunSettings& settings)
    {
        return Adapted(kCall(Argument<Parameters>(arguments[Index])...), settings);
    }
};

/// Describes a call of the library by its constant, a one-line summary and the names of its arguments.
template <const auto& kCall, typename... Names>
Call Entry(std::string_view summary, Names... argumentNames)
{
    using Signature = typename Functions<std::decay_t<decltype(kCall)>>::Signature;
    constexpr std::size_t kArguments = Size(typename Signature::Arguments());
    static_assert(sizeof...(Names) == kArguments, "every argument of a call needs a name");

    using ErasedCall = Erased<kCall, typename Signature::Arguments, std::make_index_sequence<kArguments>>;
    Call call = ErasedCall::Describe({std::string_view(argumentNames)...});
    call.summary = summary;
    return call;
}

/// Appends the calls of one subject.
inline void AddSubject(std::vector<Call>& calls, std::string_view subject, std::vector<Call> entries)
{
    for (Call& call : entries) {
        call.subject = subject;
        calls.push_back(std::move(call));
    }
}

}  // namespace catalogue::detail
