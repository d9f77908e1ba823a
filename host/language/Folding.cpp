#include "host/language/Folding.h"

#include <algorithm>
#include <string_view>

namespace host {

namespace {

/// How many columns a text takes, in UTF-8 and with codes for colours.
std::size_t columnsOf(std::string_view text) {
    std::size_t columns = 0;
    bool isCode = false;
    for (const char c : text) {
        isCode = isCode || c == '\x1b';
        constexpr unsigned kind = 0xC0; // of a byte
        constexpr unsigned goesOn = 0x80;
        columns += isCode || (static_cast<unsigned char>(c) & kind) == goesOn ? 0 : 1;
        isCode = isCode && c != 'm';
    }
    return columns;
}

/// Where the word ends that begins here; a text in quotes is part of one where there is room.
std::size_t endOfWord(std::string_view line, std::size_t start, std::size_t room) {
    bool isQuoted = false;
    std::size_t stop = start;
    for (; stop < line.size() && (isQuoted || line[stop] != ' '); ++stop) {
        isQuoted = isQuoted != (line[stop] == '"');
    }
    const bool isWord = !isQuoted && columnsOf(line.substr(start, stop - start)) <= room;
    return isWord ? stop : std::min(line.find(' ', start), line.size());
}

std::string folded(std::string_view line, std::size_t columns) {
    const std::size_t lead = std::min(line.find_first_not_of(' '), line.size());
    const std::string indent(lead + 2 < columns / 2 ? lead + 2 : 2, ' ');
    std::string text(line.substr(0, lead));
    std::size_t column = lead;
    bool isFirst = true;
    for (std::size_t at = lead; at < line.size();) {
        const std::size_t start = std::min(line.find_first_not_of(' ', at), line.size());
        const std::size_t stop = endOfWord(line, start, columns - indent.size());
        const std::string_view word = line.substr(start, stop - start);
        if (!isFirst && !word.empty() && column + (start - at) + columnsOf(word) > columns) {
            text += '\n' + indent;
            column = indent.size();
            at = start;
        }
        text += line.substr(at, stop - at);
        column += columnsOf(line.substr(at, stop - at));
        at = stop;
        isFirst = false;
    }
    return text;
}

} // namespace

FoldedStream::FoldedStream(std::ostream& terminal, std::size_t columns)
    : std::ostream(nullptr), terminal_(terminal), buffer_(terminal, columns) {
    rdbuf(columns == 0 ? terminal.rdbuf() : &buffer_);
}

std::ostream& FoldedStream::behind() {
    flush();
    return terminal_;
}

FoldedStream::Buffer::int_type FoldedStream::Buffer::overflow(int_type c) {
    line_ += traits_type::to_char_type(c);
    if (line_.back() == '\n') {
        line_.pop_back();
        out_ << folded(line_, columns_) << '\n';
        line_.clear();
    }
    return out_ ? traits_type::not_eof(c) : traits_type::eof();
}

int FoldedStream::Buffer::sync() {
    out_ << folded(line_, columns_) << std::flush;
    line_.clear();
    return out_ ? 0 : -1;
}

std::ostream& unfolded(std::ostream& out) {
    auto* const shown = dynamic_cast<FoldedStream*>(&out);
    return shown == nullptr ? out : shown->behind();
}

} // namespace host
