#include "tests/QuestionBench.h"
#include "tests/TraceLog.h"

#include <gtest/gtest.h>

namespace {

/// Every access that a passing attempt makes, in order, one word each:
///
///     1.Count   1/2.Type   5/2~.Text   1/2#     shapes of slide 1, its shape 2, the text of shape 2, its identity
///     Slides.Count   Slides(5)#                 slides of the active presentation, the identity of one
///     Shape.Type                                a member of an object that is at hand
///     {1/@# 1/@.Type}1-3                        the words with @ = 1, then 2, then 3
///
/// Blanks inside a word are underscores; lengths left out of `Words`, `Paragraphs` and `Characters` are not shown.
struct Attempt {
    int question;
    std::string accesses;
};

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size())) {
        text.replace(at, from.size(), to);
    }
}

/// The words of a trace, one a line.
std::string shortened(std::string trace) {
    for (int slide = 1; slide <= 5; ++slide) {
        const std::string number = std::to_string(slide);
        const std::string shapes = "Application.ActivePresentation.Slides.Item(" + number + ").Shapes";
        for (int shape = 1; shape <= 5; ++shape) {
            replaceAll(trace, shapes + ".Item(" + std::to_string(shape) + ")", number + "/" + std::to_string(shape));
        }
        replaceAll(trace, shapes, number);
        replaceAll(trace, "Application.ActivePresentation.Slides.Item(" + number + ")", "Slides(" + number + ")");
    }
    replaceAll(trace, "Application.ActivePresentation.Slides", "Slides");
    replaceAll(trace, ".Tags.Item(\"Identite\")", "#");
    replaceAll(trace, ".TextFrame.TextRange", "~");
    replaceAll(trace, "(-1, -1)", "()");
    replaceAll(trace, ", -1)", ")");
    replaceAll(trace, " ", "_");
    return trace;
}

/// The words of the notation, one a line.
std::string expanded(std::string words) {
    for (std::size_t open = words.find('{'); open != std::string::npos; open = words.find('{')) {
        const std::size_t close = words.find('}', open);
        const std::size_t dash = words.find('-', close);
        const std::size_t end = words.find_first_not_of("0123456789", dash + 1);
        const int last = std::stoi(words.substr(dash + 1));
        std::string all;
        for (int i = std::stoi(words.substr(close + 1)); i <= last; ++i) {
            std::string once = words.substr(open + 1, close - open - 1) + " ";
            replaceAll(once, "@", std::to_string(i));
            all += once;
        }
        words.replace(open, end == std::string::npos ? end : end - open, all);
    }
    std::istringstream stream(words);
    std::string lines;
    for (std::string word; stream >> word;) {
        lines += word + "\n";
    }
    return lines;
}

/// The four slides of questions 306 and 307 and the number of words of each text; the last shape holds none.
std::string textWalk(const std::string& wordsOf) {
    const std::array<std::array<int, 2>, 4> words{{{1, 4}, {2, 9}, {3, 10}, {7, 0}}};
    std::string walk = "Slides.Count ";
    for (std::size_t slide = 1; slide <= words.size(); ++slide) {
        walk += std::to_string(slide) + ".Count ";
        for (std::size_t shape = 1; shape <= 2; ++shape) {
            walk += std::to_string(slide) + "/" + std::to_string(shape) + ".HasTextFrame ";
            if (const int count = words.at(slide - 1).at(shape - 1); count != 0) {
                std::string counted = wordsOf;
                replaceAll(counted, "N", std::to_string(count));
                walk += counted + " ";
            }
        }
    }
    return walk;
}

const std::string counting = "~.Words().Count {TextRange.Words(@).Text TextRange.Words(@).Text}1-N ";

/// A group of two whose items are not what is sought.
std::string searchedGroup(const std::string& shape) {
    return shape + "# " + shape + ".Type " + shape + ".GroupItems.Count {" + shape +
           ".GroupItems.Item(@)# Shape.Type}1-2 ";
}

