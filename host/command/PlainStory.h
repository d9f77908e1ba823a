#pragma once

#include "host/command/Story.h"

namespace host {

/// Prints a story as it is told.
class PlainStory final : public Story {
public:
    /// `out` must outlive this object.
    explicit PlainStory(std::ostream& out) : out_(out) {}

    void chapter(std::string_view title) override;
    void sentence(std::string_view text) override;
    void statement(std::size_t line, std::string_view text) override;
    void call(const automation::TracedCall& traced) override;

private:
    std::ostream& out_;
};

} // namespace host
