#pragma once

#include "automation/Unmoved.h"

#include <cstdio>

namespace host {

/// What this program is to the terminal that started it, as long as this lives: Ctrl-C, a request to end, the terminal
/// closed and a reader of its output that has gone end it as they end any program, but leave no temporary folder.
class OwnTerminal : automation::Unmoved {
public:
    OwnTerminal();
    ~OwnTerminal();

    /// True where what is printed goes to a terminal that has colours.
    [[nodiscard]] static bool takesColours();
    /// How wide the terminal is that an output of the program goes to, 80 where it does not say; 0 where the output
    /// goes elsewhere.
    [[nodiscard]] static std::size_t columns(std::FILE* output);
};

} // namespace host
