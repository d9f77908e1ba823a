#pragma once

#include "automation/Unmoved.h"
#include "platform/WindowSystem.h"
#include "simulator/document/Constants.h"

namespace simulator {

/// PowerPoint's main window (class "PP11FrameClass") and the dialogs above it, as the system shows them. The embedded
/// one stands in a list in memory; a real one belongs to the stand-in server.
class MainWindow : automation::Unmoved {
public:
    virtual ~MainWindow() = default;

    [[nodiscard]] virtual platform::WindowHandle handle() const = 0;
    [[nodiscard]] virtual bool isVisible() const = 0;
    virtual void setVisible(bool visible) = 0;
    [[nodiscard]] virtual PpWindowState state() const = 0;
    virtual void setState(PpWindowState state) = 0;
    virtual void setTitle(std::u16string_view title) = 0;
    /// True when the window, or a dialog above it, is the one in front.
    [[nodiscard]] virtual bool isActive() const = 0;
    virtual void activate() = 0;
    /// Opens a modal dialog owned by the main window, or by the dialog opened last; closing a window closes those
    /// above.
    virtual void openDialog(std::u16string_view title) = 0;
    /// Number of dialogs open.
    [[nodiscard]] virtual std::size_t dialogs() const = 0;
    virtual void closeDialog() = 0;
    /// Takes the window and its dialogs off the system; harmless when that is done.
    virtual void close() = 0;
};

} // namespace simulator
