#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>
#include <utility>
#include <vector>

namespace host::language {

/// Where something stands in a scenario file; lines and columns count from 1, columns in characters.
struct Position {
    std::size_t line = 1;
    std::size_t column = 1;

    friend bool operator==(const Position&, const Position&) = default;
};

/// Something said about a place of a scenario file, in UTF-8.
struct Remark {
    Position place;
    std::string message;

    /// `file:line:column: message`
    [[nodiscard]] std::string in(const std::string& file) const {
        return file + ":" + std::to_string(place.line) + ":" + std::to_string(place.column) + ": " + message;
    }
};

/// A line that the language does not take; the remark says what was expected.
struct SyntaxError : std::exception {
    explicit SyntaxError(Remark what) : remark(std::move(what)) {}
    [[nodiscard]] const char* what() const noexcept override { return remark.message.c_str(); }

    Remark remark;
};

/// A move that raised, or a check that the host read otherwise.
struct Failure : std::exception {
    explicit Failure(Remark what, std::int32_t number = 0) : remark(std::move(what)), error(number) {}
    [[nodiscard]] const char* what() const noexcept override { return remark.message.c_str(); }

    Remark remark;
    std::int32_t error; ///< the number that the move raised; 0 where a check fell short
};

/// All wrong lines of a scenario file, in order.
struct WrongLines : std::exception {
    WrongLines(std::string fileName, std::vector<Remark> found)
        : file(std::move(fileName)), remarks(std::move(found)) {}
    [[nodiscard]] const char* what() const noexcept override { return remarks.front().message.c_str(); }

    std::string file;
    std::vector<Remark> remarks;
};

} // namespace host::language
