#include "Bench.h"

#include <cstdlib>
#include <iostream>

namespace bench {

void Fail(const std::string& why)
{
    std::cerr << why << std::endl;
    std::_Exit(EXIT_FAILURE);
}

void Require(bool isSame, const std::string& what)
{
    if (!isSame) {
        Fail("check failed: " + what);
    }
}

}  // namespace bench
