#include "host/command/Library.h"
#include "host/language/Parser.h"
#include "host/try/Completion.h"
#include "host/world/TemporaryFolder.h"
#include "simulator/files/WholeFile.h"
#include "tests/support/Program.h"

namespace try_tests {

using host::ExitCode;

/// A line that is typed, and what must stand in the answer to it; an empty one where there must be none.
struct Exchange {
    std::string typed;
    std::string answered;
};

class TryTest : public testing::Test {
protected:
    /// Everything said in a conversation about a question.
    static std::string talk(const std::string& typed, std::optional<ExitCode> expected = ExitCode::Good,
                            const std::string& question = "314") {
        return printedBy({"try", question}, SCENARIOS, expected, typed);
    }
    /// What a command of the host answers about a file.
    std::string verify(const std::string& file) const {
        return printedBy({"verify", "--file", file}, SCENARIOS, ExitCode::Good);
    }
    std::string recheck(const std::string& file) const {
        return printedBy({"recheck", file, "--question", "314"}, SCENARIOS, ExitCode::Good);
    }
    [[nodiscard]] std::string file(const std::string& name) const { return (folder_.path() / name).string(); }
    static std::string scenarioFile() { return host::Library(SCENARIOS).fileOf(314).string(); }
    [[nodiscard]] std::string contentOf(const std::string& name) const {
        return simulator::files::wholeFile(folder_.path() / name).value_or("");
    }

private:
    host::TemporaryFolder folder_;
};

TEST_F(TryTest, AWholeConversationAnswersLineByLine) {
    const std::string reads = "The host reads ";
    const std::vector<Exchange> exchanges = {
        {"?ActivePresentation.Name", "Méthodologie.ppt\n"},
        {"?ActivePresentation.Slides(1).Shapes(2).Left", " 57.875\n"},
        {"?ActivePresentation.Saved 1", "column 27: expected the end of the line, found 1\n"},
        {"?Nothing", "Nothing\n"},
        {"Set s = ActivePresentation.Slides(1).Shapes", ""},
        {"?s", "Shapes of 3\n"},
        {"?s(3).GroupItems(1)", "Shape \"AutoShape 4\"\n"},
        {"?s(2).HasTextFrame", "-1\n"},
        {"?True", "True\n"},
        {"s.AddShpe 1", "column 3: error 438 Shapes has no member 'AddShpe': AddShape? [K73053] (members x lists"},
        {"s(2).Width", ""},
        {"s(2).Count = 1", "Shape has no member 'Count' to be set"},
        {"q.Left = 1", "'q' is neither a variable nor a member of PowerPoint's application: s? [K73053]\n"},
        {"save " + file("mine.scn"), "The scenario expects nothing yet: check, and"},
        {"s(7).Delete", "error 80048240 "},
        {"members PowerPoint", "KillAtCall() "},
        {"check",
         reads + "the letter \"A\": ErreurGenerale False, CauseErreur \"A\", BravoNuance False, Complement empty"},
        {"s.AddShape msoShapeRectangle, 20, 20, 100, 60 ' a move", ""},
        {"check", "To have the same moves judged afresh, say again"},
        {"again", "prepared anew, and 3 moves made once more.\n"},
        {"expect s.Count = 4", ""},
        {"expect s.Count = 5", "expected 5, found 4"},
        {"expect error 438:\n  s.Gone", ""},
        {"Check \"B\"", "Expected was the letter \"B\".\n"},
        {"SHOW", "shape 4 \"Rectangle 7\" at "},
        {"picture " + file("mine.png"), "of the kind svg: say picture " + file("mine.svg") + "\n"},
        {"picture " + file("mine.svg"), "The picture of slide 1 is in " + file("mine.svg") + ".\n"},
        {"Exit Sub", "'Exit' is a part of the macro language that scenarios do not have"},
        {"save " + file("mine.scn") + " \"a rectangle\"", "with 5 moves and 1 check.\n"},
        {"save " + file("mine.scn"), "or say save! to replace it\n"},
        {"save! " + file("mine.scn"), "with 5 moves and 1 check.\n"},
        {"save " + file("nowhere/mine.scn"), "cannot be written"},
        {"save", "For example: save mine.scn \"a title\"\n"},
        {"save \"a title\"", "A title stands behind the name of a file: save mine.scn \"a title\"\n"},
        {"save " + file("mine.scn") + " so done",
         "A title stands in quotes: save " + file("mine.scn") + " \"so done\"\n"},
        {"save mine so done", "A title stands in quotes: save mine \"so done\"\n"},
        {"save " + file("other.scn") + " \"a\" b", "nothing behind it"},
        {"save! " + scenarioFile(), "0314.scn is read as well"},
        {"append " + file("mine.scn"), "expected a title of its own"},
        {"append " + file("mine.scn") + " \"so \"\"well\"\" done\"", "with 5 moves and 1 check.\n"},
        {"undo 3", "Nothing stands behind undo\n"},
        {"check sucess", "column 7: expected a letter in quotes, success, "},
        {"export " + file("mine.ppt"), "The presentation is in "},
        {"export " + file("mine.ppt"), "or say export! to replace it\n"},
        {"export! " + file("mine.scn"), "of the kind ppt: say export! " + file("mine.ppt") + "\n"},
        {"export! " + file("mine.ppt"), "The presentation is in "},
        {"PowerPoint.Kill", ""},
        {"?ActivePresentation",
         "error 429 PowerPoint does not run [exercise-host] (reset prepares the question anew)\n"},
        {"undo", "Taken back: PowerPoint.Kill\n"},
        {"?s.Count", " 4\n"},
        {"undo", "Taken back: expect error 438: s.Gone\n"},
        {"undo", "Taken back: expect s.Count = 4\n"},
        {"undo", "Taken back: s.AddShape msoShapeRectangle, 20, 20, 100, 60\n"},
        {"?s.Count", " 3\n"},
        {"check", reads + "the letter \"A\": "},
        {"undo", "Taken back: s(2).Width\n"},
        {"check", reads + "the letter \"A\": "},
        {"Set t = s(1)", ""},
        {"check", reads + "the general error \"D\": "},
        {"undo", "Taken back: Set t = s(1)\n"}, // and the check before it is made again
        {"check", reads + "the general error \"D\": "},
        {"Host.InitQuestion 399", "With non définie] (reset prepares the question anew)\n"},
        {"reset", "prepared anew, without the 1 move made.\n"},
        {"undo", "There is no move to take back.\n"},
        {"check success", "Scenarios that end so: \"nothing drawn\""},
        {"?s", "'s' is neither a variable"},
        {"qiut", "Of what this conversation takes: quit? help tells all.\n"},
        {"# a remark", ""},
    };
    std::string typed;
    for (const Exchange& exchange : exchanges) {
        typed += exchange.typed + "\n?\"--\"\n";
    }
    std::string said = talk(typed + "quit\nwhat follows is not read\n");
    for (const Exchange& exchange : exchanges) {
        const std::string mark = "--\n";
        const std::size_t end = said.find(mark);
        ASSERT_NE(end, std::string::npos) << exchange.typed;
        const std::string answer = said.substr(0, end);
        said.erase(0, end + mark.size());
        if (&exchange == &exchanges.front()) {
            EXPECT_TRUE(answer.starts_with("Question 314: draw one basic AutoShape"));
            EXPECT_NE(answer.find("shape 2 \"Text Box 3\" ZOR2\n"), std::string::npos) << answer;
        }
        EXPECT_TRUE(exchange.answered.empty() ? answer.empty() : answer.find(exchange.answered) != std::string::npos)
            << exchange.typed << "\nis answered\n"
            << answer;
    }
    EXPECT_EQ(said, "The question is closed, and everything is as it was before.\n");
    EXPECT_EQ(verify(file("mine.scn")), "2 passed, 0 failed\n");
    EXPECT_NE(contentOf("mine.scn").find("\n\nscenario \"so \"\"well\"\" done\"\n"), std::string::npos);
    EXPECT_TRUE(recheck(file("mine.ppt")).starts_with("Question 314: a success\n"));
}

TEST_F(TryTest, CompletingCallsNoMethod) {
    const host::language::ScenarioFile scenarios = host::load(host::Library(SCENARIOS).fileOf(314));
    const host::Course course(scenarios, host::makeEmbeddedWorld);
    host::OpenQuestion open(scenarios, course, host::makeEmbeddedWorld);
    const auto completions = [&](const std::string& line) { return host::completionsOf(line, open); };
    EXPECT_EQ(completions("?activepres"), std::vector<std::string>{"ActivePresentation"});
    EXPECT_EQ(completions("x = ActivePresentation.Slides(1).Shapes(\"Text Box 3\").Rotat"),
              std::vector<std::string>{"Rotation"});
    EXPECT_EQ(completions("s.AddShape msoShapeRectangularC"), std::vector<std::string>{"msoShapeRectangularCallout"});
    EXPECT_EQ(completions("Reg"), std::vector<std::string>{"Registry"});
    for (const char* const line :
         {"ActivePresentation.Slides(1).Shapes.AddShape(1, 0, 0, 9, 9).", "ActivePresentation.Slides(1).Duplicate().",
          "ActivePresentation.Slides(1).Shapes(ActivePresentation.Slides.Add(1, 12).SlideIndex).", "PowerPoint.Kill().",
          "Host.Fermer().", "ActivePresentation.Slides(9).", "Presentations.Add.Sli", "nothing.Sli", "(((", "?."}) {
        EXPECT_EQ(completions(line), std::vector<std::string>()) << line;
    }
    const auto counts = host::language::parseExpression(
        u"Presentations.Count & ActivePresentation.Slides.Count & ActivePresentation.Slides(1).Shapes.Count");
    EXPECT_EQ(open.evaluate(counts).to<std::u16string>(), u"113");
    EXPECT_EQ(open.close(), std::vector<std::string>());
}

TEST_F(TryTest, TheEndOfTheInputLeavesNothingBehindAndWhatIsLeftIsSaid) {
    const std::size_t alive = automation::Object::alive();
    EXPECT_TRUE(talk("Set s = ActivePresentation.Slides(1)\nexpect error 9:").ends_with("is as it was before.\n"));
    EXPECT_EQ(automation::Object::alive(), alive);
    const std::string said =
        talk("Registry.RecentFolder(\"Default\") = \"D:\\\"\nFiles.MakeReadOnly \"x\"\nHost.Fermer\n"
             "Registry.RecentFolder(\"Default\") = \"D:\\\"\n",
             ExitCode::FellShort);
    EXPECT_NE(said.find("Not as it was before: the learner's folder Default was \""), std::string::npos) << said;
    EXPECT_EQ(automation::Object::alive(), alive);
}

TEST_F(TryTest, ASavedScenarioExpectsAllThatTheHostReads) {
    const std::string said = talk("Set deck = ActivePresentation.Slides\n"
                                  "deck(1).Shapes(2).TextFrame.TextRange.Text = \"Bien créer une présentation\"\n"
                                  "deck(2).Shapes(2).TextFrame.TextRange.Paragraphs(2).Words(1).Text = \"créer \"\n"
                                  "deck(3).Shapes(2).TextFrame.TextRange.Paragraphs(2).Words(6).Text = \"créer\"\n"
                                  "deck(4).Shapes(1).TextFrame.TextRange.Words(6).Text = \"créer \"\n"
                                  "check\ncheck\nHost.Fermer\ncheck\nsave " +
                                      file("mine.scn") + " \"so \"well\" done\"\n",
                                  ExitCode::Good, "306");
    EXPECT_NE(said.find("with 6 moves and 3 checks.\n"), std::string::npos) << said;
    const std::string text = contentOf("mine.scn");
    EXPECT_NE(text.find("scenario \"so \"\"well\"\" done\"\n"), std::string::npos) << text;
    EXPECT_NE(text.find("  check remark \"F\"\n  check general \"D\"\n  expect Host.BravoNuance = True\n"
                        "  Host.Fermer\n  check general \"A\"\n"),
              std::string::npos)
        << text;
    EXPECT_EQ(verify(file("mine.scn")), "1 passed, 0 failed\n");
}

TEST_F(TryTest, ASavedScenarioThatDoesNotStageTheCoursesOwnFilesSaysSo) {
    const std::string saved = "Scenario \"mine\" is in " + file("mine.scn") + ", with 0 moves and 1 check.\n";
    const std::string otherDeck = "The moves were made on the course's own files: verify judges it there with "
                                  "--course, else on the presentation that the scenario file builds.\n";
    const std::string closed = "The question is closed, and everything is as it was before.\n";
    const std::string typed = "check\nsave! " + file("mine.scn") + "\n";
    EXPECT_TRUE(talk("export " + file("07305314.ppt") + "\n" + typed).ends_with(saved + closed));
    const std::string folder = std::filesystem::path(file("07305314.ppt")).parent_path().string();
    EXPECT_TRUE(printedBy({"try", "314", "--course", folder}, SCENARIOS, ExitCode::Good, typed)
                    .ends_with(saved + otherDeck + closed));
}

TEST_F(TryTest, TextsAreShownOnOneLine) {
    const std::string text = "ActivePresentation.Slides(1).Shapes(2).TextFrame.TextRange.Text";
    const std::string long59(59, 'a');
    const std::string said = talk("?" + text + "\n" + text + " = \"un\" & vbCr & \"deux\"\n?" + text + "\nshow\n" +
                                  text + " = \"" + long59 + "😀b\"\nshow\n");
    EXPECT_NE(said.find("\nun␍deux\n"), std::string::npos) << said;
    EXPECT_NE(said.find("points: un␍deux\n"), std::string::npos) << said;
    EXPECT_NE(said.find("points: " + long59 + "...\n"), std::string::npos) << said;
}

TEST_F(TryTest, GeneralErrorsAreExplained) {
    struct Case {
        std::string move;
        std::string code;
        std::string meaning;
    };
    const std::vector<Case> cases = {
        {"PowerPoint.Hide", "AK", "PowerPoint's window is gone, or hidden."},
        {"PowerPoint.StopAnswering", "%AL", "PowerPoint does not answer."},
        {"ActivePresentation.Close", "A", "no presentation is open."},
        {"ActivePresentation.Slides(2).Delete", "C", "a prepared slide is missing."},
        {"ActivePresentation.Slides(2).Duplicate", "D", "a prepared slide was copied, or a check before has counted "},
        {"ActivePresentation.Slides.Add 3, ppLayoutBlank", "E", "the slides are out of order, or one was added."},
        {"ActivePresentation.SaveAs Host.Folder & \"Autre.ppt\"", "F", "the working presentation is not open from "},
        {"Presentations.Add", "G", "the working presentation is open, but not the active one."},
    };
    for (const Case& each : cases) {
        const std::string said = talk(each.move + "\ncheck\nPowerPoint.AnswerAgain\n", std::nullopt, "318");
        EXPECT_NE(said.find("reads the general error \"" + each.code + "\": "), std::string::npos) << said;
        EXPECT_NE(said.find("own checks were not made: " + each.meaning), std::string::npos) << said;
    }
    // What the first check has not found is all that the second one expects, and what the second leaves the third.
    const std::string said = talk("ActivePresentation.Slides(2).Delete\ncheck\ncheck\ncheck\n", std::nullopt, "318");
    const std::size_t missing = said.find("the general error \"C\"");
    const std::size_t judged = said.find("the letter \"", missing);
    EXPECT_LT(judged, said.find("the general error \"D\"")) << said;
    EXPECT_NE(said.find("To have the same moves judged afresh", judged), std::string::npos) << said;
}

} // namespace try_tests
