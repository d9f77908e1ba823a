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
            std::transform(name.begin(), name.end(), name.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 32) : c; });
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

/// Functions of the system and the Windows that their documentation names as the first to have them; of those where it
/// names none of these, each is in the file that Windows XP brings.
struct Known {
    std::string library;
    std::string since;
    std::string functions;
};

const std::vector<Known> windowsXP{
    {"advapi32.dll", "Windows 2000",
     "RegCloseKey RegCreateKeyExW RegDeleteKeyW RegDeleteValueW RegEnumKeyExW RegEnumValueW RegOpenKeyExW "
     "RegQueryInfoKeyW RegQueryValueExW RegSetValueExW"},
    {"advapi32.dll", "Windows XP",
     "InitializeAcl InitializeSecurityDescriptor RegGetKeySecurity RegSetKeySecurity SetSecurityDescriptorDacl"},
    {"kernel32.dll", "Windows 2000",
     "CloseHandle DuplicateHandle GetConsoleMode GetConsoleOutputCP GetConsoleScreenBufferInfo GetHandleInformation "
     "GetLocaleInfoA GetStdHandle GetSystemTimeAdjustment GetSystemTimeAsFileTime GetTickCount IsDBCSLeadByteEx "
     "MultiByteToWideChar QueryPerformanceCounter QueryPerformanceFrequency ReadConsoleW SetConsoleCtrlHandler "
     "SetConsoleMode SetConsoleOutputCP SetLocaleInfoW SetSystemTime WideCharToMultiByte lstrcmpiA lstrcmpiW"},
    {"kernel32.dll", "Windows XP",
     "AddVectoredExceptionHandler AssignProcessToJobObject CreateDirectoryW CreateEventA CreateEventW CreateFileW "
     "CreateHardLinkW CreateIoCompletionPort CreateJobObjectW CreateMutexW CreateProcessW CreateSemaphoreA "
     "CreateWaitableTimerW DeleteCriticalSection DeleteFileW EnterCriticalSection FileTimeToSystemTime FindClose "
     "FindFirstFileW FindFirstVolumeW FindNextFileW FindNextVolumeW FindVolumeClose FormatMessageA FormatMessageW "
     "FreeLibrary GetCommandLineW GetCurrentProcess GetCurrentProcessId GetCurrentThread GetCurrentThreadId "
     "GetDiskFreeSpaceExW GetEnvironmentVariableW GetFileAttributesW GetFileInformationByHandle GetFileSizeEx "
     "GetFileType GetFullPathNameW GetLastError GetModuleFileNameW GetModuleHandleA GetModuleHandleExW "
     "GetModuleHandleW GetProcAddress GetProcessAffinityMask GetProcessTimes GetQueuedCompletionStatus "
     "GetStartupInfoA GetTempPathW GetThreadContext GetThreadPriority GetThreadTimes GetVolumeInformationW "
     "InitializeCriticalSection InitializeCriticalSectionAndSpinCount IsDebuggerPresent LeaveCriticalSection "
     "LoadLibraryA LoadLibraryW LocalFree MoveFileExW OpenEventW OpenProcess OpenThread OutputDebugStringA "
     "PostQueuedCompletionStatus QueueUserAPC RaiseException ReadFile ReleaseMutex ReleaseSemaphore RemoveDirectoryW "
     "RemoveVectoredExceptionHandler ResetEvent ResumeThread SetEndOfFile SetEvent SetFileAttributesW SetFilePointer "
     "SetInformationJobObject SetLastError SetProcessAffinityMask SetThreadContext SetThreadPriority "
     "SetUnhandledExceptionFilter SetWaitableTimer Sleep SleepEx SuspendThread TerminateProcess TerminateThread "
     "TlsAlloc TlsFree TlsGetValue TlsSetValue TryEnterCriticalSection VerSetConditionMask VerifyVersionInfoW "
     "VirtualProtect VirtualQuery WaitForMultipleObjects WaitForSingleObject WriteFile"},
    {"ole32.dll", "Windows 2000",
     "CLSIDFromProgID CoCreateInstance CoGetClassObject CoInitializeEx CoRegisterClassObject CoRegisterMessageFilter "
     "CoRevokeClassObject CoUninitialize StringFromGUID2"},
    {"shell32.dll", "Windows 2000", "CommandLineToArgvW SHGetFolderPathW"},
    {"shell32.dll", "Windows XP", "ShellExecuteA"},
    {"mswsock.dll", "none", "AcceptEx GetAcceptExSockaddrs"},
    {"ws2_32.dll", "none",
     "WSACleanup WSAGetLastError WSARecv WSASend WSASocketW WSAStartup bind closesocket getsockname htonl htons "
     "ioctlsocket listen ntohl ntohs setsockopt shutdown"},
    {"user32.dll", "Windows 2000",
     "CharLowerBuffW CreateDialogIndirectParamW CreateWindowExW DefWindowProcW DestroyWindow DispatchMessageW "
     "EnableWindow EnumWindows FindWindowW GetAncestor GetClassNameW GetForegroundWindow GetKeyState GetMessageW "
     "GetParent GetWindow GetWindowLongW GetWindowThreadProcessId InternalGetWindowText IsDialogMessageW "
     "IsHungAppWindow IsIconic IsWindow IsWindowEnabled IsWindowVisible IsZoomed LoadCursorW PeekMessageW "
     "PostQuitMessage PostThreadMessageW RegisterClassW SendInput SendMessageTimeoutW SetForegroundWindow "
     "SetWindowLongW SetWindowTextW ShowWindow ShowWindowAsync TranslateMessage"},
    {"user32.dll", "Windows XP", "AttachThreadInput MsgWaitForMultipleObjects"},
    {"ole32.dll", "none", "CreateErrorInfo GetErrorInfo SetErrorInfo"},
    {"oleaut32.dll", "none",
     "GetActiveObject LoadTypeLibEx RegisterActiveObject RevokeActiveObject SafeArrayCreate SafeArrayDestroy "
     "SafeArrayGetDim SafeArrayGetElemsize SafeArrayGetLBound SafeArrayGetUBound SafeArrayPtrOfIndex "
     "SysAllocStringLen SysFreeString SysStringLen VariantChangeTypeEx VariantClear VariantInit"},
    {"msvcrt.dll", "none",
     "__getmainargs __initenv __mb_cur_max __p__acmdln __p__commode __p__fmode __set_app_type __setusermatherr "
     "_amsg_exit _assert _beginthreadex _cexit _close _endthreadex _errno _exit _fdopen _filelengthi64 _fileno "
     "_findclose _fstat64 _get_osfhandle _hypot _initterm _iob _isatty _lock _lseeki64 _onexit _read _setjmp3 "
     "_snwprintf _strdup _telli64 _ultoa _unlock _wchdir _wchmod _wfindfirst _wfindnext _wfopen _wfullpath _wgetcwd "
     "_wmkdir _wopen _write _wstat64 _wutime abort atoi calloc exit fclose fflush fgetpos fopen fprintf fputc fputs "
     "fputwc fread free fsetpos fwprintf fwrite getc getenv getwc islower isspace isupper iswctype localeconv longjmp "
     "malloc memchr memcmp memcpy memmove memset printf putc putwc realloc setlocale setvbuf signal strchr strcmp "
     "strcoll strerror strftime strlen strncmp strncpy strtol strtoul strxfrm towlower towupper ungetc ungetwc "
     "vfprintf wcscat wcscmp wcscoll wcscpy wcsftime wcslen wcstoul wcsxfrm"},
};

