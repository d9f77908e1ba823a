#include "simulator/objects/TextRangeObject.h"

#include "simulator/document/LetterCase.h"
#include "simulator/document/TextBounds.h"
#include "simulator/document/TextSearch.h"
#include "simulator/objects/TextFrameObject.h"
#include "simulator/objects/TriState.h"

namespace simulator {

namespace {

constexpr std::int32_t deepestLevel = 5;
constexpr std::int32_t mixedLevel = -2;

TextSearch searchFor(const std::u16string& what, std::optional<MsoTriState> matchCase,
                     std::optional<MsoTriState> wholeWords) {
    return {what, matchCase.value_or(msoFalse) != msoFalse, wholeWords.value_or(msoFalse) != msoFalse};
}

/// What is left of a span behind its first characters.
Span behind(Span span, std::int32_t characters) {
    if (characters < 0) {
        errors::invalidValue(u"TextRange.Find");
    }
    const std::size_t skipped = std::min(static_cast<std::size_t>(characters), span.length);
    return {span.start + skipped, span.length - skipped};
}

/// The member that gives a range in units.
std::u16string_view memberNameOf(TextUnit unit) {
    switch (unit) {
    case TextUnit::Character: return u"TextRange.Characters";
    case TextUnit::PlainWord:
    case TextUnit::Word: return u"TextRange.Words";
    case TextUnit::Sentence: return u"TextRange.Sentences";
    case TextUnit::Line: return u"TextRange.Lines";
    case TextUnit::Paragraph: return u"TextRange.Paragraphs";
    case TextUnit::Run: return u"TextRange.Runs";
    case TextUnit::Range: break;
    }
    return u"TextRange";
}

} // namespace

const automation::MemberTable& TextRangeObject::members() const {
    using automation::method;
    using automation::property;
    using This = TextRangeObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::count>(u"Count"),
        method<&This::item>(u"_Index", u"Index"),
        property<&This::elements>(automation::newEnum.text()),
        property<&This::start>(u"Start"),
        property<&This::length>(u"Length"),
        property<&This::bound<&Frame::left>>(u"BoundLeft"),
        property<&This::bound<&Frame::top>>(u"BoundTop"),
        property<&This::bound<&Frame::width>>(u"BoundWidth"),
        property<&This::bound<&Frame::height>>(u"BoundHeight"),
        method<&This::units<TextUnit::Paragraph>>(u"Paragraphs", u"Start Length"),
        method<&This::units<TextUnit::Sentence>>(u"Sentences", u"Start Length"),
        method<&This::units<TextUnit::Word>>(u"Words", u"Start Length"),
        method<&This::units<TextUnit::Character>>(u"Characters", u"Start Length"),
        method<&This::units<TextUnit::Line>>(u"Lines", u"Start Length"),
        method<&This::units<TextUnit::Run>>(u"Runs", u"Start Length"),
        method<&This::trimText>(u"TrimText"),
        property<&This::text, &This::setText>(u"Text").asDefault(),
        method<&This::insertAfter>(u"InsertAfter", u"NewText"),
        method<&This::insertBefore>(u"InsertBefore", u"NewText"),
        property<&This::font>(u"Font"),
        property<&This::paragraphFormat>(u"ParagraphFormat"),
        property<&This::indentLevel, &This::setIndentLevel>(u"IndentLevel"),
        method<&This::select>(u"Select"),
        method<&This::cut>(u"Cut"),
        method<&This::copy>(u"Copy"),
        method<&This::remove>(u"Delete"),
        method<&This::paste>(u"Paste"),
        method<&This::changeCase>(u"ChangeCase", u"Type"),
        method<&This::find>(u"Find", u"FindWhat After MatchCase WholeWords"),
        method<&This::replace>(u"Replace", u"FindWhat ReplaceWhat After MatchCase WholeWords"),
    });
    return table;
}

std::u16string_view TextRangeObject::text() const {
    return part_.read([](const TextStory& story, Span span) {
        return std::u16string_view(story.text()).substr(span.start, span.length);
    });
}

void TextRangeObject::setText(const std::u16string& text) {
    part_.span = part_.edit([&text](TextStory& story, Span span) { return story.replace(span, text); });
}

std::int32_t TextRangeObject::start() const {
    return part_.read([](const TextStory&, Span span) { return static_cast<std::int32_t>(span.start + 1); });
}

std::int32_t TextRangeObject::length() const {
    return part_.read([](const TextStory&, Span span) { return static_cast<std::int32_t>(span.length); });
}

std::int32_t TextRangeObject::count() const {
    return part_.read([this](const TextStory& story, Span span) {
        return static_cast<std::int32_t>(countUnits(story, span, unit_));
    });
}

TextRangeObject::Pointer TextRangeObject::item(std::int32_t index) const {
    return unitsFrom(unit_, index, 1);
}

TextRangeObject::Pointer TextRangeObject::unitsFrom(TextUnit unit, std::int32_t start, std::int32_t length) const {
    if (start == 0 || start < leftOut || length < leftOut) {
        errors::invalidValue(memberNameOf(unit));
    }
    if (unit == TextUnit::Word && process()->settings().isAsDocumented) {
        unit = TextUnit::PlainWord;
    }
    const Span found = part_.read([=](const TextStory& story, Span span) {
        if (start == leftOut && length == leftOut) {
            return span;
        }
        const std::size_t first = start == leftOut ? 0 : static_cast<std::size_t>(start) - 1;
        return spanOfUnits(story, span, unit, first, length == leftOut ? 1 : static_cast<std::size_t>(length));
    });
    return at(found, unit);
}

