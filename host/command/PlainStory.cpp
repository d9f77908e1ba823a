#include "host/command/PlainStory.h"

#include "automation/Text.h"
#include "host/language/Folding.h"
#include "host/language/Words.h"

#include <iomanip>
#include <ostream>

namespace host {

using automation::toUtf8;

void PlainStory::chapter(std::string_view title) {
    out_ << title << std::endl;
}

void PlainStory::sentence(std::string_view text) {
    out_ << "    " << text << std::endl;
}

void PlainStory::statement(std::size_t line, std::string_view text) {
    std::string lines(text);
    replaceAll(lines, "\n", "\n         "); // as deep as the first
    unfolded(out_) << std::setw(7) << line << "  " << lines << std::endl;
}

void PlainStory::call(const automation::TracedCall& traced) {
    const auto microseconds = std::chrono::duration<double, std::micro>(traced.time).count();
    out_ << "  " << std::fixed << std::setprecision(1) << std::setw(9) << microseconds << " us  " << std::left
         << std::setw(10) << toUtf8(nameOf(traced.border)) << std::right << "  " << toUtf8(traced.call) << " -> "
         << toUtf8(traced.outcome) << '\n';
}

} // namespace host
