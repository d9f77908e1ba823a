#pragma once

#include <ostream>
#include <streambuf>
#include <string>

namespace host {

/// What a terminal shows: lines are folded at blanks to its width, and what goes on stands two blanks further in than
/// the line. No word is broken, and what stands in quotes only where no line has room for it; colours take no room.
class FoldedStream final : public std::ostream {
public:
    /// `terminal` must outlive this object. For no columns, lines stay as they are.
    FoldedStream(std::ostream& terminal, std::size_t columns);

    /// What has been written so far has gone to this stream.
    [[nodiscard]] std::ostream& behind();

private:
    class Buffer final : public std::streambuf {
    public:
        Buffer(std::ostream& out, std::size_t columns) : out_(out), columns_(columns) {}

    protected:
        int_type overflow(int_type c) override;
        int sync() override;

    private:
        std::ostream& out_;
        std::size_t columns_;
        std::string line_;
    };

    std::ostream& terminal_;
    Buffer buffer_;
};

/// The stream itself, for lines that must be copied or read as they are: statements, values, JSON.
[[nodiscard]] std::ostream& unfolded(std::ostream& out);

} // namespace host
