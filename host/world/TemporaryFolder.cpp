#include "host/world/TemporaryFolder.h"

#include "host/world/MachineFault.h"
#include "host/world/RealFile.h"

#include <mutex>
#include <random>
#include <set>
#include <system_error>

namespace host {

namespace fs = std::filesystem;

namespace {

/// The folders that there are.
struct Folders {
    std::mutex mutex;
    std::set<fs::path> paths;
};

/// They outlive whatever ends before the program does.
Folders& folders() {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory, cppcoreguidelines-avoid-non-const-global-variables)
    static auto* const all = new Folders;
    return *all;
}

fs::path newFolder() {
    std::random_device random;
    fs::path path;
    do {
        path = fs::temp_directory_path() / ("exercise-host-" + std::to_string(random()));
    } while (!fs::create_directory(path));
    return path;
}

} // namespace

TemporaryFolder::TemporaryFolder() {
    const std::lock_guard lock(folders().mutex);
    try {
        path_ = newFolder();
    } catch (const fs::filesystem_error& error) {
        throw MachineFault("no temporary folder can be made (" + error.code().message() +
                           "): is there the folder that TMPDIR names, on Windows TMP, and may you write there?");
    }
    folders().paths.insert(path_);
}

TemporaryFolder::~TemporaryFolder() {
    const std::lock_guard lock(folders().mutex);
    std::error_code ignored;
    fs::remove_all(path_, ignored);
    folders().paths.erase(path_);
}

void TemporaryFolder::removeAll() {
    folders().mutex.lock();
    for (int pass = 0; pass < 2; ++pass) { // what still works may have made files meanwhile
        for (const fs::path& path : folders().paths) {
            std::error_code ignored;
            fs::remove_all(path, ignored);
        }
    }
}

void requireTemporaryFiles() {
    constexpr std::size_t enough = 1 << 20;
    const TemporaryFolder folder;
    writeContents(folder.path() / "probe", std::string(enough, ' '));
}

} // namespace host
