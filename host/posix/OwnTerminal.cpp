#include "host/posix/OwnTerminal.h"

#include "host/world/TemporaryFolder.h"

#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string_view>

namespace host {

namespace {

constexpr std::array endings{SIGINT, SIGTERM, SIGHUP, SIGPIPE};

/// Ends the program as the signal would, without temporary folders. It may come while memory is being allocated or a
/// folder made, so that another program has to remove them.
void cleanUp(int signal) {
    if (const std::filesystem::path* const root = TemporaryFolder::root(); root != nullptr) {
        const pid_t remover = _Fork(); // `fork` waits for the heap
        if (remover == 0) {
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the others take texts that may be changed
            execl("/bin/rm", "rm", "-rf", "--", root->c_str(), nullptr);
            _exit(EXIT_FAILURE);
        }
        while (remover > 0 && waitpid(remover, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    std::signal(signal, SIG_DFL);
    raise(signal);
}

/// What the starter of the program wants to be ignored, `nohup` say, stays so.
void handle(int signal, void (*from)(int), void (*to)(int)) {
    struct sigaction action {};
    if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == from) {
        action.sa_handler = to;
        for (const int other : endings) {
            sigaddset(&action.sa_mask, other);
        }
        sigaction(signal, &action, nullptr);
    }
}

} // namespace

OwnTerminal::OwnTerminal() {
    for (const int signal : endings) {
        handle(signal, SIG_DFL, cleanUp);
    }
}

OwnTerminal::~OwnTerminal() {
    for (const int signal : endings) {
        handle(signal, cleanUp, SIG_DFL);
    }
}

bool OwnTerminal::takesColours() {
    const char* const kind = std::getenv("TERM");
    return isatty(STDOUT_FILENO) != 0 && kind != nullptr && std::string_view(kind) != "dumb";
}

std::size_t OwnTerminal::columns(std::FILE* output) {
    constexpr std::size_t usual = 80;
    if (isatty(fileno(output)) == 0) {
        return 0;
    }
    winsize size{};
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): the system tells it in no other way
    const bool isKnown = ioctl(fileno(output), TIOCGWINSZ, &size) == 0 && size.ws_col != 0;
    return isKnown ? size.ws_col : usual;
}

} // namespace host
