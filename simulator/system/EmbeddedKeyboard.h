#pragma once

#include "platform/Keyboard.h"
#include "simulator/system/EmbeddedWindows.h"

#include <string>

namespace simulator {

/// A keyboard that remembers what was sent; an Escape closes the dialog in front, if there is one.
class EmbeddedKeyboard final : public platform::Keyboard {
public:
    /// `windows` must outlive this object.
    explicit EmbeddedKeyboard(EmbeddedWindows& windows) noexcept : windows_(windows) {}

    void send(std::u16string_view keys) override;

    /// All keys sent so far, as they were written.
    [[nodiscard]] const std::u16string& sent() const noexcept { return sent_; }

private:
    EmbeddedWindows& windows_;
    std::u16string sent_;
};

} // namespace simulator
