#pragma once

#include "simulator/files/bytes/DamagedPresentation.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

/// Numbers and texts as files hold them: little-endian, texts in UTF-16.
namespace simulator::files {

/// A number as a message shows it: 0x1A2.
[[nodiscard]] std::string hex(std::uint64_t number);

/// Reads bytes from front to back. Members raise DamagedPresentation, which names what is read, where the bytes end.
class ByteReader {
public:
    /// `what` and the bytes must outlive this object.
    ByteReader(std::string_view bytes, std::string_view what) noexcept : bytes_(bytes), what_(what) {}

    template <std::integral T> T read() {
        const std::string_view raw = take(sizeof(T));
        std::make_unsigned_t<T> value = 0;
        for (std::size_t i = sizeof(T); i-- > 0;) {
            value =
                static_cast<std::make_unsigned_t<T>>((std::uint64_t{value} << 8U) | static_cast<unsigned char>(raw[i]));
        }
        return static_cast<T>(value);
    }

    [[nodiscard]] std::string_view take(std::size_t length) {
        if (length > left()) {
            raiseEnd(length);
        }
        const std::string_view taken(bytes_.data() + place_, length);
        place_ += length;
        return taken;
    }
    void skip(std::size_t length) { (void)take(length); }
    [[nodiscard]] std::size_t place() const noexcept { return place_; }
    [[nodiscard]] std::size_t left() const noexcept { return bytes_.size() - place_; }

private:
    [[noreturn]] void raiseEnd(std::size_t length) const;

    std::string_view bytes_;
    std::string_view what_;
    std::size_t place_ = 0;
};

/// Collects bytes from front to back.
class ByteWriter {
public:
    template <std::integral T> ByteWriter& write(std::type_identity_t<T> value) {
        auto left = static_cast<std::make_unsigned_t<T>>(value);
        for (std::size_t i = 0; i < sizeof(T); ++i) {
            bytes_ += static_cast<char>(left & 0xFFU);
            left = static_cast<std::make_unsigned_t<T>>(std::uint64_t{left} >> 8U);
        }
        return *this;
    }
    ByteWriter& append(std::string_view bytes) {
        bytes_ += bytes;
        return *this;
    }
    ByteWriter& fill(std::size_t count, char byte = 0) {
        bytes_.append(count, byte);
        return *this;
    }
    [[nodiscard]] std::size_t size() const noexcept { return bytes_.size(); }
    [[nodiscard]] const std::string& bytes() const noexcept { return bytes_; }
    [[nodiscard]] std::string take() noexcept { return std::move(bytes_); }

private:
    std::string bytes_;
};

/// The units of a text, two bytes each.
[[nodiscard]] std::string utf16Bytes(std::u16string_view text);
/// The text that bytes hold; an odd last byte is no part of it.
[[nodiscard]] std::u16string utf16Text(std::string_view bytes);

/// A 32-bit number at a place of bytes, 0 where they end before it.
[[nodiscard]] std::uint32_t numberAt(std::string_view bytes, std::size_t place);
/// Writes a 32-bit number over bytes; nothing happens where they end before it.
void putNumber(std::string& bytes, std::size_t place, std::uint32_t number) noexcept;

} // namespace simulator::files
