#include "host/command/Telling.h"
#include "host/language/Words.h"

#include "automation/Text.h"

namespace host {

namespace {

using automation::toUtf8;

std::string listed(const std::vector<std::u16string>& texts) {
    std::string all;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        all += (i == 0 ? "" : i + 1 == texts.size() ? " and " : ", ") + toUtf8(texts[i]);
    }
    return all;
}

/// `marked ZOR1 to ZOR4`; empty where nothing is.
std::string marked(const std::vector<std::u16string>& identities) {
    std::vector<std::u16string> present;
    std::copy_if(identities.begin(), identities.end(), std::back_inserter(present),
                 [](const std::u16string& identity) { return !identity.empty(); });
    if (present.size() <= 2) {
        return present.empty() ? "" : "marked " + listed(present);
    }
    return "marked " + toUtf8(present.front()) + " to " + toUtf8(present.back());
}

} // namespace

void Telling::delivered(const std::vector<std::u16string>& names) {
    story_.chapter("The course delivers " + listed(names) + " into " + toUtf8(world_.hostFolder()));
    isAmongMoves_ = false;
}

void Telling::performing(const language::Statement& statement) {
    if (!isAmongMoves_) {
        story_.chapter("The learner's moves");
        isAmongMoves_ = true;
    }
    story_.statement(statement.place.line, toUtf8(statement.text));
}

void Telling::calling(HostCall call) {
    story_.chapter("The host calls " + toUtf8(nameOf(call)));
    isAmongMoves_ = false;
    before_.emplace(world_);
    if (!learnersFolders_) {
        learnersFolders_ = before_->folders;
    }
}

void Telling::called(HostCall /*call*/, const automation::Error* error) {
    const Snapshot after(world_);
    tellPowerPoint(*before_, after);
    tellClosed(*before_, after);
    tellFiles(*before_, after);
    tellOpened(*before_, after);
    tellFolders(*before_, after);
    if (error != nullptr) {
        story_.sentence("The module raises the " + inWords(*error));
    }
}

void Telling::judged(const Reading& reading) {
    story_.sentence("The host reads " + reading.explained());
}

void Telling::tellPowerPoint(const Snapshot& before, const Snapshot& after) {
    if (after.window != before.window) {
        story_.sentence(after.window == 0 ? "PowerPoint has ended" : "PowerPoint has started");
    }
    if (after.dialogs < before.dialogs) {
        story_.sentence(counted(before.dialogs - after.dialogs, "dialog") + " closed");
    }
}

void Telling::tellFiles(const Snapshot& before, const Snapshot& after) {
    const std::vector<std::u16string> come = without(after.files, before.files);
    const std::vector<std::u16string> gone = without(before.files, after.files);
    if (!come.empty()) {
        story_.sentence(gone.empty() ? "New in the folder: " + listed(come)
                                     : "In the folder " + listed(come) + " stands in the place of " + listed(gone));
    } else if (!gone.empty()) {
        story_.sentence("Removed from the folder: " + listed(gone));
    }
}

void Telling::tellOpened(const Snapshot& before, const Snapshot& after) {
    const bool wasSilent = before.window != 0 && !before.presentations;
    for (const OpenPresentation& open : after.presentations.value_or(std::vector<OpenPresentation>())) {
        if (!wasSilent && before.find(open.fullName) == nullptr) {
            tellMarks(open);
        }
    }
}

void Telling::tellClosed(const Snapshot& before, const Snapshot& after) {
    for (const OpenPresentation& open : before.presentations.value_or(std::vector<OpenPresentation>())) {
        if (after.presentations && after.find(open.fullName) == nullptr) {
            story_.sentence(toUtf8(open.name) + " is closed");
        }
    }
}

void Telling::tellMarks(const OpenPresentation& open) {
    std::vector<std::u16string> identities;
    for (const SlideMarks& slide : open.slides) {
        identities.push_back(slide.identity);
    }
    const std::string slides = marked(identities);
    story_.sentence(toUtf8(open.name) + " is open: " + counted(open.slides.size(), "slide") +
                    (slides.empty() ? "" : ", " + slides));
    for (std::size_t i = 0; i < open.slides.size(); ++i) {
        if (const std::string shapes = marked(open.slides[i].shapes); !shapes.empty()) {
            story_.sentence("The shapes of slide " + std::to_string(i + 1) + " are " + shapes);
        }
    }
}

void Telling::tellFolders(const Snapshot& before, const Snapshot& after) {
    if (after.folders == before.folders) {
        return;
    }
    if (after.folders == learnersFolders_) {
        return story_.sentence("PowerPoint's folders are the learner's again");
    }
    std::vector<std::u16string> emptied;
    for (std::size_t i = 0; i < after.folders.size(); ++i) {
        const std::u16string name(folderSettings::names.at(i));
        if (after.folders.at(i) == before.folders.at(i)) {
            continue;
        }
        if (after.folders.at(i).empty()) {
            emptied.push_back(name);
        } else {
            story_.sentence("PowerPoint's folder " + toUtf8(name) + " is " + inQuotes(after.folders.at(i)) +
                            " instead of " + inQuotes(before.folders.at(i)));
        }
    }
    if (!emptied.empty()) {
        story_.sentence("PowerPoint's folders " + listed(emptied) + " are emptied");
    }
}

} // namespace host
