#pragma once

#include "host/reason/Trail.h"

namespace host::reason {

/// What the meaning of a verdict speaks of, by its words.
class Topic {
public:
    explicit Topic(std::string meaning) : meaning_(std::move(meaning)) {}

    /// True where it says which marks are there, and in which order, rather than what a shape is like.
    [[nodiscard]] bool isOfMarks() const;
    /// True where it speaks of what the learner has added.
    [[nodiscard]] bool isOfNew() const { return holds("drawn") || holds("new "); }
    /// True where it speaks of what the learner has changed, or should have.
    [[nodiscard]] bool isOfChange() const { return holds("moved") || holds("resized"); }
    /// True where it speaks of the slides as such.
    [[nodiscard]] bool isOfSlides() const { return holds("slide"); }
    /// True where it names the member by one of the words that stand for it.
    [[nodiscard]] bool names(std::u16string_view member) const;
    /// True where it names a constant: "msoTextBox" as "text box", "msoShapeRoundedRectangle" as "rounded rectangle".
    [[nodiscard]] bool namesConstant(const std::string& constant) const;
    /// True where it names the mark.
    [[nodiscard]] bool namesMark(const std::string& mark) const { return !mark.empty() && holds(mark); }
    /// What stands in it in quotes.
    [[nodiscard]] std::vector<std::string> quoted() const;

private:
    [[nodiscard]] bool holds(std::string_view words) const { return meaning_.find(words) != std::string::npos; }

    std::string meaning_;
};

} // namespace host::reason
