#include "tests/trials/learners/Scene.h"

#include "automation/Text.h"
#include "simulator/Machine.h"

namespace trials::learners {

Scene::Scene(EmbeddedWorld& world) : folder_(world.hostFolder()), files_(world.files().namesIn(folder_)) {
    const simulator::ProcessPtr process = world.machine().process();
    if (!process) {
        return;
    }
    isThere_ = process->window().isVisible();
    hasDialog_ = process->window().dialogs() != 0;
    presentations_ = process->presentations();
    window_ = process->activeWindow();
    active_ = window_ ? window_->presentation.lock() : nullptr;
}

const simulator::Slide* Scene::slide(std::size_t number) const noexcept {
    return active_ && number >= 1 && number <= active_->slides().size() ? active_->slides()[number - 1].get() : nullptr;
}

std::u16string mark(std::size_t place) {
    return u"ZOR" + automation::fromUtf8(std::to_string(place));
}

} // namespace trials::learners
