#pragma once

#include "ppt/Application.h"

namespace exercises {

/// Gives `visit` the text of every shape that has a text frame, slide by slide, from back to front; the items of groups
/// are not entered. Each shape is reached afresh from the application, and its text from the shape.
template <typename Visit> void walkTexts(const ppt::Application& application, const Visit& visit) {
    const std::int32_t slides = application.ActivePresentation().Slides().Count();
    for (std::int32_t s = 1; s <= slides; ++s) {
        const std::int32_t shapes = application.ActivePresentation().Slides().Item(s).Shapes().Count();
        for (std::int32_t k = 1; k <= shapes; ++k) {
            const ppt::Shape shape = application.ActivePresentation().Slides().Item(s).Shapes().Item(k);
            if (shape.HasTextFrame() != ppt::msoFalse) {
                visit(shape.TextFrame().TextRange());
            }
        }
    }
}

} // namespace exercises
