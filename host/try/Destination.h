#pragma once

#include <string>

namespace host {

/// Where a scenario goes, as it is stated behind a verb: a file, in quotes or ending with ".scn" where blanks are in
/// its name, and a title in quotes, its own quotes doubled or not; without one it is the name of the file.
struct Destination {
    /// Raises std::runtime_error, which says how it is stated.
    Destination(const std::string& verb, const std::string& stated);

    std::string file;     ///< in UTF-8
    std::u16string title; ///< as it is read
};

} // namespace host
