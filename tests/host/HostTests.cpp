#include "automation/LateBound.h"
#include "automation/Text.h"
#include "host/language/Parser.h"
#include "host/language/Words.h"
#include "host/report/Page.h"
#include "host/run/Runner.h"
#include "host/world/RealFile.h"
#include "host/world/TemporaryFolder.h"
#include "tests/support/Program.h"
#include "tests/support/Script.h"

#include <nlohmann/json.hpp>

#include <fstream>
#include <sstream>

namespace host_tests {

using automation::LateBound;
using automation::ObjectPtr;
using host::ExitCode;
using tests::ask;

constexpr const char* course = "question 306\n"
                               "course\n"
                               "Presentations.Add\n"
                               "ActivePresentation.Slides.Add 1, ppLayoutTitle\n"
                               "ActivePresentation.Slides(1).Shapes(1).TextFrame.TextRange.Text = \"faire\"\n";
constexpr const char* success = "scenario \"four times\"\n"
                                "ActivePresentation.Slides(1).Shapes(1).TextFrame.TextRange.Text = "
                                "\"créer créer créer créer\"\n"
                                "check remark \"F\"\n";

/// A library that holds one file for question 306.
class HostTest : public testing::Test {
protected:
    void write(const std::string& text) { std::ofstream(folder_.path() / "0306.scn") << text; }
    [[nodiscard]] std::string file() const { return (folder_.path() / "0306.scn").string(); }

