#include "host/win32/Clearing.h"

#include "automation/Text.h"

#include <windows.h>

#include <chrono>
#include <cstdio>
#include <string>
#include <thread>
#include <vector>

namespace host {

namespace fs = std::filesystem;

namespace {

using namespace std::chrono_literals;

/// A PowerPoint that is going holds its files a little longer.
constexpr auto untilLetGo = 3000ms;
constexpr auto step = 20ms;

std::vector<fs::path> contentOf(const fs::path& folder) {
    std::vector<fs::path> content;
    for (const auto& entry : fs::directory_iterator(folder)) {
        content.push_back(entry.path());
    }
    return content;
}

void makeNormal(const fs::path& path) noexcept {
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

void removeAll(const fs::path& place) {
    const auto end = std::chrono::steady_clock::now() + untilLetGo;
    std::error_code failure;
    do {
        makeNormal(place);
        for (const auto& entry : fs::recursive_directory_iterator(place, failure)) {
            makeNormal(entry.path());
        }
        fs::remove_all(place, failure);
        if (!fs::exists(place)) {
            return;
        }
        std::this_thread::sleep_for(step);
    } while (std::chrono::steady_clock::now() < end);
    throw fs::filesystem_error("it cannot be removed", place, failure);
}

void removeContent(const fs::path& folder) {
    fs::create_directories(folder);
    for (const fs::path& each : contentOf(folder)) {
        removeAll(each);
    }
}

void sayKept(const fs::path& place, const fs::path& kept) {
    std::fprintf(stderr, "exercise-host: what is in %s now was not removed: it is in %s\n",
                 automation::toUtf8(place.u16string()).c_str(), automation::toUtf8(kept.u16string()).c_str());
}

void keepAll(const fs::path& place) {
    if (fs::is_directory(place) && fs::is_empty(place)) {
        fs::remove(place);
    } else if (fs::exists(place)) {
        const fs::path kept = freeNameBeside(place);
        fs::rename(place, kept);
        sayKept(place, kept);
    }
}

void keepContent(const fs::path& folder) {
    fs::create_directories(folder);
    if (fs::is_empty(folder)) {
        return;
    }
    const fs::path kept = freeNameBeside(folder);
    fs::create_directory(kept);
    for (const fs::path& each : contentOf(folder)) {
        fs::rename(each, kept / each.filename());
    }
    sayKept(folder, kept);
}

} // namespace

const Clearing removing{&removeAll, &removeContent};
const Clearing keeping{&keepAll, &keepContent};

fs::path freeNameBeside(const fs::path& place) {
    const std::string addition = "-" + std::to_string(GetCurrentProcessId()) + "-";
    for (DWORD number = GetTickCount();; ++number) {
        fs::path name = place.stem();
        name += addition + std::to_string(number);
        name += place.extension();
        if (name = place.parent_path() / name; !fs::exists(name)) {
            return name;
        }
    }
}

} // namespace host
