#pragma once

#include <string_view>

namespace catalogue::detail {

/// Extracts the argument of a function's only template parameter from __PRETTY_FUNCTION__, which contains it as
/// "[with T = Name; ...]" or "[F = &Name]".
constexpr std::string_view ParameterIn(std::string_view function)
{
    const auto begin = function.find(" = ") + std::string_view(" = ").size();
    const auto end = function.find_first_of(";]", begin);
    const std::string_view parameter = function.substr(begin, end - begin);
    return parameter.substr(parameter.front() == '&' ? 1 : 0);
}

/// "APIModule::BRMS::GetTimeSyncConfig"
template <const auto& kConstant>
constexpr std::string_view ConstantName()
{
    return ParameterIn(__PRETTY_FUNCTION__);
}

/// "APIModule::CBRMSModule::PacketGetTimeSyncConfig"
template <auto Function>
constexpr std::string_view FunctionName()
{
    return ParameterIn(__PRETTY_FUNCTION__);
}

/// "APIModule::TimeSyncConfig"
template <typename T>
constexpr std::string_view TypeName()
{
    return ParameterIn(__PRETTY_FUNCTION__);
}

/// The last part of a qualified name.
constexpr std::string_view Unqualified(std::string_view name)
{
    return name.substr(name.rfind(':') + 1);
}

}  // namespace catalogue::detail
