#include "tests/trials/memory/ScarceMemory.h"

#include <cstdlib>
#include <new>
#include <utility>

// What stands in for the language's own allocation cannot itself be made of containers and owners.
// NOLINTBEGIN(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory,
// cppcoreguidelines-avoid-non-const-global-variables)

namespace {

/// The scope that this thread is in, or was.
struct Scarcity {
    std::size_t position = 0;
    bool isLasting = false;
    std::size_t asked = 0;
    bool isOver = true;

    [[nodiscard]] bool strikes() const noexcept {
        return position != 0 && (isLasting ? asked >= position : asked == position);
    }
};

thread_local Scarcity scarcity;
thread_local std::ptrdiff_t living = 0;

} // namespace

void* operator new(std::size_t size) {
    if (!scarcity.isOver) {
        ++scarcity.asked;
        if (scarcity.strikes()) {
            throw std::bad_alloc();
        }
    }
    if (void* const memory = std::malloc(size == 0 ? 1 : size)) {
        ++living;
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
    living -= memory != nullptr ? 1 : 0;
    std::free(memory);
}

void operator delete(void* memory, std::size_t /*size*/) noexcept {
    operator delete(memory);
}

// NOLINTEND(cppcoreguidelines-no-malloc, cppcoreguidelines-owning-memory,
// cppcoreguidelines-avoid-non-const-global-variables)

namespace trials {

ScarceMemory::ScarceMemory(std::size_t position, Lasting lasting) noexcept {
    scarcity = {position, lasting == Lasting::FromThereOn, 0, false};
}

ScarceMemory::~ScarceMemory() {
    scarcity.isOver = true;
}

std::size_t ScarceMemory::asked() noexcept {
    return scarcity.asked;
}

PlentyOfMemory::PlentyOfMemory() noexcept : wasOver_(std::exchange(scarcity.isOver, true)) {}

PlentyOfMemory::~PlentyOfMemory() {
    scarcity.isOver = wasOver_;
}

bool ScarceMemory::hasStruck() noexcept {
    return scarcity.position != 0 && scarcity.asked >= scarcity.position;
}

std::ptrdiff_t ScarceMemory::alive() noexcept {
    return living;
}

} // namespace trials
