#include "automation/Error.h"
#include "automation/Text.h"
#include "host/language/Interpreter.h"
#include "host/language/Parser.h"

#include <gtest/gtest.h>

namespace language_tests {

using automation::Access;
using automation::Value;
using host::Reading;
using namespace host::language;

/// An object that answers every member with itself or a number, and writes down what it is asked.
class Recorder final : public automation::Object, public std::enable_shared_from_this<Recorder> {
public:
    explicit Recorder(std::u16string path, std::vector<std::u16string>& log) : path_(std::move(path)), log_(log) {}

    Value invoke(const automation::Name& name, Access access, std::span<Value> arguments) override {
        std::u16string line = path_ + u"." + std::u16string(name.text());
        const auto shown = access == Access::Put ? arguments.first(arguments.size() - 1) : arguments;
        for (const Value& argument : shown) {
            line += u" " + argument.display();
        }
        if (access == Access::Put) {
            log_.push_back(line + u" = " + arguments.back().display());
            return {};
        }
        if (name.matches(u"Left")) {
            return 110.1F;
        }
        if (name.matches(u"Text") || name.isDefault()) {
            return u"faire";
        }
        if (name.matches(u"Fail")) {
            throw automation::Error(9, u"SERVICE Here", u"no such thing");
        }
        if (name.matches(u"AddIns")) {
            automation::raise(automation::RunTimeError::MemberNotFound);
        }
        log_.push_back(line);
        return name.matches(u"Nobody") ? Value(nullptr)
                                       : Value(std::make_shared<Recorder>(u"." + std::u16string(name.text()), log_));
    }

private:
    std::u16string path_;
    std::vector<std::u16string>& log_;
};

class FakeStage final : public Stage {
public:
    automation::ObjectPtr application() override { return std::make_shared<Recorder>(u"App", log); }
    automation::ObjectPtr object(std::u16string_view name) override {
        return name == u"Host" ? std::make_shared<Recorder>(u"Host", log) : nullptr;
    }
    Reading testePoint() override { return reading; }

