#pragma once

#include "platform/ApplicationServers.h"
#include "platform/FileSystem.h"
#include "platform/Keyboard.h"
#include "platform/Locale.h"
#include "platform/Registry.h"
#include "platform/WindowSystem.h"

namespace platform {

/// Everything that the module asks of the system; the services outlive whoever holds this.
struct Services {
    WindowSystem& windows;
    Registry& registry;
    FileSystem& files;
    Keyboard& keyboard;
    Locale& locale;
    ApplicationServers& servers;
};

} // namespace platform
