#include "module/CommandBarLayout.h"

#include "platform/ErrorReport.h"

#include <algorithm>

namespace k73053 {

using platform::ignoringErrors;

namespace {

/// Reads a setting, unless the learner's value is still to be put back.
template <typename Kept, typename Read> void keep(Kept& kept, const Read& read) noexcept {
    if (!kept.isChanged) {
        kept.isChanged = ignoringErrors([&] { kept.value = read(); });
    }
}

/// Puts a setting back, if it is changed. A refusal leaves it for the next time; where PowerPoint does not answer at
/// all, the error passes.
template <typename Kept, typename Step> void give(Kept& kept, const Step& step) {
    if (!kept.isChanged) {
        return;
    }
    try {
        step(kept.value);
        kept.isChanged = false;
    } catch (const automation::Error& error) {
        namespace remote = automation::remote;
        if (remote::isDead(error.number()) || error.number() == remote::callRejected ||
            error.number() == remote::retryLater) {
            throw;
        }
    }
}

} // namespace

void CommandBarLayout::saveVisible(const ppt::Application& application) {
    const std::int32_t count = application.CommandBars().Count();
    std::vector<ShownBar> shown;
    for (std::int32_t i = 1; i <= count; ++i) {
        const ppt::CommandBar bar = application.CommandBars().Item(i);
        const bool isVisible = bar.Visible();
        std::u16string name = bar.Name();
        const auto isNamesake = [&](const ShownBar& other) { return other.name == name; };
        if (std::any_of(shown.begin(), shown.end(), isNamesake)) {
            continue; // by its name the first of them is found
        }
        const auto kept = std::find_if(shown_.begin(), shown_.end(), isNamesake);
        const bool isKept = kept != shown_.end() && kept->visible.isChanged;
        shown.push_back(isKept ? *kept : ShownBar{std::move(name), {isVisible}});
    }
    shown_ = std::move(shown);
}

void CommandBarLayout::willChange(const ppt::Application& application) noexcept {
    markVisible();
    for (ArrangedBar& bar : arranged_) {
        keep(bar.enabled, [&] { return application.CommandBars().Item(bar.name).Enabled(); });
        keep(bar.position, [&] { return application.CommandBars().Item(bar.name).Position(); });
    }
    keep(tooltips_, [&] { return application.CommandBars().DisplayTooltips(); });
}

void CommandBarLayout::markVisible() noexcept {
    for (ShownBar& bar : shown_) {
        bar.visible.isChanged = true;
    }
}

bool CommandBarLayout::isChanged() const noexcept {
    return tooltips_.isChanged ||
           std::any_of(shown_.begin(), shown_.end(), [](const ShownBar& bar) { return bar.visible.isChanged; }) ||
           std::any_of(arranged_.begin(), arranged_.end(),
                       [](const ArrangedBar& bar) { return bar.enabled.isChanged || bar.position.isChanged; });
}

void CommandBarLayout::restore(const ppt::Application& application) noexcept {
    ignoringErrors([&] { putBack(application); });
}

void CommandBarLayout::putBack(const ppt::Application& application) {
    if (std::any_of(arranged_.begin(), arranged_.end(),
                    [](const ArrangedBar& bar) { return bar.position.isChanged; })) {
        // Docking hides a bar, also one that an earlier close has shown again.
        markVisible();
    }
    for (ArrangedBar& bar : arranged_) {
        give(bar.position, [&](std::int32_t position) {
            if (application.CommandBars().Item(bar.name).Position() != position) {
                // Hidden while it is moved, so that the position takes effect.
                application.CommandBars().Item(bar.name).Visible(false);
                application.CommandBars().Item(bar.name).Position(position);
            }
        });
    }
    for (ShownBar& bar : shown_) {
        give(bar.visible, [&](bool isVisible) {
            if (application.CommandBars().Item(bar.name).Visible() != isVisible) {
                application.CommandBars().Item(bar.name).Visible(isVisible);
            }
        });
    }
    for (ArrangedBar& bar : arranged_) {
        give(bar.enabled, [&](bool isEnabled) {
            if (application.CommandBars().Item(bar.name).Enabled() != isEnabled) {
                application.CommandBars().Item(bar.name).Enabled(isEnabled);
            }
        });
    }
    give(tooltips_, [&](bool areDisplayed) {
        if (application.CommandBars().DisplayTooltips() != areDisplayed) {
            application.CommandBars().DisplayTooltips(areDisplayed);
        }
    });
}

} // namespace k73053
