#pragma once

#include <catalogue/Call.h>
#include <Contract.h>

#include <nlohmann/json.hpp>

#include <string>

namespace contract_tests {

using Json = nlohmann::json;

/// The operations of contract/.
const emulator::Contract& Document();

/// The result of the Parse of a call for the data of a reply.
struct Reading {
    int result = -1;
    Json record;
};
Reading Read(const catalogue::Call& call, const Json& data);

}  // namespace contract_tests
