#include "host/command/Repetition.h"

#include <chrono>
#include <thread>

namespace host {

namespace fs = std::filesystem;

namespace {

/// When files were saved last, and how long they are. An editor may be about to replace one: it is missing for a
/// moment.
std::vector<std::pair<fs::file_time_type, std::uintmax_t>> stateOf(const std::vector<fs::path>& files) {
    std::vector<std::pair<fs::file_time_type, std::uintmax_t>> state;
    for (const fs::path& file : files) {
        std::error_code missing;
        const fs::file_time_type time = fs::last_write_time(file, missing);
        state.emplace_back(time, fs::file_size(file, missing));
    }
    return state;
}

} // namespace

void onEverySaving(const std::vector<fs::path>& files, const std::function<void()>& work) {
    constexpr std::chrono::milliseconds pause(200);
    for (;;) {
        const auto seen = stateOf(files);
        work();
        auto now = stateOf(files);
        for (auto before = now; now == seen || now != before; now = stateOf(files)) { // till nobody writes any more
            before = now;
            std::this_thread::sleep_for(pause);
        }
    }
}

} // namespace host
