#include "host/bench/Memory.h"

#include <fstream>
#include <limits>
#include <string>

namespace host::bench {

std::optional<std::size_t> residentKilobytes() {
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        std::size_t kilobytes = 0;
        if (word == "VmRSS:" && status >> kilobytes) {
            return kilobytes;
        }
        status.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return std::nullopt;
}

} // namespace host::bench
