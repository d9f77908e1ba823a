#include "host/reason/Topic.h"

#include <algorithm>
#include <array>

namespace host::reason {

namespace {

/// What authors say of a member of PowerPoint's.
struct Wording {
    std::u16string_view member;
    std::string_view words;
};

constexpr auto wordings = std::to_array<Wording>({
    {u"Left", "left edge"},
    {u"Left", "moved"},
    {u"Left", "area"},
    {u"Top", "top edge"},
    {u"Top", "moved"},
    {u"Top", "area"},
    {u"Width", "width"},
    {u"Width", "wide"},
    {u"Width", "resized"},
    {u"Height", "height"},
    {u"Height", "high"},
    {u"Height", "resized"},
    {u"Transparency", "transparent"},
    {u"RGB", "colour"},
    {u"RGB", "grey"},
    {u"Visible", "no fill"},
    {u"Type", "text box"},
    {u"Type", "freeform"},
    {u"Type", "WordArt"},
    {u"Type", "group was made"},
    {u"Type", "new group"},
    {u"Type", "basic shape"},
    {u"AutoShapeType", "basic shape"},
    {u"Type", "rectangle"},
    {u"AutoShapeType", "rectangle"},
    {u"Text", "title and the"},
    {u"Text", "blanks"},
    {u"Type", "placeholder"},
    {u"Count", "paragraph in"},
    {u"Count", "more than two shapes"},
    {u"accState", "closed"},
    {u"", "in the colour"},
    {u"", "in its colour"},
});

constexpr auto wordsForMarks =
    std::to_array<std::string_view>({" is gone", "behind ZOR", "into a group", "in the group", "the group holds"});

/// `TextBox` as "text box".
std::string spaced(std::string_view name) {
    std::string words;
    for (const char c : name) {
        const bool isCapital = c >= 'A' && c <= 'Z';
        words += isCapital && !words.empty() ? " " : "";
        words += isCapital ? static_cast<char>(c - 'A' + 'a') : c;
    }
    return words;
}

} // namespace

bool Topic::isOfMarks() const {
    return std::any_of(wordsForMarks.begin(), wordsForMarks.end(),
                       [&](std::string_view words) { return holds(words); });
}

bool Topic::names(std::u16string_view member) const {
    return std::any_of(wordings.begin(), wordings.end(),
                       [&](const Wording& each) { return each.member == member && holds(each.words); });
}

bool Topic::namesConstant(const std::string& constant) const {
    constexpr auto stems = std::to_array<std::string_view>({"msoShape", "ppPlaceholder", "mso"});
    return std::any_of(stems.begin(), stems.end(), [&](std::string_view stem) {
        return constant.starts_with(stem) && holds(spaced(std::string_view(constant).substr(stem.size())));
    });
}

std::vector<std::string> Topic::quoted() const {
    std::vector<std::string> texts;
    for (std::size_t start = meaning_.find('"'); start != std::string::npos;) {
        const std::size_t stop = meaning_.find('"', start + 1);
        if (stop == std::string::npos) {
            break;
        }
        texts.push_back(meaning_.substr(start + 1, stop - start - 1));
        start = meaning_.find('"', stop + 1);
    }
    return texts;
}

} // namespace host::reason
