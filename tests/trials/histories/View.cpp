#include "tests/trials/histories/View.h"

#include "automation/Text.h"
#include "simulator/files/drawing/AutoShapeKinds.h"
#include "simulator/files/drawing/Placeholders.h"
#include "simulator/files/powerpoint/Origins.h"

#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>

namespace trials::histories {

namespace {

using namespace simulator;

constexpr float masterUnitsPerPoint = 8;
/// Fields of a shape.
constexpr std::size_t kindPlace = 2;
constexpr std::size_t firstPlace = 4;
constexpr std::size_t lastPlace = 7;
constexpr std::size_t fillPlace = 10;
constexpr std::size_t runsPlace = 12;
constexpr std::size_t namePlace = 14;

/// A text on one line, without blanks that part fields.
std::string plain(std::u16string text) {
    for (char16_t& unit : text) {
        unit = unit == TextStory::paragraphMark ? u'|' : unit == TextStory::lineBreak ? u'/' : unit;
        unit = unit <= u' ' ? u'_' : unit;
    }
    return automation::toUtf8(text);
}

std::string tagsOf(const TagList& tags) {
    std::string list;
    for (const auto& [name, value] : tags.all()) {
        list += (list.empty() ? "" : " ") + plain(name) + "=" + plain(value);
    }
    return list;
}

std::string kindOf(const Shape& shape) {
    switch (shape.type) {
    case msoGroup:
    case msoTable: return "group";
    case msoTextEffect: return "wordart";
    case msoFreeform: return "0";
    case msoLine: return "20";
    case msoPicture: return "75";
    case msoTextBox: return "202";
    case msoPlaceholder: return "?"; // a picture, a chart and others bear kinds of their own
    case msoAutoShape: break;
    }
    return shape.autoShapeType == msoShapeMixed ? "?" : std::to_string(drawing::kindOf(shape.autoShapeType));
}

std::string fillOf(const Shape& shape) {
    if (shape.isComposed()) {
        return "-";
    }
    if (!shape.fill.visible) {
        return "none";
    }
    constexpr std::int32_t ofScheme = 0x08000000;
    const Color& color = shape.fill.fore;
    std::ostringstream code;
    code << std::hex << (color.scheme == ppNotSchemeColor ? color.rgb : ofScheme + color.scheme - 1);
    return code.str();
}

/// A colour of letters, as files have it.
std::uint32_t codeOf(const Color& color) {
    constexpr std::uint32_t direct = 0xFE000000;
    return color.scheme == ppNotSchemeColor ? direct + static_cast<std::uint32_t>(color.rgb)
                                            : static_cast<std::uint32_t>(color.scheme - 1) << 24U;
}

std::string runsOf(const TextStory& story) {
    std::string list;
    std::size_t length = 0;
    const std::vector<TextStory::Run>& runs = story.runs();
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const auto looksOf = [&](std::size_t place) {
            const CharacterFormat& format = runs[place].format;
            std::ostringstream looks;
            looks << std::fixed << std::setprecision(1) << format.size << (format.bold ? "b" : "")
                  << (format.italic ? "i" : "") << '#' << codeOf(format.color);
            return looks.str();
        };
        length += runs[i].length;
        if (length != 0 && (i + 1 == runs.size() || looksOf(i) != looksOf(i + 1))) {
            list += (list.empty() ? "" : " ") + std::to_string(std::exchange(length, 0)) + ":" + looksOf(i);
        }
    }
    return list;
}

void add(const Shape& shape, int depth, SheetKind sheet, std::vector<std::string>& lines) {
    std::ostringstream line;
    const Frame& frame = shape.frame();
    line << "shape\t" << depth << '\t' << kindOf(shape) << '\t'
         << (shape.placeholder ? int{drawing::placeholderCode(*shape.placeholder, sheet)} : 0) << std::fixed
         << std::setprecision(1);
    for (const float length : {frame.left, frame.top, frame.width, frame.height}) {
        line << '\t' << length * masterUnitsPerPoint;
    }
    line << '\t' << shape.rotation << '\t' << (shape.horizontalFlip ? 1 : 0) + (shape.verticalFlip ? 2 : 0) << '\t'
         << fillOf(shape) << '\t' << (shape.text ? plain(shape.text->text()) : "") << '\t'
         << (shape.text && !shape.text->text().empty() ? runsOf(*shape.text) : "") << '\t' << tagsOf(shape.tags) << '\t'
         << plain(shape.name);
    lines.push_back(line.str());
    for (const ShapePtr& item : shape.items()) {
        add(*item, depth + 1, sheet, lines);
    }
}

/// True for a record in which bytes stand that are no record: readers do not find the same shapes behind them.
bool isDamaged(const records::Record& record) {
    return !record.tail.empty() || std::any_of(record.children.begin(), record.children.end(), isDamaged);
}

bool isDamaged(const Slide& sheet) {
    const auto* const origin = dynamic_cast<const powerpoint::SlideOrigin*>(sheet.origin.get());
    const auto* const document =
        origin == nullptr ? nullptr : dynamic_cast<const powerpoint::PresentationOrigin*>(origin->document.get());
    return document != nullptr && isDamaged(*document->objects.find(origin->object));
}

void add(const char* what, const Slide& sheet, std::vector<std::string>& lines) {
    lines.push_back(what + ("\t" + tagsOf(sheet.tags)));
    if (isMaster(sheet.kind) && isDamaged(sheet)) {
        lines.emplace_back("?");
        return;
    }
    for (const ShapePtr& shape : sheet.shapes()) {
        add(*shape, 0, sheet.kind, lines);
    }
}

std::vector<std::string> fieldsOf(const std::string& line) {
    std::vector<std::string> fields;
    for (std::size_t start = 0; start <= line.size();) {
        const std::size_t end = std::min(line.find('\t', start), line.size());
        fields.push_back(line.substr(start, end - start));
        start = end + 1;
    }
    return fields;
}

/// True where texts are the same, with "?" in the second one for any number, or for one that the first does not tell
/// either, and "*" for any style.
bool matches(std::string_view text, std::string_view pattern) {
    for (const char each : pattern) {
        if (each == '?') {
            text.remove_prefix(std::min(text.find_first_not_of("0123456789.?"), text.size()));
        } else if (each == '*') {
            text.remove_prefix(std::min(text.find_first_not_of("bi*"), text.size()));
        } else if (!text.starts_with(each)) {
            return false;
        } else {
            text.remove_prefix(1);
        }
    }
    return text.empty();
}

/// One run at the head of a list of them: what it looks like, and how many characters are left of it.
struct Head {
    std::size_t length = 0;
    std::string looks;
    std::istringstream rest;

