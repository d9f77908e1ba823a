#include "simulator/files/drawing/AutoShapeKinds.h"

#include "simulator/document/Constants.h"
#include "simulator/files/bytes/Tables.h"
#include "simulator/files/drawing/PropertyIds.h"

#include <array>

namespace simulator::drawing {

namespace {

/// By AutoShape type, from 1; ten a line.
constexpr std::array<std::uint16_t, lastAutoShape> kinds{
    1,   7,   8,   4,   2,   10,  5,   6,   3,   9,   //
    11,  56,  22,  16,  84,  65,  96,  23,  57,  95,  //
    74,  73,  183, 184, 19,  185, 186, 21,  85,  86,  //
    87,  88,  13,  66,  68,  67,  69,  70,  76,  182, //
    91,  101, 89,  90,  102, 103, 104, 105, 93,  94,  //
    15,  55,  78,  77,  79,  80,  81,  82,  83,  99,  //
    109, 176, 110, 111, 112, 113, 114, 115, 116, 117, //
    118, 119, 120, 177, 121, 122, 123, 124, 125, 126, //
    127, 128, 130, 135, 131, 132, 133, 134, 71,  72,  //
    187, 12,  58,  59,  92,  60,  54,  53,  108, 107, //
    97,  98,  64,  188, 61,  62,  63,  106, 180, 47,  //
    48,  49,  179, 44,  45,  46,  178, 41,  42,  43,  //
    181, 50,  51,  52,  189, 190, 191, 192, 194, 193, //
    196, 195, 197, 198, 199, 200, 17,
};

} // namespace

std::uint16_t kindOf(std::int32_t autoShapeType) noexcept {
    const bool isKnown = autoShapeType >= 1 && autoShapeType <= lastAutoShape;
    return isKnown ? kinds.at(static_cast<std::size_t>(autoShapeType) - 1) : std::uint16_t{kind::rectangle};
}

std::optional<std::int32_t> autoShapeTypeOf(std::uint16_t kind) noexcept {
    const auto place = files::placeIn(kinds, kind);
    return place ? std::optional(static_cast<std::int32_t>(*place) + 1) : std::nullopt;
}

} // namespace simulator::drawing
