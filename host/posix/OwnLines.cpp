#include "host/posix/OwnLines.h"

#include "host/try/PlainLines.h"

#include <editline/readline.h>
#include <langinfo.h>
#include <unistd.h>

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <iostream>

namespace host {

namespace {

/// Other than 0 once the user has interrupted.
volatile std::sig_atomic_t& interruption() {
    static volatile std::sig_atomic_t happened = 0;
    return happened;
}

constexpr std::array interruptions{SIGINT, SIGTERM, SIGHUP};

/// One that comes just before reading begins would not end it: it comes again every second, until nobody reads.
void interrupt(int /*signal*/) {
    interruption() = 1;
    alarm(1);
}

/// What a letter is, the terminal says; where it says nothing, lines are UTF-8 as everything that is printed.
void takeUtf8() {
    std::setlocale(LC_CTYPE, "");
    if (std::string_view(nl_langinfo(CODESET)) != "UTF-8") {
        std::setlocale(LC_CTYPE, "C.UTF-8");
    }
}

/// The library asks plain functions.
LineReader::Completer& completer() {
    static LineReader::Completer current;
    return current;
}

/// The candidates one by one, from the first where `state` is 0, each to be freed by the library; null behind
/// the last.
char* nextCandidate(const char* /*word*/, int state) {
    static std::vector<std::string> candidates;
    static std::size_t position = 0;
    if (state == 0) {
        candidates = completer()(std::string(rl_line_buffer).substr(0, static_cast<std::size_t>(rl_point)));
        position = 0;
    }
    return position < candidates.size() ? strdup(candidates[position++].c_str()) : nullptr;
}

char** complete(const char* word, int /*start*/, int /*end*/) {
    rl_attempted_completion_over = 1; // files are no candidates
    return completer() ? rl_completion_matches(word, nextCandidate) : nullptr;
}

/// There is one at a time.
class EditedLines final : public LineReader {
public:
    EditedLines();
    ~EditedLines() override;

    [[nodiscard]] std::optional<std::string> read(const std::string& prompt) override;
    void completeBy(const Completer& by) override { completer() = by; }
};

EditedLines::EditedLines() {
    static constexpr const char* breaks = " \t().,=&+-?\"";
    takeUtf8();
    rl_basic_word_break_characters = breaks;
    rl_attempted_completion_function = complete;
    rl_completion_append_character = '\0';
    rl_catch_signals = 0;
    using_history();
    struct sigaction action {};
    action.sa_handler = interrupt; // without SA_RESTART: reading must end
    sigaction(SIGALRM, &action, nullptr);
    action.sa_flags = static_cast<int>(SA_RESETHAND);
    for (const int signal : interruptions) {
        sigaction(signal, &action, nullptr);
    }
}

EditedLines::~EditedLines() {
    completer() = nullptr;
    alarm(0);
    std::signal(SIGALRM, SIG_DFL);
    for (const int signal : interruptions) {
        std::signal(signal, SIG_DFL);
    }
}

std::optional<std::string> EditedLines::read(const std::string& prompt) {
    std::cout.flush();
    const std::unique_ptr<char, decltype(&std::free)> line(interruption() != 0 ? nullptr : readline(prompt.c_str()),
                                                           &std::free);
    if (!line || interruption() != 0) {
        alarm(0);
        std::cout << '\n';
        return std::nullopt;
    }
    if (*line != '\0') {
        add_history(line.get());
    }
    return std::string(line.get());
}

} // namespace

std::unique_ptr<LineReader> makeOwnLines() {
    if (isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0) {
        return std::make_unique<EditedLines>();
    }
    return std::make_unique<PlainLines>(std::cin);
}

} // namespace host
