#pragma once

namespace family_testing {

/// The Pack with its own arguments: what a row of a PackTest runs. Arguments that the Pack takes by non-const reference
/// do not fit here.
template <typename... Parameters, typename... Arguments>
auto Bound(int (*pack)(void*, Parameters...), const Arguments&... arguments)
{
    return [=](void* param, int nServerId) { return pack(param, arguments..., nServerId); };
}

}  // namespace family_testing
