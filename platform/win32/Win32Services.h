#pragma once

#include "platform/Services.h"
#include "platform/win32/Win32Files.h"
#include "platform/win32/Win32Keyboard.h"
#include "platform/win32/Win32Locale.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/Win32Servers.h"
#include "platform/win32/Win32Windows.h"

namespace platform {

/// Everything that the module asks of Windows. Automation servers need a thread that has entered COM.
class Win32Services {
public:
    [[nodiscard]] Services services() noexcept { return {windows_, registry_, files_, keyboard_, locale_, servers_}; }

private:
    Win32Windows windows_;
    Win32Registry registry_;
    Win32Files files_;
    Win32Keyboard keyboard_;
    Win32Locale locale_;
    Win32Servers servers_;
};

} // namespace platform
