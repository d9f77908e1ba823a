#include "tests/library/Library.h"
#include "tests/win32/Program.h"

#include <gtest/gtest.h>
#include <winver.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace file_tests {

/// The tables of a loaded file.
class Image {
public:
    explicit Image(HMODULE module) : base_(reinterpret_cast<const std::byte*>(module)) {}

    /// The functions that it takes from each library.
    [[nodiscard]] std::map<std::string, std::set<std::string>> imports() const {
        std::map<std::string, std::set<std::string>> names;
        const auto* each = at<IMAGE_IMPORT_DESCRIPTOR>(directory(IMAGE_DIRECTORY_ENTRY_IMPORT));
        for (; each->Name != 0; ++each) {
            std::string name = at<char>(each->Name);
            std::transform(name.begin(), name.end(), name.begin(), [](char c) { return static_cast<char>(c | 32); });
            for (const auto* entry = at<IMAGE_THUNK_DATA>(each->OriginalFirstThunk); entry->u1.Ordinal != 0; ++entry) {
                EXPECT_FALSE(IMAGE_SNAP_BY_ORDINAL(entry->u1.Ordinal)) << name;
                names[name].insert(at<IMAGE_IMPORT_BY_NAME>(static_cast<DWORD>(entry->u1.AddressOfData))->Name);
            }
        }
        return names;
    }

    [[nodiscard]] std::set<std::string> exports() const {
        const auto& table = *at<IMAGE_EXPORT_DIRECTORY>(directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
        const auto* const names = at<DWORD>(table.AddressOfNames);
        std::set<std::string> result;
        for (DWORD i = 0; i < table.NumberOfNames; ++i) {
            result.insert(at<char>(names[i]));
        }
        EXPECT_EQ(table.NumberOfFunctions, table.NumberOfNames);
        return result;
    }

private:
    template <typename T> [[nodiscard]] const T* at(DWORD offset) const {
        return reinterpret_cast<const T*>(base_ + offset);
    }
    [[nodiscard]] DWORD directory(int index) const {
        const auto* const headers = at<IMAGE_NT_HEADERS>(static_cast<DWORD>(at<IMAGE_DOS_HEADER>(0)->e_lfanew));
        return headers->OptionalHeader.DataDirectory[index].VirtualAddress;
    }

    const std::byte* base_;
};

/// Of what the system has, that which its documentation says to be there on Windows XP; the C library's is that of the
/// file which Windows XP brings.
const std::map<std::string, std::string> windowsXP{
    {"advapi32.dll", "RegCloseKey RegCreateKeyExW RegDeleteKeyW RegDeleteValueW RegEnumValueW RegOpenKeyExW "
                     "RegQueryInfoKeyW RegQueryValueExW RegSetValueExW"},
    {"kernel32.dll",
     "AddVectoredExceptionHandler CloseHandle CreateDirectoryW CreateEventA CreateSemaphoreA "
     "DeleteCriticalSection DeleteFileW DuplicateHandle EnterCriticalSection FileTimeToSystemTime "
     "FindClose FindFirstFileW FindNextFileW FormatMessageA FormatMessageW FreeLibrary GetCurrentProcess "
     "GetCurrentProcessId GetCurrentThread GetCurrentThreadId GetFileAttributesW GetHandleInformation "
     "GetLastError GetLocaleInfoA GetModuleFileNameW GetModuleHandleExW GetModuleHandleW GetProcAddress "
     "GetProcessAffinityMask GetProcessTimes GetSystemTimeAdjustment GetSystemTimeAsFileTime "
     "GetThreadContext GetThreadPriority GetThreadTimes InitializeCriticalSection IsDBCSLeadByteEx "
     "IsDebuggerPresent LeaveCriticalSection LoadLibraryA LoadLibraryW LocalFree MoveFileExW "
     "MultiByteToWideChar OpenProcess OutputDebugStringA QueryPerformanceCounter QueryPerformanceFrequency "
     "RaiseException ReleaseSemaphore RemoveVectoredExceptionHandler ResetEvent ResumeThread SetEvent "
     "SetFileAttributesW SetLastError SetProcessAffinityMask SetSystemTime SetThreadContext "
     "SetThreadPriority Sleep SuspendThread TlsFree TlsGetValue TlsSetValue TryEnterCriticalSection "
     "VirtualProtect VirtualQuery WaitForMultipleObjects WaitForSingleObject WideCharToMultiByte lstrcmpiA "
     "lstrcmpiW"},
    {"msvcrt.dll",
     "__mb_cur_max _amsg_exit _assert _beginthreadex _close _endthreadex _errno _initterm _iob _lock _read "
     "_setjmp3 _strdup _ultoa _unlock abort atoi calloc exit fprintf fputc fputs free fwrite localeconv "
     "longjmp malloc memchr memcmp memcpy memmove memset printf realloc setlocale strchr strcmp strerror "
     "strlen strncmp vfprintf wcslen wcstombs"},
    {"ole32.dll", "CLSIDFromProgID CoCreateInstance CreateErrorInfo SetErrorInfo"},
    {"oleaut32.dll",
     "GetActiveObject LoadTypeLibEx SafeArrayCreate SafeArrayDestroy SafeArrayGetDim SafeArrayGetElemsize "
     "SafeArrayGetLBound SafeArrayGetUBound SafeArrayPtrOfIndex SysAllocStringLen SysFreeString "
     "SysStringLen VariantChangeTypeEx VariantClear VariantInit"},
    {"user32.dll", "AttachThreadInput DispatchMessageW FindWindowW GetClassNameW GetForegroundWindow GetKeyState "
                   "GetParent GetWindow GetWindowLongW GetWindowThreadProcessId InternalGetWindowText IsHungAppWindow "
                   "IsIconic IsWindow IsWindowVisible PeekMessageW PostQuitMessage SendInput SendMessageTimeoutW "
                   "SetForegroundWindow ShowWindow ShowWindowAsync TranslateMessage"},
};

/// What a file takes from the system that is not there on Windows XP.
std::string missingOnWindowsXP(const Image& image) {
    std::string missing;
    for (const auto& [library, functions] : image.imports()) {
        const auto known = windowsXP.find(library);
        for (const std::string& function : functions) {
            if (known == windowsXP.end() ||
                (' ' + known->second + ' ').find(' ' + function + ' ') == std::string::npos) {
                missing += library + ' ' + function + '\n';
            }
        }
    }
    return missing;
}

TEST(LibraryFileTest, ImportsTheSystemAloneAndExportsPlainNames) {
    const tests::Library library;
    const Image image(library.handle());
    const auto imports = image.imports();
    EXPECT_FALSE(imports.empty());
    for (const auto& [name, functions] : imports) {
        EXPECT_TRUE(windowsXP.contains(name)) << name;
    }
    EXPECT_EQ(image.exports(), (std::set<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllInstall",
                                                      "DllRegisterServer", "DllUnregisterServer"}));
}

