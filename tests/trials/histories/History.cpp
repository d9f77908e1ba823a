#include "tests/trials/histories/History.h"

#include "automation/Text.h"
#include "host/language/Parser.h"
#include "simulator/Machine.h"
#include "simulator/process/Process.h"
#include "tests/trials/learners/Gestures.h"

#include <array>

namespace trials::histories {

namespace {

Statements linesOf(std::u16string_view text) {
    Statements lines;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find(u'\n', start), text.size());
        lines.emplace_back(text.substr(start, end - start));
        start = end + 1;
    }
    return lines;
}

/// A statement about masters, notes or footers of a slide, "#" being its place and "%" any small number.
constexpr std::array<std::u16string_view, 10> aboutMasters{
    u"ActivePresentation.Slides(#).NotesPage.Shapes(2).TextFrame.TextRange.Text = \"Notes %\"",
    u"ActivePresentation.Slides(#).NotesPage.Shapes(2).TextFrame.TextRange.InsertBefore \"avant % \"",
    u"ActivePresentation.Slides(#).NotesPage.Shapes.AddShape msoShapeSun, 10%, 20, 30, 40",
    u"ActivePresentation.Slides(#).FollowMasterBackground = msoFalse",
    u"ActivePresentation.Slides(#).HeadersFooters.Footer.Text = \"pied %\"",
    u"ActivePresentation.SlideMaster.Shapes(%).Left = 3%",
    u"ActivePresentation.SlideMaster.Shapes(2).TextFrame.TextRange.Paragraphs(%).Font.Bold = msoTrue",
    u"ActivePresentation.SlideMaster.Shapes.AddTextbox(1, 10, 1%, 90, 30).TextFrame.TextRange.Text = \"partout %\"",
    u"ActivePresentation.AddTitleMaster",
    u"ActivePresentation.TitleMaster.Delete"};

} // namespace

History::History(const std::filesystem::path& deck) {
    world_->powerPoint().start();
    if (!deck.empty()) {
        std::filesystem::copy_file(deck, world_->machine().realPath(u"C:\\Deck.ppt"));
    }
}

bool History::perform(const std::u16string& statement) {
    try {
        interpreter_.execute(language::parseStatement(statement));
        return true;
    } catch (const language::Failure&) {
        return false;
    }
}

simulator::PresentationPtr History::presentation() const {
    const simulator::ProcessPtr process = world_->machine().process();
    const simulator::DocumentWindowPtr window = process ? process->activeWindow() : nullptr;
    return window ? window->presentation.lock() : nullptr;
}

Statements History::anything(learners::Draw& draw) {
    const learners::Scene scene(*world_);
    const std::size_t slides = presentation()->slides().size();
    const std::size_t slide = draw.between(1, std::max<std::size_t>(slides, 1));
    const auto number = [](std::size_t which) { return automation::decimal(static_cast<std::int32_t>(which)); };
    const std::u16string ground = u"ActivePresentation.Slides(" + number(slide) + u")";
    std::u16string text = learners::anyGesture({scene, draw, slide});
    if (draw.percent(4)) {
        const std::u16string path = u"\"C:\\" + number(draw.between(1, 3)) + u".ppt\"";
        text = u"ActivePresentation.SaveAs " + path + u"\nActivePresentation.Close\nPresentations.Open " + path;
    } else if (draw.percent(8)) {
        text = ground + (draw.percent(30) ? u"" : u".Shapes(" + number(draw.between(1, 4)) + u")") +
               u".Tags.Add \"Nom " + number(draw.between(1, 3)) + u"\", \"é" + number(draw.below(9)) + u"\"";
    }
    if (draw.percent(8)) {
        text = aboutMasters.at(draw.below(aboutMasters.size()));
        for (std::size_t place = 0; place < text.size(); ++place) {
            if (text[place] == u'#' || text[place] == u'%') {
                text.replace(place, 1, text[place] == u'#' ? number(slide) : number(draw.between(1, 5)));
            }
        }
    }
    const bool endsPowerPoint = text.starts_with(u"PowerPoint.") || text == u"ActivePresentation.Close";
    Statements done;
    for (const std::u16string& statement : endsPowerPoint ? Statements() : linesOf(text)) {
        if (!perform(statement)) {
            break;
        }
        done.push_back(statement);
    }
    return done;
}

Statements anyHistory(const std::filesystem::path& deck, learners::Draw& draw) {
    History history(deck);
    Statements statements = linesOf(deck.empty() ? u"Presentations.Add\nActivePresentation.Slides.Add 1, ppLayoutText\n"
                                                   u"ActivePresentation.Slides.Add 2, ppLayoutBlank"
                                                 : u"Presentations.Open \"C:\\Deck.ppt\"");
    for (const std::u16string& each : statements) {
        history.perform(each);
    }
    for (std::size_t left = draw.between(5, 40); left != 0 && history.presentation(); --left) {
        const Statements done = history.anything(draw);
        statements.insert(statements.end(), done.begin(), done.end());
    }
    return statements;
}

simulator::PresentationPtr replay(const std::filesystem::path& deck, const Statements& statements) {
    History history(deck);
    for (const std::u16string& statement : statements) {
        if (!history.perform(statement)) {
            return nullptr;
        }
    }
    return history.presentation();
}

} // namespace trials::histories
