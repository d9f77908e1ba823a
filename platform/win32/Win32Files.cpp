#include "platform/win32/Win32Files.h"

#include "automation/Error.h"
#include "automation/Unmoved.h"
#include "automation/com/WideText.h"

#include <cstddef>

namespace platform {

namespace {

using automation::RunTimeError;
using automation::com::fromWide;
using automation::com::WideText;

RunTimeError errorOf(DWORD status) noexcept {
    switch (status) {
    case ERROR_FILE_NOT_FOUND: return RunTimeError::FileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_INVALID_NAME:
    case ERROR_BAD_NETPATH: return RunTimeError::PathNotFound;
    case ERROR_FILE_EXISTS:
    case ERROR_ALREADY_EXISTS: return RunTimeError::FileAlreadyExists;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION: return RunTimeError::PermissionDenied;
    default: return RunTimeError::PathAccess;
    }
}

void require(BOOL succeeded) {
    if (succeeded == FALSE) {
        automation::raise(errorOf(GetLastError()));
    }
}

/// A directory search for the length of a scope.
class Search : automation::Unmoved {
public:
    explicit Search(std::u16string_view pattern) : handle_(FindFirstFileW(WideText(pattern).get(), &found_)) {}
    ~Search() {
        if (isOpen()) {
            FindClose(handle_);
        }
    }

    [[nodiscard]] bool isOpen() const noexcept { return handle_ != INVALID_HANDLE_VALUE; }
    [[nodiscard]] const WIN32_FIND_DATAW& found() const noexcept { return found_; }
    [[nodiscard]] bool next() noexcept { return FindNextFileW(handle_, &found_) != FALSE; }

private:
    WIN32_FIND_DATAW found_{};
    HANDLE handle_;
};

/// Where the folders of a path begin: behind its drive, or behind the server and share that it starts with.
std::size_t firstFolder(std::u16string_view path) noexcept {
    if (path.starts_with(u"\\\\")) {
        const std::size_t share = path.find(u'\\', 2);
        const std::size_t end = share == std::u16string_view::npos ? share : path.find(u'\\', share + 1);
        return end == std::u16string_view::npos ? path.size() : end + 1;
    }
    const std::size_t drive = path.size() > 1 && path[1] == u':' ? 2 : 0;
    return path.size() > drive && path[drive] == u'\\' ? drive + 1 : drive;
}

bool makeDirectory(std::u16string_view path) {
    const WideText name(path);
    if (CreateDirectoryW(name.get(), nullptr) != FALSE) {
        return true;
    }
    // Drives and folders closed to their parent's reader refuse to be created in ways of their own.
    const DWORD attributes = GetFileAttributesW(name.get());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

} // namespace

void Win32Files::clearAttributes(std::u16string_view path) {
    require(SetFileAttributesW(WideText(path).get(), FILE_ATTRIBUTE_NORMAL));
}

void Win32Files::rename(std::u16string_view from, std::u16string_view to) {
    require(MoveFileExW(WideText(from).get(), WideText(to).get(), 0));
}

void Win32Files::remove(std::u16string_view path) {
    require(DeleteFileW(WideText(path).get()));
}

std::u16string Win32Files::find(std::u16string_view pattern, std::uint32_t attributes) {
    const std::uint32_t unwanted = (hiddenAndSystem & ~attributes) | FILE_ATTRIBUTE_DIRECTORY;
    Search search(pattern);
    for (bool more = search.isOpen(); more; more = search.next()) {
        if ((search.found().dwFileAttributes & unwanted) == 0) {
            return fromWide(search.found().cFileName);
        }
    }
    return {};
}

bool Win32Files::makeDirectories(std::u16string_view path) {
    for (std::size_t end = path.find(u'\\', firstFolder(path)); end != std::u16string_view::npos;
         end = path.find(u'\\', end + 1)) {
        if (!makeDirectory(path.substr(0, end))) {
            return false;
        }
    }
    return true;
}

} // namespace platform
