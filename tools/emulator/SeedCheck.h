#pragma once

#include "Contract.h"

namespace emulator {

/// Holds the seeds against what the contract says of the replies made of them, and against what else the handlers read.
/// Places that the seeds do not have are passed over.
/// @throws SeedError that names file and place of the first wrong value.
void CheckSeeds(const Json& seeds, const Contract& contract);

}  // namespace emulator
