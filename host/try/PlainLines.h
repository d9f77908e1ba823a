#pragma once

#include "host/try/LineReader.h"

#include <istream>

namespace host {

/// Lines of a file or of another program, which wants no prompts.
class PlainLines final : public LineReader {
public:
    /// `in` must outlive this object.
    explicit PlainLines(std::istream& in) : in_(in) {}

    [[nodiscard]] std::optional<std::string> read(const std::string& /*prompt*/) override {
        std::string line;
        return std::getline(in_, line) ? std::optional(std::move(line)) : std::nullopt;
    }

private:
    std::istream& in_;
};

} // namespace host
