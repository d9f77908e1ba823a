#include "host/world/TemporaryFolder.h"

#include "host/world/MachineFault.h"
#include "host/world/RealFile.h"

#include <atomic>
#include <mutex>
#include <random>
#include <system_error>

namespace host {

namespace fs = std::filesystem;

namespace {

std::mutex& changing() {
    static std::mutex one;
    return one;
}

/// What holds all of them outlives whatever ends before the program does.
std::atomic<const fs::path*>& rootOfAll() {
    static std::atomic<const fs::path*> path = nullptr;
    return path;
}

fs::path newFolder() {
    static std::size_t count = 0;
    if (rootOfAll() == nullptr) {
        std::random_device random;
        const std::string name = "exercise-host-" + std::to_string(random()) + std::to_string(random());
        // NOLINTNEXTLINE(cppcoreguidelines-owning-memory)
        rootOfAll() = new fs::path(fs::temp_directory_path() / name);
    }
    fs::path path = *rootOfAll() / std::to_string(++count);
    fs::create_directories(path);
    return path;
}

} // namespace

TemporaryFolder::TemporaryFolder() {
    const std::lock_guard lock(changing());
    try {
        path_ = newFolder();
    } catch (const fs::filesystem_error& error) {
        throw MachineFault("no temporary folder can be made (" + error.code().message() +
                           "): is there the folder that TMPDIR names, on Windows TMP, and may you write there?");
    }
}

TemporaryFolder::~TemporaryFolder() {
    const std::lock_guard lock(changing());
    std::error_code ignored;
    fs::remove_all(path_, ignored);
    fs::remove(path_.parent_path(), ignored); // which fails where it holds another
}

const fs::path* TemporaryFolder::root() noexcept {
    return rootOfAll();
}

void TemporaryFolder::removeAll() {
    changing().lock();
    if (root() != nullptr) {
        for (int pass = 0; pass < 2; ++pass) { // what still works may have made files meanwhile
            std::error_code ignored;
            fs::remove_all(*root(), ignored);
        }
    }
}

void requireTemporaryFiles() {
    constexpr std::size_t enough = 1 << 20;
    const TemporaryFolder folder;
    writeContents(folder.path() / "probe", std::string(enough, ' '));
}

} // namespace host
