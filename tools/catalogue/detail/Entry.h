#pragma once

#include "../Call.h"
#include "TypeOf.h"

#include <Call.h>

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

namespace catalogue::detail {

/// The functions that a call of the library is made of.
template <typename Constant>
struct Functions;

template <auto ItsPack, auto ItsParse>
struct Functions<APIModule::Call<ItsPack, ItsParse>> {
    static constexpr auto kPack = ItsPack;
    static constexpr auto kParse = ItsParse;
    static constexpr bool kHasParse = !std::is_null_pointer_v<decltype(ItsParse)>;
    using Signature = APIModule::detail::PackSignature<decltype(ItsPack)>;
};

template <typename... Parameters>
constexpr std::size_t Size(APIModule::detail::ParameterList<Parameters...> /*parameters*/)
{
    return sizeof...(Parameters);
}

/// A call with the names that follow from the one of its constant, "APIModule::BRMS::GetTimeSyncConfig".
Call NamedCall(std::string_view constantName);

template <const auto& kCall, typename... Parameters, std::size_t... Index>
Call DescribedCall(const std::array<std::string_view, sizeof...(Parameters)>& argumentNames,
                   APIModule::detail::ParameterList<Parameters...> /*parameters*/,
                   std::index_sequence<Index...> /*parameters*/)
{
    using Constant = std::decay_t<decltype(kCall)>;
    using Its = Functions<Constant>;

    Call call = NamedCall(ConstantName<kCall>());
    call.packName = FunctionName<Its::kPack>();
    call.takesServerId = Its::Signature::kTakesServerId;
    call.arguments = {{argumentNames[Index], &TypeOf<std::decay_t<Parameters>>()}...};
    call.pack = [](void* pReqParamData, [[maybe_unused]] void* const* arguments, [[maybe_unused]] int nServerId) {
        if constexpr (Its::Signature::kTakesServerId) {
            return Its::kPack(pReqParamData, *static_cast<std::decay_t<Parameters>*>(arguments[Index])..., nServerId);
        } else {
            return Its::kPack(pReqParamData, *static_cast<std::decay_t<Parameters>*>(arguments[Index])...);
        }
    };
    if constexpr (Its::kHasParse) {
        using Record = typename Constant::Record;
        call.parseName = FunctionName<Its::kParse>();
        call.result = &TypeOf<Record>();
        call.parse = [](const QJsonObject& data, void* record) {
            return Its::kParse(data, *static_cast<Record*>(record));
        };
    }
    return call;
}

/// Describes a call of the library: its constant, a line on what it does, and the name of each argument.
template <const auto& kCall, typename... Names>
Call Entry(std::string_view summary, Names... argumentNames)
{
    using Signature = typename Functions<std::decay_t<decltype(kCall)>>::Signature;
    constexpr std::size_t kArguments = Size(typename Signature::Arguments());
    static_assert(sizeof...(Names) == kArguments, "every argument of a call needs a name");

    Call call = DescribedCall<kCall>({std::string_view(argumentNames)...}, typename Signature::Arguments(),
                                     std::make_index_sequence<kArguments>());
    call.summary = summary;
    return call;
}

/// Appends the calls of one subject.
void AddSubject(std::vector<Call>& calls, std::string_view subject, std::vector<Call> entries);

}  // namespace catalogue::detail
