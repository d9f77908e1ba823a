#pragma once

#include "host/try/LineReader.h"

namespace host {

/// The lines that are typed at this program's console, which has its own editing and history; plain lines where its
/// input is no console. The first interruption (Ctrl-C, the console closed) ends the lines, so that whoever reads them
/// can put everything back; the second ends the program.
[[nodiscard]] std::unique_ptr<LineReader> makeOwnLines();

} // namespace host