TextRangeObject::Pointer TextRangeObject::trimText() const {
    return at(part_.read([](const TextStory& story, Span span) {
        while (span.length != 0 && TextStory::isBlank(story.text()[span.end() - 1])) {
            --span.length;
        }
        return span;
    }));
}

std::shared_ptr<FontObject> TextRangeObject::font() const {
    return std::make_shared<FontObject>(process(), part_);
}

std::shared_ptr<ParagraphFormatObject> TextRangeObject::paragraphFormat() const {
    return std::make_shared<ParagraphFormatObject>(process(), part_);
}

std::int32_t TextRangeObject::indentLevel() const {
    return part_.common(&ParagraphFormat::indentLevel).value_or(mixedLevel);
}

void TextRangeObject::setIndentLevel(std::int32_t level) {
    errors::demandWithin(level, 1, deepestLevel, u"TextRange.IndentLevel");
    part_.change(&ParagraphFormat::indentLevel, level);
}

TextRangeObject::Pointer TextRangeObject::insertAfter(const std::optional<std::u16string>& text) {
    return part_.edit([&](TextStory& story, Span span) {
        const Span added = story.replace({span.end(), 0}, text.value_or(std::u16string()));
        part_.span = {span.start, span.length + added.length};
        return at(added);
    });
}

TextRangeObject::Pointer TextRangeObject::insertBefore(const std::optional<std::u16string>& text) {
    return part_.edit([&](TextStory& story, Span span) {
        const bool afterAll = span.length == 0 && span.start > 0;
        const CharacterFormat format = story.formatAt(afterAll ? span.start - 1 : span.start);
        const Span added = story.replace({span.start, 0}, text.value_or(std::u16string()), format);
        part_.span = {span.start, span.length + added.length};
        return at(added);
    });
}

void TextRangeObject::remove() {
    setText({});
}

void TextRangeObject::changeCase(PpChangeCase change) {
    errors::demandWithin(change, ppCaseSentence, ppCaseToggle, u"TextRange.ChangeCase");
    part_.edit([change](TextStory& story, Span span) { simulator::changeCase(story, span, change); });
}

TextRangeObject::Pointer TextRangeObject::find(const std::u16string& what, std::optional<std::int32_t> after,
                                               std::optional<MsoTriState> matchCase,
                                               std::optional<MsoTriState> wholeWords) const {
    const auto found = part_.read([&](const TextStory& story, Span span) {
        return searchFor(what, matchCase, wholeWords).in(story, behind(span, after.value_or(0)));
    });
    return found ? at(*found) : nullptr;
}

TextRangeObject::Pointer TextRangeObject::replace(const std::u16string& what, const std::u16string& by,
                                                  std::optional<std::int32_t> after,
                                                  std::optional<MsoTriState> matchCase,
                                                  std::optional<MsoTriState> wholeWords) {
    Pointer found = find(what, after, matchCase, wholeWords);
    if (!found) {
        return nullptr;
    }
    const std::size_t oldLength = found->part_.span.length;
    part_.span = part_.read([](const TextStory&, Span span) { return span; });
    found->setText(by);
    part_.span.length += found->part_.span.length - oldLength;
    return found;
}

void TextRangeObject::select() const {
    const ShapePtr shape = part_.shape();
    const SlidePtr slide = simulator::alive(shape->slide);
    const DocumentWindowPtr window = process()->windowOf(*simulator::alive(slide->presentation));
    if (!window || window->viewType == DocumentWindow::slideSorterView || window->shown() != slide) {
        errors::invalidRequest(u"TextRange.Select", u"La diapositive qui contient ce texte n'est pas affichée.");
    }
    window->selection.selectText(shape, part_.read([](const TextStory&, Span span) { return span; }));
}

void TextRangeObject::copy() const {
    Clipboard clipboard;
    clipboard.text = part_.read([](const TextStory& story, Span span) { return story.excerpt(span); });
    if (clipboard.text.text().empty()) {
        errors::invalidRequest(u"TextRange.Copy", u"Aucun texte n'est sélectionné.");
    }
    process()->clipboard() = std::move(clipboard);
}

void TextRangeObject::cut() {
    copy();
    remove();
}

TextRangeObject::Pointer TextRangeObject::paste() {
    const TextStory& copied = process()->clipboard().text;
    if (copied.text().empty()) {
        errors::invalidRequest(u"TextRange.Paste", u"Le Presse-papiers ne contient pas de texte.");
    }
    part_.span = part_.edit([&copied](TextStory& story, Span span) { return story.replaceWith(copied, span); });
    return at(part_.span);
}

automation::ObjectPtr TextRangeObject::owner() const {
    return std::make_shared<TextFrameObject>(process(), part_.shape());
}

Frame TextRangeObject::bounds() const {
    const ShapePtr shape = part_.shape();
    return part_.read([&shape](const TextStory& story, Span span) { return textBounds(story, span, shape->frame()); });
}

TextRangeObject::Pointer TextRangeObject::at(Span span, TextUnit unit) const {
    return std::make_shared<TextRangeObject>(process(), part_.at(span), unit);
}

} // namespace simulator