    [[nodiscard]] std::string said(const std::vector<std::string>& arguments, ExitCode expected) const {
        return printedBy(arguments, folder_.path(), expected);
    }

private:
    host::TemporaryFolder folder_;
};

TEST_F(HostTest, VerifyNamesEveryScenarioThatFallsShort) {
    write(std::string(course) + success +
          "scenario \"a wrong letter\"\n check \"B\"\n"
          "scenario \"a move that raises\"\n  ActivePresentation.Slides(9).Delete\n  check success\n"
          "scenario \"a working file left\"\nHost.Fermer\nFiles.Create \"Méthodologie.ppt\"\nexpect 1 = 1\n"
          "scenario \"a folder changed\"\nHost.Fermer\nRegistry.RecentFolder(\"Default\") = \"D:\\\"\nexpect 1 = 1\n"
          "scenario \"PowerPoint gone\"\nPowerPoint.Close\nPresentations.Add\ncheck success\n");
    const std::string out = said({"verify"}, ExitCode::FellShort);
    EXPECT_NE(out.find(file() + ":10:2: expected the letter \"B\", the host reads the letter \"A\". "),
              std::string::npos);
    EXPECT_NE(out.find(file() + ":12:22: error "), std::string::npos);
    EXPECT_NE(out.find(file() + ":14:1: the working file Méthodologie.ppt is left"), std::string::npos);
    EXPECT_NE(out.find(file() + ":18:1: the learner's folder Default was \""), std::string::npos);
    EXPECT_NE(out.find(file() + ":24:1: error 429 PowerPoint does not run"), std::string::npos);
    EXPECT_TRUE(out.ends_with("\n1 passed, 5 failed\n")) << out;
}

TEST_F(HostTest, VerifyHoldsAFileToWhatItSaysOfItsQuestion) {
    const std::string contract = "question 306\nletter \"A\" \"x\"\ndelivered\n"
                                 "expect Presentations.Count = 1, ActivePresentation.Slides.Count = 2\n"
                                 "Set s = Windows.Nobody\nexpect s.Name = \"untold\"\n";
    write(contract + std::string(course).substr(contract.find('\n') + 1) + success);
    const std::string copy = file() + ".scn"; // not named after its question
    std::filesystem::copy(file(), copy);
    const auto found = [&](const std::string& path) {
        std::string out = said({"verify", "--file", path}, ExitCode::FellShort);
        host::replaceAll(out, " (\"what the file says of its question\")", "");
        host::replaceAll(out, path, "");
        return out;
    };
    const std::string delivered = ":4:59: ActivePresentation.Slides.Count is 1 and should be 2\n:5:17: error 438 "
                                  "DocumentWindows has no member 'Nobody' [K73053]\n";
    const std::string undeclared = ":11:1: the host reads \"F\", a letter that is not declared\n1 passed, 1 failed\n";
    EXPECT_EQ(found(copy), delivered + undeclared);
    EXPECT_EQ(found(file()), delivered + ":2:1: no scenario reaches the letter \"A\"\n" + undeclared);
}

/// The bytes of a file in a world, as a file of the real disk.
void copyOut(host::World& world, const std::u16string& path, const std::filesystem::path& to) {
    const host::Bytes bytes = world.files().read(path);
    host::writeContents(to, std::string(bytes.begin(), bytes.end()));
}

TEST_F(HostTest, ASavedPresentationIsJudgedAgainAndTheCoursesOwnFilesAreStaged) {
    write(std::string(course) + success);
    const std::filesystem::path folder = std::filesystem::path(file()).parent_path();
    const auto scenarios = host::load(file());
    const host::Course built(scenarios, host::makeEmbeddedWorld);
    const host::WorldPtr world = host::makeEmbeddedWorld(nullptr);
    host::Witness nobody;
    host::TrainingHost training(*world, built, 306, nobody);
    copyOut(*world, world->hostFolder() + u"07305306.ppt", folder / "07305306.ppt");
    training.initQuestion(306, world->hostFolder());
    const LateBound working = ask(LateBound(world->powerPoint().application()), u"ActivePresentation");
    const std::u16string copy = world->hostFolder() + u"copie";
    const std::vector<std::string> recheck = {"recheck", (folder / "eleve.ppt").string(), "--question", "306"};
    std::vector<std::string> ofTheCourse = recheck;
    ofTheCourse.insert(ofTheCourse.end(), {"--course", folder.string()});
    const auto judged = [&](const std::vector<std::string>& arguments, ExitCode expected) {
        working.call(u"SaveCopyAs", copy);
        copyOut(*world, copy + u".ppt", folder / "eleve.ppt");
        return said(arguments, expected);
    };
    EXPECT_TRUE(judged(recheck, ExitCode::FellShort).starts_with("Question 306: the letter \"A\"\n"));
    const LateBound shape = ask(ask(ask(ask(working, u"Slides"), u"Item", 1), u"Shapes"), u"Item", 1);
    ask(ask(shape, u"TextFrame"), u"TextRange").put(u"Text", u"créer créer créer créer");
    EXPECT_TRUE(judged(ofTheCourse, ExitCode::Good).starts_with("Question 306: a success with the remark \"F\"\n"));

    const std::vector<std::string> all = {"recheck", folder.string(), "--question", "306"};
    const std::string table = said(all, ExitCode::FellShort);
    EXPECT_TRUE(table.ends_with(
        "\n\n2 presentations\n     1  a success with the remark \"F\"\n     1  the general error \"C\"\n"))
        << table;
    std::vector<std::string> inJson = all;
    inJson.emplace_back("--json");
    const auto object = nlohmann::json::parse(said(inJson, ExitCode::FellShort));
    ASSERT_EQ(object["presentations"].size(), 2U);
    EXPECT_EQ(object["presentations"][1]["CauseErreur"], "F");
    EXPECT_EQ(object["presentations"][1]["passed"], true);

    std::ofstream(folder / "eleve.ppt") << "no presentation";
    EXPECT_NE(said(all, ExitCode::WrongUsage).find("\n     1  not judged\n"), std::string::npos);
    EXPECT_NE(said(recheck, ExitCode::WrongUsage).find("eleve.ppt cannot be opened: it is damaged, or no "),
              std::string::npos);
    inJson.insert(inJson.begin() + 1, (folder / "eleve.ppt").string()); // and in the folder
    const auto unread = nlohmann::json::parse(said(inJson, ExitCode::WrongUsage))["presentations"];
    ASSERT_EQ(unread.size(), 2U);
    EXPECT_NE(unread[0]["trouble"].get<std::string>().find("ask the learner to save it again"), std::string::npos);
    EXPECT_FALSE(unread[0].contains("verdict"));

    const auto staged = [&](const char* command) {
        return std::vector<std::string>{command, "306", "--course", folder.string()};
    };
    EXPECT_NE(said(staged("run"), ExitCode::Good).find("CauseErreur: F"), std::string::npos);
    EXPECT_NE(said(staged("try"), ExitCode::Good).find("shape 1"), std::string::npos);
    std::filesystem::remove(folder / "07305306.ppt");
    for (const char* const command : {"run", "try"}) {
        EXPECT_NE(said(staged(command), ExitCode::WrongUsage).find("there is no 07305306.ppt"), std::string::npos);
    }
}

TEST_F(HostTest, ReportsTakeThePlaceOfEarlierOnesAndOfNothingElse) {
    write(std::string(course) + success);
    const std::filesystem::path folder = std::filesystem::path(file()).parent_path();
    const auto in = [&](const char* name) { return (folder / name).string(); };
    const std::vector<std::string> reports = {in("F.html"), in("F.xml"), in("F.json")};
    const std::vector<std::string> arguments = {"verify",  "306",      "--report", reports[0],
                                                "--junit", reports[1], "--json",   reports[2]};
    std::vector<bool> wereThere;
    const auto lookFirst = [&](const auto& observer) {
        for (const std::string& report : reports) {
            wereThere.push_back(std::filesystem::exists(report));
        }
        return host::makeEmbeddedWorld(observer);
    };
    for (int run = 0; run < 2; ++run) { // whoever hangs leaves nothing that an earlier run has told
        std::ostringstream out;
        EXPECT_EQ(
            host::runCommandLine(host::exerciseHost(), arguments, folder, "1.2.3", lookFirst, {out, out}, nullptr),
            ExitCode::Good)
            << out.str();
        for (const std::string& report : reports) {
            EXPECT_GT(std::filesystem::file_size(report), 100U) << report;
        }
    }
    EXPECT_EQ(std::count(wereThere.begin(), wereThere.end(), true), 0);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 4) << "files beside them are left";

