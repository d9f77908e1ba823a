#include "host/run/Snapshot.h"

#include "host/world/Members.h"

#include <algorithm>
#include <iterator>

namespace host {

namespace {

using automation::LateBound;

/// The tag by which the module knows slides and shapes again.
constexpr std::u16string_view identityTag = u"Identite";

std::u16string identityOf(const LateBound& marked) {
    return memberOf(marked, u"Tags").call(u"Item", identityTag).to<std::u16string>();
}

SlideMarks marksOf(const LateBound& slide) {
    SlideMarks marks{identityOf(slide), {}};
    forEachItem(memberOf(slide, u"Shapes"), [&](const LateBound& shape) { marks.shapes.push_back(identityOf(shape)); });
    return marks;
}

OpenPresentation read(const LateBound& presentation, const Snapshot::WantsSlides& wantsSlides) {
    OpenPresentation result{presentation.get(u"Name").to<std::u16string>(),
                            presentation.get(u"FullName").to<std::u16string>(),
                            presentation.get(u"Saved").to<bool>(),
                            {}};
    if (!wantsSlides || wantsSlides(result.fullName)) {
        forEachItem(memberOf(presentation, u"Slides"),
                    [&](const LateBound& slide) { result.slides.push_back(marksOf(slide)); });
    }
    return result;
}

std::optional<std::vector<OpenPresentation>> presentationsIn(World& world, const Snapshot::WantsSlides& wantsSlides) {
    try {
        std::vector<OpenPresentation> all;
        forEachItem(memberOf(LateBound(world.powerPoint().application()), u"Presentations"),
                    [&](const LateBound& presentation) { all.push_back(read(presentation, wantsSlides)); });
        return all;
    } catch (const automation::Error&) {
        return std::nullopt;
    }
}

} // namespace

Snapshot::Snapshot(World& world, const WantsSlides& wantsSlides)
    : window(world.powerPoint().window()), dialogs(world.powerPoint().dialogs()),
      files(world.files().namesIn(world.hostFolder())), folders(folderSettings::in(world.registry())),
      presentations(presentationsIn(world, wantsSlides)) {}

const OpenPresentation* Snapshot::find(std::u16string_view fullName) const {
    if (!presentations) {
        return nullptr;
    }
    const auto found = std::find_if(presentations->begin(), presentations->end(),
                                    [&](const OpenPresentation& open) { return open.fullName == fullName; });
    return found == presentations->end() ? nullptr : &*found;
}

std::vector<std::u16string> without(const std::vector<std::u16string>& first,
                                    const std::vector<std::u16string>& second) {
    std::vector<std::u16string> rest;
    std::set_difference(first.begin(), first.end(), second.begin(), second.end(), std::back_inserter(rest));
    return rest;
}

} // namespace host
