#pragma once

#include "../Call.h"

#include <vector>

namespace catalogue
{

std::vector<Call> BrmsCalls();

}  // namespace catalogue
