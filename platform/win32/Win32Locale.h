#pragma once

#include "platform/Locale.h"

namespace platform {

/// The regional settings of the user who runs the process.
class Win32Locale final : public Locale {
public:
    std::int32_t getInfo(std::int32_t locale, std::int32_t item, std::span<char> buffer) override;
};

} // namespace platform