    host::writeContents(in("mine.ppt"), "mine");
    std::filesystem::create_symlink("0306.scn", in("link"));
    const auto contents = [&] {
        std::string all;
        for (const std::string& name : {file(), in("mine.ppt"), reports[0]}) {
            const host::Bytes content = host::contentsOf(name);
            all.append(content.begin(), content.end());
        }
        return all;
    };
    const std::string before = contents();
    struct Refused {
        std::vector<std::string> arguments;
        const char* said;
    };
    const std::vector<Refused> refused{
        {{"--file", file(), "--report", file()}, "0306.scn is read as well: name another file"},
        {{"306", "--json", in("link")}, "link is read as well"},
        {{"306", "--junit", in("mine.ppt")}, "mine.ppt is there already, and is no earlier one of this kind"},
        {{"306", "--junit", reports[0]}, "F.html is there already, and is no"}, // a page is no report for servers
        {{"306", "--junit", in("new"), "--json", in("new")}, "new is named twice"},
        {{"306", "--junit", folder.string()}, " is a folder"},
        {{"306", "--report", reports[0], "--junit", in("none/new")}, "is there such a folder"},
        {{"399", "--report", reports[0]}, "no question 399"},
    };
    for (const auto& [options, words] : refused) {
        std::vector<std::string> all = options;
        all.insert(all.begin(), "verify");
        const std::string printed = said(all, ExitCode::WrongUsage);
        EXPECT_NE(printed.find(words), std::string::npos) << printed;
        EXPECT_EQ(contents(), before) << words;
    }
    EXPECT_FALSE(std::filesystem::exists(in("new")));
    EXPECT_NE(said({"run", "306", "--picture", in("p")}, ExitCode::Good).find("Picture: "), std::string::npos);
    EXPECT_NE(said({"run", "306", "--picture", in("p")}, ExitCode::Good).find("Picture: "), std::string::npos);
    host::writeContents(in("p/after.svg"), "<svg/>");
    EXPECT_NE(said({"run", "306", "--picture", in("p")}, ExitCode::WrongUsage).find("after.svg is there already"),
              std::string::npos);
}

TEST(Page, HoldsPicturesThatAreNoDrawings) {
    host::report::Attempt attempt;
    attempt.reading.emplace();
    attempt.slides = {{1, {"png", "a"}, {"png", "ab"}}, {2, {"png", "abc"}, {"png", "\xFF\xFE>?"}}};
    const std::string page = host::report::asPage({{"t.scn", 306, "", {}, {{"t", 1, {attempt}, {}}}}}, "");
    for (const char* const content : {"YQ==", "YWI=", "YWJj", "//4+Pw=="}) {
        EXPECT_NE(page.find("data:image/png;base64," + std::string(content) + '"'), std::string::npos) << content;
    }
}

