#include "simulator/document/LayoutTable.h"

#include <algorithm>

namespace simulator {

namespace {

/// Under names of their own, which are common words.
namespace known {

using enum Arrangement;

constexpr auto title = ppPlaceholderTitle;
constexpr auto body = ppPlaceholderBody;
constexpr auto object = ppPlaceholderObject;
constexpr auto chart = ppPlaceholderChart;
constexpr auto clip = ppPlaceholderBitmap;
constexpr auto media = ppPlaceholderMediaClip;
constexpr auto upright = ppPlaceholderVerticalBody;

constexpr auto table = std::to_array<Layout>({
    {ppLayoutTitle, TitleSlide, {ppPlaceholderCenterTitle, ppPlaceholderSubtitle}},
    {ppLayoutText, TitleAndBody, {title, body}},
    {ppLayoutTwoColumnText, TwoColumns, {title, body, body}},
    {ppLayoutTable, TitleAndBody, {title, ppPlaceholderTable}},
    {ppLayoutTextAndChart, TwoColumns, {title, body, chart}},
    {ppLayoutChartAndText, TwoColumns, {title, chart, body}},
    {ppLayoutOrgchart, TitleAndBody, {title, ppPlaceholderOrgChart}},
    {ppLayoutChart, TitleAndBody, {title, chart}},
    {ppLayoutTextAndClipart, TwoColumns, {title, body, clip}},
    {ppLayoutClipartAndText, TwoColumns, {title, clip, body}},
    {ppLayoutTitleOnly, TitleOnly, {title}},
    {ppLayoutBlank, Blank, {}},
    {ppLayoutTextAndObject, TwoColumns, {title, body, object}},
    {ppLayoutObjectAndText, TwoColumns, {title, object, body}},
    {ppLayoutLargeObject, One, {object}},
    {ppLayoutObject, TitleAndBody, {title, object}},
    {ppLayoutTextAndMediaClip, TwoColumns, {title, body, media}},
    {ppLayoutMediaClipAndText, TwoColumns, {title, media, body}},
    {ppLayoutObjectOverText, TwoRows, {title, object, body}},
    {ppLayoutTextOverObject, TwoRows, {title, body, object}},
    {ppLayoutTextAndTwoObjects, ColumnAndTwoRows, {title, body, object, object}},
    {ppLayoutTwoObjectsAndText, TwoRowsAndColumn, {title, object, object, body}},
    {ppLayoutTwoObjectsOverText, TwoColumnsAndRow, {title, object, object, body}},
    {ppLayoutFourObjects, Four, {title, object, object, object, object}},
    {ppLayoutVerticalText, TitleAndBody, {title, upright}},
    {ppLayoutClipArtAndVerticalText, TwoColumns, {title, clip, upright}},
    {ppLayoutVerticalTitleAndText, Upright, {ppPlaceholderVerticalTitle, upright}},
    {ppLayoutVerticalTitleAndTextOverChart, UprightOverRow, {ppPlaceholderVerticalTitle, upright, chart}},
    {ppLayoutTwoObjects, TwoColumns, {title, object, object}},
    {ppLayoutObjectAndTwoObjects, ColumnAndTwoRows, {title, object, object, object}},
    {ppLayoutTwoObjectsAndObject, TwoRowsAndColumn, {title, object, object, object}},
});

constexpr float titleSize = 44;
constexpr float fullSize = 32;
constexpr float halfSize = 28;
constexpr float quarterSize = 24;

constexpr LayoutPlace head{{36, 21.625F, 648, 90}, titleSize};
constexpr LayoutPlace left{{36, 126, 318, 356.375F}, halfSize};
constexpr LayoutPlace right{{366, 126, 318, 356.375F}, halfSize};
constexpr LayoutPlace upperLeft{{36, 126, 318, 172.125F}, halfSize};
constexpr LayoutPlace upperRight{{366, 126, 318, 172.125F}, halfSize};
constexpr LayoutPlace lowerLeft{{36, 310.125F, 318, 172.25F}, halfSize};
constexpr LayoutPlace lowerRight{{366, 310.125F, 318, 172.25F}, halfSize};
constexpr LayoutPlace upper{{36, 126, 648, 172.125F}, halfSize};
constexpr LayoutPlace lower{{36, 310.125F, 648, 172.25F}, halfSize};
constexpr LayoutPlace uprightHead{{522, 21.625F, 162, 460.75F}, titleSize};

constexpr LayoutPlace quarter(const LayoutPlace& place) {
    return {place.frame, quarterSize};
}

constexpr std::array titleSlide{LayoutPlace{{54, 167.75F, 612, 115.75F}, titleSize},
                                LayoutPlace{{108, 306, 504, 138}, fullSize}};
constexpr std::array titleAndBody{head, LayoutPlace{{36, 126, 648, 356.375F}, fullSize}};
constexpr std::array titleOnly{head};
constexpr std::array twoColumns{head, left, right};
constexpr std::array twoRows{head, upper, lower};
constexpr std::array columnAndTwoRows{head, left, upperRight, lowerRight};
constexpr std::array twoRowsAndColumn{head, upperLeft, lowerLeft, right};
constexpr std::array twoColumnsAndRow{head, upperLeft, upperRight, lower};
constexpr std::array four{head, quarter(upperLeft), quarter(upperRight), quarter(lowerLeft), quarter(lowerRight)};
constexpr std::array one{LayoutPlace{{36, 21.625F, 648, 460.75F}, fullSize}};
constexpr std::array uprightTitleAndBody{uprightHead, LayoutPlace{{36, 21.625F, 474, 460.75F}, fullSize}};
constexpr std::array uprightOverRow{uprightHead, LayoutPlace{{36, 21.625F, 474, 224.375F}, halfSize},
                                    LayoutPlace{{36, 258, 474, 224.375F}, halfSize}};

} // namespace known

} // namespace

std::size_t Layout::size() const noexcept {
    return static_cast<std::size_t>(std::find(types.begin(), types.end(), PpPlaceholderType{}) - types.begin());
}

std::span<const Layout> layouts() noexcept {
    return known::table;
}

const Layout* findLayout(PpSlideLayout number) noexcept {
    const auto* const found = std::find_if(known::table.begin(), known::table.end(),
                                           [number](const Layout& layout) { return layout.number == number; });
    return found == known::table.end() ? nullptr : found;
}

std::span<const LayoutPlace> placesOf(Arrangement arrangement) noexcept {
    switch (arrangement) {
    case Arrangement::TitleSlide: return known::titleSlide;
    case Arrangement::TitleAndBody: return known::titleAndBody;
    case Arrangement::TitleOnly: return known::titleOnly;
    case Arrangement::TwoColumns: return known::twoColumns;
    case Arrangement::TwoRows: return known::twoRows;
    case Arrangement::ColumnAndTwoRows: return known::columnAndTwoRows;
    case Arrangement::TwoRowsAndColumn: return known::twoRowsAndColumn;
    case Arrangement::TwoColumnsAndRow: return known::twoColumnsAndRow;
    case Arrangement::Four: return known::four;
    case Arrangement::One: return known::one;
    case Arrangement::Upright: return known::uprightTitleAndBody;
    case Arrangement::UprightOverRow: return known::uprightOverRow;
    case Arrangement::Blank: break;
    }
    return {};
}

} // namespace simulator
