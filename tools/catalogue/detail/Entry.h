#pragma once

#include "../Call.h"
#include "TypeOf.h"

#include <QJsonObject>

#include <cstddef>
#include <tuple>
#include <utility>

namespace catalogue::detail {

/// What the signature of a Pack says. An `int` by value at its end is the server identifier; a few calls take none.
template <typename Signature>
struct PackSignature;

template <typename... Args>
struct PackSignature<int (*)(void*, Args...)> {
    static constexpr bool kTakesServerId =
        std::is_same_v<std::tuple_element_t<sizeof...(Args) - 1, std::tuple<Args...>>, int>;
    static constexpr std::size_t kArguments = sizeof...(Args) - (kTakesServerId ? 1 : 0);

    template <std::size_t Index>
    using Argument = std::remove_cv_t<std::remove_reference_t<std::tuple_element_t<Index, std::tuple<Args...>>>>;
};

template <typename Signature>
struct ParseSignature;

template <typename Out>
struct ParseSignature<int (*)(const QJsonObject&, Out&)> {
    using Record = Out;
};

template <auto Pack, std::size_t... Index>
int CallPack(void* pReqParamData, [[maybe_unused]] void* const* arguments, [[maybe_unused]] int nServerId)
{
    using Signature = PackSignature<decltype(Pack)>;
    if constexpr (Signature::kTakesServerId) {
        return Pack(pReqParamData, *static_cast<typename Signature::template Argument<Index>*>(arguments[Index])...,
                    nServerId);
    } else {
        return Pack(pReqParamData, *static_cast<typename Signature::template Argument<Index>*>(arguments[Index])...);
    }
}

template <auto Parse>
int CallParse(const QJsonObject& data, void* record)
{
    return Parse(data, *static_cast<typename ParseSignature<decltype(Parse)>::Record*>(record));
}

/// A call with the names that follow from those of its functions: the family's from the class, the call's from the
/// Pack, whatever the spelling of its beginning.
Call NamedCall(std::string_view packName, std::string_view parseName);

template <auto Pack, auto Parse, std::size_t... Index>
Call DescribedCall(const std::vector<std::string_view>& argumentNames, std::index_sequence<Index...> /*arguments*/)
{
    using Signature = PackSignature<decltype(Pack)>;
    constexpr bool kHasParse = !std::is_null_pointer_v<decltype(Parse)>;

    std::string_view parseName;
    if constexpr (kHasParse) {
        parseName = FunctionName<Parse>();
    }
    Call call = NamedCall(FunctionName<Pack>(), parseName);
    call.pack = CallPack<Pack, Index...>;
    call.takesServerId = Signature::kTakesServerId;
    call.arguments = {{argumentNames[Index], &TypeOf<typename Signature::template Argument<Index>>()}...};
    if constexpr (kHasParse) {
        call.parse = CallParse<Parse>;
        call.result = &TypeOf<typename ParseSignature<decltype(Parse)>::Record>();
    }
    return call;
}

/// Describes a call: its functions, a line on what it does, and the name of each argument of the Pack.
template <auto Pack, auto Parse = nullptr, typename... Names>
Call Entry(std::string_view summary, Names... argumentNames)
{
    constexpr std::size_t kArguments = PackSignature<decltype(Pack)>::kArguments;
    static_assert(sizeof...(Names) == kArguments, "every argument of a Pack needs a name");

    Call call =
        DescribedCall<Pack, Parse>({std::string_view(argumentNames)...}, std::make_index_sequence<kArguments>());
    call.summary = summary;
    return call;
}

/// Appends the calls of one subject.
void AddSubject(std::vector<Call>& calls, std::string_view subject, std::vector<Call> entries);

}  // namespace catalogue::detail
