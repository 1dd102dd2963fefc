#pragma once

#include "Schema.h"

#include <filesystem>
#include <stdexcept>

namespace emulator {

/// A seed file cannot be used; the text names it.
class SeedError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads every *.json file of the folder; brms.json becomes the member "brms" and so on.
///
/// A seed file may carry the member "scale": {"lists": ["devices", ...], "identifiers": ["deviceCode", ...]}. With a
/// scale of N each of these lists holds N copies of its elements; in the copies the texts of the named keys, at any
/// depth, end in "-2", "-3", ..., so that identifiers stay unique and still fit each other.
/// @throws SeedError
Json LoadSeeds(const std::filesystem::path& folder, int scale);

}  // namespace emulator
