#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace platform {

/// The file services of the run time. Paths are Windows paths; names are compared without case.
class FileSystem {
public:
    /// Attributes that a directory search finds besides normal files.
    static constexpr std::uint32_t hiddenAndSystem = 6;

    virtual ~FileSystem() = default;

    /// Sets a file's attributes to normal. Raises FileNotFound (53), PathNotFound (76) or PathAccess (75).
    virtual void clearAttributes(std::u16string_view path) = 0;
    /// Renames a file. Raises FileNotFound (53), FileAlreadyExists (58) where the new name is taken, PathNotFound (76)
    /// where its folder is missing, PermissionDenied (70) for an open file, or PathAccess (75).
    virtual void rename(std::u16string_view from, std::u16string_view to) = 0;
    /// Deletes a file. Raises FileNotFound (53), PathAccess (75) for a read-only file, or PermissionDenied (70) for an
    /// open one.
    virtual void remove(std::u16string_view path) = 0;
    /// Name of the first file that matches a path whose last part may hold `*` and `?`; empty where there is none, or
    /// where the folder cannot be read. Folders are never found.
    virtual std::u16string find(std::u16string_view pattern, std::uint32_t attributes) = 0;
    /// Creates every missing folder of a path, up to its last backslash. False where one cannot be created.
    virtual bool makeDirectories(std::u16string_view path) = 0;
};

} // namespace platform
