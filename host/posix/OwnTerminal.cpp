#include "host/posix/OwnTerminal.h"

#include "host/world/TemporaryFolder.h"

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <string_view>
#include <thread>

namespace host {

namespace {

constexpr std::array endings{SIGINT, SIGTERM, SIGHUP, SIGPIPE};

/// Signals go from the handler, which may do next to nothing, to the thread that cleans up.
struct Bell {
    int read = -1;
    int write = -1;
};

Bell& bell() {
    static Bell one;
    return one;
}

void ring(int signal) {
    const int error = errno;
    const auto number = static_cast<unsigned char>(signal);
    const bool isHeard = ::write(bell().write, &number, 1) == 1;
    while (isHeard && signal == SIGPIPE) { // NOLINT(bugprone-infinite-loop): the other thread ends the program
        pause();                           // nobody reads what would be written next
    }
    errno = error;
}

void cleanUpAtTheBell() {
    unsigned char signal = 0;
    while (::read(bell().read, &signal, 1) != 1) {
    }
    TemporaryFolder::removeAll();
    std::signal(signal, SIG_DFL);
    kill(getpid(), signal);
}

/// What the starter of the program wants to be ignored, `nohup` say, stays so.
void handle(int signal, void (*from)(int), void (*to)(int)) {
    struct sigaction action {};
    if (sigaction(signal, nullptr, &action) == 0 && action.sa_handler == from) {
        action.sa_handler = to;
        action.sa_flags = SA_RESTART;
        sigaction(signal, &action, nullptr);
    }
}

} // namespace

OwnTerminal::OwnTerminal() {
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        return;
    }
    bell() = {ends[0], ends[1]};
    std::thread(cleanUpAtTheBell).detach();
    for (const int signal : endings) {
        handle(signal, SIG_DFL, ring);
    }
}

OwnTerminal::~OwnTerminal() {
    for (const int signal : endings) {
        handle(signal, ring, SIG_DFL);
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
