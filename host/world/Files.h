#pragma once

#include "automation/Unmoved.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// Content of a file, byte by byte.
using Bytes = std::vector<unsigned char>;

/// The files of a world, by their full Windows paths. A file that must be there and is not raises FileNotFound (53).
class Files : automation::Unmoved {
public:
    virtual ~Files() = default;

    /// Names of the files of a folder, sorted.
    [[nodiscard]] std::vector<std::u16string> namesIn(std::u16string_view folder) const;
    [[nodiscard]] bool exists(std::u16string_view path) const;
    [[nodiscard]] Bytes read(std::u16string_view path) const;
    /// Creates or replaces a file, folders included.
    void write(std::u16string_view path, const Bytes& content);
    void remove(std::u16string_view path);
    /// Sets the attributes of a file (1 read-only, 2 hidden, 4 system).
    virtual void setAttributes(std::u16string_view path, std::uint32_t attributes) = 0;

protected:
    /// The file of this computer that a path stands for. Raises FileNotFound (53).
    [[nodiscard]] std::filesystem::path existing(std::u16string_view path) const;

private:
    [[nodiscard]] virtual std::filesystem::path realPath(std::u16string_view path) const = 0;
    /// Sees to it that a file can be written, folders included.
    virtual void prepareToWrite(std::u16string_view path) = 0;
};

/// Attributes of files, as Files::setAttributes takes them.
namespace attributes {
inline constexpr std::uint32_t normal = 0;
inline constexpr std::uint32_t readOnly = 1;
inline constexpr std::uint32_t hidden = 2;
} // namespace attributes

} // namespace host
