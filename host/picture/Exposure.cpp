#include "host/picture/Exposure.h"

#include "automation/Text.h"
#include "host/world/Members.h"

#include <algorithm>

namespace host {

namespace {

using automation::LateBound;
using automation::ObjectPtr;

/// The presentation that bears a full name, or the active one for no name; raises where there is none.
LateBound presentationIn(const LateBound& application, const std::u16string& fullName) {
    if (fullName.empty()) {
        return memberOf(application, u"ActivePresentation");
    }
    const LateBound open = memberOf(application, u"Presentations");
    for (std::int32_t i = 1; i <= countOf(open); ++i) {
        LateBound presentation = itemOf(open, i);
        if (presentation.get(u"FullName").to<std::u16string>() == fullName) {
            return presentation;
        }
    }
    automation::raise(automation::RunTimeError::SubscriptOutOfRange);
}

/// Adds the marked ones of these shapes, the groups, and what the learner has put into groups.
void addLabels(const LateBound& shapes, std::vector<Label>& labels) {
    constexpr std::int32_t group = 6; // msoGroup
    forEachItem(shapes, [&](const LateBound& shape) {
        const auto mark = memberOf(shape, u"Tags").call(u"Item", u"Identite").to<std::u16string>();
        const bool isGroup = shape.get(u"Type").to<std::int32_t>() == group;
        if (mark.starts_with(u"ZOR") || isGroup) {
            const auto length = [&](std::u16string_view member) { return shape.get(member).to<float>(); };
            labels.push_back({length(u"Left"), length(u"Top"), length(u"Width"), length(u"Height"),
                              automation::toUtf8(mark), isGroup});
        }
        if (isGroup) {
            addLabels(memberOf(shape, u"GroupItems"), labels);
        }
    });
}

std::vector<Label> labelsOf(const LateBound& slide) {
    std::vector<Label> labels;
    addLabels(memberOf(slide, u"Shapes"), labels);
    return labels;
}

/// Exports through a file that is there only as long as it takes.
std::optional<Picture> exported(World& world, const LateBound& slide, const std::string& extension) {
    const std::u16string format = automation::fromUtf8(extension);
    const std::u16string file = world.hostFolder() + u"exercise-host-picture." + format;
    try {
        slide.call(u"Export", file, format);
        const Bytes bytes = world.files().read(file);
        world.files().remove(file);
        return Picture{extension, std::string(bytes.begin(), bytes.end()), labelsOf(slide)};
    } catch (const automation::Error&) {
        return std::nullopt;
    }
}

Picture pictureOf(World& world, const LateBound& slide) {
    for (const char* const extension : {"svg", "png"}) {
        if (auto picture = exported(world, slide, extension)) {
            return std::move(*picture);
        }
    }
    return {};
}

std::int32_t shownIn(const LateBound& presentation, const Exposure& exposure) {
    try {
        const LateBound window = itemOf(memberOf(presentation, u"Windows"), 1);
        return memberOf(memberOf(window, u"View"), u"Slide").get(u"SlideID").to<std::int32_t>();
    } catch (const automation::Error&) {
        return exposure.slides.empty() ? 0 : exposure.slides.front().id;
    }
}

bool hasChanged(std::int32_t id, const Exposure& before, const Exposure& after) {
    const Picture* const former = before.find(id);
    const Picture* const now = after.find(id);
    return former != nullptr && now != nullptr && *former != *now;
}

/// The ids of the slides on which something happened, the one shown first.
std::vector<std::int32_t> changedSlides(const Exposure& before, const Exposure& after) {
    std::vector<std::int32_t> all;
    const auto add = [&](std::int32_t id) {
        if (std::find(all.begin(), all.end(), id) == all.end()) {
            all.push_back(id);
        }
    };
    for (const std::int32_t shown : {after.shown, before.shown}) {
        if (hasChanged(shown, before, after)) {
            add(shown);
        }
    }
    for (const auto& [one, other] : {std::pair(&after, &before), std::pair(&before, &after)}) {
        for (const Exposure::Slide& slide : one->slides) {
            if (other->find(slide.id) == nullptr || hasChanged(slide.id, before, after)) {
                add(slide.id);
            }
        }
    }
    return all;
}

Picture at(const Exposure& exposure, std::int32_t id, bool isOnly) {
    const Picture* found = exposure.find(id);
    found = found == nullptr && isOnly ? exposure.find(exposure.shown) : found;
    return found != nullptr ? *found : Picture();
}

} // namespace

const Picture* Exposure::find(std::int32_t id) const noexcept {
    const auto found = std::find_if(slides.begin(), slides.end(), [id](const Slide& slide) { return slide.id == id; });
    return found == slides.end() ? nullptr : &found->picture;
}

Exposure expose(World& world, const std::u16string& presentation) {
    Exposure exposure;
    try {
        const ObjectPtr running = world.powerPoint().application();
        if (!running) {
            return exposure;
        }
        const LateBound wanted = presentationIn(LateBound(running), presentation);
        exposure.presentation = wanted.get(u"FullName").to<std::u16string>();
        const LateBound slides = memberOf(wanted, u"Slides");
        const std::int32_t count = countOf(slides);
        for (std::int32_t i = 1; i <= count; ++i) {
            const LateBound slide = itemOf(slides, i);
            exposure.slides.push_back({slide.get(u"SlideID").to<std::int32_t>(), pictureOf(world, slide)});
        }
        exposure.shown = shownIn(wanted, exposure);
    } catch (const automation::Error&) {
        // PowerPoint is gone, busy, or has nothing open: what has been seen so far is the picture.
    }
    return exposure;
}

std::size_t Exposure::numberOf(std::int32_t id) const noexcept {
    const auto found = std::find_if(slides.begin(), slides.end(), [id](const Slide& slide) { return slide.id == id; });
    return found == slides.end() ? 0 : static_cast<std::size_t>(found - slides.begin()) + 1;
}

std::vector<BeforeAfter> tellingSlides(const Exposure& before, const Exposure& after) {
    if (after.slides.empty()) {
        return {{before.numberOf(before.shown), at(before, before.shown, true), {}}};
    }
    std::vector<std::int32_t> ids = changedSlides(before, after);
    if (ids.empty()) {
        ids.push_back(after.shown);
    }
    std::vector<BeforeAfter> all;
    for (const std::int32_t id : ids) {
        const std::size_t number = after.numberOf(id) != 0 ? after.numberOf(id) : before.numberOf(id);
        all.push_back({number, at(before, id, ids.size() == 1), at(after, id, ids.size() == 1)});
    }
    return all;
}

} // namespace host
