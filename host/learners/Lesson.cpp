#include "host/learners/Lesson.h"

#include "automation/Text.h"
#include "host/language/Words.h"

#include <algorithm>
#include <limits>
#include <sstream>
#include <stdexcept>

namespace host::learners {

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
    return line == "nothing" ? u"" : automation::fromUtf8(line);
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
    bool isBetween = true;
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with("lesson ")) {
            lessons.push_back(headOf(line));
        } else if (!line.empty()) {
            Lesson& lesson = lessons.back();
            if (isBetween) {
                lesson.steps.emplace_back();
            }
            lesson.steps.back().push_back(wayOf(line, lesson.slide));
        }
        isBetween = line.empty();
    }
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

} // namespace host::learners
