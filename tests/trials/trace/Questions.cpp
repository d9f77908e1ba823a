#include "tests/trials/trace/Expected.h"

#include <stdexcept>

namespace trials::trace {

namespace {

const std::string presentation = "Application.ActivePresentation.";
const std::string identity = R"(.Tags.Item("Identite"))";

/// What the traces depend on: the presentation delivered by a question's scenario file.
struct Deck {
    int slides;             ///< when it is delivered
    int slide;              ///< the one whose shapes the question marks; 0 for none
    std::vector<int> items; ///< of each of its shapes; 0 where it is no group
};

Deck deckOf(std::int32_t question) {
    switch (question) {
    case 301:
    case 302:
    case 303:
    case 304: return {2, 0, {}};
    case 305:
    case 306:
    case 307: return {4, 0, {}};
    case 308:
    case 323: return {5, 5, {0, 0}};
    case 309: return {2, 1, {0}};
    case 310: return {2, 1, {0, 0, 0}};
    case 311: return {2, 1, {0, 0}};
    case 312: return {2, 1, {0, 0, 2}};
    case 313:
    case 315: return {1, 1, {0, 0, 0}};
    case 314:
    case 317: return {1, 1, {0, 0, 2}};
    case 316: return {1, 1, {0, 0}};
    case 318:
    case 319:
    case 321: return {2, 1, {0, 0, 0, 0}};
    case 320: return {1, 1, {0}};
    case 322: return {2, 1, {2, 0, 0, 0}};
    default: throw std::out_of_range("no traces of question " + std::to_string(question));
    }
}

std::string number(int value) {
    return std::to_string(value);
}
std::string slide(int place) {
    return presentation + "Slides.Item(" + number(place) + ")";
}
std::string shapes(int place) {
    return slide(place) + ".Shapes.";
}
std::string shape(int onSlide, int place) {
    return shapes(onSlide) + "Item(" + number(place) + ")";
}
std::string text(int onSlide, int place) {
    return shape(onSlide, place) + ".TextFrame.TextRange.";
}
std::string count(int onSlide) {
    return shapes(onSlide) + "Count\n";
}
std::string typeOf(int onSlide, int place) {
    return shape(onSlide, place) + ".Type\n";
}
std::string identityOf(int onSlide, int place) {
    return shape(onSlide, place) + identity + '\n';
}

/// Members of one object, one after the other.
std::string each(const std::string& object, std::initializer_list<const char*> members) {
    std::string lines;
    for (const char* const member : members) {
        lines += object + member + '\n';
    }
    return lines;
}

std::string mark(const std::string& marked, const std::string& value) {
    return marked + ".Tags.Add(\"Identite\", \"" + value + "\")\n";
}

std::string markedSlides(int slides) {
    const std::string counted = presentation + "Slides.Count\n";
    return counted + upTo(slides, [](int i) { return mark(slide(i), "ZOR" + number(i)); }) + counted + counted;
}

/// Shapes are marked one by one; with `isDeep` each is asked for its type, and the items of groups are marked too.
std::string markedShapes(const Deck& deck, bool isDeep) {
    std::string lines = count(deck.slide);
    for (int i = 1; i <= static_cast<int>(deck.items.size()); ++i) {
        const std::string marked = shape(deck.slide, i);
        lines += mark(marked, "ZOR" + number(i)) + (isDeep ? marked + ".Type\n" : "");
        const int items = isDeep ? deck.items[static_cast<std::size_t>(i - 1)] : 0;
        lines += items != 0 ? marked + ".GroupItems.Count\n" : "";
        lines += upTo(items, [&](int k) {
            const std::string item = "Shape.GroupItems.Item(" + number(k) + ")";
            return mark(item, "1ZOR" + number(k) + ":" + number(i)) + item + ".Type\n";
        });
    }
    return lines;
}

/// A shape is searched for by its identity and found at a place; the types of those before it say whether they are
/// groups.
std::string search(int onSlide, int place) {
    return count(onSlide) +
           upTo(place, [&](int i) { return identityOf(onSlide, i) + (i != place ? typeOf(onSlide, i) : ""); });
}

/// Shapes are gone through by their identities alone.
std::string walk(int onSlide, int shapes) {
    return count(onSlide) + upTo(shapes, [&](int i) { return identityOf(onSlide, i); });
}

std::string placeOf(int onSlide, int place) {
    return each(shape(onSlide, place), {".Left", ".Top", ".Width", ".Height"});
}

/// The words of a text are counted, and each is read twice.
std::string words(const std::string& range, int last) {
    return range + ".Words(-1, -1).Count\n" + upTo(last, [](int i) {
               const std::string word = "TextRange.Words(" + number(i) + ", -1).Text\n";
               return word + word;
           });
}

/// The walk of 306 and 307 over all texts, and what is read of each; where there are no words the shape holds no text.
template <typename Reading> std::string textWalk(const Texts& texts, const Reading& readingOf) {
    return presentation + "Slides.Count\n" + upTo(static_cast<int>(texts.size()), [&](int i) {
               const std::vector<int>& words = texts[static_cast<std::size_t>(i - 1)];
               return count(i) + upTo(static_cast<int>(words.size()), [&](int j) {
                          const int last = words[static_cast<std::size_t>(j - 1)];
                          return shape(i, j) + ".HasTextFrame\n" + (last != 0 ? readingOf(last) : "");
                      });
           });
}

/// The presentation of 306 and 307.
const Texts methodology{{1, 4}, {2, 9}, {3, 10}, {7, 0}};

/// A group of two of 322; its items are read until one is found.
std::string searchedGroup(int place, int items, bool isFound) {
    const std::string group = shape(1, place);
    return group + identity + '\n' + group + ".Type\n" + group + ".GroupItems.Count\n" + upTo(items, [&](int i) {
               return group + ".GroupItems.Item(" + number(i) + ")" + identity + '\n' +
                      (isFound && i == items ? "" : "Shape.Type\n");
           });
}

} // namespace

std::string prepareOf(std::int32_t question) {
    const Deck deck = deckOf(question);
    const std::string opened = R"(Application.Presentations.Open("C:\Formation\Méthodologie.ppt", 0, 0, -1))"
                               "\n" +
                               markedSlides(deck.slides);
    const std::string normalView = "Application.ActiveWindow.ViewType = 9\n";
    const std::string unselect = "Application.ActiveWindow.Selection.Unselect\n";
    const std::string go = "Application.ActiveWindow.View.GotoSlide(" + number(deck.slide) + ")\n";
    const std::string slideWithShapes = opened + normalView + go + markedShapes(deck, true);
    switch (question) {
    case 308: {
        const std::string word = text(5, 2) + "Words(";
        return opened + markedShapes(deck, false) + word + "-1, -1).Count\n" +
               upTo(28,
                    [&](int i) {
                        return word + number(i) + ", -1).Text\n" + (i == 18 ? word + "18, -1).Font.Color\n" : "");
                    }) +
               normalView + go + unselect;
    }
    case 309:
        return opened + normalView + unselect + markedShapes(deck, false) +
               "Application.CommandBars.Item(\"Standard\").Visible = True\n";
    case 310: return slideWithShapes + "Application.ActiveWindow.Panes.Item(2).Activate\n";
    case 311: return slideWithShapes + shape(1, 2) + ".Select(-1)\n";
    case 318: return slideWithShapes + "Locale.getInfo(0, 13, 0)\nLocale.getInfo(0, 13, 2)\n";
    case 320: return slideWithShapes + presentation + "SnapToGrid = -1\n";
    case 322: return opened + normalView + markedShapes(deck, true);
    case 323: return opened + normalView + go + markedShapes(deck, true);
    default: return deck.slide == 0 ? opened + normalView + unselect : slideWithShapes;
    }
}

std::string checkOf(std::int32_t question) {
    const std::string selection = "Application.ActiveWindow.Selection.";
    const std::string body = text(5, 2);
    const std::string third = body + "Paragraphs(3, -1).";
    switch (question) {
    case 304:
        return "Files.find(\"C:\\Formation\\Plan exo 3.*\", 6)\nFiles.find(\"C:\\Formation\\Plan exo 3.rtf\", 6)\n";
    case 305:
        return presentation + "Slides.Count\n" + slide(5) + identity + '\n' + count(5) + body +
               "Paragraphs(-1, -1).Count\n" + text(5, 1) + "Text\n" +
               upTo(4, [&](int i) { return body + "Paragraphs(" + number(i) + ", -1).Text\n"; }) + body +
               "Characters(-1, -1).Count\n";
    case 306: return checkOf(methodology);
    case 307:
        return textWalk(methodology,
                        [](int last) { return words("Shape.TextFrame.TextRange", last) + words("TextRange", last); });
    case 308:
        return count(5) + count(5) +
               upTo(2, [&](int i) { return identityOf(5, i) + shape(5, i) + ".HasTextFrame\n"; }) + count(5) +
               walk(5, 2) + text(5, 1) + "Paragraphs(-1, -1).Count\n" + body + "Paragraphs(-1, -1).Count\n" +
               each(third, {"Text", "Text", "Text", "Words(-1, -1).Count"}) +
               upTo(9, [&](int i) { return third + "Words(" + number(i) + ", -1).Font.Color.RGB\n(default)\n"; }) +
               each(third, {"Words(-1, -1).Count", "Text"});
    case 309:
        return count(1) + upTo(2, [](int i) { return typeOf(1, i) + identityOf(1, i) + typeOf(1, i); }) + text(1, 2) +
               "Text\n" + placeOf(1, 1) + each(shape(1, 2), {".Top", ".Left"});
    case 310:
        return search(1, 2) + selection + "Type\n" + selection + "ShapeRange.Count\n" + selection +
               "ShapeRange.Item(1)" + identity + '\n';
    case 311:
        return search(1, 2) + search(1, 1) + placeOf(1, 1) +
               each(shape(1, 2), {".Width", ".Height", ".Top", ".Left", ".Top", ".Top", ".Left", ".Left"});
    case 312:
        return walk(1, 4) + each(shape(1, 4), {".Type", ".Type", ".Select(-1)"}) +
               "Application.CommandBars.Item(\"Curve\").Controls.Item(7).accState(Missing)\n";
    case 313:
        return count(1) + upTo(2, [](int i) { return identityOf(1, i) + typeOf(1, i); }) + search(1, 1) + search(1, 2);
    case 314:
        return walk(1, 4) + each(shape(1, 4), {".Type", ".Type", ".AutoShapeType", ".AutoShapeType"}) + search(1, 2) +
               search(1, 1);
    case 315: return search(1, 2) + walk(1, 3) + placeOf(1, 2) + each(shape(1, 3), {".Left", ".Top"});
    case 316:
        return search(1, 1) +
               each(shape(1, 1) + ".Fill.", {"Transparency", "Type", "Visible", "ForeColor.RGB", "BackColor.RGB"});
    case 317: return walk(1, 4) + each(shape(1, 4), {".Type", ".Type", ".AutoShapeType"});
    case 318: return search(1, 4) + each(shape(1, 4), {".Width", ".Width", ".Height", ".Height"});
    case 319:
        return search(1, 4) + search(1, 2) + each(shape(1, 2), {".Top", ".Left", ".Height", ".Width"}) +
               each(shape(1, 4), {".Width", ".Height", ".Top", ".Left"});
    case 320: return presentation + "SnapToGrid\n";
    case 321:
        return search(1, 4) + each(shape(1, 4), {".Shadow.Visible", ".ThreeD.Visible", ".ThreeD.PresetThreeDFormat",
                                                 ".ThreeD.PresetThreeDFormat"});
    case 322: {
        const std::string before = count(1) + searchedGroup(1, 2, false) + identityOf(1, 2) + typeOf(1, 2);
        return before + searchedGroup(3, 2, true) + before + searchedGroup(3, 1, true) + count(1) +
               upTo(3, [](int i) { return typeOf(1, i) + identityOf(1, i); }) + shape(1, 3) + ".GroupItems.Count\n" +
               upTo(2, [](int i) { return shape(1, 3) + ".GroupItems.Item(" + number(i) + ")" + identity + '\n'; });
    }
    case 323: return walk(5, 2) + count(5) + count(5) + upTo(2, [](int i) { return typeOf(5, i) + identityOf(5, i); });
    default: return "";
    }
}

std::string checkOf(const Texts& texts) {
    const std::string once = textWalk(texts, [](int last) { return words("Shape.TextFrame.TextRange", last); });
    return once + once;
}

std::size_t slidesOf(std::int32_t question) {
    return static_cast<std::size_t>(deckOf(question).slides + (question == 305 ? 1 : 0));
}

std::string marksRead(std::size_t slides) {
    const auto marks = upTo(static_cast<int>(slides), [](int i) { return slide(i) + identity + '\n'; });
    return presentation + "Slides.Count\n" + marks + marks;
}

} // namespace trials::trace
