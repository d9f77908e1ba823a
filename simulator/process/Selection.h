#pragma once

#include "simulator/document/Presentation.h"

namespace simulator {

/// What is selected in a document window. What has been deleted since is selected no longer.
class Selection {
public:
    void selectNothing() noexcept { *this = Selection(); }
    void selectSlides(const std::vector<SlidePtr>& slides);
    /// Selects shapes of one slide, in place of what was selected or beside the shapes that already are.
    void selectShapes(const std::vector<ShapePtr>& shapes, bool replace);
    /// Puts the cursor in a shape's text, or selects a span of it.
    void selectText(const ShapePtr& shape, Span span);

    [[nodiscard]] PpSelectionType type() const;
    [[nodiscard]] std::vector<SlidePtr> slides() const;
    /// The shapes selected; the one that holds the cursor where text is selected.
    [[nodiscard]] std::vector<ShapePtr> shapes() const;
    /// The span of text selected, within the shape's text as it is now.
    [[nodiscard]] Span text() const;

private:
    PpSelectionType type_ = ppSelectionNone;
    std::vector<std::weak_ptr<Slide>> slides_;
    std::vector<std::weak_ptr<Shape>> shapes_;
    Span text_;
};

} // namespace simulator
