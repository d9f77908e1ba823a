#include "tests/support/ScarceMemory.h"

#include <cstdlib>
#include <new>

// What stands in for the language's own allocation cannot itself be made of containers and owners.
// NOLINTBEGIN(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory,
// cppcoreguidelines-avoid-non-const-global-variables)

namespace {
thread_local std::size_t allocationsLeft = 0; // 0 also where none is to fail
thread_local bool struck = false;
} // namespace

void* operator new(std::size_t size) {
    if (allocationsLeft != 0 && --allocationsLeft == 0) {
        struck = true;
        throw std::bad_alloc();
    }
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
        return memory;
    }
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t& /*nothrow*/) noexcept {
    try {
        return operator new(size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

void operator delete(void* memory) noexcept {
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    std::free(memory);
}

// NOLINTEND(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory,
// cppcoreguidelines-avoid-non-const-global-variables)

namespace tests {

ScarceMemory::ScarceMemory(std::size_t position) noexcept {
    struck = false;
    allocationsLeft = position;
}

ScarceMemory::~ScarceMemory() {
    allocationsLeft = 0;
}

bool ScarceMemory::hasStruck() noexcept {
    return struck;
}

} // namespace tests