    Reading reading;
    std::vector<std::u16string> log;
};

/// What a scenario of these lines fails with; empty where it passes.
std::string outcomeOf(FakeStage& stage, const std::string& lines) {
    const ScenarioFile file = parse("t.scn", "question 306\ncourse\nscenario \"t\"\n" + lines + "\nexpect 1 = 1");
    Interpreter interpreter(stage);
    try {
        for (const Statement& statement : file.scenarios.front().statements) {
            interpreter.execute(statement);
        }
        return {};
    } catch (const Failure& failure) {
        return failure.remark.in(file.name);
    }
}

TEST(Language, NamesTheFirstWrongWordOfEveryWrongLine) {
    struct WrongLine {
        const char* line;
        const char* message;
    };
    const std::vector<WrongLine> wrongLines = {
        {"s.", "t.scn:4:3: expected the name of a member, found the end of the line"},
        {"s.Left =", "t.scn:4:9: expected a value: a text, a number, a constant or a name, found the end of the line"},
        {"s.Left = 3 4", "t.scn:4:12: expected the end of the line, found 4"},
        {"  s.Add(1, 2", "t.scn:4:13: expected ')', found the end of the line"},
        {"s.Text = \"créer", "t.scn:4:10: expected a closing quote for this text"},
        {"s.Text = \"été\" !", "t.scn:4:16: expected a statement, found '!'"},
        {"s.Text = \"été\" ;", "t.scn:4:16: expected the end of the line, found ';'"},
        {"s.Left = 9999999999", "t.scn:4:10: expected a number that fits into 32 bits"},
        {"s.AutoShapeType = msoShapeRectangel", "t.scn:4:19: expected a constant of PowerPoint or Office that is known "
                                                "here, found 'msoShapeRectangel': msoShapeRectangle?"},
        {"s.Entry = ppEffectAppear",
         "t.scn:4:11: expected a constant of PowerPoint or Office that is known here, found "
         "'ppEffectAppear'; its number may stand in its place"},
        {"s.Left = 1E400", "t.scn:4:10: expected a number that fits into 64 bits"},
        {"InputBox \"x\"",
         "t.scn:4:1: 'InputBox' is a part of the macro language that scenarios do not have: they have If, "
         "Select Case, For, Do, While and With"},
        {"Set 3 = s", "t.scn:4:5: expected a variable or a member, found 3"},
        {"Set Host = s", "t.scn:4:5: expected a variable, found the fixed name 'Host'"},
        {"msoTrue = 3", "t.scn:4:1: expected a variable, found the fixed name 'msoTrue'"},
        {"Presentations(1) = 3", "t.scn:4:1: expected a variable or a member before '='"},
        {"s.Add(1) 2", "t.scn:4:10: expected '=' or the end of the line, found 2"},
        {"Call 3", "t.scn:4:6: expected a member, found 3"},
        {"3.Left = 2", "t.scn:4:1: expected a statement, found 3"},
        {"check B", "t.scn:4:7: expected a letter in quotes, success, remark, general or error, found 'B'"},
        {"check \"C\" complement 3", "t.scn:4:22: expected a complementary text, in quotes, found 3"},
        {"check general \"AK\" complement \"x\"", "t.scn:4:20: expected the end of the line, found 'complement'"},
        {"check error \"CLASSE\"", "t.scn:4:13: expected the number of the error, found \"CLASSE\""},
        {"expect s.Left", "t.scn:4:14: expected '=', found the end of the line"},
        {"expect error 91 Host.Fermer", "t.scn:4:17: expected ':', found 'Host'"},
        {"expect error 91:\nscenario \"u\"", "t.scn:5:1: expected the statement that must raise the error"},
        {"x = 3 ^ 2", "t.scn:4:7: '^' is a part of the macro language that scenarios do not have: they have If, "
                      "Select Case, For, Do, While and With"},
        {"Do", "t.scn:4:3: expected 'While', found the end of the line"},
        {"Case 3", "t.scn:4:1: expected 'Select Case' before 'Case'"},
        {"Select Case 3\nx = 1", "t.scn:5:1: expected 'Case' behind 'Select Case'"},
        {"While True\nLoop", "t.scn:5:1: expected 'Wend' before 'Loop'"},
        {"chekc \"C\" complement \" 3\"", "t.scn:4:1: expected a statement, found 'chekc': check?"},
        {"Dim s As Shap", "t.scn:4:10: expected a type of the macro language or a class of PowerPoint, found 'Shap': "
                          "Shape or Shapes?"},
        {"Dim Next", "t.scn:4:5: expected a variable, found the fixed name 'Next'"},
        {"s.Add Left:=1, 2", "t.scn:4:16: expected the name of an argument and ':=', as behind every named one, "
                             "found 2"},
        {"With\nEnd With", "t.scn:4:5: expected a value: a text, a number, a constant or a name, found the end of the "
                           "line"},
        {"For i = 1 To 2\nEnd If", "t.scn:5:1: expected 'Next' before 'End If'"},
        {"For i = 1 To 2\nNext k", "t.scn:5:6: expected 'i', or nothing, found 'k'"},
        {"If True Then\nElse\nElse\nEnd If", "t.scn:6:1: expected 'If' before 'Else'"},
        {"End With", "t.scn:4:1: expected the beginning of the block that ends with 'End With'"},
        {"With s\nscenario \"u\"", "t.scn:5:1: expected 'End With' before"},
        {"If True Then check \"A\"", "t.scn:4:14: expected 'check' outside of With, If and loops: it is one moment of "
                                     "a scenario"},
        {"s.Delete", "t.scn:4:1: 's' is neither a variable nor a member of PowerPoint's application"},
        {"expect Hots.Folder = ActivePresentatoin.Path",
         "t.scn:4:8: 'Hots' is neither a variable nor a member of PowerPoint's application: Host?"},
        {"count = 3\nIf coumt = 3 Then Quit", "t.scn:5:4: 'coumt' is neither a variable nor a member of PowerPoint's "
                                              "application: count?"},
        {".Left = 3", "t.scn:4:1: expected 'With' around a name that begins with a dot"},
        {"expect error 91: expect error 5:",
         "t.scn:4:18: expected the statement that must raise the error, found 'expect'"},
        {"expect error 91:\nexpect error 5:",
         "t.scn:5:1: expected the statement that must raise the error, found 'expect'"},
        {"expect error 91:", "t.scn:4:1: expected the statement that must raise the error"},
        {"scenario other", "t.scn:4:10: expected the title of the scenario, in quotes, found 'other'"},
        {"scenario \"t\"", "t.scn:4:1: expected a title of its own: there is a scenario of this title already"},
        {"s.Delete\nbefore InitQuestion",
         "t.scn:5:1: expected 'before InitQuestion' right after the title of a scenario"},
        {"course", "t.scn:4:1: expected one course only, before the scenarios"},
        {"question 307", "t.scn:4:1: expected one question only"},
    };
    for (const WrongLine& wrong : wrongLines) {
        try {
            (void)parse("t.scn", std::string("question 306\ncourse\nscenario \"t\"\n") + wrong.line);
            ADD_FAILURE() << "taken: " << wrong.line;
        } catch (const WrongLines& found) {
            EXPECT_EQ(found.remarks.front().in(found.file), wrong.message);
        }
    }
}

TEST(Language, StatementsReachMembersAsMacrosDo) {
    const std::vector<std::pair<const char*, std::vector<std::u16string>>> statements = {
        {"Presentations.Add", {u"App.Presentations", u".Presentations.Add"}},
        {"Presentations.Add()", {u"App.Presentations", u".Presentations.Add"}},
        {"Set p = Application.Presentations(1) # the first\np.Close ' no question",
         {u"App.Presentations 1", u".Presentations.Close"}},
        {"ActiveWindow.Zoom msoTrue, , -1.5, \"a \"\"b\"\"\"",
         {u"App.ActiveWindow", u".ActiveWindow.Zoom -1 Missing -1.5 \"a \"b\"\""}},
        {"ActiveWindow.Do(, RGB(255, 300, 1), Array(1, Nothing))",
         {u"App.ActiveWindow", u".ActiveWindow.Do Missing 131071 Array(1, Nothing)"}},
        {"Host.Tags(\"a\", 2) = &H800403E8", {u"Host.Tags \"a\" 2 = -2147220504"}},
        {"Set s = Host.Thing\nS.Name = s", {u"Host.Thing", u".Thing.Name = \"faire\""}},
        {"n = 2 - 3 + 10.5\nHost.Put \"x\" & vbCr & n, True, -n, msoThreeD20, MSOSHAPESUN",
         {u"Host.Put \"x\r9.5\" True -9.5 20 23"}},
    };
    for (const auto& [lines, calls] : statements) {
        FakeStage stage;
        EXPECT_EQ(outcomeOf(stage, lines), "");
        EXPECT_EQ(stage.log, calls) << lines;
    }
}

TEST(Language, RecordedMacrosMeanWhatTheyMeanInTheMacroLanguage) {
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"x = 12# + 4", "x = 16"},
        {"x = 186# + .5 - 1.5! + 1E+2", "x = 285"},
        {"x = &HFFFF: y = &HFFFF&: z = &HFF", "x = -1, y = 65535, z = 255"},
        {"x = 2 + 3 * 4 - 7 Mod 4 & \"a\" & 10 / 4 & \"5\" - \"2\"", "x = \"11a2.53\""},
        {"x = 1 + 1 = 2 And Not 3 < 2 Or \"a\" > \"b\"", "x = True"},
        {"x = 6 And 3: y = 6 Or 1: z = Not msoTrue: w = \"10\" = 10", "x = 2, y = 7, z = 0, w = True"},
        {"x = \"a\" = \"A\": y = \"a\" < \"b\": z = 2 >= 2: w = 3 <> 3", "x = False, y = True, z = True, w = False"},
        {"Set s = Nothing: x = s Is Nothing: y = Not Host.Thing Is Nothing", "x = True, y = True"},
        {"Dim i As Integer, t As String, o As PowerPoint.Shape, v\nx = i + 1 & t: i = 5: Dim i As Long",
         "x = \"1\", i = 5, o = Nothing, v = 0"},
        {"Sub Macro1()\n'\n' recorded\n'\n  x = _\n    1 + _\n  2\nEnd Sub", "x = 3"},
        {"If 2 > 3 Then x = 1 Else x = 2: y = 3", "x = 2, y = 3"},
        {"y = 0: If True Then x = 1: y = 2", "x = 1, y = 2"},
        {"y = 2\nIf y = 1 Then\n x = 1\nElseIf y = 2 Then\n x = 22\nElse\n x = 3\nEnd If", "x = 22"},
        {"x = \"\"\nFor i = 3 To 1 Step -1\n For k = 1 To i: x = x & k: Next k\nNext", "x = \"123121\", i = 0"},
        {"x = 0\nFor i = 1 To 0\nx = 1\nNext i", "x = 0, i = 1"},
        {"x = 1\nDo While x < 9\nx = x * 2\nLoop\ny = 9\nDo Until y < 3\ny = y - 3: Loop\nWhile x > 10\nx = x - "
         "5\nWend",
         "x = 6, y = 0"},
        {"x = \"\"\nFor i = 1 To 5\nSelect Case i\nCase 1, 4\nx = x & \"a\"\nCase 2 To 3\nx = x & \"b\"\nCase Else\n"
         "x = x & \"c\"\nEnd Select\nNext",
         "x = \"abbac\""},
        {"x = Chr(65) & Left$(\"abc\", 2) & Right(\"abc\", 1) & Mid$(\"abcd\", 2, 2) & Trim(\" é \") & CStr(12)",
         "x = \"Aabcbcé12\", Len(x) = 9, InStr(x, \"bc\") = 3, InStr(4, x, \"bc\") = 5, Asc(x) = 65"},
        {"x = Replace(\"aXbX\", \"X\", \"XX\")\nDebug.Print x\nIf MsgBox(\"?\", Title:=\"t\") = 1 Then MsgBox x",
         "x = \"aXXbXX\", Int(-1.5) = -2, Abs(-3) = 3, CLng(\"7\") + CDbl(\"0.5\") = 7.5, UBound(Array(1, 2)) = 1"},
        {"x = 0\nFor Each n In Array(1, 2.5, \"4\")\nIf n > 1 Then x = x + n / 1\nNext n", "x = 6.5, n = \"4\""},
        {"With Host\nx = .Left\nWith .Thing\ny = .Text\nEnd With\nz = .Text & .Text\nEnd With",
         "x = 110.1, y = \"faire\", z = \"fairefaire\""},
        {"x = RGB(Red:=1, Blue:=2, Green:=0)", "x = 131073"},
        {"Dim a(1 To 3, 2) As Long, e()\nFor i = LBound(a) To UBound(a, 1)\na(i, 2) = 7 * i \\ 2\nNext\nb = a",
         "a(3, 2) = 10, a(3, 1) = 0, UBound(a, 2) = 2, LBound(a, 2) = 0, b(3, 2) = 10, UBound(e) = -1"},
        {"ReDim n(2 To 3)\nn(3) = Array(4, 5)\nReDim Preserve n(2 To 5) As String: m = n(3)(1): ReDim p(0)\nn(5) = "
         "n(3)",
         "m = 5, UBound(n) = 5, n(4) = \"\", n(5)(0) = 4, UBound(p) = 0"},
    };
    for (const auto& [lines, values] : cases) {
        FakeStage stage;
        EXPECT_EQ(outcomeOf(stage, lines + std::string("\nexpect ") + values), "") << lines;
    }
    FakeStage stage;
    EXPECT_EQ(outcomeOf(stage, "x = 1 / 0"), "t.scn:4:7: error 11 Division par zéro [K73053]");
    const ScenarioFile file =
        parse("t", "question 306\ncourse\n With Windows ' all\n If .Count = 1 Then\n   .B _\n  2\n "
                   "Else\n  .C: .D\nEnd If: End With");
    EXPECT_EQ(file.course.at(0).text,
              u"With Windows\n  If .Count = 1 Then\n    .B 2\n  Else\n    .C\n    .D\n  End If\nEnd With");
    EXPECT_EQ(parseStatement(file.course[0].text).text, file.course[0].text);
}

