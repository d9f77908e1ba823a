#pragma once

#include "automation/observe/Observer.h"

#include <set>
#include <string>
#include <vector>

namespace trials::trace {

/// Writes the calls that cross a border down, one line for a walk from the application to a value:
/// `Application.ActivePresentation.Slides.Count`. The default member shows as "(default)", a handle of a window as
/// "(window)", that of a second one as "(window 2)".
class TraceLog final : public automation::Observer {
public:
    automation::Value around(const automation::Crossing& crossing, const Next& next) override;

    /// The lines since the last call.
    [[nodiscard]] std::vector<std::string> takeLines();
    /// The same as one text, each line ending with a line feed.
    [[nodiscard]] std::string take();

    std::size_t calls = 0;
    std::size_t automationCalls = 0;
    std::set<std::u16string> names; ///< members of PowerPoint's, each looked up once in a session through COM

private:
    [[nodiscard]] std::string lineOf(const automation::Crossing& crossing);
    void endLine();

    std::string walk_;
    std::vector<std::string> lines_;
    std::vector<std::u16string> windows_;
};

/// Calls that a line stands for: one for every member on the way to the value.
[[nodiscard]] std::size_t callsIn(std::string_view line);

} // namespace trials::trace
