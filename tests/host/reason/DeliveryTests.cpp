#include "automation/Text.h"
#include "host/language/Parser.h"
#include "host/reason/Delivery.h"
#include "host/world/TemporaryFolder.h"
#include "tests/support/Program.h"

#include <fstream>

namespace delivery_tests {

using host::ExitCode;

/// What a deck with one shape lacks.
std::string lackedOf(const std::string& expectations) {
    const auto file = host::language::parse(
        "0306.scn", "question 306\ndelivered\n" + expectations + "\ncourse\nPresentations.Add\n" +
                        "Set s = ActivePresentation.Slides.Add(1, ppLayoutBlank).Shapes\n"
                        "s.AddShape(msoShapeSun, 10, 20, 30, 40).TextFrame.TextRange.Text = \"aussi parfaitement\"\n");
    const host::Course course(file, host::makeEmbeddedWorld);
    std::string all;
    for (const host::language::Remark& remark : host::reason::shortcomingsOf(course, file, host::makeEmbeddedWorld)) {
        all += (all.empty() ? "" : "|") + remark.message;
    }
    return all;
}

TEST(Delivery, SaysShapeByShapeWhatAPresentationLacks) {
    const std::string s = "Set s = ActivePresentation.Slides(1).Shapes\n";
    const std::vector<std::pair<std::string, std::string>> cases{
        {s + "expect s.Count = 1, s(1).Left = 10, s(1).Fill.ForeColor.RGB = s(1).Fill.ForeColor.RGB", ""},
        {s + "expect s(1).Left = 56.6929, s(1).Top = 20, s(1).Width = 0, s.Count = 3",
         "slide 1, shape 1: Left is 10 points (0.35 cm) and should be 56.6929 points (2.00 cm); Width is 30 points "
         "(1.06 cm) and should be 0 points (0.00 cm)|slide 1: Shapes.Count is 1 and should be 3"},
        {"expect ActivePresentation.Slides(1).Shapes(2).Left = 1, ActivePresentation.Slides(1).Shapes(2).Top = 1",
         "slide 1, shape 2: it is missing"},
        {"Set b = ActivePresentation.Slides(2).Shapes(1)\nexpect b.Left = 1", "slide 2: it is missing"},
        {s + "expect s(1).Type = msoPlaceholder",
         "slide 1, shape 1: Type is msoAutoShape and should be msoPlaceholder"},
        {s + "Set t = s(1).TextFrame.TextRange.Paragraphs(1)\nexpect t.Find(\"parfaitement \").Text = \"parfaitement "
             "\"",
         "slide 1, shape 1, paragraph 1: its text does not hold \"parfaitement \""},
        {"Dim a(ActivePresentation.Slides(9).SlideIndex)",
         "error 80048240 Slides.Item : Entier hors limites. 9 n'appartient pas à la plage valide de 1 à 1. [Microsoft "
         "PowerPoint]"},
        {"expect Files.Exists(\"a.doc\") = True", "Files.Exists(\"a.doc\") is False and should be True"},
    };
    for (const auto& [expectations, lacked] : cases) {
        EXPECT_EQ(lackedOf(expectations), lacked);
    }
}

TEST(Delivery, WhatIsWrittenToStartFromFulfilsEveryQuestion) {
    const host::TemporaryFolder folder;
    const std::string files = (folder.path() / "course").string();
    std::vector<std::string> verify{"verify", "--course", files, "--sample", "1"};
    for (std::int32_t question = 301; question <= 323; ++question) {
        verify.push_back(std::to_string(question));
        (void)printedBy({"deliver", verify.back(), files}, SCENARIOS, ExitCode::Good);
    }
    EXPECT_TRUE(printedBy(verify, SCENARIOS, ExitCode::Good).ends_with("\n23 passed, 0 failed\n"));

    const std::filesystem::path mine = folder.path() / "course" / "07305318.ppt";
    std::filesystem::rename(folder.path() / "course" / "07305310.ppt", mine);
    for (const std::string command : {"run", "verify"}) {
        const std::string said = printedBy({command, "318", "--course", files}, SCENARIOS, ExitCode::FellShort);
        EXPECT_NE(said.find("slide 1, shape 4: it is missing"), std::string::npos) << said;
    }
    const auto written = std::filesystem::last_write_time(mine);
    EXPECT_NE(printedBy({"deliver", "318", files}, SCENARIOS, ExitCode::WrongUsage).find("is there already"),
              std::string::npos);
    EXPECT_EQ(std::filesystem::last_write_time(mine), written);
}

} // namespace delivery_tests
