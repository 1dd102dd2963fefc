#include "Allocations.h"

#include <cstddef>

// The allocator of glibc under its own names. What is defined here takes the place of the usual names in the program
// and in all libraries that it loads.
extern "C"
{
    void* __libc_malloc(std::size_t size);                     // NOLINT(bugprone-reserved-identifier)
    void* __libc_calloc(std::size_t count, std::size_t size);  // NOLINT(bugprone-reserved-identifier)
    void* __libc_realloc(void* pMemory, std::size_t size);     // NOLINT(bugprone-reserved-identifier)
}

namespace {

thread_local std::size_t allocations = 0;  // NOLINT(misc-use-internal-linkage)

}  // namespace

extern "C"
{

    __attribute__((visibility("default"))) void* malloc(std::size_t size)
    {
        ++allocations;
        return __libc_malloc(size);
    }

    __attribute__((visibility("default"))) void* calloc(std::size_t count, std::size_t size)
    {
        ++allocations;
        return __libc_calloc(count, size);
    }

    __attribute__((visibility("default"))) void* realloc(void* pMemory, std::size_t size)
    {
        ++allocations;
        return __libc_realloc(pMemory, size);
    }

}  // extern "C"

namespace bench {

std::size_t Allocations()
{
    return allocations;
}

}  // namespace bench
