#pragma once

#include "automation/Unmoved.h"

namespace host {

/// What this program is to the console that started it, as long as this lives: its texts are UTF-8; Ctrl-C and the
/// console closed end it as they end any program, but leave no temporary folder.
class OwnTerminal : automation::Unmoved {
public:
    OwnTerminal();
    ~OwnTerminal();

    /// True where what is printed goes to a console that has colours.
    [[nodiscard]] static bool takesColours();
};

} // namespace host
