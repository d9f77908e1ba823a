#include "host/posix/OwnLines.h"

#include "host/try/PlainLines.h"

#include <editline/readline.h>
#include <langinfo.h>
#include <termios.h>
#include <unistd.h>

#include <array>
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
std::array<struct sigaction, interruptions.size()>& formerActions() {
    static std::array<struct sigaction, interruptions.size()> actions;
    return actions;
}

/// One that comes just before reading begins would not end it: reading is woken every second, until nobody reads.
void wake(int /*signal*/) {
    alarm(1);
}

/// The second ends the program as it would be ended without this reader.
void interrupt(int signal) {
    if (interruption() != 0) {
        for (std::size_t i = 0; i < interruptions.size(); ++i) {
            sigaction(interruptions.at(i), &formerActions().at(i), nullptr);
        }
        raise(signal);
        return;
    }
    interruption() = signal;
    alarm(1);
}

/// While a line is typed, Ctrl-C is a key like others: it drops what is typed of it, or leaves where nothing is.
class InterruptAsKey {
public:
    InterruptAsKey() {
        tcgetattr(STDIN_FILENO, &former_);
        termios changed = former_;
        changed.c_cc[VINTR] = _POSIX_VDISABLE;
        tcsetattr(STDIN_FILENO, TCSADRAIN, &changed);
    }
    InterruptAsKey(const InterruptAsKey&) = delete;
    InterruptAsKey& operator=(const InterruptAsKey&) = delete;
    ~InterruptAsKey() { tcsetattr(STDIN_FILENO, TCSADRAIN, &former_); }

private:
    termios former_{};
};

bool& isDropped() {
    static bool dropped = false;
    return dropped;
}

int drop(int /*count*/, int /*key*/) {
    isDropped() = rl_end > 0;
    rl_done = 1;
    return 0;
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
    [[nodiscard]] bool isTyped() const override { return true; }
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
    constexpr int controlC = 3;
    rl_add_defun("drop-line", drop, controlC);
    struct sigaction action {};
    action.sa_handler = wake; // without SA_RESTART: reading must end
    sigaction(SIGALRM, &action, nullptr);
    action.sa_handler = interrupt;
    for (std::size_t i = 0; i < interruptions.size(); ++i) {
        sigaction(interruptions.at(i), &action, &formerActions().at(i));
    }
}

EditedLines::~EditedLines() {
    completer() = nullptr;
    alarm(0);
    std::signal(SIGALRM, SIG_DFL);
    for (std::size_t i = 0; i < interruptions.size(); ++i) {
        sigaction(interruptions.at(i), &formerActions().at(i), nullptr);
    }
}

std::optional<std::string> EditedLines::read(const std::string& prompt) {
    std::cout.flush();
    while (interruption() == 0) {
        isDropped() = false;
        const InterruptAsKey key;
        const std::unique_ptr<char, decltype(&std::free)> line(readline(prompt.c_str()), &std::free);
        if (isDropped()) {
            std::cout << "^C" << std::endl;
            continue;
        }
        if (!line || interruption() != 0) {
            break;
        }
        if (*line != '\0') {
            add_history(line.get());
        }
        return std::string(line.get());
    }
    alarm(0);
    if (interruption() == SIGINT) { // of what ran before; the others do not ask
        interruption() = 0;
    }
    std::cout << '\n';
    return std::nullopt;
}

} // namespace

std::unique_ptr<LineReader> makeOwnLines() {
    if (isatty(STDIN_FILENO) != 0 && isatty(STDOUT_FILENO) != 0) {
        return std::make_unique<EditedLines>();
    }
    return std::make_unique<PlainLines>(std::cin);
}

} // namespace host
