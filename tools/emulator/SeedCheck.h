#pragma once

#include "Contract.h"

namespace emulator {

/// Checks the seeds against the contract's schemas of the replies built from them, and checks the types of all other
/// values that handlers read. Ignores paths that are missing in the seeds.
/// @throws SeedError with the file and path of the first wrong value.
void CheckSeeds(const Json& seeds, const Contract& contract);

}  // namespace emulator
