#pragma once

#include <ObservedExchange.h>

#include <string>

namespace apicall {

/// Method, URL, headers and body of a request as readable text. Control characters are escaped and @p token is masked.
std::string RequestText(const APIModule::ObservedExchange& exchange, const std::string& token);

/// The request, the reply, and the error and timing; their lines begin with ">", "<" and "*".
std::string ExchangeText(const APIModule::ObservedExchange& exchange, const std::string& token);

}  // namespace apicall
