#include "host/win32/Browser.h"

#include <io.h>
#include <windows.h>

#include <shellapi.h>

namespace host {

void showInBrowser(const std::string& address) {
    if (_isatty(1) != 0) {
        ShellExecuteA(nullptr, "open", address.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
    }
}

} // namespace host
