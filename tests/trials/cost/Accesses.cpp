#include "tests/trials/cost/Accesses.h"

#include "host/language/Words.h"

#include <array>
#include <map>
#include <sstream>

namespace trials::cost {

namespace {

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

/// By question, what its first passing attempt reads.
const std::map<std::int32_t, std::string>& attempts() {
    static const std::map<std::int32_t, std::string> all = {
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
    return all;
}

/// Calls on the way to a shape: active presentation, its slides, one of them, its shapes, one of them.
constexpr std::size_t callsToShape = 5;
/// What a sign stands for: the text of a shape (`TextFrame.TextRange`), its identity (`Tags.Item`).
constexpr std::size_t sign = 2;

std::size_t callsInWord(std::string_view word) {
    if (word == "(default)") {
        return 1;
    }
    std::size_t calls = 0;
    if (const std::size_t digits = word.find_first_not_of("0123456789"); digits != 0) {
        calls = word[digits] == '/' ? callsToShape : callsToShape - 1;
    } else if (word.starts_with("Slides")) {
        calls = word.starts_with("Slides(") ? 3 : 2;
    }
    int depth = 0;
    for (const char c : word.substr(0, word.find("_->_"))) {
        depth += c == '(' ? 1 : c == ')' ? -1 : 0;
        if (depth == 0) {
            calls += c == '.' ? 1 : c == '#' || c == '~' ? sign : 0;
        }
    }
    return calls;
}

} // namespace

std::string accessesOf(std::int32_t question) {
    return expanded(attempts().at(question));
}

std::size_t callsIn(std::string_view accesses) {
    std::istringstream words{std::string(accesses)};
    std::size_t calls = 0;
    for (std::string word; words >> word;) {
        calls += callsInWord(word);
    }
    return calls;
}

} // namespace trials::cost
