#pragma once

#include "automation/Unmoved.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace host {

/// Where the lines of a conversation come from.
class LineReader : automation::Unmoved {
public:
    /// The words that could stand in the place of the last, unfinished one of a line; asked while a line is typed.
    using Completer = std::function<std::vector<std::string>(const std::string& line)>;

    virtual ~LineReader() = default;

    /// The next line in UTF-8, without its end; nothing at the end of the input, or where the user interrupts
    /// it. There may be more behind: he may think better of it.
    [[nodiscard]] virtual std::optional<std::string> read(const std::string& prompt) = 0;
    /// True where somebody types them who can be asked something.
    [[nodiscard]] virtual bool isTyped() const { return false; }
    /// Where lines can be completed, this says how.
    virtual void completeBy(const Completer& /*completer*/) {}
};

/// Makes the reader of the program's own input.
using LineReaderMaker = std::function<std::unique_ptr<LineReader>()>;

} // namespace host