    explicit Head(const std::string& runs) : rest(runs) { next(); }
    void drop(std::size_t many) {
        length -= many;
        if (length == 0) {
            next();
        }
    }

private:
    void next() {
        std::string run;
        rest >> run;
        const std::size_t colon = run.find(':');
        length = run.empty() ? 0 : std::stoul(run);
        looks = run.empty() ? "" : run.substr(colon + 1);
    }
};

/// True where every character looks the same in both; they may be told in runs of other lengths.
bool runsAgree(const std::string& ours, const std::string& theirs) {
    Head left(ours);
    Head right(theirs);
    while (left.length != 0 && right.length != 0 && matches(left.looks, right.looks)) {
        const std::size_t shared = std::min(left.length, right.length);
        left.drop(shared);
        right.drop(shared);
    }
    return left.length == 0 && right.length == 0;
}

/// A name that no file has to tell ends in a number.
bool isUsual(std::string_view name) {
    const std::size_t digits = name.find_last_not_of("0123456789") + 1;
    return digits > 0 && digits < name.size() && name[digits - 1] == '_';
}

/// True for a frame that needs more than 16 bits, which HSLF takes for another.
bool isFar(const std::vector<std::string>& shape) {
    constexpr double most = 32767;
    const auto at = [&](std::size_t i) { return std::stod(shape[firstPlace + i]); };
    return at(0) + at(2) > most || at(1) + at(3) > most || at(0) < -most || at(1) < -most;
}

bool agree(const std::string& ours, const std::string& theirs) {
    const std::vector<std::string> left = fieldsOf(ours);
    const std::vector<std::string> right = fieldsOf(theirs);
    if (left.size() != right.size()) {
        return false;
    }
    for (std::size_t i = 0; i < left.size(); ++i) {
        const bool isNear = i >= firstPlace && i <= lastPlace &&
                            (std::abs(std::stod(left[i]) - std::stod(right[i])) <= 1 || isFar(left));
        const bool isUntold = (i == kindPlace || i == fillPlace) && (left[i] == "?" || right[i] == "?");
        const bool isUntoldName =
            i == namePlace && (right[i].empty() || left[i].empty() || (right[i] == "?" && isUsual(left[i])));
        const bool areAlike = i == runsPlace ? runsAgree(left[i], right[i]) : left[i] == right[i];
        if (!areAlike && !isNear && !isUntold && !isUntoldName) {
            return false;
        }
    }
    return true;
}

} // namespace

std::vector<std::string> viewOf(const Presentation& presentation) {
    std::vector<std::string> lines;
    for (const auto& [what, kind] :
         {std::pair("master", SheetKind::SlideMaster), std::pair("title master", SheetKind::TitleMaster)}) {
        for (const SlidePtr& master : presentation.masters) {
            if (master->kind == kind) {
                add(what, *master, lines);
            }
        }
    }
    for (const SlidePtr& slide : presentation.slides()) {
        add("slide", *slide, lines);
        if (const SlidePtr& page = slide->notesPage; page && (page->origin || page->isTouched)) {
            add("notes", *page, lines);
        }
    }
    return lines;
}

std::string differenceOf(const std::vector<std::string>& ours, const std::vector<std::string>& theirs) {
    std::size_t other = 0;
    for (std::size_t i = 0; i < ours.size() || other < theirs.size(); ++i) {
        const std::string left = i < ours.size() ? ours[i] : "nothing more";
        if (left == "?") {
            while (other < theirs.size() && (theirs[other].starts_with("shape") || theirs[other] == "?")) {
                ++other;
            }
            continue;
        }
        const std::string right = other < theirs.size() ? theirs[other] : "nothing more";
        ++other;
        if (!agree(left, right)) {
            return "ours:   " + left + "\ntheirs: " + right + '\n';
        }
    }
    return {};
}

} // namespace trials::histories
