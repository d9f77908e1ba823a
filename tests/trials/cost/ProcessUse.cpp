#include "tests/trials/cost/ProcessUse.h"

#ifdef _WIN32
#define PSAPI_VERSION 2 // what asks for memory lies in kernel32
#include <windows.h>

#include <psapi.h>

#include <algorithm>
#include <array>
#include <memory>
#else
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#endif

namespace trials::cost {

#ifdef _WIN32

namespace {

/// One handle of the system's, as NtQuerySystemInformation tells of it.
struct SystemHandle {
    ULONG owner;
    UCHAR type;
    UCHAR flags;
    USHORT value;
    void* object;
    ULONG access;
};

/// Handles of this process among all of the system; for a system that does not count those of one process (Wine).
std::optional<std::size_t> handlesFound() {
    using Query = LONG(WINAPI*)(int, void*, ULONG, ULONG*);
    constexpr int systemHandles = 16;
    constexpr std::size_t most = 1U << 16U;
    const FARPROC entry = GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "NtQuerySystemInformation");
    struct Answer {
        ULONG count;
        std::array<SystemHandle, most> all;
    };
    const auto answer = std::make_unique<Answer>();
    if (entry == nullptr || reinterpret_cast<Query>(reinterpret_cast<void*>(entry))(systemHandles, answer.get(),
                                                                                    sizeof(Answer), nullptr) < 0) {
        return std::nullopt;
    }
    const auto end = answer->all.begin() + std::min<std::ptrdiff_t>(answer->count, most);
    const auto isOwn = [](const SystemHandle& handle) { return handle.owner == GetCurrentProcessId(); };
    return static_cast<std::size_t>(std::count_if(answer->all.begin(), end, isOwn));
}

} // namespace

ProcessUse processUse() {
    ProcessUse use;
    PROCESS_MEMORY_COUNTERS memory{};
    if (GetProcessMemoryInfo(GetCurrentProcess(), &memory, sizeof(memory)) != FALSE) {
        use.kilobytes = memory.WorkingSetSize / 1024;
    }
    DWORD handles = 0;
    const bool isCounted = GetProcessHandleCount(GetCurrentProcess(), &handles) != FALSE && handles != 0;
    use.handles = isCounted ? std::optional<std::size_t>(handles) : handlesFound();
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

} // namespace trials::cost
