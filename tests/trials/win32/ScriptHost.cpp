#include "tests/trials/ScriptHost.h"

#include "automation/Error.h"
#include "host/win32/Handle.h"
#include "host/world/TemporaryFolder.h"
#include "simulator/files/WholeFile.h"

namespace trials {

namespace {

namespace fs = std::filesystem;

constexpr DWORD patience = 3600 * 1000;

/// A file that a process started from here can write to.
host::Handle inheritable(const fs::path& file) {
    SECURITY_ATTRIBUTES security{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return host::Handle(CreateFileW(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, &security,
                                    CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
}

std::wstring commandLine(const fs::path& script, const std::vector<std::u16string>& arguments) {
    std::wstring line = L"cscript.exe //nologo \"" + fs::absolute(script).make_preferred().wstring() + L'"';
    for (const std::u16string& argument : arguments) {
        line += L" \"" + std::wstring(argument.begin(), argument.end()) + L'"';
    }
    return line;
}

/// Runs a command, what it prints into a file; true where it ends well.
bool runInto(const host::Handle& output, std::wstring command) {
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = output.get();
    startup.hStdError = output.get();
    PROCESS_INFORMATION started{};
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &started) ==
        FALSE) {
        return false;
    }
    const host::Handle process(started.hProcess);
    const host::Handle thread(started.hThread);
    if (!process.isSignalled(patience)) {
        TerminateProcess(process.get(), 1);
        return false;
    }
    DWORD code = 1;
    return GetExitCodeProcess(process.get(), &code) != FALSE && code == 0;
}

} // namespace

std::string runScript(const fs::path& script, const std::vector<std::u16string>& arguments) {
    // A file, since a server that the script starts would keep a pipe open.
    const host::TemporaryFolder folder;
    const fs::path said = folder.path() / "said.txt";
    if (!runInto(inheritable(said), commandLine(script, arguments))) {
        automation::raise(automation::RunTimeError::CannotCreateObject);
    }
    return simulator::files::wholeFile(said).value_or("");
}

} // namespace trials
