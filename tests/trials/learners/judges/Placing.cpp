#include "tests/trials/learners/judges/Judges.h"

namespace trials::learners::judges::placing {

namespace {

constexpr simulator::Frame sun{481.625F, 368.375F, 194.75F, 125.125F};

bool isBetween(float value, float least, float most) noexcept {
    return value >= least && value <= most;
}

const simulator::Frame& frameOf(const Work& work, std::u16string_view mark) noexcept {
    return work.find(mark)->shape->frame();
}

constexpr auto moving = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.misses(u"ZOR2"); }},
    {u"Z", [](const Work& work) { return work.isInGroup(u"ZOR2"); }},
    {u"B", [](const Work& work) { return work.misses(u"ZOR1"); }},
    {u"Z", [](const Work& work) { return work.isInGroup(u"ZOR1"); }},
    {u"C", [](const Work& work) { return !stands(work.find(u"ZOR1"), sun); }},
    {u"D",
     [](const Work& work) {
         return frameOf(work, u"ZOR2").width != 444.5F || frameOf(work, u"ZOR2").height != 40.875F;
     }},
    {u"E", [](const Work& work) { return frameOf(work, u"ZOR2").top == 35 && frameOf(work, u"ZOR2").left == 57.875F; }},
    {u"F",
     [](const Work& work) {
         return !isBetween(frameOf(work, u"ZOR2").top, 128, 260) || !isBetween(frameOf(work, u"ZOR2").left, 105, 195);
     }},
});

constexpr auto stacking = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.misses(u"ZOR3"); }},
    {u"Z", [](const Work& work) { return work.isInGroup(u"ZOR3"); }},
    {u"B", [](const Work& work) { return work.findStanding(u"ZOR2") == nullptr; }},
    {u"C",
     [](const Work& work) {
         return !stands(work.find(u"ZOR3"), {110.5F, 139.625F, 504.625F, 79.375F});
     }},
    {u"D",
     [](const Work& work) {
         const simulator::Frame& frame = work.findStanding(u"ZOR2")->shape->frame();
         return frame.left != 138.875F || frame.top != 156.625F;
     }},
    {u"E", [](const Work& work) { return work.findStanding(u"ZOR2")->place < work.find(u"ZOR3")->place; }},
});

constexpr auto sizing = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.misses(u"ZOR4"); }},
    {u"Z", [](const Work& work) { return work.isInGroup(u"ZOR4"); }},
    {u"B", [](const Work& work) { return !isBetween(frameOf(work, u"ZOR4").width, 56.5F, 56.75F); }},
    {u"C", [](const Work& work) { return !isBetween(frameOf(work, u"ZOR4").height, 56.5F, 56.75F); }},
});

constexpr auto sizingAndMoving = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.misses(u"ZOR4"); }},
    {u"Z", [](const Work& work) { return work.isInGroup(u"ZOR4"); }},
    {u"B", [](const Work& work) { return work.misses(u"ZOR2"); }},
    {u"Z", [](const Work& work) { return work.isInGroup(u"ZOR2"); }},
    {u"C", [](const Work& work) { return !stands(work.find(u"ZOR2"), sun); }},
    {u"D",
     [](const Work& work) {
         return frameOf(work, u"ZOR4").width != 56.625F || frameOf(work, u"ZOR4").height != 56.625F;
     }},
    {u"F", [](const Work& work) { return frameOf(work, u"ZOR4").top != 311.625F; }},
    {u"E", [](const Work& work) { return frameOf(work, u"ZOR4").left != 311.625F; }},
});

constexpr auto all = std::to_array<RuleBook>({
    {311, 1, moving},
    {315, 1, stacking},
    {318, 1, sizing},
    {319, 1, sizingAndMoving},
});

} // namespace

std::span<const RuleBook> books() noexcept {
    return all;
}

} // namespace trials::learners::judges::placing
