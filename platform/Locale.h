#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace platform {

/// The user's regional settings.
class Locale {
public:
    /// Item number of the measurement system: "0" metric, "1" U.S.
    static constexpr std::int32_t measurementSystem = 13;

    virtual ~Locale() = default;

    /// `GetLocaleInfoA`: fills the buffer with an item and its terminating NUL; returns the bytes written, or the bytes
    /// needed where the buffer is empty, or 0 on failure.
    virtual std::int32_t getInfo(std::int32_t locale, std::int32_t item, std::span<char> buffer) = 0;
};

/// One item of the regional settings as text; empty where it cannot be read.
[[nodiscard]] std::u16string queryLocale(Locale& settings, std::int32_t locale, std::int32_t item);

} // namespace platform
