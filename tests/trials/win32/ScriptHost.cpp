#include "tests/trials/ScriptHost.h"

#include "automation/Error.h"
#include "host/world/TemporaryFolder.h"
#include "simulator/files/WholeFile.h"

#include <cstdlib>

std::string trials::runScript(const std::filesystem::path& script, const std::vector<std::u16string>& arguments) {
    // A file, since a server that the script starts would keep a pipe open.
    const host::TemporaryFolder folder;
    const std::filesystem::path said = folder.path() / "said.txt";
    std::wstring command =
        L"cscript.exe //nologo \"" + std::filesystem::absolute(script).make_preferred().wstring() + L'"';
    for (const std::u16string& argument : arguments) {
        command += L" \"" + std::wstring(argument.begin(), argument.end()) + L'"';
    }
    if (_wsystem((command + L" >\"" + said.wstring() + L"\" 2>&1").c_str()) != 0) {
        automation::raise(automation::RunTimeError::CannotCreateObject);
    }
    return simulator::files::wholeFile(said).value_or("");
}
