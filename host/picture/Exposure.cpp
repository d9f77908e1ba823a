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

/// Exports through a file that is there only as long as it takes.
std::optional<Picture> exported(World& world, const LateBound& slide, const std::string& extension) {
    const std::u16string format = automation::fromUtf8(extension);
    const std::u16string file = world.hostFolder() + u"exercise-host-picture." + format;
    try {
        slide.call(u"Export", file, format);
        const Bytes bytes = world.files().read(file);
        world.files().remove(file);
        return Picture{extension, std::string(bytes.begin(), bytes.end())};
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

/// The id of the slide on which something happened; 0 where nothing did.
std::int32_t changedSlide(const Exposure& before, const Exposure& after) {
    for (const std::int32_t shown : {after.shown, before.shown}) {
        if (hasChanged(shown, before, after)) {
            return shown;
        }
    }
    for (const Exposure::Slide& slide : after.slides) {
        if (hasChanged(slide.id, before, after)) {
            return slide.id;
        }
    }
    for (const auto& [one, other] : {std::pair(&after, &before), std::pair(&before, &after)}) {
        for (const Exposure::Slide& slide : one->slides) {
            if (other->find(slide.id) == nullptr) {
                return slide.id;
            }
        }
    }
    return 0;
}

Picture at(const Exposure& exposure, std::int32_t id) {
    const Picture* found = exposure.find(id);
    found = found != nullptr ? found : exposure.find(exposure.shown);
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

BeforeAfter tellingSlide(const Exposure& before, const Exposure& after) {
    if (after.slides.empty()) {
        return {at(before, before.shown), {}};
    }
    const std::int32_t changed = changedSlide(before, after);
    const std::int32_t wanted = changed != 0 ? changed : after.shown;
    return {at(before, wanted), at(after, wanted)};
}

} // namespace host
