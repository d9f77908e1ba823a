#include "host/world/Files.h"

#include "automation/Error.h"
#include "host/world/RealFile.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace host {

namespace fs = std::filesystem;

std::vector<std::u16string> Files::namesIn(std::u16string_view folder) const {
    std::vector<std::u16string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(realPath(folder))) {
        if (entry.is_regular_file()) {
            names.push_back(entry.path().filename().u16string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

bool Files::exists(std::u16string_view path) const {
    return fs::is_regular_file(realPath(path));
}

Bytes Files::read(std::u16string_view path) const {
    return contentsOf(existing(path));
}

void Files::write(std::u16string_view path, const Bytes& content) {
    prepareToWrite(path);
    writeContents(realPath(path), std::string(content.begin(), content.end()));
}

void Files::remove(std::u16string_view path) {
    setAttributes(path, attributes::normal); // Windows removes no read-only file
    fs::remove(existing(path));
}

fs::path Files::existing(std::u16string_view path) const {
    fs::path real = realPath(path);
    if (!fs::is_regular_file(real)) {
        automation::raise(automation::RunTimeError::FileNotFound);
    }
    return real;
}

} // namespace host
