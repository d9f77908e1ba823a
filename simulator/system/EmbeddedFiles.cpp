#include "simulator/system/EmbeddedFiles.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "simulator/system/FilePattern.h"

#include <algorithm>
#include <fstream>
#include <system_error>
#include <utility>
#include <vector>

namespace simulator {

namespace fs = std::filesystem;
using automation::raise;
using automation::RunTimeError;

namespace {

/// A name as the disk takes it, whatever it consists of.
fs::path onDisk(std::u16string_view name) {
    const std::string bytes = automation::toUtf8(name);
    return fs::path(std::u8string(bytes.begin(), bytes.end()));
}

std::u16string nameOf(const fs::path& path) {
    return automation::fromUtf8(path.filename().string());
}

/// The parts of a Windows path, the drive's letter first; blanks and dots at the end of a name do not count.
std::vector<std::u16string> partsOf(std::u16string_view path) {
    std::vector<std::u16string> parts{u"C"};
    const char16_t letter = path.size() >= 2 && path[1] == u':' ? static_cast<char16_t>(path[0] & ~0x20) : u'\0';
    if (letter >= u'A' && letter <= u'Z') {
        parts.front() = letter;
        path.remove_prefix(2);
    }
    while (!path.empty()) {
        const std::size_t end = std::min(path.find_first_of(u"\\/"), path.size());
        std::u16string_view part = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (part == u"..") {
            parts.resize(std::max<std::size_t>(parts.size() - 1, 1));
            continue;
        }
        while (part.ends_with(u'.') || part.ends_with(u' ')) {
            part.remove_suffix(1);
        }
        if (!part.empty()) {
            parts.emplace_back(part);
        }
    }
    return parts;
}

/// The entry of a folder that has a name, case ignored; the name as it stands where there is none.
fs::path entry(const fs::path& folder, std::u16string_view name) {
    fs::path exact = folder / onDisk(name);
    std::error_code failed;
    if (fs::exists(exact, failed)) {
        return exact;
    }
    for (fs::directory_iterator each(folder, failed), end; !failed && each != end; each.increment(failed)) {
        if (automation::equalIgnoringCase(nameOf(each->path()), name)) {
            return each->path();
        }
    }
    return exact;
}

bool isFile(const fs::path& path) {
    std::error_code failed;
    return fs::is_regular_file(path, failed);
}

bool isFolder(const fs::path& path) {
    std::error_code failed;
    return fs::is_directory(path, failed);
}

} // namespace

EmbeddedFiles::EmbeddedFiles(fs::path root) : root_(std::move(root)) {
    fs::create_directories(root_ / "C");
}

fs::path EmbeddedFiles::realPath(std::u16string_view path) const {
    fs::path real = root_;
    for (const std::u16string& part : partsOf(path)) {
        real = entry(real, part);
    }
    return real;
}

void EmbeddedFiles::setAttributes(std::u16string_view path, std::uint32_t attributes) {
    const fs::path file = realPath(path);
    if (!isFile(file)) {
        raise(RunTimeError::FileNotFound);
    }
    attributes_[file] = attributes;
}

std::uint32_t EmbeddedFiles::attributes(std::u16string_view path) const {
    return attributesOf(realPath(path));
}

std::uint32_t EmbeddedFiles::attributesOf(const fs::path& file) const {
    const auto found = attributes_.find(file);
    return found == attributes_.end() ? 0 : found->second;
}

void EmbeddedFiles::create(std::u16string_view path) const {
    const fs::path file = realPath(path);
    std::error_code failed;
    fs::create_directories(file.parent_path(), failed);
    if (failed || !std::ofstream(file)) {
        raise(RunTimeError::PathAccess);
    }
}

void EmbeddedFiles::clearAttributes(std::u16string_view path) {
    const fs::path file = realPath(path);
    if (!isFile(file)) {
        raise(isFolder(file.parent_path()) ? RunTimeError::FileNotFound : RunTimeError::PathNotFound);
    }
    attributes_.erase(file);
}

void EmbeddedFiles::rename(std::u16string_view from, std::u16string_view to) {
    const fs::path source = realPath(from);
    if (!isFile(source)) {
        raise(RunTimeError::FileNotFound);
    }
    fs::path target = realPath(to);
    std::error_code failed;
    if (target == source) {
        target = source.parent_path() / onDisk(partsOf(to).back());
    }
    if (target == source || (fs::exists(target, failed) && !fs::equivalent(target, source, failed))) {
        raise(RunTimeError::FileAlreadyExists);
    }
    if (!isFolder(target.parent_path())) {
        raise(RunTimeError::PathNotFound);
    }
    if (isOpen(source)) {
        raise(RunTimeError::PermissionDenied);
    }
    fs::rename(source, target, failed);
    if (failed) {
        raise(RunTimeError::PathAccess);
    }
    if (auto moved = attributes_.extract(source)) {
        moved.key() = target;
        attributes_.erase(target);
        attributes_.insert(std::move(moved));
    }
}

void EmbeddedFiles::remove(std::u16string_view path) {
    const fs::path file = realPath(path);
    if (!isFile(file)) {
        raise(RunTimeError::FileNotFound);
    }
    if (isOpen(file)) {
        raise(RunTimeError::PermissionDenied);
    }
    std::error_code failed;
    if ((attributesOf(file) & readOnly) != 0 || !fs::remove(file, failed)) {
        raise(RunTimeError::PathAccess);
    }
    attributes_.erase(file);
}

std::u16string EmbeddedFiles::find(std::u16string_view pattern, std::uint32_t attributes) {
    const std::size_t cut = pattern.find_last_of(u"\\/:") + 1;
    const std::u16string_view name = pattern.substr(cut);
    const fs::path folder = realPath(pattern.substr(0, cut));
    std::map<std::u16string, std::u16string> matches;
    std::error_code failed;
    for (fs::directory_iterator each(folder, failed), end; !failed && each != end; each.increment(failed)) {
        const std::u16string found = nameOf(each->path());
        const bool isWanted = (attributesOf(each->path()) & ~attributes & hiddenAndSystem) == 0;
        if (isWanted && isFile(each->path()) && matchesPattern(found, name)) {
            matches.emplace(automation::lowerCase(found), found);
        }
    }
    return matches.empty() ? std::u16string() : matches.begin()->second;
}

bool EmbeddedFiles::makeDirectories(std::u16string_view path) {
    const fs::path folder = realPath(path.substr(0, path.find_last_of(u'\\') + 1));
    const fs::path drive = root_ / *folder.lexically_relative(root_).begin();
    if (!isFolder(drive)) {
        return false;
    }
    std::error_code failed;
    fs::create_directories(folder, failed);
    return isFolder(folder);
}

} // namespace simulator
