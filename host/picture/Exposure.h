#pragma once

#include "host/world/World.h"

namespace host {

/// A picture of a slide, as a file holds it: "svg" where PowerPoint has a filter for it, else "png".
struct Picture {
    std::string extension;
    std::string bytes; ///< none where there is no picture

    friend bool operator==(const Picture&, const Picture&) = default;
};

/// The slides of a presentation as they look at one moment.
struct Exposure {
    struct Slide {
        std::int32_t id = 0;
        Picture picture;
    };

    std::u16string presentation; ///< its full name; empty where there was none to be seen
    std::vector<Slide> slides;
    std::int32_t shown = 0; ///< id of the slide that its window shows

    /// The picture of a slide; null where it was not there.
    [[nodiscard]] const Picture* find(std::int32_t id) const noexcept;
};

/// Has PowerPoint export the slides of a presentation, or of the one in front where none is named. What does not answer
/// is not on it.
[[nodiscard]] Exposure expose(World& world, const std::u16string& presentation = {});

/// A slide before and after something happened to it.
struct BeforeAfter {
    Picture before;
    Picture after;
};

/// The slide that tells best what happened: the one shown where it has changed, else the first that changed, came or
/// went; where all are the same, the one shown. Where it was not there, the slide that was shown instead stands for it.
[[nodiscard]] BeforeAfter tellingSlide(const Exposure& before, const Exposure& after);

} // namespace host
