#include "exercises/Catalogue.h"
#include "host/world/TemporaryFolder.h"
#include "platform/observed/ObservedServices.h"
#include "simulator/Machine.h"
#include "tests/support/Script.h"
#include "tests/support/TraceLog.h"

#include <gtest/gtest.h>

namespace prepare_trace_tests {

using automation::LateBound;
using tests::ask;
using tests::say;

constexpr std::u16string_view folder = u"C:\\Formation\\";

/// Builds and saves a presentation of five slides: a rectangle and a group of two on the first, title and text on the
/// last.
void buildPresentation(simulator::Machine& machine) {
    machine.startPowerPoint();
    machine.createFile(std::u16string(folder) + u"x");
    const LateBound deck = ask(ask(LateBound(machine.application()), u"Presentations"), u"Add");
    const LateBound slides = ask(deck, u"Slides");
    for (int i = 1; i <= 5; ++i) {
        say(slides, u"Add", i, i == 5 ? 2 : 12);
    }
    const LateBound shapes = ask(ask(slides, u"Item", 1), u"Shapes");
    for (int i = 0; i < 3; ++i) {
        say(shapes, u"AddShape", 1, i * 100, 10, 50, 50);
    }
    say(ask(shapes, u"Range", automation::Array{2, 3}), u"Group");
    const LateBound body = ask(ask(ask(slides, u"Item", 5), u"Shapes"), u"Item", 2);
    ask(ask(body, u"TextFrame"), u"TextRange").put(u"Text", u"parfaitement lisibles");
    say(deck, u"SaveAs", std::u16string(folder) + u"Méthodologie.ppt");
    say(deck, u"Close");
}

const std::string active = "Application.ActivePresentation.";

std::string marked(const std::string& place, const std::string& identity) {
    return place + ".Tags.Add(\"Identite\", \"" + identity + "\")\n";
}

std::string markedSlides() {
    std::string lines = active + "Slides.Count\n";
    for (int i = 1; i <= 5; ++i) {
        lines += marked(active + "Slides.Item(" + std::to_string(i) + ")", "ZOR" + std::to_string(i));
    }
    return lines + active + "Slides.Count\n" + active + "Slides.Count\n";
}

/// The shapes of slide 1: a rectangle and a group of two.
std::string markedShapes(bool recursive) {
    const std::string shapes = active + "Slides.Item(1).Shapes.";
    const auto shape = [&](int j) { return shapes + "Item(" + std::to_string(j) + ")"; };
    std::string lines = shapes + "Count\n" + marked(shape(1), "ZOR1");
    if (!recursive) {
        return lines + marked(shape(2), "ZOR2");
    }
    lines += shape(1) + ".Type\n" + marked(shape(2), "ZOR2") + shape(2) + ".Type\n";
    lines += shape(2) + ".GroupItems.Count\n";
    for (int k = 1; k <= 2; ++k) {
        const std::string item = "Shape.GroupItems.Item(" + std::to_string(k) + ")";
        lines += marked(item, "1ZOR" + std::to_string(k) + ":2") + item + ".Type\n";
    }
    return lines;
}

std::string markedLastSlide(bool recursive) {
    const std::string shapes = active + "Slides.Item(5).Shapes.";
    std::string lines = shapes + "Count\n";
    for (int j = 1; j <= 2; ++j) {
        const std::string shape = shapes + "Item(" + std::to_string(j) + ")";
        lines += marked(shape, "ZOR" + std::to_string(j)) + (recursive ? shape + ".Type\n" : "");
    }
    return lines;
}

std::string go(int slide) {
    return "Application.ActiveWindow.View.GotoSlide(" + std::to_string(slide) + ")\n";
}

const std::string normalView = "Application.ActiveWindow.ViewType = 9\n";
const std::string unselect = "Application.ActiveWindow.Selection.Unselect\n";
const std::string words = active + "Slides.Item(5).Shapes.Item(2).TextFrame.TextRange.Words";

/// What follows the opening of the presentation, by question.
std::string preparation(int question) {
    const std::string slideWithShapes = markedSlides() + normalView + go(1) + markedShapes(true);
    switch (question) {
    case 308:
        return markedSlides() + markedLastSlide(false) + words + "(-1, -1).Count\n" + words + "(1, -1).Text\n" + words +
               "(1, -1).Font.Color\n" + words + "(2, -1).Text\n" + normalView + go(5) + unselect;
    case 309:
        return markedSlides() + normalView + unselect + markedShapes(false) +
               "Application.CommandBars.Item(\"Standard\").Visible = True\n";
    case 310: return slideWithShapes + "Application.ActiveWindow.Panes.Item(2).Activate\n";
    case 311: return slideWithShapes + active + "Slides.Item(1).Shapes.Item(2).Select(-1)\n";
    case 318: return slideWithShapes + "Locale.getInfo(0, 13, 0) -> 2\nLocale.getInfo(0, 13, 2) -> 2\n";
    case 320: return slideWithShapes + active + "SnapToGrid = -1\n";
    case 322: return markedSlides() + normalView + markedShapes(true);
    case 323: return markedSlides() + normalView + go(5) + markedLastSlide(true);
    default: return question < 308 ? markedSlides() + normalView + unselect : slideWithShapes;
    }
}

TEST(Prepare, MakesTheCallsOfItsQuestionInOrder) {
    host::TemporaryFolder root;
    simulator::Machine machine(root.path());
    buildPresentation(machine);
    tests::TraceLog log(tests::TraceLog::Repetition::Shown);
    const platform::ObservedServices services(machine.services(), log.observer());
    for (int number = exercises::firstQuestion; number <= exercises::lastQuestion; ++number) {
        SCOPED_TRACE(number);
        exercises::API api;
        const auto question = exercises::createQuestion(number, {api, services.services()});
        automation::ObjectPtr application = automation::observed(machine.application(), log.observer());
        question->Prepare(application, std::u16string(folder), u"templates");
        EXPECT_EQ(log.take(), "Application.Presentations.Open(\"C:\\Formation\\Méthodologie.ppt\", 0, 0, -1)\n" +
                                  preparation(number));
        EXPECT_EQ(question->PathDossierParDefaut(), folder);
        EXPECT_EQ(api.NbDiapositives, 5);
        question->Fermer();
        const LateBound deck = ask(LateBound(machine.application()), u"ActivePresentation");
        say(deck, u"Close");
    }
}

} // namespace prepare_trace_tests