TEST(Language, SuccessIsWhatTheQuestionHasForIt) {
    const std::string contract =
        "question 305\nerror 0 \"CLASSE X\": \"it passes\"\ncourse\nscenario \"t\"\ncheck success";
    const ScenarioFile file = parse("t", contract);
    const host::Expectation& passing = *file.scenarios.at(0).lastExpectation();
    EXPECT_TRUE(passing.isSuccess());
    EXPECT_TRUE(passing.matches({automation::Error(0, u"CLASSE X", {}), false, u"A", false, {}, {}, {}}));
    EXPECT_FALSE(passing.matches({automation::Error(0, u"CLASSE Y", {}), false, u"", false, {}, {}, {}}));
    EXPECT_FALSE(passing.matches({automation::Error(5, u"CLASSE X", {}), false, u"", false, {}, {}, {}}));
    EXPECT_FALSE(passing.matches({{}, false, u"", false, {}, {}, {}})) << "nothing was raised";
}

TEST(Language, WhatFallsShortIsReportedWithItsPlace) {
    const std::vector<std::pair<const char*, const char*>> cases = {
        {"expect Host.Left = 110.1\nexpect Host.Text = \"faire\"\nexpect Host.Nobody = Nothing\nexpect True = -1", ""},
        {"expect Host.Thing = \"faire\"", ""},
        {"expect Host.Left = 110.125", "t.scn:4:13: expected 110.125, found 110.1"},
        {"expect Host.Text = \"faire\", Host.Text = \"Faire\"", "t.scn:4:34: expected \"Faire\", found \"faire\""},
        {"expect 1 = \"1\"", "t.scn:4:8: expected \"1\", found 1"},
        {"Host.A.Fail", "t.scn:4:8: error 9 no such thing [SERVICE Here]"},
        {"Host.Nobody.B = 1", "t.scn:4:13: error 91 Variable objet ou variable de bloc With non définie [K73053]"},
        {"Set s = Host.Thing\nSet s.Parent = s(2)", "t.scn:5:16: error 424 Objet requis [K73053]"},
        {"Set s = 3", "t.scn:4:9: error 424 Objet requis [K73053]"},
        {"Dim x\nx.Delete", "t.scn:5:3: error 424 Objet requis [K73053]"},
        {"Dim a(1 To 2)\nexpect error 9: a(0) = 1; a(3) = 1; x = UBound(a, 2); ReDim a(2 To 1); ReDim Preserve a(0 To "
         "2)\nexpect error 13: a(1, "
         "1) = 1\n"
         "expect error 7: ReDim a(999, 1000)",
         ""},
        {"AddIns.Count",
         "t.scn:4:1: error 438 Application.AddIns is not in this embedded PowerPoint; PowerPoint has it "
         "[K73053]"},
        {"expect error 9 \"SERVICE Here\": Host.Fail\nexpect error 9:\n  Host.Fail", ""},
        {"expect error 9 \"There\": Host.Fail", "t.scn:4:30: expected the error 9 from a source with \"There\", found "
                                                "the error 9 no such thing [SERVICE Here]"},
        {"expect error &H800403E8: Host.Fail",
         "t.scn:4:31: expected the error 800403E8, found the error 9 no such thing [SERVICE Here]"},
        {"expect error 9: Host.Fail; Host.Thing", "t.scn:4:28: expected the error 9, nothing was raised"},
    };
    for (const auto& [lines, expected] : cases) {
        FakeStage stage;
        EXPECT_EQ(outcomeOf(stage, lines), expected) << lines;
    }
}

