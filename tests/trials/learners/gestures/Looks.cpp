#include "tests/trials/learners/Gestures.h"

#include <array>

namespace trials::learners::looks {

namespace {

std::u16string fill(const Hand& hand) {
    return said(hand.anyShape(), hand.draw.percent(70) ? u".Fill.ForeColor.RGB = " : u".Fill.BackColor.RGB = ",
                hand.color());
}

std::u16string fillOfScheme(const Hand& hand) {
    return said(hand.anyShape(), hand.draw.percent(60) ? u".Fill.ForeColor" : u".Fill.BackColor", u".SchemeColor = ",
                hand.draw.between(1, 8));
}

std::u16string otherFill(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 8> ways{
        u".Fill.Transparency = 0.5",
        u".Fill.Transparency = 0",
        u".Fill.Visible = msoFalse",
        u".Fill.Visible = msoTrue",
        u".Fill.Solid",
        u".Fill.TwoColorGradient msoGradientHorizontal, 1",
        u".Fill.Patterned msoPattern10Percent",
        u".Fill.PresetTextured msoTexturePapyrus",
    };
    return said(hand.anyShape(), hand.draw.of(ways));
}

std::u16string line(const Hand& hand) {
    return hand.anyShape() + (hand.draw.percent(50) ? u".Line.Weight = 3" : u".Line.Visible = msoFalse");
}

std::u16string shadow(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 3> ways{
        u".Shadow.Visible = msoTrue", u".Shadow.Visible = msoFalse", u".Shadow.Type = msoShadow6"};
    return said(hand.anyShape(), hand.draw.of(ways));
}

std::u16string thirdDimension(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 5> ways{
        u".ThreeD.SetThreeDFormat msoThreeD1", u".ThreeD.SetThreeDFormat msoThreeD4", u".ThreeD.Visible = msoTrue",
        u".ThreeD.Visible = msoFalse", u".ThreeD.Depth = 20"};
    return said(hand.anyShape(), hand.draw.of(ways));
}

std::u16string format(const Hand& hand) {
    return said(hand.anyShape(), u".PickUp\n", hand.anyShape(), u".Apply");
}

std::u16string otherShape(const Hand& hand) {
    return said(hand.anyShape(), u".AutoShapeType = ", hand.draw.between(1, 70));
}

constexpr auto all = std::to_array<Habit>({{4, fill},
                                           {1, fillOfScheme},
                                           {4, otherFill},
                                           {1, line},
                                           {2, shadow},
                                           {3, thirdDimension},
                                           {1, format},
                                           {3, otherShape}});

} // namespace

std::span<const Habit> habits() noexcept {
    return all;
}

} // namespace trials::learners::looks
