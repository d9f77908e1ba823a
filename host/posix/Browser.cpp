#include "host/posix/Browser.h"

#include <unistd.h>

#include <cstdlib>

namespace host {

void showInBrowser(const std::string& address) {
    const bool isDesktop = std::getenv("DISPLAY") != nullptr || std::getenv("WAYLAND_DISPLAY") != nullptr;
    if (isDesktop && isatty(STDOUT_FILENO) != 0) {
        // What becomes of it does not matter: the address is printed.
        [[maybe_unused]] const int ignored =
            std::system(("xdg-open '" + address + "' >/dev/null 2>&1 </dev/null &").c_str());
    }
}

} // namespace host