TEST(Language, ChecksTellVerdictsApart) {
    const automation::Error zero(0, u"CLASSE Question0305\n\r - SERVICE TestePoint", {});
    const std::vector<std::pair<const char*, Reading>> verdicts = {
        {"check success", {{}, false, u"", false, {}, {}, {}}},
        {"check \"B\"", {{}, false, u"B", false, {}, {}, {}}},
        {"check \"b\"", {{}, false, u"b", false, {}, {}, {}}},
        {"check \"C\" complement \" 3\"", {{}, false, u"C", false, {u" 3"}, {}, {}}},
        {"check \"C\" complement \" 3\", \"\"", {{}, false, u"C", false, {u" 3", u""}, {}, {}}},
        {"check \"C\"", {{}, false, u"C", false, {}, {}, {}}},
        {"check remark \"C\"", {{}, false, u"C", true, {}, {}, {}}},
        {"check general \"C\"", {{}, true, u"C", false, {}, {}, {}}},
        {"check error 0 \"CLASSE Question0305\" \"SERVICE TestePoint\"", {zero, false, u"", false, {}, {}, {}}},
        {"check error 91", {automation::Error(91, {}, {}), false, u"", false, {}, {}, {}}},
    };
    for (const auto& [check, unused] : verdicts) {
        for (const auto& [other, reading] : verdicts) {
            FakeStage stage;
            stage.reading = reading;
            const std::string outcome = outcomeOf(stage, check);
            EXPECT_EQ(outcome.empty(), std::string_view(check) == other) << check << " against " << other;
        }
    }
    FakeStage stage;
    stage.reading.error = zero;
    EXPECT_EQ(outcomeOf(stage, "check success"), "t.scn:4:1: expected a success, the host reads the error 0 [CLASSE "
                                                 "Question0305 - SERVICE TestePoint]; where that is the success, the "
                                                 "file says so before its course: error 0 \"SERVICE TestePoint\": "
                                                 "\"...\"");
    stage.reading = verdicts[4].second;
    EXPECT_EQ(outcomeOf(stage, "check remark \"F\""), "t.scn:4:1: expected a success with the remark \"F\", the host "
                                                      "reads the letter \"C\" with the complement \" 3\", \"\"");
}

} // namespace language_tests
