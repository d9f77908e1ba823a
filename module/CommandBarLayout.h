#pragma once

#include "ppt/Application.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace k73053 {

/// How the learner's command bars stand: which are shown, how those that an exercise arranges are docked and enabled,
/// and whether tooltips are displayed. Between `willChange` and `restore` the copy is the learner's, however many
/// questions come and go; what a close could not put back stays in it for the next one.
class CommandBarLayout {
public:
    /// Reads which bars are shown; one that has gone is forgotten. Raises what PowerPoint raises.
    void saveVisible(const ppt::Application& application);

    /// To be called before an exercise arranges the bars: reads what else it will change. What cannot be read is left
    /// alone later.
    void willChange(const ppt::Application& application) noexcept;

    /// True while anything may stand as an exercise has arranged it.
    [[nodiscard]] bool isChanged() const noexcept;

    /// Puts back what differs from the learner's copy. What a bar refuses is passed over; a PowerPoint that does not
    /// answer is not asked again.
    void restore(const ppt::Application& application) noexcept;

private:
    /// One setting: the learner's value, and whether it has to be put back.
    template <typename T> struct Kept {
        T value{};
        bool isChanged = false;
    };

    /// Bars are saved by their place and put back by their name: one that comes or goes meanwhile shifts no other.
    struct ShownBar {
        std::u16string name;
        Kept<bool> visible = {};
    };

    struct ArrangedBar {
        std::u16string_view name;
        Kept<bool> enabled = {};
        Kept<std::int32_t> position = {};
    };

    /// Has the visibility of every bar put back.
    void markVisible() noexcept;
    void putBack(const ppt::Application& application);

    std::vector<ShownBar> shown_;
    std::array<ArrangedBar, 4> arranged_{{{u"standard"}, {u"formatting"}, {u"Drawing"}, {u"Task Pane"}}};
    Kept<bool> tooltips_;
};

} // namespace k73053
