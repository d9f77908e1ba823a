#include "tests/trials/learners/Gestures.h"

#include <array>
#include <numeric>

namespace trials::learners {

std::u16string Hand::shapes() const {
    return said(u"ActivePresentation.Slides(", slide, u").Shapes");
}

std::size_t Hand::count() const noexcept {
    const simulator::Slide* const ground = scene.slide(slide);
    return ground != nullptr ? ground->shapes().size() : 0;
}

std::u16string Hand::anyShape() const {
    return said(shapes(), u"(", draw.between(1, std::max<std::size_t>(count(), 1)), u")");
}

std::u16string Hand::severalShapes() const {
    const std::size_t all = std::max<std::size_t>(count(), 2);
    std::vector<std::size_t> places(all);
    std::iota(places.begin(), places.end(), std::size_t{1});
    std::u16string list;
    for (std::size_t left = std::min(draw.between(2, 3), all); left != 0; --left) {
        const std::size_t picked = draw.below(places.size());
        list += said(list.empty() ? u"" : u", ", places[picked]);
        places.erase(places.begin() + static_cast<std::ptrdiff_t>(picked));
    }
    return said(shapes(), u".Range(Array(", list, u"))");
}

std::u16string Hand::length() const {
    static constexpr std::array<std::u16string_view, 14> edges{u"56.5",    u"56.625",  u"56.75",  u"105",    u"128",
                                                               u"149.875", u"150",     u"195",    u"260",    u"35",
                                                               u"311.625", u"481.625", u"57.875", u"368.375"};
    return draw.percent(40) ? std::u16string(draw.of(edges)) : said(draw.below(80) * 5);
}

std::u16string Hand::color() const {
    static constexpr std::array<std::u16string_view, 5> colors{u"RGB(255, 0, 0)", u"RGB(0, 0, 255)", u"RGB(0, 0, 0)",
                                                               u"RGB(128, 128, 128)", u"RGB(255, 255, 255)"};
    return std::u16string(draw.of(colors));
}

std::u16string anyGesture(const Hand& hand) {
    const std::array families{drawing::habits(), handling::habits(), looks::habits(), typing::habits(), deck::habits()};
    std::size_t total = 0;
    for (const auto family : families) {
        total = std::accumulate(family.begin(), family.end(), total,
                                [](std::size_t sum, const Habit& habit) { return sum + habit.weight; });
    }
    std::size_t left = hand.draw.below(total);
    for (const auto family : families) {
        for (const Habit& habit : family) {
            if (left < habit.weight) {
                return habit.gesture(hand);
            }
            left -= habit.weight;
        }
    }
    return {};
}

} // namespace trials::learners
