#include "host/try/Contents.h"

#include "automation/Text.h"
#include "host/language/Words.h"
#include "host/world/Members.h"

#include <ostream>

namespace host {

namespace {

using automation::LateBound;
using automation::ObjectPtr;
using automation::toUtf8;

/// ` ZOR3`; nothing for what is not marked.
std::string markOf(const LateBound& marked) {
    const auto mark = memberOf(marked, u"Tags").call(u"Item", std::u16string_view(u"Identite")).to<std::u16string>();
    return mark.empty() ? "" : " " + toUtf8(mark);
}

/// The beginning of the text in a shape, on one line; nothing where there is none.
std::string textOf(const LateBound& shape) {
    constexpr std::size_t most = 60;
    if (!shape.get(u"HasTextFrame").to<bool>()) {
        return {};
    }
    const auto text = memberOf(memberOf(shape, u"TextFrame"), u"TextRange").get(u"Text").to<std::u16string>();
    return text.empty() ? "" : ": " + onOneLine(beginningOf(text, most)) + (text.size() > most ? "..." : "");
}

void printSlide(const LateBound& slide, std::int32_t number, std::ostream& out) {
    out << "  slide " << number << markOf(slide) << '\n';
    const LateBound shapes = memberOf(slide, u"Shapes");
    const std::int32_t count = countOf(shapes);
    for (std::int32_t i = 1; i <= count; ++i) {
        const LateBound shape = itemOf(shapes, i);
        out << "    shape " << i << " \"" << toUtf8(shape.get(u"Name").to<std::u16string>()) << '"' << markOf(shape)
            << textOf(shape) << '\n';
    }
}

} // namespace

void printContents(const ObjectPtr& application, std::ostream& out) {
    const LateBound presentation = memberOf(LateBound(application), u"ActivePresentation");
    const LateBound slides = memberOf(presentation, u"Slides");
    const std::int32_t count = countOf(slides);
    out << toUtf8(presentation.get(u"FullName").to<std::u16string>()) << " is open, "
        << counted(static_cast<std::size_t>(count), "slide") << ":\n";
    for (std::int32_t i = 1; i <= count; ++i) {
        printSlide(itemOf(slides, i), i, out);
    }
}

} // namespace host
