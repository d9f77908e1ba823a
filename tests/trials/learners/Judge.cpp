#include "tests/trials/learners/judges/Judges.h"

#include <map>

namespace trials::learners {

namespace {

Verdict nothingWrong(const Scene& /*scene*/) {
    return {};
}

template <Verdict (*verdict)(const Scene&)> Judge by(const Scene& /*prepared*/) {
    return verdict;
}

/// By a slide, from 1; where it is gone the check is refused. 0 for a letter that depends on no slide.
template <std::u16string_view (*letter)(const Work&), std::size_t slide = 1> Judge by(const Scene& /*prepared*/) {
    return [](const Scene& scene) {
        const bool isGone = slide != 0 && scene.slide(slide) == nullptr;
        return isGone ? Verdict::refused() : Verdict::of(letter(Work(scene, slide)));
    };
}

} // namespace

JudgeMaker judgeOf(std::int32_t question) {
    using namespace judges;
    static const std::map<std::int32_t, JudgeMaker> all{
        {301, by<nothingWrong>},    {302, by<nothingWrong>}, {303, by<nothingWrong>},
        {304, by<outline>},         {305, by<advice>},       {306, by<replacement>},
        {307, by<spelling>},        {308, synonym},          {309, by<box>},
        {310, by<selecting>},       {311, by<moving>},       {312, by<curve>},
        {313, by<deleting>},        {314, by<basicShape>},   {315, by<stacking>},
        {316, by<filling>},         {317, by<rectangle>},    {318, by<sizing>},
        {319, by<sizingAndMoving>}, {320, by<snapping, 0>},  {321, by<thirdDimension>},
        {322, by<grouping>},        {323, by<wordArt, 5>},
    };
    return all.at(question);
}

} // namespace trials::learners
