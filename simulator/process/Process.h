#pragma once

#include "simulator/process/CommandBarSet.h"
#include "simulator/process/DocumentWindow.h"
#include "simulator/process/MainWindow.h"
#include "simulator/process/SavePrompt.h"
#include "simulator/process/SlideShowWindow.h"

#include <functional>

namespace simulator {

/// Loads and saves presentation files by their Windows paths. Raises PowerPoint's own error where that fails.
class PresentationStore {
public:
    virtual ~PresentationStore() = default;
    [[nodiscard]] virtual PresentationPtr load(std::u16string_view path) = 0;
    virtual void save(const Presentation& presentation, std::u16string_view path) = 0;
    /// Writes the outline of a presentation as rich text.
    virtual void saveOutline(const Presentation& presentation, std::u16string_view path) = 0;
    /// Writes a picture of a slide, whose bytes are given.
    virtual void savePicture(const std::string& picture, std::u16string_view path) = 0;
    /// True where the file may not be written.
    [[nodiscard]] virtual bool isReadOnly(std::u16string_view path) = 0;
};

/// What PowerPoint remembers from one run to the next.
struct Settings {
    CommandBarSet commandBars;
    bool showStartupDialog = true;
    SavePrompt savePrompt;
    Frame mainWindow{0, 0, 768, 555}; ///< where it stands when it is not maximized
    /// PowerPoint behaves as its documentation says also where the questions' description has it otherwise: a group's
    /// items are those of the groups in it, and punctuation is a word of its own.
    bool isAsDocumented = false;
    /// Where a file lies that is named without a folder.
    std::u16string documentsFolder = u"C:\\Documents and Settings\\Eleve\\Mes documents";
};

/// What was copied last: shapes, slides or text.
struct Clipboard {
    std::vector<ShapePtr> shapes;
    std::vector<SlidePtr> slides;
    TextStory text;  ///< with its formats
    ShapePtr format; ///< a copy of the shape whose format was picked up last, apart from what was copied
};

/// One run of PowerPoint, from its start to its end. Automation objects hold it; when it has ended, or does not answer,
/// their calls raise.
class Process : public std::enable_shared_from_this<Process> {
public:
    enum class State : std::uint8_t { Running, Busy, Gone };

    /// The window, the store and the settings must outlive the process.
    Process(MainWindow& window, PresentationStore& store, Settings& settings);

    /// To be called before every automation call: raises CallRejected while PowerPoint is busy, RetryLater while a
    /// dialog waits for its user, ServerUnavailable once it has ended.
    void admit() const {
        if (state_ != State::Running || window_.dialogs() != 0) {
            refuse();
        }
        if (onCall_) {
            onCall_();
        }
    }
    [[nodiscard]] State state() const noexcept { return state_; }
    void setBusy(bool busy) noexcept;
    /// Asks what becomes of each presentation that has changed since it was saved, and ends the run; stays where the
    /// user cancels.
    void quit();
    /// Ends the run: documents are dropped unsaved, the window and its dialogs closed. Harmless when it has ended.
    void end();
    /// Called for every automation call that is let in.
    void onCall(std::function<void()> handler) { onCall_ = std::move(handler); }
    /// Called once when the run ends.
    void onEnd(std::function<void()> handler) { onEnd_ = std::move(handler); }

    /// Title of the main window: it names the presentation in front.
    [[nodiscard]] std::u16string title() const;
    [[nodiscard]] MainWindow& window() noexcept { return window_; }
    [[nodiscard]] Settings& settings() noexcept { return settings_; }
    [[nodiscard]] Clipboard& clipboard() noexcept { return clipboard_; }

    /// Open presentations, in the order in which they were opened.
    [[nodiscard]] const std::vector<PresentationPtr>& presentations() const noexcept { return presentations_; }
    /// Document windows, the active one first.
    [[nodiscard]] const std::vector<DocumentWindowPtr>& windows() const noexcept { return windows_; }

    /// A new presentation without slides. A window cannot be had while PowerPoint is invisible.
    PresentationPtr create(bool withWindow);
    /// Opens a file; one that is open already is shown instead. `untitled` opens a copy without a path.
    PresentationPtr open(std::u16string_view path, bool readOnly, bool untitled, bool withWindow);
    /// Closes a presentation and its windows without a question.
    void close(const PresentationPtr& presentation);
    /// Saves under the presentation's path, or under its name in the documents folder where it has none. Raises for a
    /// presentation opened read-only.
    void save(const PresentationPtr& presentation);
    /// Saves under another name, which the presentation bears from then on.
    void saveAs(const PresentationPtr& presentation, std::u16string_view path);
    /// The path, in the documents folder where it names no folder.
    [[nodiscard]] std::u16string fullPath(std::u16string_view path) const;
    [[nodiscard]] PresentationStore& store() noexcept { return store_; }

    /// Opens another window on a presentation, in front.
    DocumentWindowPtr openWindow(const PresentationPtr& presentation);
    void activate(const DocumentWindowPtr& window);
    /// Closes a window, and its presentation with the last one.
    void closeWindow(const DocumentWindowPtr& window);
    /// Runs the slide show of a presentation in a window of its own, which is no document window; one that runs is
    /// ended. Raises an invalid request where there is nothing to show.
    SlideShowWindowPtr runSlideShow(const PresentationPtr& presentation);
    /// The slide shows that run, the last one started in front.
    [[nodiscard]] const std::vector<SlideShowWindowPtr>& slideShows();

    void activate(const SlideShowWindowPtr& show) noexcept;
    /// The active document window; null where there is none, or where PowerPoint is invisible.
    [[nodiscard]] DocumentWindowPtr activeWindow() const;
    /// The first window that shows a presentation; null where it has none.
    [[nodiscard]] DocumentWindowPtr windowOf(const Presentation& presentation) const;

private:
    /// Raises what stands against a call.
    [[noreturn]] void refuse() const;
    [[nodiscard]] PresentationPtr presentationAt(std::u16string_view path) const;
    void demandFrame() const;
    void addWindow(const PresentationPtr& presentation);
    void show(const PresentationPtr& presentation);
    void updateTitle();
    [[nodiscard]] std::u16string nextName();

    MainWindow& window_;
    PresentationStore& store_;
    Settings& settings_;
    State state_ = State::Running;
    std::vector<PresentationPtr> presentations_;
    std::vector<DocumentWindowPtr> windows_;
    std::vector<SlideShowWindowPtr> slideShows_;
    Clipboard clipboard_;
    std::function<void()> onCall_;
    std::function<void()> onEnd_;
    int untitled_ = 0;
};

using ProcessPtr = std::shared_ptr<Process>;

} // namespace simulator
