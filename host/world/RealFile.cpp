#include "host/world/RealFile.h"

#include "automation/Text.h"
#include "host/world/MachineFault.h"
#include "simulator/files/WholeFile.h"

#include <algorithm>
#include <fstream>
#include <stdexcept>

namespace host {

namespace fs = std::filesystem;

fs::path pathOf(const std::string& name) {
    return {automation::fromUtf8(name)};
}

Bytes contentsOf(const fs::path& path) {
    std::optional<std::string> content;
    try {
        content = simulator::files::wholeFile(path);
    } catch (const std::ios_base::failure&) { // raised in the middle of a file
        content.reset();
    }
    if (!content) {
        std::error_code failed;
        const bool isFolder = fs::is_directory(path, failed);
        const std::string what = isFolder                   ? " is a folder: name a file"
                                 : fs::exists(path, failed) ? " cannot be read: may you read it?"
                                                            : " is not there";
        throw std::runtime_error(path.string() + what);
    }
    return {content->begin(), content->end()};
}

void writeContents(const fs::path& path, std::string_view content) {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file.write(content.data(), static_cast<std::streamsize>(content.size())).flush()) {
        throw MachineFault(path.string() + " cannot be written: is the disk full?");
    }
}

void addOnce(std::vector<fs::path>& files, const fs::path& file) {
    const auto isIt = [&](const fs::path& other) {
        std::error_code failed;
        return other == file || fs::equivalent(other, file, failed);
    };
    if (std::none_of(files.begin(), files.end(), isIt)) {
        files.push_back(file);
    }
}

} // namespace host
