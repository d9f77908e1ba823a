#pragma once

#include "tests/trials/memory/ScarceMemory.h"
#include "tests/trials/torture/Audience.h"

namespace trials::memory {

/// Has an audience judge what a step comes to, or nothing where the step cannot be judged. What the step allocates must
/// have been given back.
template <typename Step> void judge(const torture::Audience& audience, const std::string& what, const Step& assess) {
    const std::ptrdiff_t before = ScarceMemory::alive();
    if (const std::optional<torture::Assessment> assessment = assess()) {
        audience.judge(what, *assessment);
    }
    if (const std::ptrdiff_t left = ScarceMemory::alive() - before; left != 0) {
        audience.tell(what, {std::to_string(left) + " allocations are not given back"});
    }
}

} // namespace trials::memory
