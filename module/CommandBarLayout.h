#pragma once

#include "ppt/Application.h"

#include <array>
#include <optional>
#include <string_view>
#include <vector>

namespace k73053 {

/// How the learner's command bars stand: which are shown, how those that an exercise arranges are docked and enabled,
/// and whether tooltips are displayed. Between `willChange` and `restore` the copy is the learner's, however many
/// questions come and go.
class CommandBarLayout {
public:
    /// Reads which bars are shown. Raises what PowerPoint raises.
    void saveVisible(const ppt::Application& application);

    /// To be called before an exercise arranges the bars: reads what else it will change. What cannot be read is left
    /// alone later.
    void willChange(const ppt::Application& application) noexcept;

    /// True while the bars stand as an exercise has arranged them.
    [[nodiscard]] bool isChanged() const noexcept { return isChanged_; }

    /// Puts back what differs from the learner's copy, if the bars are changed; bars that refuse stay as they are.
    void restore(const ppt::Application& application) noexcept;

private:
    struct ArrangedBar {
        std::u16string_view name;
        std::optional<bool> enabled = {};
        std::optional<std::int32_t> position = {};
    };

    static void dock(const ppt::Application& application, const ArrangedBar& bar) noexcept;

    std::vector<bool> visible_; ///< bar i + 1
    std::array<ArrangedBar, 4> arranged_{{{u"standard"}, {u"formatting"}, {u"Drawing"}, {u"Task Pane"}}};
    std::optional<bool> tooltips_;
    bool isChanged_ = false;
};

} // namespace k73053
