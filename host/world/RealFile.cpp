#include "host/world/RealFile.h"

#include "automation/Text.h"
#include "simulator/files/WholeFile.h"

#include <fstream>
#include <stdexcept>

namespace host {

namespace {

namespace fs = std::filesystem;

std::ofstream openedAnew(const fs::path& path) {
    return std::ofstream(path, std::ios::binary | std::ios::trunc);
}

[[noreturn]] void refuse(const fs::path& path) {
    throw std::runtime_error(path.string() + " cannot be written: is there such a folder, and may you write there?");
}

} // namespace

fs::path pathOf(const std::string& name) {
    return {automation::fromUtf8(name)};
}

Bytes contentsOf(const fs::path& path) {
    auto content = simulator::files::wholeFile<Bytes>(path);
    if (!content) {
        throw std::runtime_error("no file: " + path.string());
    }
    return *std::move(content);
}

void writeContents(const fs::path& path, std::string_view content) {
    std::ofstream file = openedAnew(path);
    if (!file.write(content.data(), static_cast<std::streamsize>(content.size())).flush()) {
        refuse(path);
    }
}

void clearForWriting(const fs::path& path) {
    if (!openedAnew(path)) {
        refuse(path);
    }
    if (std::error_code failed; fs::is_regular_file(fs::symlink_status(path, failed))) { // a terminal stays
        fs::remove(path, failed);
    }
}

} // namespace host
