#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace simulator::records {

/// A record of a PowerPoint or Office drawing stream: an atom with its data, or a container with other records. What
/// is not understood stays an atom, byte by byte.
struct Record {
    std::uint16_t type = 0;
    std::uint16_t instance = 0;
    std::uint8_t version = 0;
    std::string data;
    std::vector<Record> children;
    std::string tail;       ///< bytes behind the last child that are no record
    std::size_t offset = 0; ///< where it was read in its stream; no part of what it says

    static constexpr std::uint8_t containerVersion = 0xF;

    [[nodiscard]] static Record atom(std::uint16_t type, std::string data, std::uint16_t instance = 0,
                                     std::uint8_t version = 0) {
        return {type, instance, version, std::move(data), {}, {}, 0};
    }
    [[nodiscard]] static Record container(std::uint16_t type, std::vector<Record> children,
                                          std::uint16_t instance = 0) {
        return {type, instance, containerVersion, {}, std::move(children), {}, 0};
    }

    [[nodiscard]] bool is(std::uint16_t wanted) const noexcept { return type == wanted; }
    [[nodiscard]] bool is(std::uint16_t wanted, std::uint16_t ofInstance) const noexcept {
        return type == wanted && instance == ofInstance;
    }
    /// The first child of a type; null where there is none.
    [[nodiscard]] const Record* find(std::uint16_t wanted) const noexcept;
    [[nodiscard]] const Record* find(std::uint16_t wanted, std::uint16_t ofInstance) const noexcept;
    [[nodiscard]] Record* find(std::uint16_t wanted) noexcept;
    [[nodiscard]] Record* find(std::uint16_t wanted, std::uint16_t ofInstance) noexcept;
    /// The first child of a type. Raises DamagedPresentation where there is none.
    [[nodiscard]] const Record& demand(std::uint16_t wanted) const;

    /// Same bytes in a file.
    friend bool operator==(const Record& left, const Record& right) {
        return left.type == right.type && left.instance == right.instance && left.version == right.version &&
               left.data == right.data && left.children == right.children && left.tail == right.tail;
    }
};

/// The bytes of a record with its header.
void append(std::string& out, const Record& record);
[[nodiscard]] std::string bytesOf(const Record& record);

} // namespace simulator::records
