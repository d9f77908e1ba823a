#include "tests/trials/learners/Gestures.h"

#include <array>

namespace trials::learners::deck {

namespace {

std::size_t anySlide(const Hand& hand) {
    const simulator::Presentation* const active = hand.scene.active();
    return hand.draw.between(1, active != nullptr ? active->slides().size() + 1 : 1);
}

std::u16string addAtEnd(const Hand& hand) {
    return said(u"ActivePresentation.Slides.Add ActivePresentation.Slides.Count + 1, ",
                hand.draw.percent(50) ? u"ppLayoutText" : u"ppLayoutBlank");
}

std::u16string rearrange(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 4> ways{u".Delete", u".Duplicate", u".MoveTo 1", u".Cut"};
    return hand.draw.percent(25) ? said(u"ActivePresentation.Slides.Add ", anySlide(hand), u", ppLayoutText")
                                 : said(u"ActivePresentation.Slides(", anySlide(hand), u")", hand.draw.of(ways));
}

std::u16string show(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 6> ways{u"ActiveWindow.ViewType = ppViewSlideSorter",
                                                             u"ActiveWindow.ViewType = ppViewNormal",
                                                             u"ActiveWindow.ViewType = ppViewSlide",
                                                             u"ActiveWindow.Panes(1).Activate",
                                                             u"ActiveWindow.View.GotoSlide 1",
                                                             u"PowerPoint.Minimize"};
    return hand.draw.percent(30) ? said(u"ActiveWindow.View.GotoSlide ", anySlide(hand))
                                 : std::u16string(hand.draw.of(ways));
}

std::u16string snap(const Hand& hand) {
    return hand.draw.percent(50) ? u"ActivePresentation.SnapToGrid = msoFalse"
                                 : u"ActivePresentation.SnapToGrid = msoTrue";
}

std::u16string presentation(const Hand& hand) {
    static constexpr std::array<std::u16string_view, 8> ways{
        u"Presentations.Add",
        u"Presentations(\"Méthodologie.ppt\").Windows(1).Activate",
        u"Presentations(\"Méthodologie.ppt\").Windows(1).Activate",
        u"ActivePresentation.Close",
        u"ActivePresentation.SaveAs Host.Folder & \"Autre.ppt\"",
        u"ActivePresentation.Save",
        u"Presentations.Open Host.Folder & \"Méthodologie.ppt\"",
        u"ActivePresentation.SaveCopyAs Host.Folder & \"Copie.ppt\"",
    };
    return std::u16string(hand.draw.of(ways));
}

std::u16string leave(const Hand& hand) {
    return hand.draw.percent(50) ? u"PowerPoint.Close" : u"PowerPoint.Hide";
}

std::u16string openDialog(const Hand& /*hand*/) {
    return u"PowerPoint.OpenDialog \"Remplacer\"";
}

constexpr auto all = std::to_array<Habit>(
    {{3, addAtEnd}, {2, rearrange}, {4, show}, {2, snap}, {4, presentation}, {1, leave}, {1, openDialog}});

} // namespace

std::span<const Habit> habits() noexcept {
    return all;
}

} // namespace trials::learners::deck
