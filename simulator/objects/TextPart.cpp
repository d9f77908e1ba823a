#include "simulator/objects/TextPart.h"

namespace simulator {

TextStory& TextPart::storyOf(Shape& shape) {
    if (!shape.text) {
        errors::invalidRequest(u"TextFrame", u"Cette forme ne peut pas contenir de texte.");
    }
    return *shape.text;
}

} // namespace simulator
