#include "tests/win32/Program.h"

#include "simulator/files/WholeFile.h"
#include "tests/library/Library.h"

#include <gtest/gtest.h>

namespace tests {

namespace fs = std::filesystem;

namespace {
constexpr DWORD patience = 120000;
}

Program::Program(const std::wstring& name, const std::wstring& arguments)
    : printed_(fs::temp_directory_path() / (L"K73053-" + std::to_wstring(GetCurrentProcessId()) + L".txt")) {
    SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    const HANDLE output = CreateFileW(printed_.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_DELETE, &inherited,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr);
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output;
    startup.hStdError = output;
    std::wstring command = L'"' + Library::pathBeside(L"..\\" + name) + L"\" " + arguments;
    PROCESS_INFORMATION process{};
    EXPECT_NE(CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &process),
              FALSE)
        << fs::path(command);
    CloseHandle(process.hThread);
    CloseHandle(output);
    process_ = process.hProcess;
}

Program::~Program() {
    kill();
    CloseHandle(process_);
    std::error_code ignored;
    fs::remove(printed_, ignored);
}

void Program::kill() const {
    TerminateProcess(process_, 1);
    WaitForSingleObject(process_, patience);
}

DWORD Program::exitCode() const {
    DWORD code = STILL_ACTIVE;
    WaitForSingleObject(process_, patience);
    GetExitCodeProcess(process_, &code);
    return code;
}

std::string Program::output() const {
    return simulator::files::wholeFile(printed_).value_or("");
}

} // namespace tests
