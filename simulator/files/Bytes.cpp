#include "simulator/files/Bytes.h"

#include <array>
#include <charconv>

namespace simulator::files {

std::string hex(std::uint64_t number) {
    std::array<char, 16> digits{};
    auto* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr;
    return "0x" + std::string(digits.data(), end);
}

std::string_view ByteReader::take(std::size_t length) {
    if (length > left()) {
        throw DamagedPresentation(std::string(what_) + " ends at byte " + std::to_string(bytes_.size()) + ", where " +
                                  std::to_string(length - left()) + " more are needed");
    }
    const std::string_view taken = bytes_.substr(place_, length);
    place_ += length;
    return taken;
}

std::string utf16Bytes(std::u16string_view text) {
    ByteWriter out;
    for (const char16_t unit : text) {
        out.write<std::uint16_t>(unit);
    }
    return out.take();
}

std::u16string utf16Text(std::string_view bytes) {
    std::u16string text(bytes.size() / 2, u'\0');
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto low = static_cast<unsigned char>(bytes[2 * i]);
        const auto high = static_cast<unsigned char>(bytes[2 * i + 1]);
        text[i] = static_cast<char16_t>(low | (high << 8U));
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
