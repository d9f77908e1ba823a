#include "host/bench/ProcessUse.h"

#ifdef _WIN32
#define PSAPI_VERSION 2 // what asks for memory lies in kernel32
#include <windows.h>

#include <psapi.h>
#else
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#endif

namespace host::bench {

#ifdef _WIN32

ProcessUse processUse() {
    ProcessUse use;
    PROCESS_MEMORY_COUNTERS memory{};
    if (GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof(memory)) != FALSE) {
        use.kilobytes = memory.WorkingSetSize / 1024;
    }
    DWORD handles = 0;
    if (GetProcessHandleCount(GetCurrentProcess(), &handles) != FALSE) {
        use.handles = handles;
    }
    return use;
}

#else

ProcessUse processUse() {
    ProcessUse use;
    std::ifstream status("/proc/self/status");
    for (std::string word; status >> word;) {
        std::size_t kilobytes = 0;
        if (word == "VmRSS:" && status >> kilobytes) {
            use.kilobytes = kilobytes;
            break;
        }
        status.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    std::error_code unknown;
    const std::filesystem::directory_iterator handles("/proc/self/fd", unknown);
    if (!unknown) {
        use.handles = static_cast<std::size_t>(std::distance(begin(handles), end(handles)));
    }
    return use;
}

#endif

} // namespace host::bench
