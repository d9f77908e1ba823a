#pragma once

#include "platform/FileSystem.h"

#include <filesystem>
#include <functional>
#include <map>

namespace simulator {

/// The files of a computer as real files below a root folder: `C:\Dossier\x.ppt` is the file `C/Dossier/x.ppt`. Names
/// are compared without case, whatever the real file system does. Attributes are kept in memory. A drive exists where
/// its folder does; a path without a drive starts at drive C.
class EmbeddedFiles final : public platform::FileSystem {
public:
    static constexpr std::uint32_t readOnly = 1;
    static constexpr std::uint32_t hidden = 2;
    static constexpr std::uint32_t system = 4;

    /// Tells whether a program holds a real file open.
    using IsOpen = std::function<bool(const std::filesystem::path&)>;

    /// Creates the root and drive C where they are missing.
    explicit EmbeddedFiles(std::filesystem::path root);

    /// Where a Windows path lies on the real disk; never outside the root.
    [[nodiscard]] std::filesystem::path realPath(std::u16string_view path) const;
    /// Raises FileNotFound (53).
    void setAttributes(std::u16string_view path, std::uint32_t attributes);
    /// 0 for a normal file, and for one that does not exist.
    [[nodiscard]] std::uint32_t attributes(std::u16string_view path) const;
    /// Creates an empty file and the folders that it needs.
    void create(std::u16string_view path) const;
    void setIsOpen(IsOpen isOpen) { isOpen_ = std::move(isOpen); }

    void clearAttributes(std::u16string_view path) override;
    void rename(std::u16string_view from, std::u16string_view to) override;
    void remove(std::u16string_view path) override;
    /// Matches in the order of their names, case ignored.
    std::u16string find(std::u16string_view pattern, std::uint32_t attributes) override;
    bool makeDirectories(std::u16string_view path) override;

private:
    [[nodiscard]] std::uint32_t attributesOf(const std::filesystem::path& file) const;
    [[nodiscard]] bool isOpen(const std::filesystem::path& file) const { return isOpen_ && isOpen_(file); }

    std::filesystem::path root_;
    std::map<std::filesystem::path, std::uint32_t> attributes_; ///< of files that are not normal, by real path
    IsOpen isOpen_;
};

} // namespace simulator
