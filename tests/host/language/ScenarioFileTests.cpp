#include "host/language/Parser.h"
#include "host/language/Writer.h"

#include <gtest/gtest.h>

namespace scenario_file_tests {

using namespace host::language;

TEST(ScenarioFile, NamesWhatIsWrongWithAWholeFile) {
    const auto changed = [](int line, int column) {
        return std::to_string(line) + ":" + std::to_string(column) +
               ": expected 'expect', or a variable to be set: what is delivered is looked at, not changed";
    };
    const std::vector<std::pair<std::string_view, std::vector<std::string>>> files = {
        {"", {"1:1: expected 'question' and its number"}},
        {"course\nscenario \"a\"\n", {"1:1: expected 'question' and its number before anything else"}},
        {"question three", {"1:10: expected a question of the course, 301 to 323, found 'three'"}},
        {"question 399\ncourse\nscenario \"a\"\n Quit\nscenario \"b\"\n check success",
         {"1:10: expected a question of the course, 301 to 323, found 399"}},
        {"question 306\ncourse\nscenario \"a\"\n Quit\nscenario \"b\"\n x = 3\n' the end",
         {"3:1: expected a 'check' or an 'expect' in this scenario, which passes whatever happens",
          "5:1: expected a 'check' or an 'expect' in this scenario, which passes whatever happens"}},
        {"question 306\n' cr\xE9\xE9",
         {"2:5: expected text in UTF-8, found the byte E9: open the file in its editor and save "
          "it with the encoding UTF-8"}},
        {std::string_view("q\0u\0", 4),
         {"1:2: expected text in UTF-8, found the byte 00: open the file in its editor and "
          "save it with the encoding UTF-8"}},
        {std::string_view("\xFF\xFE\x27\0\x0A\0\x0A", 7),
         {"2:1: expected text in UTF-16, found half of a character: the file is cut short"}},
        {"question 306\nPresentations.Add\nPresentations.Add",
         {"2:1: expected 'course' or 'scenario' before the first statement"}},
        {"question 306\nscenario \"a\"\n x = 1\nscenario \"b\"", {"2:1: expected 'course' before the first scenario"}},
        {"question 306\nletter \"A\" 3\nremark \"\" \"x\"\nerror 0 \"X\" \"x\"\ntask \"a\"\nletter \"B\" \"x\"\ntask "
         "\"b\"\n"
         "remark \"B\" \"y\"\ndelivered\n s.Left = 2\ns.Delete\n expect error 5: s.X\nscenario "
         "\"a\"\ndelivered\ncourse\ndelivered\n"
         "letter \"A\" \"x\"\nletter = 3",
         {"2:12: expected what it means, in quotes, found 3", "3:8: expected the letter, in quotes, found \"\"",
          "4:16: expected ':', found the end of the line", "7:1: expected one task only",
          "8:1: expected one meaning only for \"B\"", changed(10, 2), changed(11, 1), changed(12, 2),
          "13:1: expected 'course' before the first scenario",
          "14:1: expected what must be delivered before the course",
          "15:1: expected one course only, before the scenarios",
          "16:1: expected what must be delivered before the course",
          "17:1: expected what a verdict means before the course"}},
        {"question 306\ncourse\n check \"A\"",
         {"3:2: expected a statement that builds the presentation: checks belong to scenarios"}},
        {"question 306\r\ncourse\r\nscenario \"a\"\r\n a.b(\r\n ' a remark\r\n a.b)\r\n",
         {"4:6: expected a value: a text, a number, a constant or a name, found the end of the line",
          "6:5: expected a value: a text, a number, a constant or a name, found ')'"}},
    };
    for (const auto& [text, expected] : files) {
        try {
            (void)parse("f", text);
            ADD_FAILURE() << "taken: " << text;
        } catch (const WrongLines& found) {
            std::vector<std::string> messages;
            for (const Remark& remark : found.remarks) {
                messages.push_back(remark.in("").substr(1));
            }
            EXPECT_EQ(messages, expected);
        }
    }
}

TEST(ScenarioFile, HasItsParts) {
    const ScenarioFile file =
        parse("t.scn", "' heading\nQuestion 305\nCourse\n  Windows.B\n\nScenario \"one\"\nbefore initquestion\n"
                       "  check \"A\"\n check error 0  # passes\nscenario \"two\"\nexpect 1 = 1\n");
    EXPECT_EQ(file.question, 305);
    ASSERT_EQ(file.course.size(), 1U);
    EXPECT_EQ(file.course[0].place, (Position{4, 3}));
    ASSERT_EQ(file.scenarios.size(), 2U);
    const Scenario& one = file.scenarios[0];
    EXPECT_EQ(parse("t", "question 306\ncourse\nexpect error 5 \"X\":  # raises\n  Windows.B 2 ").course[0].text,
              u"expect error 5 \"X\": Windows.B 2");
    EXPECT_TRUE(one.startsBeforeInitQuestion);
    EXPECT_EQ(one.statements.at(1).text, u"check error 0");
    EXPECT_TRUE(one.lastExpectation()->isSuccess());
    EXPECT_FALSE(file.scenarios[1].startsBeforeInitQuestion);
    EXPECT_EQ(file.scenarios[1].lastExpectation(), nullptr);
}

TEST(ScenarioFile, MayBeUtf16WithItsMark) {
    const std::u16string text =
        u"\uFEFF' créée\r\nquestion 306\ncourse # ici\n# là\nscenario \"é\"\n expect \"é\" = \"é\"\n";
    for (const unsigned low : {0U, 8U}) {
        std::string bytes;
        for (const char16_t unit : text) {
            bytes += {static_cast<char>(unit >> low), static_cast<char>(unit >> (8 - low))};
        }
        const ScenarioFile file = parse("t.scn", bytes);
        EXPECT_EQ(file.heading, u"créée");
        EXPECT_EQ(file.scenarios.at(0).title, u"é");
    }
}

TEST(ScenarioFile, KeepsItsContractWhenItIsWritten) {
    const std::string text = "question 305\n\ntask \"say \"\"so\"\"\"\nletter \"A\" \"a \"\"word\"\"\"\n"
                             "remark \"F\" \"four\"\nerror 0 \"CLASSE X\" \"SERVICE Y\": \"right\"\n"
                             "\ndelivered\n  Set s = Windows\n  expect s.Count = 4, s(1).Left = 2\n"
                             "\ncourse\n  Windows.B\n\nscenario \"t\"\n  check \"A\"\n";
    const ScenarioFile file = parse("t.scn", text);
    EXPECT_EQ(scenarioText(file, u"t", {u"check \"A\""}), text);
    EXPECT_EQ(file.subject(), u"Question 305: say \"so\".");
    EXPECT_EQ(file.contract.letters(), (std::vector<std::u16string>{u"A", u"F"}));
    EXPECT_EQ(file.contract.meaningOf(u"A")->text, u"a \"word\"");
    EXPECT_EQ(file.contract.success().kind, host::Expectation::Kind::Remark);
    EXPECT_EQ(parse("t.scn", "question 301\nletter \"A\" \"x\"").contract.success().kind,
              host::Expectation::Kind::Success);
}

} // namespace scenario_file_tests
