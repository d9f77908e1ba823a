#pragma once

#include "automation/Unmoved.h"

#include <cstdio>

namespace host {

/// What this program is to the console that started it, as long as this lives: its texts are UTF-8; Ctrl-C and the
/// console closed end it as they end any program, but leave no temporary folder.
class OwnTerminal : automation::Unmoved {
public:
    OwnTerminal();
    ~OwnTerminal();

    /// True where what is printed goes to a console that has colours.
    [[nodiscard]] static bool takesColours();
    /// How wide the console is that an output of the program goes to; 0 where it goes elsewhere.
    [[nodiscard]] static std::size_t columns(std::FILE* output);
};

} // namespace host
