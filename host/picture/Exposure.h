#pragma once

#include "host/world/World.h"

namespace host {

/// What is to be known of a shape beside how it looks: its mark, and whether it is a group. Lengths are in points.
struct Label {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;
    std::string mark; ///< empty for none
    bool isGroup = false;

    friend bool operator==(const Label&, const Label&) = default;
};

/// A picture of a slide, as a file holds it: "svg" where PowerPoint has a filter for it, else "png".
struct Picture {
    std::string extension;
    std::string bytes; ///< none where there is no picture
    std::vector<Label> labels{};

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
    /// The number of a slide, from 1; 0 where it was not there.
    [[nodiscard]] std::size_t numberOf(std::int32_t id) const noexcept;
};

/// Has PowerPoint export the slides of a presentation, or of the one in front where none is named. What does not answer
/// is not on it.
[[nodiscard]] Exposure expose(World& world, const std::u16string& presentation = {});

/// A slide before and after something happened to it.
struct BeforeAfter {
    std::size_t slide = 0; ///< its number, that of before where it is gone
    Picture before;
    Picture after;
};

/// The slides that have changed, come or gone, the one shown first; where all are the same, the one shown. For a slide
/// that was not there, the one that was shown stands where it is the only one.
[[nodiscard]] std::vector<BeforeAfter> tellingSlides(const Exposure& before, const Exposure& after);

} // namespace host
