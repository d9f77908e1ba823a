#include "tests/trials/trace/TraceLog.h"

#include "automation/Text.h"

#include <algorithm>
#include <utility>

namespace trials::trace {

automation::Value TraceLog::around(const automation::Crossing& crossing, const Next& next) {
    const bool isAutomation = crossing.border == automation::Border::Automation;
    const std::string line = lineOf(crossing);
    ++calls;
    if (isAutomation) {
        ++automationCalls;
        names.insert(std::u16string(crossing.target).append(u".").append(crossing.member));
    }
    if (line.starts_with("Application.") || !isAutomation) {
        endLine();
    }
    walk_ += walk_.empty() ? line : line.substr(line.find('.'));
    try {
        automation::Value result = next();
        if (!result.isObject()) {
            endLine();
        }
        return result;
    } catch (...) {
        endLine();
        throw;
    }
}

std::vector<std::string> TraceLog::takeLines() {
    endLine();
    return std::exchange(lines_, {});
}

std::string TraceLog::take() {
    std::string text;
    for (const std::string& line : takeLines()) {
        text += line + '\n';
    }
    return text;
}

std::string TraceLog::lineOf(const automation::Crossing& crossing) {
    std::string line = automation::toUtf8(crossing.display());
    if (crossing.border != automation::Border::Window || crossing.member == u"findWindow") {
        return line;
    }
    const std::u16string window = crossing.arguments.front().display();
    auto known = std::find(windows_.begin(), windows_.end(), window);
    if (known == windows_.end() && window != u"0") {
        known = windows_.insert(windows_.end(), window);
    }
    const std::string name = window == u"0" ? "0"
                             : known == windows_.begin()
                                 ? "(window)"
                                 : "(window " + std::to_string(known - windows_.begin() + 1) + ")";
    return line.substr(0, line.find('(') + 1) + name + line.substr(line.find_first_of(",)"));
}

void TraceLog::endLine() {
    if (!walk_.empty()) {
        lines_.push_back(std::exchange(walk_, {}));
    }
}

std::size_t callsIn(std::string_view line) {
    if (line == "(default)") {
        return 1;
    }
    std::size_t calls = 0;
    int depth = 0;
    for (const char c : line) {
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        calls += c == '.' && depth == 0 ? 1 : 0;
        if (c == '=' && depth == 0) {
            break;
        }
    }
    return calls;
}

} // namespace trials::trace
