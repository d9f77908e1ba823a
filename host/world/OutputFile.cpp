#include "host/world/OutputFile.h"

#include "host/world/MachineFault.h"
#include "host/world/RealFile.h"

#include <algorithm>
#include <fstream>
#include <random>
#include <stdexcept>

namespace host {

namespace fs = std::filesystem;

namespace {

/// A terminal, a pipe: what is written there replaces nothing.
bool isDevice(const fs::path& path) {
    std::error_code failed;
    return fs::is_other(path, failed) || fs::is_character_file(path, failed) || fs::is_fifo(path, failed);
}

[[noreturn]] void refuse(const std::string& name) {
    throw std::runtime_error(name + " cannot be written: is there such a folder, and may you write there?");
}

bool beginsWith(const fs::path& path, const std::string& beginning) {
    std::string begun(beginning.size(), '\0');
    std::ifstream(path, std::ios::binary).read(begun.data(), static_cast<std::streamsize>(begun.size()));
    return begun == beginning;
}

/// A name beside a file that no other file has.
fs::path nameBeside(const fs::path& path) {
    std::random_device random;
    fs::path beside;
    do {
        beside = path;
        beside += ".part" + std::to_string(random());
    } while (fs::exists(beside));
    return beside;
}

/// Files that are made where they are missing, and then are no more.
class Claims {
public:
    void add(const std::string& name, const fs::path& path) {
        const bool isNew = !fs::exists(path);
        if (!std::ofstream(path, std::ios::binary | std::ios::app)) {
            refuse(name);
        }
        if (isNew) {
            made_.push_back(path);
        }
    }
    ~Claims() {
        for (const fs::path& path : made_) {
            std::error_code ignored;
            fs::remove(path, ignored);
        }
    }

private:
    std::vector<fs::path> made_;
};

} // namespace

OutputFile::OutputFile(std::string name, std::optional<std::string> replaced, std::string otherwise)
    : name_(std::move(name)), path_(pathOf(name_)), replaced_(std::move(replaced)), otherwise_(std::move(otherwise)) {
    std::error_code failed;
    if (const fs::path behind = fs::weakly_canonical(path_, failed); !isDevice(path_) && !failed) {
        path_ = behind;
    }
}

bool OutputFile::isAt(const fs::path& other) const {
    std::error_code failed;
    return fs::equivalent(path_, other, failed);
}

void OutputFile::requireNoneOf(const std::vector<fs::path>& inputs) const {
    if (std::any_of(inputs.begin(), inputs.end(), [&](const fs::path& input) { return isAt(input); })) {
        throw std::runtime_error(name_ + " is read as well: name another file to be written");
    }
}

void OutputFile::requireReplaceable() const {
    if (std::error_code failed; fs::is_directory(path_, failed)) {
        throw std::runtime_error(name_ + " is a folder: name a file");
    }
    if (!fs::exists(path_) || isDevice(path_) || (replaced_ && beginsWith(path_, *replaced_))) {
        return;
    }
    throw std::runtime_error(name_ + " is there already" + (replaced_ ? ", and is no earlier one of this kind" : "") +
                             ": name another file" + (otherwise_.empty() ? "" : ", or " + otherwise_));
}

void OutputFile::write(std::string_view content) const {
    requireReplaceable();
    if (isDevice(path_)) {
        return writeContents(path_, content);
    }
    Claims().add(name_, path_); // a file that its user protects is not replaced
    const fs::path beside = nameBeside(path_);
    try {
        writeContents(beside, content);
        if (fs::exists(path_)) {
            fs::permissions(beside, fs::status(path_).permissions());
        }
        fs::rename(beside, path_);
    } catch (...) {
        std::error_code ignored;
        fs::remove(beside, ignored);
        throw MachineFault(name_ + " cannot be written to its end: is the disk full? What stood there is unchanged");
    }
}

void OutputFile::prepare(const std::vector<OutputFile>& files, const std::vector<fs::path>& inputs) {
    Claims claims;
    for (auto file = files.begin(); file != files.end(); ++file) {
        if (isDevice(file->path_)) {
            continue;
        }
        file->requireNoneOf(inputs);
        if (std::any_of(files.begin(), file, [&](const OutputFile& other) { return file->isAt(other.path_); })) {
            throw std::runtime_error(file->name_ + " is named twice: name a file for each report");
        }
        file->requireReplaceable();
        claims.add(file->name_, file->path_);
    }
    for (const OutputFile& file : files) {
        if (!isDevice(file.path_)) {
            fs::remove(file.path_);
        }
    }
}

} // namespace host
