#include "host/win32/BorrowedFiles.h"

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

bool isInside(const fs::path& file, const fs::path& folder) {
    const fs::path place = file.lexically_normal().lexically_relative(folder.lexically_normal());
    return !place.empty() && *place.begin() != "..";
}

} // namespace

BorrowedFiles::BorrowedFiles(Journal& journal, const fs::path& folder) : journal_(journal), folder_(folder) {
    const fs::path aside = asideOf(folder);
    journal_.note(Loan::ofFolder(folder, aside));
    if (!aside.empty() && aside != folder) {
        fs::rename(folder, aside);
    }
    fs::create_directories(folder);
}

void BorrowedFiles::announce(const fs::path& file) {
    if (isInside(file, folder_) || fs::exists(file)) {
        return;
    }
    fs::path first = file;
    while (first.has_parent_path() && first.parent_path() != first && !fs::exists(first.parent_path())) {
        first = first.parent_path();
    }
    journal_.note(Loan::ofNothing(first));
}

} // namespace host
