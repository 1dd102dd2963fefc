#pragma once

#include "../Call.h"

#include <vector>

namespace catalogue {

void AddBrmsCalls(std::vector<Call>& calls);
void AddDmsCalls(std::vector<Call>& calls);
void AddIamsCalls(std::vector<Call>& calls);
void AddIpmsCalls(std::vector<Call>& calls);
void AddObmsCalls(std::vector<Call>& calls);
void AddOmmsCalls(std::vector<Call>& calls);

}  // namespace catalogue
