#pragma once

#include "host/world/EmbeddedWorld.h"
#include "simulator/process/Process.h"
#include "tests/trials/Host.h"

namespace trials::learners {

/// The learner's PowerPoint as it stands at the moment, read off its documents and windows themselves, and the names of
/// the files in the host's folder.
class Scene {
public:
    explicit Scene(EmbeddedWorld& world);

    /// False where PowerPoint has been closed or hidden.
    [[nodiscard]] bool isPowerPointThere() const noexcept { return isThere_; }
    /// True while a dialog waits for the learner.
    [[nodiscard]] bool hasDialog() const noexcept { return hasDialog_; }
    /// Open presentations, in the order in which they were opened.
    [[nodiscard]] const std::vector<simulator::PresentationPtr>& presentations() const noexcept {
        return presentations_;
    }
    /// The window in front; null where there is none.
    [[nodiscard]] simulator::DocumentWindow* window() const noexcept { return window_.get(); }
    /// The presentation in front; null where there is none.
    [[nodiscard]] simulator::Presentation* active() const noexcept { return active_.get(); }
    /// A slide of the presentation in front, by its number from 1; null where there is none.
    [[nodiscard]] const simulator::Slide* slide(std::size_t number) const noexcept;
    [[nodiscard]] const std::u16string& folder() const noexcept { return folder_; }
    [[nodiscard]] const std::vector<std::u16string>& files() const noexcept { return files_; }

private:
    bool isThere_ = false;
    bool hasDialog_ = false;
    std::vector<simulator::PresentationPtr> presentations_;
    simulator::DocumentWindowPtr window_;
    simulator::PresentationPtr active_;
    std::u16string folder_;
    std::vector<std::u16string> files_;
};

/// The mark that a prepared slide or shape bears; empty for what is not marked.
template <typename Marked> [[nodiscard]] std::u16string markOf(const Marked& marked) {
    return marked.tags.value(u"IDENTITE");
}

/// "ZOR" and a number: the mark of a slide or shape prepared at this place.
[[nodiscard]] std::u16string mark(std::size_t place);

} // namespace trials::learners
