#include "module/CommandBarLayout.h"

#include "platform/ErrorReport.h"

namespace k73053 {

using platform::ignoringErrors;

void CommandBarLayout::saveVisible(const ppt::Application& application) {
    const std::int32_t bars = application.CommandBars().Count();
    std::vector<bool> visible;
    for (std::int32_t i = 1; i <= bars; ++i) {
        visible.push_back(application.CommandBars().Item(i).Visible());
    }
    if (!isChanged_) {
        visible_ = std::move(visible);
    }
}

void CommandBarLayout::willChange(const ppt::Application& application) noexcept {
    if (isChanged_) {
        return;
    }
    isChanged_ = true;
    for (ArrangedBar& bar : arranged_) {
        bar.enabled.reset();
        bar.position.reset();
        ignoringErrors([&] { bar.enabled = application.CommandBars().Item(bar.name).Enabled(); });
        ignoringErrors([&] { bar.position = application.CommandBars().Item(bar.name).Position(); });
    }
    tooltips_.reset();
    ignoringErrors([&] { tooltips_ = application.CommandBars().DisplayTooltips(); });
}

void CommandBarLayout::restore(const ppt::Application& application) noexcept {
    if (!isChanged_) {
        return;
    }
    for (const ArrangedBar& bar : arranged_) {
        dock(application, bar);
    }
    for (std::size_t i = 0; i < visible_.size(); ++i) {
        ignoringErrors([&] {
            const auto index = static_cast<std::int32_t>(i + 1);
            if (application.CommandBars().Item(index).Visible() != visible_[i]) {
                application.CommandBars().Item(index).Visible(visible_[i]);
            }
        });
    }
    for (const ArrangedBar& bar : arranged_) {
        ignoringErrors([&] {
            if (bar.enabled && application.CommandBars().Item(bar.name).Enabled() != *bar.enabled) {
                application.CommandBars().Item(bar.name).Enabled(*bar.enabled);
            }
        });
    }
    ignoringErrors([&] {
        if (tooltips_ && application.CommandBars().DisplayTooltips() != *tooltips_) {
            application.CommandBars().DisplayTooltips(*tooltips_);
        }
    });
    isChanged_ = false;
}

void CommandBarLayout::dock(const ppt::Application& application, const ArrangedBar& bar) noexcept {
    ignoringErrors([&] {
        if (bar.position && application.CommandBars().Item(bar.name).Position() != *bar.position) {
            // Hidden while it is moved, so that the position takes effect.
            application.CommandBars().Item(bar.name).Visible(false);
            application.CommandBars().Item(bar.name).Position(*bar.position);
        }
    });
}

} // namespace k73053
