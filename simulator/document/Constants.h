#pragma once

#include <cstdint>

/// PowerPoint's and Office's named constants, with their numbers, as far as the embedded PowerPoint knows them.
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
};

enum MsoFillType : std::int32_t {
    msoFillSolid = 1,
    msoFillPatterned = 2,
    msoFillGradient = 3,
    msoFillTextured = 4,
    msoFillBackground = 5,
    msoFillPicture = 6,
};

enum PpSlideLayout : std::int32_t { ppLayoutTitle = 1, ppLayoutText = 2, ppLayoutTitleOnly = 11, ppLayoutBlank = 12 };

enum PpPlaceholderType : std::int32_t {
    ppPlaceholderTitle = 1,
    ppPlaceholderBody = 2,
    ppPlaceholderCenterTitle = 3,
    ppPlaceholderSubtitle = 4,
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
