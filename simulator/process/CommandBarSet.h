#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace simulator {

/// A toolbar, menu bar or task pane as the user sees it.
struct CommandBar {
    std::u16string name;
    bool enabled = true;
    bool visible = false;
    std::int32_t position = 1;            ///< msoBarTop and so on
    std::vector<std::u16string> controls; ///< captions
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