TEST_F(HostTest, ACourseThatCannotBeBuiltFailsAllItsScenarios) {
    write("question 306\ncourse\nPresentations.Ad\nscenario \"a\"\ncheck success\nscenario \"b\"\ncheck success\n");
    const std::string out = said({"verify"}, ExitCode::FellShort);
    EXPECT_TRUE(out.starts_with(file() + ":3:15: error 438")) << out;
    EXPECT_TRUE(out.ends_with("\n0 passed, 2 failed\n")) << out;
    EXPECT_NE(said({"run"}, ExitCode::FellShort).find(":3:15: error 438"), std::string::npos);
}

TEST_F(HostTest, RunGivesOneJsonObjectWithTheCalls) {
    write(std::string(course) + success +
          "scenario \"three\"\nActivePresentation.Slides(1).Shapes(1).TextFrame."
          "TextRange.Text = \"créer créer créer\"\ncheck \"C\" complement \" 3\"\n");
    const auto object =
        nlohmann::json::parse(said({"run", "306", "--scenario", "three", "--json", "--trace"}, ExitCode::Good));
    EXPECT_EQ(object["CauseErreur"], "C");
    EXPECT_EQ(object["ErreurGenerale"], false);
    EXPECT_EQ(object["BravoNuance"], false);
    EXPECT_EQ(object["Complement"], nlohmann::json({" 3"}));
    EXPECT_EQ(object["passed"], true);
    const std::string story = object["story"].dump();
    for (const char* const call : {"Presentations.Open(", "Files.rename(", "Registry.set(", "Windows.findWindow("}) {
        EXPECT_NE(story.find(call), std::string::npos) << call;
    }
}

