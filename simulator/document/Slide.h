#pragma once

#include "simulator/document/HeadersFooters.h"
#include "simulator/document/Shape.h"
#include "simulator/document/SheetKind.h"
#include "simulator/document/SlideShow.h"

#include <algorithm>

namespace simulator {

class Presentation;
class Slide;
using SlidePtr = std::shared_ptr<Slide>;

/// A slide with its shapes, from back to front; or what is made of shapes as one is, a master or a notes page.
class Slide : public std::enable_shared_from_this<Slide> {
public:
    SheetKind kind = SheetKind::Slide;
    std::int32_t id = 0; ///< unique in the presentation, never used again; 0 for what is no slide
    std::u16string name;
    PpSlideLayout layout = ppLayoutBlank;
    TagList tags;
    bool followsMasterBackground = true;
    bool displaysMasterShapes = true;
    ShapePtr background;                          ///< its own; null where it has none yet
    std::weak_ptr<Slide> master;                  ///< the slide master of a slide or a title master
    SlidePtr notesPage;                           ///< of a slide; null where it has none yet
    std::weak_ptr<Slide> owner;                   ///< the slide of a notes page
    std::optional<HeadersFooters> headersFooters; ///< of a slide or a title master that has its own
    Transition transition;
    bool isTouched = false; ///< has changed since it was read or made
    std::weak_ptr<Presentation> presentation;
    OriginPtr origin;

    [[nodiscard]] const std::vector<ShapePtr>& shapes() const noexcept { return shapes_; }

    /// Puts a shape in front of all others and gives it and its items an id, and the usual name where it
    /// has none, or one that is taken.
    void add(const ShapePtr& shape);
    /// Puts a shape at a place from 0 (the back), keeping its id and name.
    void insert(const ShapePtr& shape, std::size_t place);
    void remove(const ShapePtr& shape);
    /// Gives a shape that has come into a group or table of the slide an id, and a name where it has none.
    void number(Shape& shape);
    /// Gives ids up to one to no new shape.
    void keepIds(std::int32_t last) noexcept { lastShapeId_ = std::max(lastShapeId_, last); }
    /// Place of a shape from 0 (the back); the number of shapes where it is not on this slide.
    [[nodiscard]] std::size_t placeOf(const Shape& shape) const noexcept;
    /// Moves a shape to another place from 0.
    void move(const ShapePtr& shape, std::size_t place);
    /// True where a shape or an item of a group has this name, case ignored.
    [[nodiscard]] bool isNameTaken(std::u16string_view wanted) const noexcept;

    /// Tells a slide and what belongs to it in which presentation they stand.
    void settle(const std::weak_ptr<Presentation>& ground) noexcept;
    /// Gives a slide its notes page.
    void adoptNotesPage(const SlidePtr& page);
    /// Gives it a background of its own.
    void adoptBackground(const ShapePtr& shape);

    /// A copy of the slide, its shapes, its background and its notes page, tags included.
    [[nodiscard]] SlidePtr clone() const;

private:
    std::vector<ShapePtr> shapes_;
    std::int32_t lastShapeId_ = 1;
};

} // namespace simulator
