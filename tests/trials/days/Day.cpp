#include "tests/trials/days/Day.h"

#include "automation/Text.h"

#include <numeric>

namespace trials::days {

namespace {

/// More calls than most of a host's calls make.
constexpr std::size_t mostCalls = 320;
/// Calls with which the module makes sure that PowerPoint is there, and reads what is the learner's.
constexpr std::size_t firstCalls = 40;

constexpr std::array arrivals{Attempt::Arrival::Kept, Attempt::Arrival::Kept, Attempt::Arrival::None,
                              Attempt::Arrival::OfLearner};
constexpr std::array departures{Attempt::Departure::Fermer, Attempt::Departure::Fermer, Attempt::Departure::Nothing,
                                Attempt::Departure::Quitter, Attempt::Departure::FermerAndQuitter};

} // namespace

std::string Attempt::display() const {
    constexpr std::array<std::string_view, 3> arrivalNames{"", ", without PowerPoint",
                                                           ", with the learner's PowerPoint"};
    constexpr std::array<std::string_view, 4> departureNames{"Fermer", "nothing", "Quitter", "Fermer and Quitter"};
    std::string text = "question " + std::to_string(lesson->file.question);
    text.append(arrivalNames.at(static_cast<std::size_t>(arrival))).append(":");
    for (const std::u16string& move : moves) {
        text += " " + automation::toUtf8(move) + ";";
    }
    text.append(" then ").append(departureNames.at(static_cast<std::size_t>(departure)));
    for (const Trouble& each : troubles) {
        text += "; " + each.fault.display() + " at call " + std::to_string(each.position) + " of the host's call " +
                std::to_string(each.hostCall);
    }
    return text;
}

Planner::Planner(const std::vector<Lesson>& lessons, const std::vector<torture::Fault>& faults, std::size_t percent)
    : lessons_(lessons), faults_(faults), percent_(percent) {
    learners_.reserve(lessons.size());
    for (const Lesson& lesson : lessons) {
        learners_.emplace_back(lesson.file, lesson.course, draw_);
    }
}

Day Planner::day(std::uint32_t number, std::size_t attempts) {
    draw_ = learners::Draw(number);
    std::vector<std::size_t> order(lessons_.size() * attempts);
    std::iota(order.begin(), order.end(), std::size_t{0});
    for (std::size_t& each : order) {
        std::swap(each, order[draw_.below(order.size())]);
    }
    Day day;
    for (const std::size_t each : order) {
        day.push_back(attempt(each % lessons_.size()));
    }
    return day;
}

Attempt Planner::attempt(std::size_t lesson) {
    Attempt attempt{&lessons_[lesson], draw_.of(arrivals), learners_[lesson].work().moves, draw_.of(departures), {}};
    while (draw_.percent(percent_)) {
        const std::size_t position = draw_.between(1, draw_.percent(50) ? firstCalls : mostCalls);
        attempt.troubles.push_back({draw_.between(1, 4), draw_.of(faults_), position});
    }
    return attempt;
}

} // namespace trials::days
