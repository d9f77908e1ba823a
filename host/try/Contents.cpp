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

/// ` at 100, 300, 80 by 60 points`.
std::string placeOf(const LateBound& shape) {
    const auto length = [&](std::u16string_view member) { return toUtf8(shape.get(member).display()); };
    return " at " + length(u"Left") + ", " + length(u"Top") + ", " + length(u"Width") + " by " + length(u"Height") +
           " points";
}

/// `, fill RGB(255, 0, 0)`; nothing for a shape that has none, or none to be seen.
std::string colourOf(const LateBound& shape, std::u16string_view member, const std::string& name) {
    try {
        const LateBound paint = memberOf(shape, member);
        if (!paint.get(u"Visible").to<bool>()) {
            return {};
        }
        const auto colour = static_cast<std::uint32_t>(memberOf(paint, u"ForeColor").get(u"RGB").to<std::int32_t>());
        return ", " + name + " RGB(" + std::to_string(colour & 0xFFU) + ", " + std::to_string(colour >> 8U & 0xFFU) +
               ", " + std::to_string(colour >> 16U & 0xFFU) + ")";
    } catch (const automation::Error&) {
        return {};
    }
}

using Line = void (*)(const LateBound& shape, const std::string& head, std::ostream& out);

std::string nameOf(const LateBound& shape) {
    return " \"" + toUtf8(shape.get(u"Name").to<std::u16string>()) + '"' + markOf(shape);
}

void printBriefly(const LateBound& shape, const std::string& head, std::ostream& out) {
    out << head << nameOf(shape) << textOf(shape) << '\n';
}

void printFully(const LateBound& shape, const std::string& head, std::ostream& out) {
    constexpr std::int32_t group = 6; // msoGroup
    const bool isGroup = shape.get(u"Type").to<std::int32_t>() == group;
    out << head << nameOf(shape) << (isGroup ? ", a group," : "") << placeOf(shape)
        << (isGroup ? "" : colourOf(shape, u"Fill", "fill") + colourOf(shape, u"Line", "line")) << textOf(shape)
        << '\n';
    if (isGroup) {
        std::int32_t number = 0;
        forEachItem(memberOf(shape, u"GroupItems"),
                    [&](const LateBound& item) { printFully(item, "      item " + std::to_string(++number), out); });
    }
}

void printSlides(const ObjectPtr& application, Line line, std::ostream& out) {
    const LateBound presentation = memberOf(LateBound(application), u"ActivePresentation");
    const LateBound slides = memberOf(presentation, u"Slides");
    out << toUtf8(presentation.get(u"FullName").to<std::u16string>()) << " is open, "
        << counted(static_cast<std::size_t>(countOf(slides)), "slide") << ":\n";
    std::int32_t number = 0;
    forEachItem(slides, [&](const LateBound& slide) {
        out << "  slide " << ++number << markOf(slide) << '\n';
        std::int32_t place = 0;
        forEachItem(memberOf(slide, u"Shapes"),
                    [&](const LateBound& shape) { line(shape, "    shape " + std::to_string(++place), out); });
    });
}

} // namespace

void printContents(const ObjectPtr& application, std::ostream& out) {
    printSlides(application, printBriefly, out);
}

void printDetails(const ObjectPtr& application, std::ostream& out) {
    printSlides(application, printFully, out);
}

} // namespace host