TEST(LibraryFileTest, LoadsOnWindowsXPWith32Bits) {
    if (sizeof(void*) == 4) {
        EXPECT_EQ(missingOnWindowsXP(Image(tests::Library().handle())), "");
    }
}

TEST(LibraryFileTest, IsLoadedAgainAndAgainByAHostThatSharesTheCompilersRuntime) {
    const tests::Program host(L"tests\\win32\\shared-runtime\\shared-runtime.exe",
                              L'"' + tests::Library::path() + L'"');
    EXPECT_EQ(host.exitCode(), 0U);
    EXPECT_EQ(host.output(), "1200 times\r\n");
}

TEST(LibraryFileTest, IsOfTheVersionThatWasBuilt) {
    const std::wstring path = tests::Library::path();
    std::vector<std::byte> resource(GetFileVersionInfoSizeW(path.c_str(), nullptr));
    ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueW(resource.data(), L"\\", reinterpret_cast<void**>(&fixed), &size));
    ASSERT_EQ(size, sizeof(*fixed));
    EXPECT_EQ(fixed->dwFileType, static_cast<DWORD>(VFT_DLL));
    constexpr std::array<WORD, 4> built K73053_VERSION;
    for (const auto& [high, low] : {std::pair(fixed->dwFileVersionMS, fixed->dwFileVersionLS),
                                    std::pair(fixed->dwProductVersionMS, fixed->dwProductVersionLS)}) {
        EXPECT_EQ((std::array<WORD, 4>{HIWORD(high), LOWORD(high), HIWORD(low), LOWORD(low)}), built);
    }
}

} // namespace file_tests
