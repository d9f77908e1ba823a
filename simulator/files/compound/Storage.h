#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace simulator::compound {

/// A named stretch of bytes in a compound file.
struct Stream {
    std::u16string name;
    std::string bytes;
    std::string damage; ///< why the file does not give its bytes; empty for a sound one
};

/// A folder in a compound file; the file as a whole is one.
struct Storage {
    std::u16string name;
    std::array<char, 16> classId{};
    std::uint32_t state = 0;
    std::uint64_t created = 0;
    std::uint64_t modified = 0;
    std::vector<Stream> streams;
    std::vector<Storage> storages;

    /// The stream of a name; null where there is none. Case counts: names are written by programs.
    [[nodiscard]] const Stream* stream(std::u16string_view wanted) const noexcept {
        for (const Stream& each : streams) {
            if (each.name == wanted) {
                return &each;
            }
        }
        return nullptr;
    }
    /// The storage of a name; null where there is none.
    [[nodiscard]] Storage* storage(std::u16string_view wanted) noexcept {
        for (Storage& each : storages) {
            if (each.name == wanted) {
                return &each;
            }
        }
        return nullptr;
    }
    /// Gives the stream of a name its bytes, a new one where there is none.
    void put(std::u16string_view wanted, std::string bytes) {
        for (Stream& each : streams) {
            if (each.name == wanted) {
                each = {each.name, std::move(bytes), {}};
                return;
            }
        }
        streams.push_back({std::u16string(wanted), std::move(bytes), {}});
    }
};

} // namespace simulator::compound
