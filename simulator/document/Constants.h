#pragma once

#include <cstdint>

/// PowerPoint's and Office's named constants, with their numbers, as far as the embedded PowerPoint knows them.
/// The module states those that it uses for itself (ppt/Constants.h): a wrong one there would go unnoticed if both read
/// it from one place.
namespace simulator {

enum MsoTriState : std::int32_t { msoTriStateMixed = -2, msoTrue = -1, msoFalse = 0 };

enum MsoShapeType : std::int32_t {
    msoAutoShape = 1,
    msoFreeform = 5,
    msoGroup = 6,
    msoLine = 9,
    msoPicture = 13,
    msoPlaceholder = 14,
    msoTextEffect = 15,
    msoTextBox = 17,
    msoTable = 19,
};

inline constexpr std::int32_t msoShapeMixed = -2;
inline constexpr std::int32_t msoShapeRectangle = 1;
inline constexpr std::int32_t msoShapeOval = 9;

/// Numbers of AutoShapes run from 1 (msoShapeRectangle) to this one.
inline constexpr std::int32_t lastAutoShape = 137;

enum MsoFillType : std::int32_t {
    msoFillMixed = -2,
    msoFillSolid = 1,
    msoFillPatterned = 2,
    msoFillGradient = 3,
    msoFillTextured = 4,
    msoFillBackground = 5,
    msoFillPicture = 6,
};

enum MsoZOrderCmd : std::int32_t {
    msoBringToFront = 0,
    msoSendToBack = 1,
    msoBringForward = 2,
    msoSendBackward = 3,
};

enum MsoAlignCmd : std::int32_t {
    msoAlignLefts = 0,
    msoAlignCenters = 1,
    msoAlignRights = 2,
    msoAlignTops = 3,
    msoAlignMiddles = 4,
    msoAlignBottoms = 5,
};

enum MsoDistributeCmd : std::int32_t { msoDistributeHorizontally = 0, msoDistributeVertically = 1 };

enum MsoConnectorType : std::int32_t {
    msoConnectorTypeMixed = -2,
    msoConnectorStraight = 1,
    msoConnectorElbow = 2,
    msoConnectorCurve = 3,
};

enum MsoFlipCmd : std::int32_t { msoFlipHorizontal = 0, msoFlipVertical = 1 };

enum MsoScaleFrom : std::int32_t { msoScaleFromTopLeft = 0, msoScaleFromMiddle = 1, msoScaleFromBottomRight = 2 };

enum MsoSegmentType : std::int32_t { msoSegmentLine = 0, msoSegmentCurve = 1 };

enum MsoEditingType : std::int32_t { msoEditingAuto = 0, msoEditingCorner = 1 };

enum PpBorderType : std::int32_t {
    ppBorderTop = 1,
    ppBorderLeft = 2,
    ppBorderBottom = 3,
    ppBorderRight = 4,
    ppBorderDiagonalDown = 5,
    ppBorderDiagonalUp = 6,
};

enum PpDirection : std::int32_t { ppDirectionLeftToRight = 1, ppDirectionRightToLeft = 2 };

enum PpSlideLayout : std::int32_t {
    ppLayoutTitle = 1,
    ppLayoutText = 2,
    ppLayoutTwoColumnText = 3,
    ppLayoutTable = 4,
    ppLayoutTextAndChart = 5,
    ppLayoutChartAndText = 6,
    ppLayoutOrgchart = 7,
    ppLayoutChart = 8,
    ppLayoutTextAndClipart = 9,
    ppLayoutClipartAndText = 10,
    ppLayoutTitleOnly = 11,
    ppLayoutBlank = 12,
    ppLayoutTextAndObject = 13,
    ppLayoutObjectAndText = 14,
    ppLayoutLargeObject = 15,
    ppLayoutObject = 16,
    ppLayoutTextAndMediaClip = 17,
    ppLayoutMediaClipAndText = 18,
    ppLayoutObjectOverText = 19,
    ppLayoutTextOverObject = 20,
    ppLayoutTextAndTwoObjects = 21,
    ppLayoutTwoObjectsAndText = 22,
    ppLayoutTwoObjectsOverText = 23,
    ppLayoutFourObjects = 24,
    ppLayoutVerticalText = 25,
    ppLayoutClipArtAndVerticalText = 26,
    ppLayoutVerticalTitleAndText = 27,
    ppLayoutVerticalTitleAndTextOverChart = 28,
    ppLayoutTwoObjects = 29,
    ppLayoutObjectAndTwoObjects = 30,
    ppLayoutTwoObjectsAndObject = 31,
};

enum PpPlaceholderType : std::int32_t {
    ppPlaceholderTitle = 1,
    ppPlaceholderBody = 2,
    ppPlaceholderCenterTitle = 3,
    ppPlaceholderSubtitle = 4,
    ppPlaceholderVerticalTitle = 5,
    ppPlaceholderVerticalBody = 6,
    ppPlaceholderObject = 7,
    ppPlaceholderChart = 8,
    ppPlaceholderBitmap = 9,
    ppPlaceholderMediaClip = 10,
    ppPlaceholderOrgChart = 11,
    ppPlaceholderTable = 12,
    ppPlaceholderSlideNumber = 13,
    ppPlaceholderHeader = 14,
    ppPlaceholderFooter = 15,
    ppPlaceholderDate = 16,
    ppPlaceholderSlideImage = 101, ///< of a notes page: later versions number it so
};

enum PpColorSchemeIndex : std::int32_t {
    ppSchemeColorMixed = -2,
    ppNotSchemeColor = 0,
    ppBackground = 1,
    ppForeground = 2,
    ppShadow = 3,
    ppTitle = 4,
    ppFill = 5,
    ppAccent1 = 6,
    ppAccent2 = 7,
    ppAccent3 = 8,
};

enum MsoColorType : std::int32_t { msoColorTypeRGB = 1, msoColorTypeScheme = 2 };

enum PpWindowState : std::int32_t { ppWindowNormal = 1, ppWindowMinimized = 2, ppWindowMaximized = 3 };

enum PpSelectionType : std::int32_t {
    ppSelectionNone = 0,
    ppSelectionSlides = 1,
    ppSelectionShapes = 2,
    ppSelectionText = 3,
};

} // namespace simulator
