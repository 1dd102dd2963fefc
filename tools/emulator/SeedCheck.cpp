#include "SeedCheck.h"

#include "Handlers.h"
#include "State.h"
#include "Text.h"

#include <array>

namespace emulator {
namespace {

struct Kept {
    const char* place;
    const char* type;
};
/// What handlers read beside what their calls return.
constexpr std::array kKept = {
    Kept{"/brms/alarmLinkages/[]/alarmType", "integer"},
    Kept{"/brms/alarmLinkages/[]/sourceCode", "string"},
    Kept{"/brms/alarmPlans/[]/quickCommandIds/[]", "string"},
    Kept{"/brms/alarmRecords/[]/id", "string"},
    Kept{"/brms/failingChannels/{}", "integer"},
    Kept{"/brms/layers/[]/resourceCode", "string"},
    Kept{"/brms/layers/[]/resourceType", "integer"},
    Kept{"/brms/users/[]/groupId", "string"},
    Kept{"/brms/users/[]/id", "string"},
    Kept{"/iams/tasks/[]/id", "string"},
    Kept{"/inventory/devices/[]/deviceCategory", "integer"},
    Kept{"/inventory/devices/[]/domain", "string"},
    Kept{"/inventory/devices/[]/orgCode", "string"},
    Kept{"/inventory/devices/[]/permitted", "boolean"},
    Kept{"/inventory/devices/[]/sourceType", "string"},
    Kept{"/ipms/captureRecords/[]/id", "string"},
    Kept{"/obms/contacts/{}/[]", "string"},
    Kept{"/obms/managedErrors/{}", "string"},
    Kept{"/obms/managedPersons/{}/[]", "string"},
    Kept{"/obms/persons/[]/deviceCodes/[]", "string"},
    Kept{"/obms/persons/[]/orgCode", "string"},
    Kept{"/obms/persons/[]/pointIds/[]", "string"},
    Kept{"/obms/points/[]/pointId", "string"},
    Kept{"/obms/zones/[]/zoneId", "string"},
};

/// A record of the state may have more keys than a reply.
Json WithRoom(Json schema)
{
    if (schema.is_structured()) {
        if (schema.is_object() && schema.value("additionalProperties", Json()) == Json(false)) {
            schema.erase("additionalProperties");
        }
        for (Json& inner : schema) {
            inner = WithRoom(std::move(inner));
        }
    }
    return schema;
}

/// The schema of the whole state, of which what is at the place has the one given.
Json SchemaOfState(const std::string& place, Json schema)
{
    std::vector<std::string> steps = Split(place.substr(1), '/');
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

void Check(const Json& seeds, const std::string& place, const Json& schema)
{
    const std::string breach = Schema(SchemaOfState(place, schema)).breach(seeds);
    if (!breach.empty()) {
        const std::size_t path = breach.find('/', 1);
        throw SeedError(breach.substr(1, path - 1) + ".json: " + breach.substr(path));
    }
}

}  // namespace

void CheckSeeds(const Json& seeds, const Contract& contract)
{
    for (const Kept& kept : kKept) {
        Check(seeds, kept.place, Json{{"type", kept.type}});
    }
    for (const Operation& operation : contract.operations()) {
        const auto found = AllHandlers().find(operation.id);
        if (found == AllHandlers().end() || found->second.source().empty()) {
            continue;
        }
        const Json::json_pointer part(found->second.part());
        if (operation.dataSchema.contains(part)) {
            Check(seeds, found->second.source(), WithRoom(operation.dataSchema.at(part)));
        }
    }
}

}  // namespace emulator
