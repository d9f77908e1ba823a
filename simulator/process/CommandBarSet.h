#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

enum MsoBarPosition : std::int32_t {
    msoBarLeft = 0,
    msoBarTop = 1,
    msoBarRight = 2,
    msoBarBottom = 3,
    msoBarFloating = 4,
    msoBarPopup = 5,
    msoBarMenuBar = 6,
};

enum MsoBarType : std::int32_t { msoBarTypeNormal = 0, msoBarTypeMenuBar = 1, msoBarTypePopup = 2 };

/// A button or menu of a command bar.
struct CommandBarControl {
    /// What the control acts on, and so when it is available.
    enum class Command : std::uint8_t {
        Always,
        CloseCurve, ///< closes the open freeform that is selected alone
    };

    std::u16string caption;
    Command command = Command::Always;
};

/// A toolbar, menu bar, context menu or task pane as the user sees it.
struct CommandBar {
    std::u16string name;
    MsoBarType type = msoBarTypeNormal;
    bool enabled = true;
    bool visible = false;
    MsoBarPosition position = msoBarTop;
    std::vector<CommandBarControl> controls;
};

/// PowerPoint's command bars, in its own order.
struct CommandBarSet {
    /// The command bars of a PowerPoint just installed.
    CommandBarSet();

    /// Place of a bar by its name, case ignored; the number of bars where there is none.
    [[nodiscard]] std::size_t find(std::u16string_view name) const noexcept;

    std::vector<CommandBar> bars;
    bool displayTooltips = true;
};

} // namespace simulator
