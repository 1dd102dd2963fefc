#pragma once

#include "Value.h"

#include <nlohmann/json_fwd.hpp>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

class QJsonObject;
class QObject;
class QWidget;

namespace APIModule {
class CallHandle;
struct ObservedExchange;
}  // namespace APIModule

namespace catalogue {

struct Outcome;
struct RunSettings;

/// An argument of a Pack, not counting the request and the server identifier.
struct Argument {
    std::string_view name;
    const Type* type;
};

/// A call of the library.
struct Call {
    std::string name;            ///< "BRMS.GetTimeSyncConfig"
    std::string family;          ///< "BRMS"
    std::string_view subject;    ///< "System configuration"
    std::string_view summary;    ///< one line
    std::string_view packName;   ///< "APIModule::CBRMSModule::PacketGetTimeSyncConfig"
    std::string_view parseName;  ///< empty without a Parse
    std::vector<Argument> arguments;
    const Type* result = nullptr;  ///< type of the record that the Parse fills; null without a Parse
    bool takesServerId = true;     ///< whether the Pack has a server identifier as its last parameter

    int (*pack)(void* pReqParamData, void* const* arguments, int nServerId) = nullptr;
    int (*parse)(const QJsonObject& data, void* record) = nullptr;  ///< null without a Parse

    /// See Run(), Start() and Preview() of Run.h.
    Outcome (*run)(void* const* arguments, const RunSettings& settings, QWidget* parent) = nullptr;
    APIModule::CallHandle (*start)(void* const* arguments, const RunSettings& settings, QObject* context,
                                   const std::function<void(const Outcome&)>& finished) = nullptr;
    std::optional<APIModule::ObservedExchange> (*preview)(void* const* arguments,
                                                          const RunSettings& settings) = nullptr;

    [[nodiscard]] const Argument* FindArgument(std::string_view argumentName) const;
};

/// Every call of the library, by family.
const std::vector<Call>& Calls();

/// Null for an unknown name.
const Call* FindCall(std::string_view name);

/// The name closest to @p misspelt; empty when none is close enough for a suggestion.
std::string ClosestName(std::string_view misspelt, const std::vector<std::string_view>& names);

/// The subject or the summary of a call in the user's language, as UTF-8.
std::string Translated(std::string_view text);

/// Throws the Mismatch for an argument that the call does not have.
[[noreturn]] void RefuseArgument(const Call& call, const std::string& name);

/// The arguments of a call in their order, from a JSON object with the argument names as keys. Throws Mismatch.
std::vector<Value> ReadArguments(const Call& call, const nlohmann::json& arguments);

}  // namespace catalogue
