#include "SeedCheck.h"

#include "Handlers.h"
#include "State.h"
#include "Text.h"

#include <array>

namespace emulator {
namespace {

struct Required {
    const char* path;
    const char* type;
};
/// Values that handlers read but do not return.
constexpr std::array kRequired = {
    Required{"/brms/alarmLinkages/[]/alarmType", "integer"},
    Required{"/brms/alarmLinkages/[]/sourceCode", "string"},
    Required{"/brms/alarmPlans/[]/quickCommandIds/[]", "string"},
    Required{"/brms/alarmRecords/[]/id", "string"},
    Required{"/brms/failingChannels/{}", "integer"},
    Required{"/brms/layers/[]/resourceCode", "string"},
    Required{"/brms/layers/[]/resourceType", "integer"},
    Required{"/brms/users/[]/groupId", "string"},
    Required{"/brms/users/[]/id", "string"},
    Required{"/iams/tasks/[]/id", "string"},
    Required{"/inventory/devices/[]/deviceCategory", "integer"},
    Required{"/inventory/devices/[]/domain", "string"},
    Required{"/inventory/devices/[]/orgCode", "string"},
    Required{"/inventory/devices/[]/permitted", "boolean"},
    Required{"/inventory/devices/[]/sourceType", "string"},
    Required{"/ipms/captureRecords/[]/id", "string"},
    Required{"/obms/contacts/{}/[]", "string"},
    Required{"/obms/managedErrors/{}", "string"},
    Required{"/obms/managedPersons/{}/[]", "string"},
    Required{"/obms/persons/[]/deviceCodes/[]", "string"},
    Required{"/obms/persons/[]/orgCode", "string"},
    Required{"/obms/persons/[]/pointIds/[]", "string"},
    Required{"/obms/points/[]/pointId", "string"},
    Required{"/obms/zones/[]/zoneId", "string"},
};

/// Permits additional keys, because a record in the state may have more keys than in a reply.
Json WithAdditionalKeys(Json schema)
{
    if (schema.is_structured()) {
        if (schema.is_object() && schema.value("additionalProperties", Json()) == Json(false)) {
            schema.erase("additionalProperties");
        }
        for (Json& inner : schema) {
            inner = WithAdditionalKeys(std::move(inner));
        }
    }
    return schema;
}

/// Wraps the schema of a path into a schema of the whole state.
Json SchemaOfState(const std::string& path, Json schema)
{
    std::vector<std::string> steps = Split(path.substr(1), '/');
    for (; !steps.empty(); steps.pop_back()) {
        if (steps.back() == "[]") {
            schema = Json{{"type", "array"}, {"items", std::move(schema)}};
        } else if (steps.back() == "{}") {
            schema = Json{{"type", "object"}, {"additionalProperties", std::move(schema)}};
        } else {
            schema = Json{{"type", "object"}, {"properties", {{steps.back(), std::move(schema)}}}};
        }
    }
    return schema;
}

void Check(const Json& seeds, const std::string& path, const Json& schema)
{
    const std::string breach = Schema(SchemaOfState(path, schema)).breach(seeds);
    if (!breach.empty()) {
        const std::size_t inner = breach.find('/', 1);
        throw SeedError(breach.substr(1, inner - 1) + ".json: " + breach.substr(inner));
    }
}

}  // namespace

void CheckSeeds(const Json& seeds, const Contract& contract)
{
    for (const Required& required : kRequired) {
        Check(seeds, required.path, Json{{"type", required.type}});
    }
    for (const Operation& operation : contract.operations()) {
        const auto found = AllHandlers().find(operation.id);
        if (found == AllHandlers().end() || found->second.source().empty()) {
            continue;
        }
        const Json::json_pointer part(found->second.part());
        if (operation.dataSchema.contains(part)) {
            Check(seeds, found->second.source(), WithAdditionalKeys(operation.dataSchema.at(part)));
        }
    }
}

}  // namespace emulator
