#include "host/reason/Told.h"

#include "automation/Text.h"
#include "host/language/Constants.h"
#include "host/language/Words.h"

#include <array>
#include <cmath>

namespace host::reason {

namespace {

using automation::Value;

/// A member whose values have names, all with one beginning.
struct Named {
    std::u16string_view owner; ///< the member before it; empty for any
    std::u16string_view member;
    std::u16string_view stem;
};

constexpr auto namedMembers = std::to_array<Named>({
    {u"Selection", u"Type", u"ppSelection"},
    {u"PlaceholderFormat", u"Type", u"ppPlaceholder"},
    {u"Fill", u"Type", u"msoFill"},
    {u"", u"Type", u"mso"},
    {u"", u"AutoShapeType", u"msoShape"},
    {u"", u"PresetThreeDFormat", u"msoThreeD"},
    {u"", u"PresetThreeDFormat", u"msoPresetThreeDFormat"},
    {u"", u"Visible", u"mso"},
    {u"", u"SnapToGrid", u"mso"},
    {u"", u"HasTextFrame", u"mso"},
});

std::optional<std::u16string> constantOf(const Path& path, std::int32_t value) {
    const Path owner = path.owner();
    std::optional<std::u16string> name;
    for (const Named& each : namedMembers) {
        if (!name && each.member == path.member() && (each.owner.empty() || each.owner == owner.member())) {
            name = language::nameOfConstant(each.stem, value);
        }
    }
    return name;
}

bool isWhole(const Value& value) {
    return value.is<std::int32_t>() || value.is<std::int16_t>();
}

std::string colour(std::int32_t rgb) {
    const auto part = [&](unsigned shift) { return std::to_string(static_cast<std::uint32_t>(rgb) >> shift & 0xFFU); };
    return "RGB(" + part(0) + ", " + part(8) + ", " + part(16) + ")";
}

bool isLength(std::u16string_view member) {
    return member == u"Left" || member == u"Top" || member == u"Width" || member == u"Height";
}

/// In centimetres, to a tenth of a millimetre.
std::string centimetres(double points) {
    constexpr double perPoint = 2.54 / 72;
    const long hundredths = std::lround(std::abs(points) * perPoint * 100);
    const std::string digits = std::to_string(100 + hundredths % 100).substr(1);
    return (points < 0 ? "-" : "") + std::to_string(hundredths / 100) + "." + digits;
}

} // namespace

std::string told(const Path& path, const Value& value) {
    constexpr std::size_t longest = 60;
    if (value.is<std::u16string>()) {
        const auto text = value.to<std::u16string>();
        return "\"" + onOneLine(beginningOf(text, longest)) + (text.size() > longest ? "...\"" : "\"");
    }
    if (isWhole(value) && (path.member() == u"RGB" || path.member().empty())) {
        return colour(value.to<std::int32_t>());
    }
    const auto name = isWhole(value) ? constantOf(path, value.to<std::int32_t>()) : std::nullopt;
    return automation::toUtf8(name ? *name : value.display());
}

std::string toldWithUnits(const Path& path, const Value& value) {
    const bool isNumber = isWhole(value) || value.is<float>() || value.is<double>();
    const std::string text = told(path, value);
    return isNumber && isLength(path.member()) ? text + " points (" + centimetres(value.to<double>()) + " cm)" : text;
}

std::string sentence(std::string text) {
    if (!text.empty() && text.front() >= 'a' && text.front() <= 'z') {
        text.front() = static_cast<char>(text.front() - 'a' + 'A');
    }
    return text.empty() || text.back() == '.' ? text : text + '.';
}

} // namespace host::reason
