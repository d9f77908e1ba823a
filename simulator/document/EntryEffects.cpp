#include "simulator/document/EntryEffects.h"

#include <algorithm>
#include <array>

namespace simulator::entryEffect {

namespace {

/// Effects that PowerPoint has had from the first: the type from 1 stands above the direction from 1.
struct Family {
    std::uint8_t type;
    std::uint8_t directions;
};
constexpr std::array<Family, 13> families{{{0, 2},    // cut, through black
                                           {1, 1},    // random
                                           {2, 2},    // blinds
                                           {3, 2},    // checkerboard
                                           {4, 8},    // cover
                                           {5, 1},    // dissolve
                                           {6, 1},    // fade
                                           {7, 8},    // uncover
                                           {8, 2},    // random bars
                                           {9, 8},    // strips
                                           {10, 4},   // wipe
                                           {11, 2},   // box
                                           {13, 4}}}; // split

/// Those that came later have numbers in a row.
struct Later {
    std::int32_t effect = 0;
    Code code;
};
constexpr std::array<Later, 17> later{{{3845, {27, 0}}, // circle
                                       {3846, {17, 0}}, // diamond
                                       {3847, {21, 0}}, // comb
                                       {3848, {21, 1}},
                                       {3849, {23, 0}}, // smooth fade
                                       {3850, {22, 0}}, // newsflash
                                       {3851, {18, 0}}, // plus
                                       {3852, {20, 3}}, // push: down, left, right, up
                                       {3853, {20, 0}},
                                       {3854, {20, 2}},
                                       {3855, {20, 1}},
                                       {3856, {19, 0}}, // wedge
                                       {3857, {26, 1}}, // wheel, by its spokes
                                       {3858, {26, 2}},
                                       {3859, {26, 3}},
                                       {3860, {26, 4}},
                                       {3861, {26, 8}}}};

constexpr std::int32_t typeStep = 256;

bool isOfFamily(Code code) noexcept {
    return std::any_of(families.begin(), families.end(), [code](const Family& family) {
        return family.type == code.type && code.direction < family.directions;
    });
}

} // namespace

Code codeOf(std::int32_t effect) noexcept {
    const auto* const found =
        std::find_if(later.begin(), later.end(), [effect](const Later& each) { return each.effect == effect; });
    if (found != later.end()) {
        return found->code;
    }
    return effect == 0 ? Code()
                       : Code{static_cast<std::uint8_t>(effect / typeStep - 1),
                              static_cast<std::uint8_t>(effect % typeStep - 1)};
}

std::optional<std::int32_t> effectOf(Code code) noexcept {
    if (code == Code()) {
        return 0;
    }
    const auto* const found =
        std::find_if(later.begin(), later.end(), [code](const Later& each) { return each.code == code; });
    if (found != later.end()) {
        return found->effect;
    }
    return isOfFamily(code) ? std::optional((code.type + 1) * typeStep + code.direction + 1) : std::nullopt;
}

bool isKnown(std::int32_t effect) noexcept {
    constexpr std::int32_t ppEffectCut = 257;
    return effect == 0 || effect == ppEffectCut ||
           (effect > ppEffectCut && effect <= later.back().effect && effectOf(codeOf(effect)) == effect);
}

} // namespace simulator::entryEffect
