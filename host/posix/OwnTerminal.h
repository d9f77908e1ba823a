#pragma once

#include "automation/Unmoved.h"

namespace host {

/// What this program is to the terminal that started it, as long as this lives: Ctrl-C, a request to end, the terminal
/// closed and a reader of its output that has gone end it as they end any program, but leave no temporary folder.
class OwnTerminal : automation::Unmoved {
public:
    OwnTerminal();
    ~OwnTerminal();

    /// True where what is printed goes to a terminal that has colours.
    [[nodiscard]] static bool takesColours();
};

} // namespace host