bool isKnown(const std::string& library, const std::string& function) {
    return std::ranges::any_of(windowsXP, [&](const Known& known) {
        return known.library == library &&
               (' ' + known.functions + ' ').find(' ' + function + ' ') != std::string::npos;
    });
}

/// What a file takes from the system that is not known to be there on Windows XP.
std::string missingOnWindowsXP(const Image& image) {
    std::string missing;
    for (const auto& [library, functions] : image.imports()) {
        for (const std::string& function : functions) {
            missing += isKnown(library, function) ? "" : library + ' ' + function + '\n';
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
        EXPECT_TRUE(std::ranges::find(windowsXP, name, &Known::library) != std::end(windowsXP)) << name;
    }
    EXPECT_EQ(image.exports(), (std::set<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllInstall",
                                                      "DllRegisterServer", "DllUnregisterServer"}));
}

TEST(LibraryFileTest, LoadsOnWindowsXPWith32Bits) {
    if (sizeof(void*) == 4) {
        EXPECT_EQ(missingOnWindowsXP(Image(tests::Library().handle())), "");
        const HMODULE host = LoadLibraryExW(tests::Library::pathBeside(L"..\\host\\exercise-host.exe").c_str(), nullptr,
                                            DONT_RESOLVE_DLL_REFERENCES);
        ASSERT_NE(host, nullptr) << GetLastError();
        EXPECT_EQ(missingOnWindowsXP(Image(host)), "");
        FreeLibrary(host);
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
