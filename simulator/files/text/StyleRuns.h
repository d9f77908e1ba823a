#pragma once

#include "simulator/files/records/Record.h"
#include "simulator/files/text/TextException.h"

#include <cassert>

namespace simulator::text {

/// A run of a text's style record.
struct StyleRun {
    std::size_t length = 0;
    std::uint16_t level = 0; ///< of paragraphs, from 0
    TextException exception;

    friend bool operator==(const StyleRun&, const StyleRun&) = default;
};

/// The runs of a text's style record. They cover the text and the paragraph mark that ends it unwritten.
struct StyleRuns {
    std::vector<StyleRun> paragraphs;
    std::vector<StyleRun> characters;

    /// Runs of no exception over so many characters.
    static StyleRuns plain(std::size_t length);
    /// The runs for so many characters; what the record leaves out is covered by runs of no exception.
    static StyleRuns read(std::string_view data, std::size_t length);
    /// Those of a text's records: of its style record, or of the levels that a master's text has in the place of one.
    static StyleRuns of(const std::vector<records::Record>& block, std::size_t length);
    [[nodiscard]] std::string bytes() const;

    /// Adds a run, to the last one where it says the same.
    static void append(std::vector<StyleRun>& runs, StyleRun run);
};

/// Finds the runs of characters that come one after the other.
class RunWalk {
public:
    /// There must be a run, and the runs must outlive this object.
    explicit RunWalk(const std::vector<StyleRun>& runs) noexcept : runs_(runs) { assert(!runs.empty()); }

    /// The run that covers a character, the last one past the end; places must not go back.
    [[nodiscard]] const StyleRun& at(std::size_t place) noexcept {
        assert(place >= start_);
        while (current_ + 1 < runs_.size() && place >= start_ + runs_[current_].length) {
            start_ += runs_[current_++].length;
        }
        return runs_[current_];
    }

private:
    const std::vector<StyleRun>& runs_;
    std::size_t current_ = 0;
    std::size_t start_ = 0; ///< of the current run
};

} // namespace simulator::text
