#include "host/run/Guard.h"

#include "automation/Text.h"

namespace host {

using automation::toUtf8;

void Guard::calling(HostCall call) {
    before_.emplace(look());
    if (call == HostCall::InitQuestion && !firstFolders_) {
        firstFolders_ = before_->folders;
    }
}

void Guard::called(HostCall call, const automation::Error* /*error*/) {
    const Snapshot after = look();
    if (call == HostCall::InitQuestion) {
        for (std::u16string& name : without(after.files, before_->files)) {
            workingFiles_.insert(std::move(name));
        }
        for (const OpenPresentation& open : after.presentations.value_or(std::vector<OpenPresentation>())) {
            if (before_->find(open.fullName) == nullptr) {
                workingPresentations_.insert(open.fullName);
            }
        }
    }
    comparePresentations(call, after);
}

Snapshot Guard::look() const {
    return Snapshot(world_, [this](const std::u16string& fullName) { return !isOfTheExercise(fullName); });
}

bool Guard::isOfTheExercise(const std::u16string& fullName) const {
    const std::u16string folder = world_.hostFolder();
    return automation::equalIgnoringCase(fullName.substr(0, folder.size()), folder) ||
           workingPresentations_.contains(fullName);
}

void Guard::comparePresentations(HostCall call, const Snapshot& after) {
    if (!before_->presentations || !after.presentations || before_->window != after.window) {
        return;
    }
    for (const OpenPresentation& open : *before_->presentations) {
        if (isOfTheExercise(open.fullName)) {
            continue;
        }
        const OpenPresentation* const now = after.find(open.fullName);
        if (now == nullptr || !(*now == open)) {
            findings_.push_back(toUtf8(nameOf(call)) + (now == nullptr ? " closed " : " changed ") +
                                "the learner's presentation " + toUtf8(open.name));
        }
    }
}

std::vector<std::string> Guard::findings() {
    const Snapshot now = look();
    std::vector<std::string> all = findings_;
    for (std::size_t i = 0; firstFolders_ && i < now.folders.size(); ++i) {
        if (now.folders.at(i) != firstFolders_->at(i)) {
            all.push_back("the learner's folder " + toUtf8(folderSettings::names.at(i)) + " was \"" +
                          toUtf8(firstFolders_->at(i)) + "\" and now is \"" + toUtf8(now.folders.at(i)) + "\"");
        }
    }
    for (const std::u16string& name : now.files) {
        if (workingFiles_.contains(name)) {
            all.push_back("the working file " + toUtf8(name) + " is left in the host's folder");
        }
    }
    return all;
}

} // namespace host
