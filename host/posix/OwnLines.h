#pragma once

#include "host/try/LineReader.h"

namespace host {

/// The lines that are typed at this program's terminal, with editing, history and completion; plain lines where its
/// input or its output is no terminal. Ctrl-C drops a line that is half typed. Any other interruption (Ctrl-C with
/// nothing typed, the terminal closed) ends the lines, so that whoever reads them can clean up; a second one meanwhile
/// ends the program.
[[nodiscard]] std::unique_ptr<LineReader> makeOwnLines();

} // namespace host
