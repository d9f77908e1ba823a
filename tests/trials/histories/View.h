#pragma once

#include "simulator/document/Presentation.h"

#include <string>
#include <vector>

namespace trials::histories {

/// What is seen of a presentation, in lines that a second reader of its file can give as well. Fields are parted by
/// tabs: "master", "title master", "slide" or "notes" (of the slide before) and its tags; "shape", depth in groups,
/// kind in the file, placeholder, left, top, width and height in master units, rotation, flips, fill, text, runs of
/// text (their lengths with size, styles and colour), tags and name; "?" for the shapes of a damaged master.
[[nodiscard]] std::vector<std::string> viewOf(const simulator::Presentation& presentation);

/// What two views differ in first; empty where they agree. Places may differ by a master unit; "?" is a kind or a
/// fill that one of them cannot tell, or a size or colour of text or a usual name that the second cannot.
[[nodiscard]] std::string differenceOf(const std::vector<std::string>& ours, const std::vector<std::string>& theirs);

} // namespace trials::histories
