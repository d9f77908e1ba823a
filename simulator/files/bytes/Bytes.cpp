#include "simulator/files/bytes/Bytes.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstring>

namespace simulator::files {

std::string hex(std::uint64_t number) {
    std::array<char, 16> digits{};
    auto* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
    return "0x" + std::string(digits.data(), end);
}

void ByteReader::raiseEnd(std::size_t length) const {
    throw DamagedPresentation(std::string(what_) + " ends at byte " + std::to_string(bytes_.size()) + ", where " +
                              std::to_string(length - left()) + " more are needed");
}

std::string utf16Bytes(std::u16string_view text) {
    ByteWriter out;
    for (const char16_t unit : text) {
        out.write<std::uint16_t>(unit);
    }
    return out.take();
}

std::u16string utf16Text(std::string_view bytes) {
    static_assert(std::endian::native == std::endian::little);
    std::u16string text(bytes.size() / 2, u'\0');
    if (!text.empty()) {
        std::memcpy(text.data(), bytes.data(), text.size() * sizeof(char16_t));
    }
    return text;
}

std::uint32_t numberAt(std::string_view bytes, std::size_t place) {
    return place + sizeof(std::uint32_t) > bytes.size()
               ? 0
               : ByteReader(bytes.substr(place), "a number").read<std::uint32_t>();
}

void putNumber(std::string& bytes, std::size_t place, std::uint32_t number) noexcept {
    if (place + sizeof(number) <= bytes.size()) {
        for (std::size_t i = 0; i < sizeof(number); ++i) {
            bytes[place + i] = static_cast<char>(number >> (8 * i));
        }
    }
}

} // namespace simulator::files