const std::vector<Attempt> attempts = {
    {301, ""},
    {302, ""},
    {303, ""},
    {304, R"~(
        Files.find("C:\Formation\Plan_exo_3.*",_6)_->_"Plan_exo_3.rtf"
        Files.find("C:\Formation\Plan_exo_3.rtf",_6)_->_"Plan_exo_3.rtf")~"},
    {305, R"(
        Slides.Count Slides(5)# 5.Count 5/2~.Paragraphs().Count
        5/1~.Text {5/2~.Paragraphs(@).Text}1-4 5/2~.Characters().Count)"},
    {306, textWalk("Shape" + counting) + textWalk("Shape" + counting)},
    {307,
     textWalk("Shape" + counting + "TextRange.Words().Count {TextRange.Words(@).Text TextRange.Words(@).Text}1-N")},
    {308, R"(
        5.Count
        5.Count {5/@# 5/@.HasTextFrame}1-2
        5.Count
        5.Count {5/@#}1-2
        5/1~.Paragraphs().Count 5/2~.Paragraphs().Count
        5/2~.Paragraphs(3).Text 5/2~.Paragraphs(3).Text
        5/2~.Paragraphs(3).Text
        5/2~.Paragraphs(3).Words().Count {5/2~.Paragraphs(3).Words(@).Font.Color.RGB (default)}1-9
        5/2~.Paragraphs(3).Words().Count
        5/2~.Paragraphs(3).Text)"},
    {309, R"(
        1.Count
        {1/@.Type 1/@# 1/@.Type}1-2
        1/2~.Text
        1/1.Left 1/1.Top 1/1.Width 1/1.Height
        1/2.Top 1/2.Left)"},
    {310, R"(
        1.Count 1/1# 1/1.Type 1/2#
        Application.ActiveWindow.Selection.Type
        Application.ActiveWindow.Selection.ShapeRange.Count
        Application.ActiveWindow.Selection.ShapeRange.Item(1)#)"},
    {311, R"(
        1.Count 1/1# 1/1.Type 1/2#
        1.Count 1/1#
        1/1.Left 1/1.Top 1/1.Width 1/1.Height
        1/2.Width 1/2.Height
        1/2.Top 1/2.Left
        1/2.Top 1/2.Top 1/2.Left 1/2.Left)"},
    {312, R"(
        1.Count {1/@#}1-4 1/4.Type 1/4.Type
        1/4.Select(-1)
        Application.CommandBars.Item("Curve").Controls.Item(7).accState(Missing))"},
    {313, R"(
        1.Count {1/@# 1/@.Type}1-2
        1.Count 1/1#
        1.Count 1/1# 1/1.Type 1/2#)"},
    {314, R"(
        1.Count {1/@#}1-4 1/4.Type 1/4.Type 1/4.AutoShapeType 1/4.AutoShapeType
        1.Count 1/1# 1/1.Type 1/2#
        1.Count 1/1#)"},
    {315, R"(
        1.Count 1/1# 1/1.Type 1/2#
        1.Count {1/@#}1-3
        1/2.Left 1/2.Top 1/2.Width 1/2.Height
        1/3.Left 1/3.Top)"},
    {316, R"(
        1.Count 1/1#
        1/1.Fill.Transparency
        1/1.Fill.Type
        1/1.Fill.Visible 1/1.Fill.ForeColor.RGB 1/1.Fill.BackColor.RGB)"},
    {317, "1.Count {1/@#}1-4 1/4.Type 1/4.Type 1/4.AutoShapeType"},
    {318, R"(
        1.Count {1/@# 1/@.Type}1-3 1/4#
        1/4.Width 1/4.Width
        1/4.Height 1/4.Height)"},
    {319, R"(
        1.Count {1/@# 1/@.Type}1-3 1/4#
        1.Count 1/1# 1/1.Type 1/2#
        1/2.Top 1/2.Left 1/2.Height 1/2.Width
        1/4.Width 1/4.Height
        1/4.Top
        1/4.Left)"},
    {320, "Application.ActivePresentation.SnapToGrid"},
    {321, R"(
        1.Count {1/@# 1/@.Type}1-3 1/4#
        1/4.Shadow.Visible
        1/4.ThreeD.Visible
        1/4.ThreeD.PresetThreeDFormat
        1/4.ThreeD.PresetThreeDFormat)"},
    {322, "1.Count " + searchedGroup("1/1") + R"( 1/2# 1/2.Type 1/3# 1/3.Type 1/3.GroupItems.Count
            1/3.GroupItems.Item(1)# Shape.Type 1/3.GroupItems.Item(2)#
        1.Count )" +
              searchedGroup("1/1") + R"( 1/2# 1/2.Type 1/3# 1/3.Type 1/3.GroupItems.Count 1/3.GroupItems.Item(1)#
        1.Count {1/@.Type 1/@#}1-3
        1/3.GroupItems.Count {1/3.GroupItems.Item(@)#}1-2)"},
    {323, R"(
        5.Count
        {5/@#}1-2
        5.Count
        5.Count {5/@.Type 5/@#}1-2)"},
};

TEST(Check, ReadsWhatItsQuestionReadsInOrderAndAsOften) {
    for (const Attempt& attempt : attempts) {
        SCOPED_TRACE(attempt.question);
        tests::TraceLog log(tests::TraceLog::Repetition::Shown);
        tests::QuestionBench bench(attempt.question);
        bench.prepare(log.observer());
        bench.work();
        static_cast<void>(log.take());
        bench.check();
        EXPECT_EQ(shortened(log.take()), expanded(attempt.accesses));
    }
}

} // namespace
