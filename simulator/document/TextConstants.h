#pragma once

#include <cstdint>

/// PowerPoint's and Office's named constants that concern text, with their numbers.
namespace simulator {

enum PpParagraphAlignment : std::int32_t {
    ppAlignmentMixed = -2,
    ppAlignLeft = 1,
    ppAlignCenter = 2,
    ppAlignRight = 3,
    ppAlignJustify = 4,
    ppAlignDistribute = 5,
};

enum PpBulletType : std::int32_t {
    ppBulletMixed = -2,
    ppBulletNone = 0,
    ppBulletUnnumbered = 1,
    ppBulletNumbered = 2,
};

enum PpAutoSize : std::int32_t { ppAutoSizeNone = 0, ppAutoSizeShapeToFitText = 1 };

enum PpChangeCase : std::int32_t {
    ppCaseSentence = 1,
    ppCaseLower = 2,
    ppCaseUpper = 3,
    ppCaseTitle = 4,
    ppCaseToggle = 5,
};

enum MsoTextOrientation : std::int32_t {
    msoTextOrientationHorizontal = 1,
    msoTextOrientationUpward = 2,
    msoTextOrientationDownward = 3,
    msoTextOrientationVerticalFarEast = 4,
    msoTextOrientationVertical = 5,
    msoTextOrientationHorizontalRotatedFarEast = 6,
};

/// True where lines of text run from top to bottom, or the other way.
[[nodiscard]] constexpr bool isUpright(MsoTextOrientation orientation) noexcept {
    return orientation != msoTextOrientationHorizontal && orientation != msoTextOrientationHorizontalRotatedFarEast;
}

enum MsoHorizontalAnchor : std::int32_t { msoAnchorNone = 1, msoAnchorCenter = 2 };

enum MsoVerticalAnchor : std::int32_t {
    msoAnchorTop = 1,
    msoAnchorTopBaseline = 2,
    msoAnchorMiddle = 3,
    msoAnchorBottom = 4,
    msoAnchorBottomBaseLine = 5,
};

} // namespace simulator
