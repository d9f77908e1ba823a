#include "tests/trials/learners/Gestures.h"

#include <array>

namespace trials::learners::drawing {

namespace {

std::u16string frame(const Hand& hand) {
    return said(hand.length(), u", ", hand.length(), u", ", hand.draw.between(2, 20) * 10, u", ",
                hand.draw.between(2, 20) * 10);
}

std::u16string autoShape(const Hand& hand) {
    static constexpr std::array<std::size_t, 10> likely{1, 1, 5, 9, 32, 33, 61, 62, 65, 66};
    const std::size_t type = hand.draw.percent(80) ? hand.draw.of(likely) : hand.draw.between(1, 137);
    return said(hand.shapes(), u".AddShape ", type, u", ", frame(hand));
}

std::u16string textBox(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 5> texts{u"Le public", u"   ", u"", u"créer", u"Règles"};
    return said(u"Set t = ", hand.shapes(), u".AddTextbox(msoTextOrientationHorizontal, ", frame(hand),
                u")\nt.TextFrame.TextRange.Text = \"", hand.draw.of(texts), u"\"");
}

std::u16string line(const Hand& hand) {
    return said(hand.shapes(), u".AddLine ", frame(hand));
}

std::u16string polyline(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 3> ends{u", Array(100, 100)", u", Array(100, 101)", u""};
    return said(hand.shapes(), u".AddPolyline Array(Array(100, 100), Array(150, 50), Array(200, 100)",
                hand.draw.of(ends), u")");
}

std::u16string freeform(const Hand& hand) {
    std::u16string text = said(u"Set f = ", hand.shapes(), u".BuildFreeform(msoEditingAuto, 300, 300)\n");
    for (std::size_t nodes = hand.draw.between(1, 3); nodes != 0; --nodes) {
        text +=
            said(u"f.AddNodes ", hand.draw.percent(50) ? u"msoSegmentLine" : u"msoSegmentCurve", u", msoEditingAuto, ",
                 hand.draw.between(30, 35) * 10, u", ", hand.draw.between(25, 40) * 10, u"\n");
    }
    if (hand.draw.percent(60)) {
        text += u"f.AddNodes msoSegmentLine, msoEditingAuto, 300, 300\n";
    }
    return text + u"f.ConvertToShape";
}

std::u16string wordArt(const Hand& hand) {
    return said(hand.shapes(), u".AddTextEffect msoTextEffect", hand.draw.between(1, 30),
                u", \"Conseils\", \"Arial\", 36, msoFalse, msoFalse, ", hand.length(), u", ", hand.length());
}

std::u16string title(const Hand& hand) {
    return hand.shapes() + u".AddTitle";
}

std::u16string picture(const Hand& hand) {
    return said(hand.shapes(), u".AddPicture \"C:\\Images\\photo.png\", msoFalse, msoTrue, ", frame(hand));
}

constexpr auto all = std::to_array<Habit>(
    {{8, autoShape}, {5, textBox}, {2, line}, {3, polyline}, {3, freeform}, {3, wordArt}, {2, title}, {1, picture}});

} // namespace

std::span<const Habit> habits() noexcept {
    return all;
}

} // namespace trials::learners::drawing
