#include "tests/trials/learners/Gestures.h"

#include <array>

namespace trials::learners::handling {

namespace {

std::u16string move(const Hand& hand) {
    return said(hand.anyShape(), hand.draw.percent(50) ? u".Left = " : u".Top = ", hand.length());
}

std::u16string nudge(const Hand& hand) {
    return said(hand.anyShape(), hand.draw.percent(50) ? u".IncrementLeft " : u".IncrementTop ",
                hand.draw.percent(50) ? u"1" : u"-0.125");
}

std::u16string resize(const Hand& hand) {
    return said(hand.anyShape(), hand.draw.percent(50) ? u".Width = " : u".Height = ", hand.length());
}

std::u16string turn(const Hand& hand) {
    return hand.anyShape() + (hand.draw.percent(50) ? u".Rotation = 90" : u".Flip msoFlipHorizontal");
}

std::u16string remove(const Hand& hand) {
    return hand.anyShape() + u".Delete";
}

std::u16string duplicate(const Hand& hand) {
    return hand.anyShape() + u".Duplicate";
}

std::u16string cutAndPaste(const Hand& hand) {
    return said(hand.anyShape(), hand.draw.percent(50) ? u".Cut\n" : u".Copy\n", hand.shapes(), u".Paste");
}

std::u16string restack(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 4> ways{u"BringToFront", u"SendToBack", u"BringForward",
                                                             u"SendBackward"};
    return said(hand.anyShape(), u".ZOrder mso", hand.draw.of(ways));
}

std::u16string group(const Hand& hand) {
    return hand.severalShapes() + u".Group";
}

std::u16string ungroup(const Hand& hand) {
    return hand.anyShape() + u".Ungroup";
}

std::u16string regroup(const Hand& hand) {
    return hand.severalShapes() + u".Regroup";
}

std::u16string inGroup(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 3> ways{u".Delete", u".Left = 300", u".Select"};
    return said(hand.anyShape(), u".GroupItems(", hand.draw.between(1, 2), u")", hand.draw.of(ways));
}

std::u16string select(const Hand& hand) {
    switch (hand.draw.below(7)) {
    case 0: return hand.severalShapes() + u".Select";
    case 1: return hand.shapes() + u".SelectAll";
    case 2: return hand.anyShape() + u".Select msoFalse";
    case 3: return hand.anyShape() + u".TextFrame.TextRange.Select";
    case 4: return u"ActiveWindow.Selection.Unselect";
    case 5: return said(u"ActivePresentation.Slides(", hand.slide, u").Select");
    default: return hand.anyShape() + u".Select";
    }
}

std::u16string deleteSelected(const Hand& /*hand*/) {
    return u"ActiveWindow.Selection.Delete";
}

std::u16string rename(const Hand& hand) {
    return said(hand.anyShape(), u".Name = \"Forme ", hand.draw.below(5), u"\"");
}

std::u16string arrange(const Hand& hand) {
    return hand.severalShapes() + (hand.draw.percent(50) ? u".Align msoAlignLefts, msoFalse"
                                                         : u".Distribute msoDistributeVertically, msoFalse");
}

constexpr auto all = std::to_array<Habit>({{8, move},
                                           {3, nudge},
                                           {6, resize},
                                           {2, turn},
                                           {6, remove},
                                           {3, duplicate},
                                           {3, cutAndPaste},
                                           {5, restack},
                                           {6, group},
                                           {3, ungroup},
                                           {1, regroup},
                                           {2, inGroup},
                                           {6, select},
                                           {1, deleteSelected},
                                           {1, rename},
                                           {1, arrange}});

} // namespace

std::span<const Habit> habits() noexcept {
    return all;
}

} // namespace trials::learners::handling
