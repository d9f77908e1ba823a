#include "tests/trials/learners/Gestures.h"

#include <array>

namespace trials::learners::typing {

namespace {

constexpr std::array<std::u16string_view, 14> words{
    u"faire",    u"créer", u"Régles", u"Règles", u"parfaitement", u"tout à fait", u"lisibles",
    u"Conseils", u"Faire", u"creer",  u"à",      u"ligne",        u"Taille",      u"caractères",
};

std::u16string textOf(const Hand& hand) {
    return hand.anyShape() + u".TextFrame.TextRange";
}

/// The text of a shape, or a part of it.
std::u16string part(const Hand& hand) {
    std::u16string text = textOf(hand);
    if (hand.draw.percent(60)) {
        text += said(u".Paragraphs(", hand.draw.between(1, 4), u")");
    }
    if (hand.draw.percent(50)) {
        text += said(u".Words(", hand.draw.between(1, 6), u")");
    }
    return text;
}

/// A text of a word or two with the marks that words end at, in words.
std::u16string phrase(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 9> ends{
        u"\"",         u" \"",      u"  \"",    u",\"", u"\" & vbCr", u"\" & vbVerticalTab & \"faire\"",
        u"\" & vbTab", u"\u00A0\"", u" Faire\""};
    return said(u"\"", hand.draw.percent(20) ? u" " : u"", hand.draw.of(words), hand.draw.of(ends));
}

std::u16string type(const Hand& hand) {
    return said(part(hand), u".Text = ", phrase(hand));
}

std::u16string insert(const Hand& hand) {
    return said(part(hand), hand.draw.percent(50) ? u".InsertAfter " : u".InsertBefore ", phrase(hand));
}

std::u16string replace(const Hand& hand) {
    return said(textOf(hand), u".Replace \"", hand.draw.of(words), u"\", ", phrase(hand));
}

std::u16string erase(const Hand& hand) {
    return hand.draw.percent(50) ? part(hand) + u".Delete"
                                 : said(textOf(hand), u".Find(\"", hand.draw.of(words), u"\").Delete");
}

std::u16string color(const Hand& hand) {
    return said(part(hand), u".Font.Color.RGB = ", hand.color());
}

std::u16string changeCase(const Hand& hand) {
    return said(part(hand), u".ChangeCase ", hand.draw.between(1, 5));
}

std::u16string selectAndType(const Hand& hand) {
    return said(part(hand), u".Select\nActiveWindow.Selection.TextRange.Text = ", phrase(hand));
}

constexpr auto all = std::to_array<Habit>(
    {{4, type}, {4, insert}, {5, replace}, {3, erase}, {4, color}, {1, changeCase}, {2, selectAndType}});

} // namespace

std::span<const Habit> habits() noexcept {
    return all;
}

} // namespace trials::learners::typing
