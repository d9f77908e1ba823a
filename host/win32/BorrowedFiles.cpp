#include "host/win32/BorrowedFiles.h"

#include "host/world/Refusal.h"

#include <algorithm>

namespace host {

namespace fs = std::filesystem;

namespace {

/// Where a folder goes that is needed for other things; an empty one stays, since a program may stand in it.
fs::path asideOf(const fs::path& folder) {
    if (!fs::exists(folder) || fs::is_empty(folder)) {
        return fs::exists(folder) ? folder : fs::path();
    }
    return freeNameBeside(folder);
}

/// A path as others are compared with it.
fs::path folded(const fs::path& path) {
    std::wstring text = path.lexically_normal().wstring();
    CharLowerBuffW(text.data(), static_cast<DWORD>(text.size()));
    return text;
}

bool isInside(const fs::path& file, const fs::path& folder) {
    const fs::path place = folded(file).lexically_relative(folded(folder));
    return !place.empty() && *place.begin() != "..";
}

} // namespace

BorrowedFiles::BorrowedFiles(Journal& journal, const fs::path& folder) : journal_(journal), own_{folder} {
    const fs::path aside = asideOf(folder);
    journal_.note(Loan::ofFolder(folder, aside));
    if (!aside.empty() && aside != folder) {
        fs::rename(folder, aside);
    }
    fs::create_directories(folder);
}

void BorrowedFiles::setAttributes(std::u16string_view path, std::uint32_t attributes) {
    const fs::path real = existing(path);
    demandOwn(real);
    SetFileAttributesW(real.c_str(), attributes == attributes::normal ? FILE_ATTRIBUTE_NORMAL : attributes);
}

void BorrowedFiles::prepareToWrite(std::u16string_view path) {
    const fs::path real(path);
    announce(real);
    fs::create_directories(real.parent_path());
    SetFileAttributesW(real.c_str(), FILE_ATTRIBUTE_NORMAL);
}

void BorrowedFiles::announce(const fs::path& file) {
    if (isOwn(file)) {
        return;
    }
    if (fs::exists(file)) {
        demandOwn(file);
    }
    fs::path first = file;
    while (first.has_parent_path() && first.parent_path() != first && !fs::exists(first.parent_path())) {
        first = first.parent_path();
    }
    journal_.note(Loan::ofNothing(first));
    own_.push_back(first);
}

void BorrowedFiles::demandOwn(const fs::path& file) const {
    if (!isOwn(file)) {
        refuse(file.u16string() + u" was there before the scenario, and stays as it is",
               automation::RunTimeError::PermissionDenied);
    }
}

bool BorrowedFiles::isOwn(const fs::path& file) const {
    return std::any_of(own_.begin(), own_.end(), [&](const fs::path& place) { return isInside(file, place); });
}

} // namespace host
