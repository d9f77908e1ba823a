#include "simulator/document/LetterCase.h"

#include "automation/Text.h"

#include <array>

namespace simulator {

namespace {

using automation::lowerCase;

bool isLetter(char16_t character) noexcept {
    const auto within = [character](char16_t first, char16_t last) { return character >= first && character <= last; };
    const bool latin = within(0x00C0, 0x024F) && character != 0x00D7 && character != 0x00F7;
    return within(u'A', u'Z') || within(u'a', u'z') || latin || within(0x0370, 0x052F) || within(0x1E00, 0x1FFF);
}

bool endsSentence(char16_t character) noexcept {
    constexpr std::u16string_view ends = u".!?\u2026\r";
    return ends.find(character) != std::u16string_view::npos;
}

} // namespace

bool isLetterOrDigit(char16_t character) noexcept {
    return isLetter(character) || (character >= u'0' && character <= u'9');
}

char16_t upperCase(char16_t letter) noexcept {
    constexpr std::array<int, 3> distances{32, 1, 80};
    for (const int distance : distances) {
        const auto capital = static_cast<char16_t>(letter - distance);
        if (capital != letter && lowerCase(capital) == letter) {
            return capital;
        }
    }
    constexpr char16_t smallYWithDiaeresis = 0x00FF;
    constexpr char16_t capitalYWithDiaeresis = 0x0178;
    return letter == smallYWithDiaeresis ? capitalYWithDiaeresis : letter;
}

void changeCase(TextStory& story, Span span, PpChangeCase change) {
    bool atStart = true;
    story.transform(span, [&atStart, change](char16_t character) {
        const bool starts = atStart;
        switch (change) {
        case ppCaseLower: return lowerCase(character);
        case ppCaseUpper: return upperCase(character);
        case ppCaseToggle: return lowerCase(character) == character ? upperCase(character) : lowerCase(character);
        case ppCaseTitle: atStart = !isLetterOrDigit(character) && character != u'\''; break;
        case ppCaseSentence: atStart = endsSentence(character) || (starts && !isLetterOrDigit(character)); break;
        }
        return starts ? upperCase(character) : lowerCase(character);
    });
}

} // namespace simulator
