#pragma once

#include "automation/Text.h"
#include "automation/observe/CallTrace.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tests {

/// The calls that cross a border, as a reader would write them down: a walk from the application to a value is one
/// line, lines that differ from each other by a position in a collection only are one line. Reading the same twice is
/// two lines. The default member shows as "(default)".
class TraceLog {
public:
    enum class Repetition : bool { Shortened, Shown };

    explicit TraceLog(Repetition repetition = Repetition::Shortened)
        : repetition_(repetition),
          trace_(std::make_shared<automation::CallTrace>([this](const automation::TracedCall& call) { add(call); })) {}

    [[nodiscard]] const automation::ObserverPtr& observer() const noexcept { return trace_; }

    /// A text that is long or not the same at every run, and the word to show in its place.
    void hide(std::string text, std::string word) { hidden_.emplace_back(std::move(text), std::move(word)); }
    void hide(std::int32_t number, std::string word) { hide(std::to_string(number), std::move(word)); }

    /// The lines since the last call, each ending with a line feed.
    [[nodiscard]] std::string take() {
        flush();
        std::string text;
        std::string last;
        std::string lastLine;
        for (std::string& line : std::exchange(lines_, {})) {
            hideIn(line);
            std::string pattern = line;
            if (const std::size_t item = line.find("Item("); item != std::string::npos) {
                pattern.replace(item, line.find(')', item) - item, "Item(...");
            }
            const bool isNextItem = pattern == last && line != lastLine;
            lastLine = line;
            if (repetition_ == Repetition::Shortened && isNextItem) {
                text.replace(text.rfind("Item("), text.find(')', text.rfind("Item(")) - text.rfind("Item("),
                             "Item(...");
                continue;
            }
            text += line + "\n";
            last = pattern;
        }
        return text;
    }

private:
    void add(const automation::TracedCall& call) {
        std::string text = automation::toUtf8(call.call);
        text = text.empty() ? "(default)" : text;
        if (text.starts_with("Application.") || call.border != automation::Border::Automation) {
            flush();
        }
        chain_ += chain_.empty() ? text : text.substr(text.find('.'));
        if (call.outcome == u"<object>") {
            return;
        }
        if (call.failed) {
            chain_ += " -> " + automation::toUtf8(call.outcome.substr(0, call.outcome.find(u' ', 6)));
        } else if (call.border != automation::Border::Automation && call.outcome != u"Empty") {
            chain_ += " -> " + automation::toUtf8(call.outcome);
        }
        flush();
    }

    void flush() {
        if (chain_.empty()) {
            return;
        }
        lines_.push_back(std::exchange(chain_, {}));
    }

    void hideIn(std::string& line) const {
        for (const auto& [text, word] : hidden_) {
            for (std::size_t at = line.find(text); at != std::string::npos; at = line.find(text)) {
                line.replace(at, text.size(), word);
            }
        }
    }

    Repetition repetition_;
    automation::ObserverPtr trace_;
    std::string chain_;
    std::vector<std::string> lines_;
    std::vector<std::pair<std::string, std::string>> hidden_;
};

} // namespace tests
