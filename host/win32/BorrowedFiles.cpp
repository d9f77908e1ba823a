#include "host/win32/BorrowedFiles.h"

#include <windows.h>

#include <system_error>
#include <utility>

namespace host {

namespace fs = std::filesystem;

namespace {

void makeNormal(const fs::path& path) {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

/// Read-only files, too, and without a word where one is held open.
void removeAll(const fs::path& path) {
    std::error_code ignored;
    makeNormal(path);
    for (const auto& entry : fs::recursive_directory_iterator(path, ignored)) {
        makeNormal(entry.path());
    }
    fs::remove_all(path, ignored);
}

} // namespace

BorrowedFiles::BorrowedFiles(fs::path folder) : folder_(std::move(folder)) {
    if (fs::exists(folder_)) {
        aside_ = folder_;
        aside_ += "-" + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(GetTickCount64());
        fs::rename(folder_, aside_);
    }
    fs::create_directories(folder_);
}

BorrowedFiles::~BorrowedFiles() {
    for (const fs::path& path : created_) {
        removeAll(path);
    }
    removeAll(folder_);
    if (!aside_.empty()) {
        std::error_code ignored;
        fs::rename(aside_, folder_, ignored);
    }
}

void BorrowedFiles::announce(const fs::path& file) {
    if (fs::exists(file)) {
        return;
    }
    fs::path first = file;
    while (first.has_parent_path() && first.parent_path() != first && !fs::exists(first.parent_path())) {
        first = first.parent_path();
    }
    created_.push_back(std::move(first));
}

} // namespace host
