#include "tests/trials/learners/Lesson.h"

#include "automation/Text.h"
#include "host/language/Words.h"

#include <algorithm>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <utility>

namespace trials::learners {

namespace {

std::u16string wayOf(std::string line, std::size_t slide) {
    replaceAll(line, " | ", "\n");
    replaceAll(line, "~", ".TextFrame.TextRange");
    for (std::size_t place = line.find('@'); place != std::string::npos; place = line.find('@', place)) {
        const std::size_t end = line.find_first_not_of("0123456789", place + 1);
        const std::string number = line.substr(place + 1, end - place - 1);
        line.replace(place, end - place,
                     "ActivePresentation.Slides(" + (number.empty() ? std::to_string(slide) : number) + ").Shapes");
    }
    return automation::fromUtf8(line);
}

/// A step of lines that speak of one target.
Step stepOf(const std::vector<std::string>& lines, std::string_view target, std::size_t slide) {
    constexpr std::string_view nothing = "nothing";
    Step step;
    for (std::string line : lines) {
        if (line.starts_with(nothing)) {
            const std::string_view times = std::string_view(line).substr(nothing.size()); // " x2"
            step.resize(step.size() + (times.empty() ? 1U : static_cast<std::size_t>(times.back() - '0')));
        } else {
            replaceAll(line, "^", target);
            step.push_back(wayOf(line, slide));
        }
    }
    return step;
}

/// Adds a step, or one for each target where its first line names several.
void addSteps(std::vector<std::string> lines, Lesson& lesson) {
    std::istringstream words(lines.front());
    std::string word;
    if (words >> word; word != "for") {
        lesson.steps.push_back(stepOf(lines, {}, lesson.slide));
        return;
    }
    lines.erase(lines.begin());
    while (words >> word) {
        lesson.steps.push_back(stepOf(lines, word, lesson.slide));
    }
}

Lesson headOf(const std::string& line) {
    Lesson lesson;
    std::istringstream words(line);
    std::string word;
    words >> word >> lesson.question >> word >> lesson.slide;
    words.ignore(std::numeric_limits<std::streamsize>::max(), ':');
    for (std::string outcome; words >> outcome;) {
        replaceAll(outcome, "_", " ");
        lesson.outcomes.push_back(outcome);
    }
    return lesson;
}

void readLessons(std::string_view text, std::vector<Lesson>& lessons) {
    std::istringstream lines{std::string(text)};
    std::vector<std::string> ofStep;
    const auto endStep = [&] {
        if (!ofStep.empty()) {
            addSteps(std::exchange(ofStep, {}), lessons.back());
        }
    };
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("lesson ")) {
            lessons.push_back(headOf(line));
        } else if (line.empty()) {
            endStep();
        } else {
            ofStep.push_back(line);
        }
    }
    endStep();
}

} // namespace

const Lesson& lessonOf(std::int32_t question) {
    static const std::vector<Lesson> all = [] {
        std::vector<Lesson> read;
        for (const std::string_view text : {lessons::texts, lessons::drawings, lessons::looks}) {
            readLessons(text, read);
        }
        return read;
    }();
    const auto found =
        std::find_if(all.begin(), all.end(), [question](const Lesson& lesson) { return lesson.question == question; });
    if (found == all.end()) {
        throw std::out_of_range("there is no lesson for question " + std::to_string(question));
    }
    return *found;
}

} // namespace trials::learners