TEST_F(HostTest, TheCommandLineEndsWithItsExitCode) {
    struct Case {
        std::vector<std::string> arguments;
        ExitCode expected;
        const char* printed;
    };
    const std::string good = std::string(course) + "scenario \"nothing\"\ncheck \"A\"\n";
    const std::string folder = std::filesystem::path(file()).parent_path().string();
    const std::vector<Case> cases = {
        {{"verify", "--help"}, ExitCode::Good, "Exit codes: 0 good"},
        {{"--version"}, ExitCode::Good, "1.2.3"},
        {{}, ExitCode::WrongUsage, "which command?"},
        {{"walk"}, ExitCode::WrongUsage, "no command 'walk'. See exercise-host --help"},
        {{"verfy", "306"}, ExitCode::WrongUsage, "no command 'verfy': verify? See"},
        {{"verify", "306", "--jnuit", "x"}, ExitCode::WrongUsage, "--junit? See exercise-host verify --help"},
        {{"run", "306", "307"}, ExitCode::WrongUsage, "nothing to do with '307'. See exercise-host run"},
        {{"try"}, ExitCode::WrongUsage, "which question? Name its number"},
        {{"run", "306", "--scenario", "nothing", "--picture", file()},
         ExitCode::WrongUsage,
         " is a file: name a folder"},
        {{"verify", folder + "/no.txt"}, ExitCode::WrongUsage, "no scenario to verify in "},
        {{"run", folder + "/mine.bin"}, ExitCode::WrongUsage, "mine.bin is a presentation, not a scenario file"},
        {{"run", "399"}, ExitCode::WrongUsage, "the course has 301 to 3"},
        {{"run", "many"}, ExitCode::WrongUsage, "many"},
        {{"run", "307"}, ExitCode::WrongUsage, "no scenario file: "},
        {{"run"}, ExitCode::WrongUsage, "has no scenario that ends in a success"},
        {{"run", "--scenario", "something"}, ExitCode::WrongUsage, "has no scenario \"something\""},
        {{"run", "306", "--scenario", "nothing"}, ExitCode::Good, "CauseErreur: A\n"},
        {{"verify"}, ExitCode::Good, "1 passed, 0 failed\n"},
        {{"verify", "306", "0306", "--file", file()}, ExitCode::Good, "1 passed, 0 failed\n"},
        {{"verify", file(), "--passed"}, ExitCode::Good, "0306 \"nothing\": passed\n1 passed"},
        {{"verify", folder}, ExitCode::WrongUsage, " is a folder"},
        {{"verify", "--scenario", "nothing"}, ExitCode::Good, "1 passed, 0 failed\n"},
        {{"verify", "--scenario", "something"}, ExitCode::WrongUsage, "no scenario \"something\""},
        {{"verify", "--sample", "-3"}, ExitCode::WrongUsage, "-3 is no whole number"},
        {{"verify", "--sample", "1.5"}, ExitCode::WrongUsage, "1.5 is no whole number"},
        {{"verify", "/proc/self/mem"}, ExitCode::WrongUsage, "/proc/self/mem cannot be read"},
        {{"run", file(), "--scenario", "nothing"}, ExitCode::Good, "CauseErreur: A\n"},
        {{"try", "--file", file()}, ExitCode::Good, "shape 1"},
        {{"list", file()}, ExitCode::Good, "    nothing\n"},
        {{"recheck", folder, "--question", "306"}, ExitCode::WrongUsage, "no presentation (.ppt) below"},
        {{"verify", "--scenarios", "nowhere"}, ExitCode::WrongUsage, "no folder of scenarios: nowhere"},
        {{"list"}, ExitCode::Good, "0306.scn: question 306\n    nothing\n"},
    };
    host::writeContents(folder + "/no.txt", course);
    host::writeContents(folder + "/mine.bin", "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1");
    write(good);
    for (const Case& asked : cases) {
        const std::string printed = said(asked.arguments, asked.expected);
        EXPECT_NE(printed.find(asked.printed), std::string::npos) << printed;
    }
    for (const char* const command : {"", "run", "try", "play", "verify", "conform", "recheck", "deliver", "list"}) {
        std::istringstream help(said({command, "--help"}, ExitCode::Good));
        for (std::string line; std::getline(help, line);) {
            EXPECT_TRUE(line.size() <= 80 || line.starts_with("  --scenarios")) << line; // which names a folder
        }
    }
    const std::string fallsShort = "scenario \"one\"\ncheck \"C\"\nscenario \"two\"\ncheck \"C\"\n";
    write(std::string(course) + fallsShort);
    EXPECT_TRUE(said({"verify", "--stop"}, ExitCode::FellShort).ends_with("\n0 passed, 1 failed\n"));
    write(good + "check A\n\ncheck remark\n");
    const std::string report = folder + "/wrong.xml";
    static_cast<void>(said({"verify", "--junit", report}, ExitCode::WrongUsage));
    const host::Bytes junit = host::contentsOf(report);
    const std::string errors(junit.begin(), junit.end());
    EXPECT_NE(errors.find("tests=\"2\" failures=\"0\" errors=\"2\""), std::string::npos) << errors;
    EXPECT_NE(errors.find("<error message=\"expected a letter in quotes"), std::string::npos) << errors;
    EXPECT_EQ(said({"verify"}, ExitCode::WrongUsage),
              file() + ":8:7: expected a letter in quotes, success, remark, general or error, found 'A'\n" + file() +
                  ":10:13: expected the letter of the remark, in quotes, found the end of the line\n");
}

TEST_F(HostTest, AnObjectLeftAliveIsNoticed) {
    struct Keeper final : host::Witness {
        Keeper(host::World& keptWorld, ObjectPtr& keptObject) : world(keptWorld), kept(keptObject) {}
        void judged(const host::Reading& /*reading*/) override {
            kept = LateBound(world.powerPoint().application()).get(u"Presentations").to<ObjectPtr>();
        }
        host::World& world;
        ObjectPtr& kept;
    };
    ObjectPtr kept;
    const host::language::ScenarioFile file = host::language::parse("f", std::string(course) + success);
    const host::Runner runner(file, host::makeEmbeddedWorld);
    const auto outcome =
        runner.run(file.scenarios[0], [&](host::World& world) { return std::make_unique<Keeper>(world, kept); });
    ASSERT_EQ(outcome.failures.size(), 1U);
    EXPECT_EQ(outcome.failures[0].message, "1 automation objects left alive");
}

} // namespace host_tests
