#include "tests/trials/learners/judges/Judges.h"

namespace trials::learners::judges::looks {

namespace {

using simulator::Shape;

constexpr std::int32_t grey = 0x808080;

const Shape& shapeOf(const Work& work, std::u16string_view mark) noexcept {
    return *work.find(mark)->shape;
}

std::int32_t rgbOf(const Work& work, const simulator::Color& color) {
    return color.in(work.scene().active()->colors);
}

constexpr auto filling = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.misses(u"ZOR1"); }},
    {u"Z", [](const Work& work) { return work.isInGroup(u"ZOR1"); }},
    {u"B", [](const Work& work) { return shapeOf(work, u"ZOR1").fill.transparency > 0; }},
    {u"G", [](const Work& work) { return shapeOf(work, u"ZOR1").fill.type != simulator::msoFillSolid; }},
    {u"C",
     [](const Work& work) {
         const simulator::Fill& fill = shapeOf(work, u"ZOR1").fill;
         return !fill.visible || rgbOf(work, fill.fore) == rgbOf(work, fill.back);
     }},
    {u"D", [](const Work& work) { return rgbOf(work, shapeOf(work, u"ZOR1").fill.fore) == grey; }},
});

constexpr auto snapping = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.scene().active()->snapToGrid; }},
});

constexpr auto thirdDimension = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.misses(u"ZOR4"); }},
    {u"Z", [](const Work& work) { return work.isInGroup(u"ZOR4"); }},
    {u"B", [](const Work& work) { return shapeOf(work, u"ZOR4").shadow.visible; }},
    {u"D", [](const Work& work) { return !shapeOf(work, u"ZOR4").threeD.visible; }},
    {u"E", [](const Work& work) { return shapeOf(work, u"ZOR4").threeD.preset == simulator::msoTriStateMixed; }},
    {u"C", [](const Work& work) { return shapeOf(work, u"ZOR4").threeD.preset != 1; }},
});

constexpr auto all = std::to_array<RuleBook>({
    {316, 1, filling},
    {320, 0, snapping},
    {321, 1, thirdDimension},
});

} // namespace

std::span<const RuleBook> books() noexcept {
    return all;
}

} // namespace trials::learners::judges::looks
