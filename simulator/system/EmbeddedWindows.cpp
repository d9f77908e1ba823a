#include "simulator/system/EmbeddedWindows.h"

#include "automation/Text.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace simulator {

using platform::WindowHandle;

namespace {

auto isHandle(WindowHandle window) {
    return [window](const auto& each) { return each.handle == window; };
}

} // namespace

WindowHandle EmbeddedWindows::create(WindowTraits traits) {
    last_ += 2;
    windows_.insert(windows_.begin(), Window{.handle = last_, .traits = std::move(traits)});
    return last_;
}

void EmbeddedWindows::destroy(WindowHandle window) {
    while (const WindowHandle owned = ownedBy(window)) {
        destroy(owned);
    }
    std::erase_if(windows_, isHandle(window));
}

void EmbeddedWindows::setTitle(WindowHandle window, std::u16string_view title) {
    if (Window* const found = find(window)) {
        found->traits.title = title;
    }
}

EmbeddedWindows::Placement EmbeddedWindows::placement(WindowHandle window) const {
    const Window* const found = find(window);
    return found != nullptr ? found->placement : Placement::Normal;
}

WindowHandle EmbeddedWindows::foreground() const {
    const auto visible = [](const Window& window) { return window.traits.visible; };
    const auto top = std::find_if(windows_.begin(), windows_.end(), visible);
    return top == windows_.end() ? 0 : top->handle;
}

WindowHandle EmbeddedWindows::ownedBy(WindowHandle window) const {
    for (const Window& each : windows_) {
        if (each.traits.owner == window && window != 0) {
            return each.handle;
        }
    }
    return 0;
}

WindowHandle EmbeddedWindows::findWindow(std::u16string_view className) {
    const auto ofClass = [className](const Window& window) {
        return automation::equalIgnoringCase(window.traits.className, className);
    };
    const auto found = std::find_if(windows_.begin(), windows_.end(), ofClass);
    return found == windows_.end() ? 0 : found->handle;
}

std::optional<std::u16string> EmbeddedWindows::className(WindowHandle window) {
    const Window* const found = find(window);
    return found != nullptr ? std::optional(found->traits.className.substr(0, textBuffer)) : std::nullopt;
}

std::u16string EmbeddedWindows::title(WindowHandle window) {
    const Window* const found = find(window);
    return found != nullptr ? found->traits.title.substr(0, textBuffer) : std::u16string();
}

bool EmbeddedWindows::isVisible(WindowHandle window) {
    const Window* const found = find(window);
    return found != nullptr && found->traits.visible;
}

bool EmbeddedWindows::isIconic(WindowHandle window) {
    return placement(window) == Placement::Minimized;
}

bool EmbeddedWindows::isHung(WindowHandle /*window*/) {
    return false;
}

std::uint32_t EmbeddedWindows::extendedStyle(WindowHandle window) {
    const Window* const found = find(window);
    return found != nullptr ? found->traits.extendedStyle : 0;
}

WindowHandle EmbeddedWindows::parent(WindowHandle window) {
    const Window* const found = find(window);
    return found != nullptr ? found->traits.owner : 0;
}

WindowHandle EmbeddedWindows::previous(WindowHandle window) {
    const Window* const found = find(window);
    return found == nullptr || found == windows_.data() ? 0 : (found - 1)->handle;
}

void EmbeddedWindows::show(WindowHandle window, std::int32_t command) {
    Window* const found = find(window);
    if (found == nullptr) {
        return;
    }
    found->traits.visible = command != showNothing;
    switch (command) {
    case showNormal: place(*found, Placement::Normal); break;
    case showMinimized:
    case minimize:
        place(*found, Placement::Minimized);
        sendToBack(window);
        break;
    case showMaximized: place(*found, Placement::Maximized); break;
    case restore:
        place(*found, std::exchange(found->restoresMaximized, false) ? Placement::Maximized : Placement::Normal);
        break;
    default: break;
    }
}

bool EmbeddedWindows::setForeground(WindowHandle window) {
    if (find(window) == nullptr) {
        return false;
    }
    reorder([this, group = root(window)](const Window& each) { return root(each.handle) == group; });
    return true;
}

void EmbeddedWindows::send(WindowHandle window, std::uint32_t message) {
    const Window* const found = find(window);
    if (found == nullptr || message != closeMessage) {
        return;
    }
    if (const auto onClose = found->traits.onClose) {
        onClose();
    } else {
        destroy(window);
    }
}

const EmbeddedWindows::Window* EmbeddedWindows::find(WindowHandle window) const {
    const auto found = std::find_if(windows_.begin(), windows_.end(), isHandle(window));
    return found == windows_.end() ? nullptr : &*found;
}

EmbeddedWindows::Window* EmbeddedWindows::find(WindowHandle window) {
    const auto found = std::find_if(windows_.begin(), windows_.end(), isHandle(window));
    return found == windows_.end() ? nullptr : &*found;
}

WindowHandle EmbeddedWindows::root(WindowHandle window) const {
    const Window* const found = find(window);
    return found != nullptr && found->traits.owner != 0 ? root(found->traits.owner) : window;
}

void EmbeddedWindows::sendToBack(WindowHandle window) {
    reorder([this, group = root(window)](const Window& each) { return root(each.handle) != group; });
}

void EmbeddedWindows::reorder(const std::function<bool(const Window&)>& comesFirst) {
    std::vector<Window> ordered;
    std::copy_if(windows_.begin(), windows_.end(), std::back_inserter(ordered), comesFirst);
    std::copy_if(windows_.begin(), windows_.end(), std::back_inserter(ordered), std::not_fn(comesFirst));
    windows_ = std::move(ordered);
}

void EmbeddedWindows::place(Window& window, Placement placement) {
    if (placement == Placement::Minimized) {
        window.restoresMaximized = window.restoresMaximized || window.placement == Placement::Maximized;
    } else {
        window.restoresMaximized = false;
    }
    window.placement = placement;
}

} // namespace simulator
