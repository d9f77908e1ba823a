#include "tests/trials/cost/Prescribed.h"

#include "automation/LateBound.h"
#include "tests/trials/cost/Accesses.h"

namespace trials::cost {

namespace {

using automation::LateBound;
using automation::Name;
using automation::ObjectPtr;

constexpr std::size_t toSlides = 2;           // ActivePresentation.Slides
constexpr std::size_t toSlide = toSlides + 1; // .Item
constexpr std::size_t toShapes = toSlide + 1; // .Shapes
constexpr std::size_t toShape = toShapes + 1; // .Item
constexpr std::size_t toText = toShape + 2;   // .TextFrame.TextRange
constexpr std::size_t identity = 2;           // .Tags.Item or .Tags.Add
constexpr std::size_t ofBar = 3;              // CommandBars.Item.Visible
constexpr std::size_t arrangedBars = 4;       // standard, formatting, Drawing, Task Pane
constexpr std::size_t tooltips = 2;           // CommandBars.DisplayTooltips
constexpr std::size_t ofPresentation = 3;     // Presentations.Item.Name
constexpr std::size_t countPresentations = 2; // Presentations.Count
constexpr std::size_t keyAccess = 3;          // open, read or write, close
constexpr std::size_t folderValues = 4;
constexpr std::size_t answers = 3;             // WindowState read, set and set back
constexpr std::size_t hangs = 1;               // before it is asked
constexpr std::size_t windowCallsOfChecks = 5; // visible? hung? find, iconic? to the front
constexpr std::size_t toTheFront = 4;          // find, WindowState, iconic? to the front

template <typename... Arguments> LateBound member(const LateBound& object, const Name& name, Arguments&&... arguments) {
    return LateBound(object.get(name, std::forward<Arguments>(arguments)...).template to<ObjectPtr>());
}

std::size_t countOf(const LateBound& collection) {
    return static_cast<std::size_t>(collection.get(u"Count").to<std::int32_t>());
}

/// The slide whose shapes a question marks; 0 for none.
std::int32_t slideOfShapes(std::int32_t question) {
    return question < 308 ? 0 : question == 308 || question == 323 ? 5 : 1;
}

/// What a question stages: all its files, those that are presentations, and those that the course delivers.
struct Files {
    std::size_t all = 1;
    std::size_t presentations = 1;
    std::size_t delivered = 1;
};

Files filesOf(std::int32_t question) {
    switch (question) {
    case 304: return {3, 2, 1};
    case 305: return {2, 1, 2};
    default: return {};
    }
}

/// What Prepare does beside opening, marking and the normal view.
std::size_t ownSteps(std::int32_t question, const Surroundings& deck) {
    constexpr std::size_t unselect = 3; // ActiveWindow.Selection.Unselect
    constexpr std::size_t go = 3;       // ActiveWindow.View.GotoSlide
    switch (question) {
    case 308: // the words are counted, each is read, and the colour of those sought is kept (Font.Color)
        return go + unselect + toText + 2 + deck.words * (toText + 2) + deck.wordsSought * (toText + 3);
    case 309: return unselect + ofBar;
    case 310: return go + 4;           // ActiveWindow.Panes.Item.Activate
    case 311: return go + toShape + 1; // .Select
    case 318:                          // the length of the locale's answer, and the answer
    case 320:                          // ActivePresentation.SnapToGrid
        return go + 2;
    case 322: return 0;
    default: return question < 308 ? unselect : go;
    }
}

std::size_t prepareCalls(std::int32_t question, const Surroundings& deck) {
    // Every slide is marked between one count and two more.
    std::size_t calls = 2 + 3 * (toSlides + 1) + deck.slides * (toSlide + identity) + 2 + ownSteps(question, deck);
    if (slideOfShapes(question) == 0) {
        return calls;
    }
    const bool recursive = question != 308 && question != 309;
    calls += toShapes + 1 + deck.items.size() * (toShape + identity + (recursive ? 1 + toShape : 0));
    for (const std::size_t items : deck.items) {
        if (recursive && items != 0) { // GroupItems.Count, then the tag and the type of each GroupItems.Item
            calls += toShape + 2 + items * (2 + identity + 3);
        }
    }
    return calls;
}

/// Before a question's own check: PowerPoint is there and answers, and the presentation is open, active and in order.
std::size_t automationCallsOfGeneralChecks(std::size_t slides) {
    const std::size_t isOpen = countPresentations + 2 * ofPresentation + 2; // Name, FullName; the active one's FullName
    return answers + 1 + isOpen + toSlides + 1 + 2 * slides * (toSlide + identity);
}

} // namespace

Surroundings::Surroundings(World& world, std::int32_t question) {
    const LateBound application(world.powerPoint().application());
    bars = countOf(member(application, u"CommandBars"));
    const LateBound all = member(member(application, u"ActivePresentation"), u"Slides");
    slides = countOf(all);
    const std::int32_t slide = slideOfShapes(question);
    if (slide == 0) {
        return;
    }
    const LateBound shapes = member(LateBound(all.call(u"Item", slide).to<ObjectPtr>()), u"Shapes");
    const auto shape = [&](std::int32_t i) { return LateBound(shapes.call(u"Item", i).to<ObjectPtr>()); };
    for (std::int32_t i = 1; i <= static_cast<std::int32_t>(countOf(shapes)); ++i) {
        constexpr std::int32_t group = 6;
        const bool isGroup = shape(i).get(u"Type").to<std::int32_t>() == group;
        items.push_back(isGroup ? countOf(member(shape(i), u"GroupItems")) : 0);
    }
    if (question == 308) {
        const LateBound text = member(member(shape(2), u"TextFrame"), u"TextRange");
        words = countOf(LateBound(text.call(u"Words").to<ObjectPtr>()));
        for (std::int32_t i = 1; i <= static_cast<std::int32_t>(words); ++i) {
            const LateBound word(text.call(u"Words", i).to<ObjectPtr>());
            wordsSought += word.get(u"Text").to<std::u16string>().starts_with(u"parfaitement") ? 1 : 0;
        }
    }
}

PrescribedCalls prescribedCalls(std::int32_t question, const Surroundings& surroundings, std::size_t slidesChecked) {
    const Files files = filesOf(question);
    const std::size_t prepare = prepareCalls(question, surroundings);
    const std::size_t taking = 2 + 3; // the key of the folders; the window's class, and twice whether it is visible
    const std::size_t saving = 2 + surroundings.bars * ofBar + folderValues * keyAccess;
    const std::size_t noDialog = 1;
    const std::size_t templates = 4 + 2 * keyAccess + 1; // a key's one name and no second; two values; the folder made
    const std::size_t cleaning = files.presentations * countPresentations + 2 * files.all;
    const std::size_t renaming = 2 * files.delivered;
    const std::size_t arranging = (4 + 4 + 6 + 3) * ofBar + tooltips; // of the four bars
    const std::size_t folders = folderValues * keyAccess;
    const std::size_t startup = 1;
    const std::size_t closing = 3 * ofPresentation; // FullName, Saved, Close
    return {taking + saving + noDialog + templates + cleaning + renaming + arranging + prepare + folders + startup +
                toTheFront,
            prepare,
            automationCallsOfGeneralChecks(slidesChecked) + windowCallsOfChecks + callsIn(accessesOf(question)),
            1 + noDialog + ofBar + startup + hangs + answers + cleaning + closing + folders};
}

KeepingCalls keepingCalls(const Surroundings& surroundings) {
    const std::size_t reading = 2 * arrangedBars * ofBar; // Enabled and Position; Visible has been read already
    const std::size_t shownAgain = 1;                     // the task pane
    return {reading + tooltips, reading + (surroundings.bars + shownAgain) * ofBar + tooltips};
}

std::size_t prescribedAutomationCalls(const DeckSize& deck) {
    const std::size_t shapes = deck.slides * deck.shapesOnSlide;
    // One walk: slides and shapes are counted; each shape says whether it holds text, and its words are counted and
    // each read twice.
    const std::size_t walk =
        toSlides + 1 + deck.slides * (toShapes + 1) + shapes * (toShape + 1 + 2 + 2) + deck.words() * 2 * 2;
    return automationCallsOfGeneralChecks(deck.slides) + 2 * walk;
}

} // namespace trials::cost
