#pragma once

#include "platform/ApplicationServers.h"

namespace platform {

/// The automation servers registered on the machine.
class Win32Servers final : public ApplicationServers {
public:
    /// Found in the running-object table.
    automation::ObjectPtr attach(std::u16string_view programmaticId) override;
    /// Always in a process of its own.
    automation::ObjectPtr create(std::u16string_view programmaticId) override;
};

} // namespace platform
