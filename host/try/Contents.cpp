#include "host/try/Contents.h"

#include "automation/LateBound.h"
#include "automation/Text.h"
#include "host/language/Words.h"

#include <ostream>

namespace host {

namespace {

using automation::LateBound;
using automation::ObjectPtr;
using automation::toUtf8;

LateBound part(const LateBound& object, std::u16string_view name) {
    return LateBound(object.get(name).to<ObjectPtr>());
}

std::int32_t lengthOf(const LateBound& collection) {
    return collection.get(u"Count").to<std::int32_t>();
}

LateBound nth(const LateBound& collection, std::int32_t number) {
    return LateBound(collection.call(u"Item", number).to<ObjectPtr>());
}

/// ` ZOR3`; nothing for what is not marked.
std::string markOf(const LateBound& marked) {
    const auto mark = part(marked, u"Tags").call(u"Item", std::u16string_view(u"Identite")).to<std::u16string>();
    return mark.empty() ? "" : " " + toUtf8(mark);
}

/// The beginning of the text in a shape, on one line; nothing where there is none.
std::string textOf(const LateBound& shape) {
    constexpr std::size_t most = 60;
    if (!shape.get(u"HasTextFrame").to<bool>()) {
        return {};
    }
    const auto text = part(part(shape, u"TextFrame"), u"TextRange").get(u"Text").to<std::u16string>();
    return text.empty() ? "" : ": " + onOneLine(beginningOf(text, most)) + (text.size() > most ? "..." : "");
}

void printSlide(const LateBound& slide, std::int32_t number, std::ostream& out) {
    out << "  slide " << number << markOf(slide) << '\n';
    const LateBound shapes = part(slide, u"Shapes");
    const std::int32_t count = lengthOf(shapes);
    for (std::int32_t i = 1; i <= count; ++i) {
        const LateBound shape = nth(shapes, i);
        out << "    shape " << i << " \"" << toUtf8(shape.get(u"Name").to<std::u16string>()) << '"' << markOf(shape)
            << textOf(shape) << '\n';
    }
}

} // namespace

void printContents(const ObjectPtr& application, std::ostream& out) {
    const LateBound presentation = part(LateBound(application), u"ActivePresentation");
    const LateBound slides = part(presentation, u"Slides");
    const std::int32_t count = lengthOf(slides);
    out << toUtf8(presentation.get(u"FullName").to<std::u16string>()) << " is open, "
        << (count == 1 ? "1 slide" : std::to_string(count) + " slides") << ":\n";
    for (std::int32_t i = 1; i <= count; ++i) {
        printSlide(nth(slides, i), i, out);
    }
}

} // namespace host
