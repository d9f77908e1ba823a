#pragma once

#include "exercises/API.h"
#include "platform/win32/Win32Services.h"

#include <memory>

namespace library {

/// What the objects of one thread share, from the first of them until the thread ends or the library is unloaded: an
/// object is created in an apartment and called there alone.
struct Apartment {
    platform::Win32Services services;
    exercises::API api;

    /// That of the calling thread; made at the first use.
    [[nodiscard]] static std::shared_ptr<Apartment> current();
    /// To be called when a thread ends, so that a later one of the same number starts afresh.
    static void forgetCurrent() noexcept;
};

} // namespace library
