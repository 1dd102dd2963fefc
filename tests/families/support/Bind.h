#pragma once

#include "Records.h"

#include <functional>
#include <tuple>
#include <type_traits>
#include <utility>

namespace family_testing {

template <typename... Parameters>
struct Signature {
    using Pack = int (*)(void*, Parameters..., int);
};

/// A Pack with its own arguments, which must come back unchanged. The parameters are given as the interface declares
/// them: a Pack that declares others does not compile.
template <typename... Parameters>
std::function<int(void*, int)> Bind(typename Signature<Parameters...>::Pack pack, std::decay_t<Parameters>... arguments)
{
    return [pack, given = std::make_tuple(std::move(arguments)...)](void* pReqParamData, int nServerId) {
        auto passed = given;
        const auto call = [&](auto&... each) { return pack(pReqParamData, each..., nServerId); };
        const int nResult = std::apply(call, passed);
        const auto toJson = [](const auto&... each) { return Json::array({ToJson(each)...}); };
        EXPECT_EQ(std::apply(toJson, passed), std::apply(toJson, given)) << "an argument changed";
        return nResult;
    };
}

}  // namespace family_testing
