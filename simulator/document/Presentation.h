#pragma once

#include "simulator/document/Slide.h"

namespace simulator {

using PresentationPtr = std::shared_ptr<Presentation>;

/// A presentation as it stands in memory.
class Presentation : public std::enable_shared_from_this<Presentation> {
public:
    std::u16string path; ///< full Windows path; empty until it is saved for the first time
    std::u16string name; ///< file name, or "Présentation1" and so on until it is saved
    bool readOnly = false;
    bool saved = true;      ///< nothing has changed since it was opened or saved
    float gridDistance = 6; ///< points
    bool snapToGrid = true;
    float slideWidth = 720;  ///< points
    float slideHeight = 540; ///< points
    float notesWidth = 540;  ///< points, of notes pages and handouts
    float notesHeight = 720; ///< points
    ColorScheme colors;
    TagList tags;
    std::vector<SlidePtr> masters; ///< slide masters and title masters
    SlidePtr notesMaster;          ///< null where there is none yet
    SlidePtr handoutMaster;        ///< null where there is none yet
    HeadersFooters onSlides;       ///< of slides that have none of their own
    HeadersFooters onPages;        ///< of notes pages and handouts
    bool areOnTitleSlides = true;  ///< headers and footers are shown on title slides, too
    SlideShowSetup slideShow;
    OriginPtr origin;

    [[nodiscard]] const std::vector<SlidePtr>& slides() const noexcept { return slides_; }

    /// Inserts a slide at a place from 0 and gives it an id where it has none, and a name where it has none, or one
    /// that is taken.
    void insert(const SlidePtr& slide, std::size_t place);
    void remove(const SlidePtr& slide);
    /// Place of a slide from 0; the number of slides where it is not in this presentation.
    [[nodiscard]] std::size_t placeOf(const Slide& slide) const noexcept;
    void move(const SlidePtr& slide, std::size_t place);
    /// True where a slide has this name, case ignored.
    [[nodiscard]] bool isNameTaken(std::u16string_view wanted) const noexcept;

private:
    std::vector<SlidePtr> slides_;
    static constexpr std::int32_t reservedIds = 255;
    std::int32_t lastSlideId_ = reservedIds;
};

/// Says that something has changed since the presentation was saved: in itself, in a slide, in a shape.
void markChanged(Presentation& presentation) noexcept;
void markChanged(Slide& slide) noexcept;
void markChanged(const Shape& shape) noexcept;

} // namespace simulator
