#include "automation/Error.h"
#include "automation/Text.h"
#include "simulator/win32/Registration.h"
#include "simulator/win32/Server.h"

#include <objbase.h>

#include <cstdio>

namespace {

using simulator::standin::Options;

void perform(const Options& options) {
    switch (options.task) {
    case Options::Task::Register: return simulator::standin::registerServer(options.view);
    case Options::Task::Unregister: return simulator::standin::unregisterServer(options.view);
    case Options::Task::Run: break;
    }
    simulator::standin::Server(options).run();
}

/// A program with windows has no console of its own: it writes to the one that it was started from.
void useConsole() {
    if (GetStdHandle(STD_ERROR_HANDLE) == nullptr && AttachConsole(ATTACH_PARENT_PROCESS) != FALSE) {
        // NOLINTBEGIN(cppcoreguidelines-owning-memory): they stay open as long as the program runs
        std::freopen("CONOUT$", "w", stdout);
        std::freopen("CONOUT$", "w", stderr);
        // NOLINTEND(cppcoreguidelines-owning-memory)
    }
}

} // namespace

int main(int count, char** arguments) {
    const auto line = simulator::standin::readCommandLine({arguments + 1, arguments + count});
    if (!line.options) {
        useConsole();
        std::fputs(line.output.c_str(), line.exitCode == 0 ? stdout : stderr);
        return line.exitCode;
    }
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int status = 0;
    try {
        perform(*line.options);
    } catch (...) {
        useConsole();
        const std::string text = automation::toUtf8(automation::currentError().description());
        std::fprintf(stderr, "powerpnt-standin: %s\n", text.c_str());
        status = 1;
    }
    CoUninitialize();
    return status;
}
