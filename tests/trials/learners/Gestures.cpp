#include "tests/trials/learners/Gestures.h"

#include "automation/Text.h"

#include <array>
#include <numeric>

namespace trials::learners {

namespace {

/// Statements, and how many times in a while they are made. What stands in braces is drawn: one of several texts,
/// `{Left|Top}`, a number, `{1-8}`, or what a word stands for, `{shape}`.
struct Gesture {
    std::size_t weight;
    std::u16string_view statements;
};

constexpr auto gestures = std::to_array<Gesture>({
    // New shapes.
    {8, u"{shapes}.AddShape {kind}, {frame}"},
    {5, u"Set t = {shapes}.AddTextbox(msoTextOrientationHorizontal, {frame})\n"
        u"t.TextFrame.TextRange.Text = \"{Le public|   ||créer|Règles}\""},
    {2, u"{shapes}.AddLine {frame}"},
    {3, u"{shapes}.AddPolyline Array(Array(100, 100), Array(150, 50), Array(200, 100)"
        u"{, Array(100, 100)|, Array(100, 101)|})"},
    {3, u"Set f = {shapes}.BuildFreeform(msoEditingAuto, 300, 300)\nf.AddNodes {node}\nf.AddNodes {node}\n"
        u"{f.AddNodes msoSegmentLine, msoEditingAuto, 300, 300|f.AddNodes msoSegmentLine, msoEditingAuto, 320, 300}\n"
        u"f.ConvertToShape"},
    {3, u"{shapes}.AddTextEffect msoTextEffect{1-30}, \"Conseils\", \"Arial\", 36, msoFalse, msoFalse, {length}, "
        u"{length}"},
    {2, u"{shapes}.AddTitle"},
    {2, u"Set t = {shapes}.AddTable({1-4}, {1-4}, {frame}).Table\n{cell}.Shape.TextFrame.TextRange.Text = {phrase}"},
    {3, u"{table}\nt.{Rows|Columns}{.Add|.Add 2|(2).Delete|(1).Delete|(1).Select}"},
    {3, u"{table}\n{cell}.{Split 2, 1|Split 1, 2|Merge t.Cell(1, 2)|Merge t.Cell(2, 2)|Borders(3).Weight = 3|"
        u"Borders(5).DashStyle = 4|Shape.Fill.ForeColor.RGB = 255}"},
    {2, u"{table}\n{cell}.Shape.TextFrame.TextRange.Text = {phrase}"},
    {2, u"{table}\n{t.Rows(2).Height|t.Columns(1).Width} = {length}\nt.TableDirection = {1-2}"},
    {1, u"{shapes}.AddPicture \"C:\\Images\\photo.png\", msoFalse, msoTrue, {frame}"},
    // Shapes moved, copied, deleted, grouped, selected.
    {8, u"{shape}.{Left|Top} = {length}"},
    {3, u"{shape}.Increment{Left|Top} {1|-0.125}"},
    {6, u"{shape}.{Width|Height} = {length}"},
    {2, u"{shape}.{Rotation = 90|Flip msoFlipHorizontal}"},
    {6, u"{shape}.Delete"},
    {3, u"{shape}.Duplicate"},
    {3, u"{shape}.{Cut|Copy}\n{shapes}.Paste"},
    {5, u"{shape}.ZOrder mso{BringToFront|SendToBack|BringForward|SendBackward}"},
    {6, u"{several}.Group"},
    {3, u"{shape}.Ungroup"},
    {1, u"{several}.Regroup"},
    {2, u"{shape}.GroupItems({1-2}){.Delete|.Left = 300|.Select}"},
    {3, u"{shape}{.Select|.Select|.Select msoFalse|.TextFrame.TextRange.Select}"},
    {2, u"{several}.Select"},
    {1, u"{shapes}.SelectAll"},
    {1, u"ActiveWindow.Selection.{Unselect|Delete}"},
    {1, u"ActivePresentation.Slides({slide}).Select"},
    {1, u"{shape}.Name = \"Forme {1-5}\""},
    {1, u"{several}.{Align msoAlignLefts|Distribute msoDistributeVertically}, msoFalse"},
    // Fills, lines, shadows, third dimensions.
    {4, u"{shape}.Fill.{Fore|Fore|Back}Color.RGB = {color}"},
    {1, u"{shape}.Fill.{Fore|Back}Color.SchemeColor = {1-8}"},
    {4, u"{shape}.Fill.{Transparency = 0.5|Transparency = 0|Visible = msoFalse|Visible = msoTrue|Solid|"
        u"TwoColorGradient msoGradientHorizontal, 1|Patterned msoPattern10Percent|PresetTextured msoTexturePapyrus}"},
    {1, u"{shape}.Line.{Weight = 3|Visible = msoFalse}"},
    {2, u"{shape}.Shadow.{Visible = msoTrue|Visible = msoFalse|Type = msoShadow6}"},
    {3, u"{shape}.ThreeD.{SetThreeDFormat msoThreeD1|SetThreeDFormat msoThreeD4|Visible = msoTrue|Visible = msoFalse|"
        u"Depth = 20}"},
    {1, u"{shape}.PickUp\n{shape}.Apply"},
    {3, u"{shape}.AutoShapeType = {1-70}"},
    // Texts typed, replaced, coloured.
    {4, u"{part}.Text = {phrase}"},
    {4, u"{part}.Insert{After|Before} {phrase}"},
    {5, u"{shape}.TextFrame.TextRange.Replace \"{word}\", {phrase}"},
    {2, u"{part}.Delete"},
    {1, u"{shape}.TextFrame.TextRange.Find(\"{word}\").Delete"},
    {4, u"{part}.Font.Color.RGB = {color}"},
    {1, u"{part}.ChangeCase {1-5}"},
    {2, u"{part}.Select\nActiveWindow.Selection.TextRange.Text = {phrase}"},
    // Slides, views, presentations.
    {3, u"ActivePresentation.Slides.Add ActivePresentation.Slides.Count + 1, "
        u"{ppLayoutText|ppLayoutBlank|ppLayoutTwoColumnText|ppLayoutVerticalTitleAndText|ppLayoutFourObjects}"},
    {1, u"ActivePresentation.Slides.Add {slide}, ppLayoutText"},
    {1, u"ActivePresentation.Slides({slide}){.Delete|.Duplicate|.MoveTo 1|.Cut}"},
    {1, u"ActiveWindow.View.GotoSlide {slide}"},
    {3, u"{ActiveWindow.ViewType = ppViewSlideSorter|ActiveWindow.ViewType = ppViewNormal|"
        u"ActiveWindow.ViewType = ppViewSlide|ActiveWindow.Panes(1).Activate|PowerPoint.Minimize}"},
    {2, u"ActivePresentation.SnapToGrid = {msoFalse|msoTrue}"},
    {1, u"Presentations(\"Méthodologie.ppt\").Windows(1).Activate"},
    {3, u"{Presentations.Add|ActivePresentation.Close|ActivePresentation.SaveAs Host.Folder & \"Autre.ppt\"|"
        u"ActivePresentation.Save|Presentations.Open Host.Folder & \"Méthodologie.ppt\"|"
        u"ActivePresentation.SaveCopyAs Host.Folder & \"Copie.ppt\"}"},
    {1, u"PowerPoint.{Close|Hide}"},
    {1, u"PowerPoint.OpenDialog \"Remplacer\""},
});

std::u16string decimal(std::size_t number) {
    return automation::decimal(static_cast<std::int32_t>(number));
}

std::u16string shapesOf(const Hand& hand) {
    return u"ActivePresentation.Slides(" + decimal(hand.slide) + u").Shapes";
}

std::size_t shapesOn(const Hand& hand) {
    const simulator::Slide* const ground = hand.scene.slide(hand.slide);
    return ground != nullptr ? ground->shapes().size() : 0;
}

/// Two or three shapes of the slide.
std::u16string several(const Hand& hand) {
    const std::size_t all = std::max<std::size_t>(shapesOn(hand), 2);
    std::vector<std::size_t> places(all);
    std::iota(places.begin(), places.end(), std::size_t{1});
    std::u16string list;
    for (std::size_t left = std::min(hand.draw.between(2, 3), all); left != 0; --left) {
        const std::size_t picked = hand.draw.below(places.size());
        list += (list.empty() ? u"" : u", ") + decimal(places[picked]);
        places.erase(places.begin() + static_cast<std::ptrdiff_t>(picked));
    }
    return shapesOf(hand) + u".Range(Array(" + list + u"))";
}

/// What a word in braces stands for; others in braces may stand in it.
struct Placeholder {
    std::u16string_view name;
    std::u16string_view meaning;
    std::u16string (*draw)(const Hand&) = nullptr; ///< gives the meaning where it depends on the hand
};

constexpr auto placeholders = std::to_array<Placeholder>({
    {u"shapes", {}, shapesOf},
    {u"shape",
     {},
     // One that cannot exist where there is none.
     [](const Hand& hand) {
         return u"{shapes}(" + decimal(hand.draw.between(1, std::max<std::size_t>(shapesOn(hand), 1))) + u")";
     }},
    {u"several", {}, several},
    {u"slide",
     {},
     [](const Hand& hand) {
         const simulator::Presentation* const active = hand.scene.active();
         return decimal(hand.draw.between(1, active != nullptr ? active->slides().size() + 1 : 1));
     }},
    {u"length", // in points: round, or on the edge of what a question asks for
     {},
     [](const Hand& hand) -> std::u16string {
         return hand.draw.percent(60) ? decimal(hand.draw.below(80) * 5)
                                      : u"{56.5|56.625|56.75|105|128|149.875|150|195|260|35|311.625|481.625|57.875|"
                                        u"368.375}";
     }},
    {u"frame", u"{length}, {length}, {2-20}0, {2-20}0"},
    {u"table", u"Set t = {shape}.Table"},
    {u"cell", u"t.Cell({1-3}, {1-3})"},
    {u"kind",
     {},
     [](const Hand& hand) -> std::u16string {
         return hand.draw.percent(80) ? u"{1|1|5|9|32|33|61|62|65|66}" : u"{1-137}";
     }},
    {u"node", u"{msoSegmentLine|msoSegmentCurve}, msoEditingAuto, {30-35}0, {25-40}0"},
    {u"color", u"RGB({255, 0, 0|0, 0, 255|0, 0, 0|128, 128, 128|255, 255, 255})"},
    {u"part", // the text of a shape, or a part of it
     {},
     [](const Hand& hand) {
         return u"{shape}.TextFrame.TextRange" + std::u16string(hand.draw.percent(60) ? u".Paragraphs({1-4})" : u"") +
                (hand.draw.percent(50) ? u".Words({1-6})" : u"");
     }},
    {u"word",
     u"{faire|créer|Régles|Règles|parfaitement|tout à fait|lisibles|Conseils|Faire|creer|à|ligne|Taille|caractères}"},
    {u"phrase", // a text of a word or two with the marks that words end at
     u"\"{||||| }{word}{\"| \"|  \"|,\"|\" & vbCr|\" & vbVerticalTab & \"faire\"|\" & vbTab|\u00A0\"| Faire\"}"},
});

/// What is drawn for what stands in braces.
std::u16string drawn(std::u16string_view choice, const Hand& hand) {
    const auto* const placeholder = std::find_if(placeholders.begin(), placeholders.end(),
                                                 [&](const Placeholder& each) { return each.name == choice; });
    if (placeholder != placeholders.end()) {
        return placeholder->draw != nullptr ? placeholder->draw(hand) : std::u16string(placeholder->meaning);
    }
    if (choice.find(u'|') == std::u16string_view::npos) {
        const std::string range = automation::toUtf8(choice);
        const auto least = static_cast<std::size_t>(std::stoi(range));
        return decimal(
            hand.draw.between(least, static_cast<std::size_t>(std::stoi(range.substr(range.find('-') + 1)))));
    }
    std::vector<std::u16string_view> choices;
    for (std::size_t start = 0; start <= choice.size();) {
        const std::size_t end = std::min(choice.find(u'|', start), choice.size());
        choices.push_back(choice.substr(start, end - start));
        start = end + 1;
    }
    return std::u16string(hand.draw.of(choices));
}

} // namespace

std::u16string anyGesture(const Hand& hand) {
    constexpr std::size_t total =
        std::accumulate(gestures.begin(), gestures.end(), std::size_t{0},
                        [](std::size_t sum, const Gesture& gesture) { return sum + gesture.weight; });
    std::size_t left = hand.draw.below(total);
    const auto* const picked = std::find_if(gestures.begin(), gestures.end(), [&](const Gesture& gesture) {
        const bool isIt = left < gesture.weight;
        left -= isIt ? 0 : gesture.weight;
        return isIt;
    });
    std::u16string statements(picked->statements);
    for (std::size_t open = statements.find(u'{'); open != std::u16string::npos; open = statements.find(u'{', open)) {
        const std::size_t close = statements.find(u'}', open);
        statements.replace(open, close - open + 1, drawn(statements.substr(open + 1, close - open - 1), hand));
    }
    return statements;
}

} // namespace trials::learners
