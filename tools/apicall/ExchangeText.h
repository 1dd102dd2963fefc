#pragma once

#include <ObservedExchange.h>

#include <string>

namespace apicall {

/// Method, URL, headers and body of a request, for people. What would steer a terminal is escaped, and @p token masked.
std::string RequestText(const APIModule::ObservedExchange& exchange, const std::string& token);

/// The request, what came back, and the times: each line begins with ">", "<" or "*".
std::string ExchangeText(const APIModule::ObservedExchange& exchange, const std::string& token);

}  // namespace apicall
