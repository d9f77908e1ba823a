#include "simulator/process/Process.h"

#include "automation/Error.h"
#include "automation/Text.h"
#include "simulator/document/Masters.h"
#include "simulator/process/Errors.h"

#include <algorithm>
#include <utility>

namespace simulator {

namespace {

std::u16string fileName(std::u16string_view path) {
    return std::u16string(path.substr(path.find_last_of(u"\\:") + 1));
}

template <typename T> void take(std::vector<T>& list, const T& element) {
    list.erase(std::remove(list.begin(), list.end(), element), list.end());
}

} // namespace

Process::Process(MainWindow& window, PresentationStore& store, Settings& settings)
    : window_(window), store_(store), settings_(settings) {
    updateTitle();
}

void Process::refuse() const {
    switch (state_) {
    case State::Busy:
        throw automation::Error(automation::remote::callRejected, {}, u"L'appel a été rejeté par l'appelé.");
    case State::Gone:
        throw automation::Error(automation::remote::serverUnavailable, {}, u"Le serveur RPC n'est pas disponible.");
    default:
        throw automation::Error(automation::remote::retryLater, {},
                                u"L'application est occupée : une boîte de dialogue est ouverte.");
    }
}

void Process::setBusy(bool busy) noexcept {
    if (state_ != State::Gone) {
        state_ = busy ? State::Busy : State::Running;
    }
}

void Process::quit() {
    SavePrompt& prompt = settings_.savePrompt;
    const std::vector<PresentationPtr> open = presentations_;
    for (const PresentationPtr& presentation : open) {
        if (presentation->saved) {
            continue;
        }
        if (!prompt.answer) {
            prompt.unanswered.push_back(presentation->name);
        } else if (*prompt.answer == SavePrompt::Answer::Cancel) {
            return;
        } else if (*prompt.answer == SavePrompt::Answer::Save) {
            save(presentation);
        }
    }
    end();
}

void Process::end() {
    if (std::exchange(state_, State::Gone) == State::Gone) {
        return;
    }
    windows_.clear();
    slideShows_.clear();
    presentations_.clear();
    clipboard_.shapes.clear(); // nothing here may ask for memory: an end is whole
    clipboard_.slides.clear();
    clipboard_.format.reset();
    window_.close();
    if (const auto handler = std::exchange(onEnd_, nullptr)) {
        handler();
    }
}

std::u16string Process::title() const {
    const PresentationPtr presentation = windows_.empty() ? nullptr : windows_.front()->presentation.lock();
    return presentation ? u"Microsoft PowerPoint - [" + presentation->name + u"]" : u"Microsoft PowerPoint";
}

PresentationPtr Process::create(bool withWindow) {
    if (withWindow) {
        demandFrame();
    }
    auto presentation = std::make_shared<Presentation>();
    presentation->name = nextName();
    (void)slideMasterOf(*presentation);
    presentations_.push_back(presentation);
    if (withWindow) {
        addWindow(presentation);
    }
    return presentation;
}

PresentationPtr Process::open(std::u16string_view path, bool readOnly, bool untitled, bool withWindow) {
    if (withWindow) {
        demandFrame();
    }
    const std::u16string file = fullPath(path);
    PresentationPtr presentation = untitled ? nullptr : presentationAt(file);
    if (!presentation) {
        presentation = store_.load(file);
        presentation->path = untitled ? std::u16string() : file;
        presentation->name = untitled ? nextName() : fileName(file);
        presentation->readOnly = !untitled && (readOnly || store_.isReadOnly(file));
        presentation->saved = true;
        presentations_.push_back(presentation);
    }
    if (withWindow) {
        show(presentation);
    }
    return presentation;
}

void Process::close(const PresentationPtr& presentation) {
    const PresentationPtr closed = presentation;
    const auto showsIt = [&](const DocumentWindowPtr& window) { return window->presentation.lock() == closed; };
    windows_.erase(std::remove_if(windows_.begin(), windows_.end(), showsIt), windows_.end());
    take(presentations_, closed);
    updateTitle();
}

void Process::save(const PresentationPtr& presentation) {
    if (presentation->readOnly) {
        errors::invalidRequest(u"Presentation.Save : Cette présentation est en lecture seule.");
    }
    if (presentation->path.empty()) {
        saveAs(presentation, presentation->name + u".ppt");
        return;
    }
    store_.save(*presentation, presentation->path);
    presentation->saved = true;
}

void Process::saveAs(const PresentationPtr& presentation, std::u16string_view path) {
    const std::u16string file = fullPath(path);
    if (const PresentationPtr holder = presentationAt(file); holder && holder != presentation) {
        errors::invalidRequest(u"Presentation.SaveAs : Une présentation de ce nom est déjà ouverte.");
    }
    store_.save(*presentation, file);
    presentation->path = file;
    presentation->name = fileName(file);
    presentation->readOnly = false;
    presentation->saved = true;
    updateTitle();
}

std::u16string Process::fullPath(std::u16string_view path) const {
    const bool hasFolder = path.find(u':') != std::u16string_view::npos || path.starts_with(u"\\");
    return hasFolder ? std::u16string(path) : settings_.documentsFolder + u"\\" + std::u16string(path);
}

PresentationPtr Process::presentationAt(std::u16string_view path) const {
    const auto liesThere = [path](const PresentationPtr& presentation) {
        return automation::equalIgnoringCase(presentation->path, path);
    };
    const auto found = std::find_if(presentations_.begin(), presentations_.end(), liesThere);
    return found == presentations_.end() ? nullptr : *found;
}

void Process::activate(const DocumentWindowPtr& window) {
    const auto found = std::find(windows_.begin(), windows_.end(), window);
    if (found != windows_.end()) {
        std::rotate(windows_.begin(), found, found + 1);
        updateTitle();
    }
}

DocumentWindowPtr Process::openWindow(const PresentationPtr& presentation) {
    demandFrame();
    addWindow(presentation);
    return windows_.front();
}

void Process::closeWindow(const DocumentWindowPtr& window) {
    const PresentationPtr presentation = window->presentation.lock();
    take(windows_, DocumentWindowPtr(window));
    if (presentation && !windowOf(*presentation)) {
        close(presentation);
    }
    updateTitle();
}

SlideShowWindowPtr Process::runSlideShow(const PresentationPtr& presentation) {
    auto show = std::make_shared<SlideShowWindow>(presentation);
    if (!show->shown()) {
        errors::invalidRequest(u"SlideShowSettings.Run", u"Il n'y a aucune diapositive à montrer.");
    }
    std::erase_if(slideShows_, [&presentation](const SlideShowWindowPtr& each) {
        return each->presentation.lock() == presentation || each->isOver();
    });
    slideShows_.insert(slideShows_.begin(), show);
    return show;
}

const std::vector<SlideShowWindowPtr>& Process::slideShows() {
    std::erase_if(slideShows_, [](const SlideShowWindowPtr& each) { return each->isOver(); });
    return slideShows_;
}

void Process::activate(const SlideShowWindowPtr& show) noexcept {
    if (const auto found = std::find(slideShows_.begin(), slideShows_.end(), show); found != slideShows_.end()) {
        std::rotate(slideShows_.begin(), found, found + 1);
    }
}

DocumentWindowPtr Process::activeWindow() const {
    return windows_.empty() || !window_.isVisible() ? nullptr : windows_.front();
}

DocumentWindowPtr Process::windowOf(const Presentation& presentation) const {
    const auto showsIt = [&](const DocumentWindowPtr& window) {
        return window->presentation.lock().get() == &presentation;
    };
    const auto found = std::find_if(windows_.begin(), windows_.end(), showsIt);
    return found == windows_.end() ? nullptr : *found;
}

void Process::demandFrame() const {
    if (!window_.isVisible()) {
        errors::invalidRequest(u"Presentations (membre inconnu) : La fenêtre principale de PowerPoint n'existe pas.");
    }
}

void Process::addWindow(const PresentationPtr& presentation) {
    const auto window = std::make_shared<DocumentWindow>();
    window->presentation = presentation;
    windows_.insert(windows_.begin(), window);
    updateTitle();
}

void Process::show(const PresentationPtr& presentation) {
    if (const DocumentWindowPtr window = windowOf(*presentation)) {
        activate(window);
    } else {
        addWindow(presentation);
    }
}

void Process::updateTitle() {
    window_.setTitle(title());
}

std::u16string Process::nextName() {
    return u"Présentation" + automation::decimal(++untitled_);
}

} // namespace simulator
