#pragma once

#include <cstdint>

/// The named constants of PowerPoint's and Office's object model that the module uses, with their numbers.
namespace ppt {

enum MsoTriState : std::int32_t { msoTrue = -1, msoFalse = 0 };

enum MsoShapeType : std::int32_t {
    msoAutoShape = 1,
    msoFreeform = 5,
    msoGroup = 6,
    msoPlaceholder = 14,
    msoTextEffect = 15,
    msoTextBox = 17,
};

enum MsoAutoShapeType : std::int32_t {
    msoShapeRectangle = 1,
    msoShapeRoundedRectangle = 5,
    msoShapeFlowchartProcess = 61,
    msoShapeFlowchartAlternateProcess = 62,
    msoShapeFlowchartPredefinedProcess = 65,
    msoShapeFlowchartInternalStorage = 66,
    msoShapeHorizontalScroll = 102,
};

enum MsoFillType : std::int32_t { msoFillSolid = 1 };

enum MsoPresetThreeDFormat : std::int32_t { msoPresetThreeDFormatMixed = -2, msoThreeD1 = 1 };

enum MsoBarPosition : std::int32_t { msoBarTop = 1, msoBarRight = 2, msoBarBottom = 3 };

enum PpWindowState : std::int32_t { ppWindowMaximized = 3 };

enum PpViewType : std::int32_t { ppViewNormal = 9 };

enum PpSelectionType : std::int32_t { ppSelectionShapes = 2 };

enum PpPlaceholderType : std::int32_t { ppPlaceholderTitle = 1 };

/// Bit of a control's accessibility state that says that it is unavailable.
inline constexpr std::int32_t stateSystemUnavailable = 1;

} // namespace ppt
