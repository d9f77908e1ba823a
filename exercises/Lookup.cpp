#include "exercises/API.h"

#include "automation/Integer.h"

namespace exercises {

using automation::increase;
using automation::narrow;

std::int16_t API::ChercheForme(std::int16_t slide, std::u16string_view identity, bool recursive,
                               const ppt::Application& application) {
    const auto shape = [&](std::int32_t i) {
        return application.ActivePresentation().Slides().Item(slide).Shapes().Item(i);
    };
    FormeNonTrouvee = 0;
    const std::int32_t count = application.ActivePresentation().Slides().Item(slide).Shapes().Count();
    for (std::int32_t i = 1; i <= count; ++i) {
        if (identity == shape(i).Tags().Item(Identite)) {
            NiveauForme = 0;
            return narrow<std::int16_t>(i);
        }
        if (!recursive || shape(i).Type() != ppt::msoGroup) {
            continue;
        }
        const auto items = narrow<std::int16_t>(shape(i).GroupItems().Count());
        for (std::int32_t k = 1; k <= items; ++k) {
            if (ChercheDansForme(shape(i).GroupItems().Item(static_cast<std::int16_t>(k)), identity, 1)) {
                return narrow<std::int16_t>(i);
            }
        }
    }
    FormeNonTrouvee = -1;
    return 0;
}

bool API::ChercheDansForme(const ppt::Shape& shape, std::u16string_view identity, std::int16_t level) {
    if (identity == shape.Tags().Item(Identite)) {
        NiveauForme = level;
        return true;
    }
    if (identity == u"msoFreeform" && shape.Type() == ppt::msoFreeform) {
        increase(NbFormesLibres);
    }
    // Only an AutoShape is asked for its type: what else a group may hold need not answer.
    if (identity == u"msoShapeHorizontalScroll" && shape.Type() == ppt::msoAutoShape &&
        shape.AutoShapeType() == ppt::msoShapeHorizontalScroll) {
        increase(NbParchemins);
    }
    if (shape.Type() != ppt::msoGroup) {
        return false;
    }
    const auto items = narrow<std::int16_t>(shape.GroupItems().Count());
    for (std::int32_t k = 1; k <= items; ++k) {
        if (ChercheDansForme(shape.GroupItems().Item(static_cast<std::int16_t>(k)), identity,
                             narrow<std::int16_t>(level + 1))) {
            return true;
        }
    }
    return false;
}

std::int16_t API::CompteMot(const ppt::TextRange& text, std::u16string_view word) {
    const std::u16string withBlank = std::u16string(word) + u' ';
    const auto count = narrow<std::int16_t>(text.Words().Count());
    std::int16_t found = 0;
    for (std::int32_t i = 1; i <= count; ++i) {
        const bool beforeAnother = text.Words(i).Text() == withBlank;
        const bool last = text.Words(i).Text() == word;
        if (beforeAnother || last) {
            increase(found);
        }
    }
    return found;
}

} // namespace exercises
