#include "automation/observe/CallCounter.h"
#include "tests/exercises/QuestionBench.h"
#include "tests/trials/trace/TraceLog.h"

#include <gtest/gtest.h>

namespace question0304_tests {

TEST(Question0304, SearchesTheOutlineAmongHiddenAndSystemFiles) {
    const std::u16string folder(tests::QuestionBench::folder);
    constexpr std::uint32_t readOnly = 1;
    constexpr std::uint32_t hidden = 2;
    constexpr std::uint32_t system = 4;
    struct Case {
        std::u16string file;
        std::uint32_t attributes;
        std::u16string letter;
        std::string second; ///< what is searched for after any outline
    };
    const std::vector<Case> cases = {
        {u"", 0, u"A", "Plan exo 3"},
        {u"Plan exo 3", hidden | system, u"B", "Plan exo 3.rtf"},
        {u"Plan exo 3.rtf", system, u"", "Plan exo 3.rtf"},
        {u"Plan exo 3.rtf", readOnly | hidden | system, u"", "Plan exo 3.rtf"},
    };
    const auto search = [](const std::string& name) { return R"(Files.find("C:\Formation\)" + name + "\", 6)\n"; };
    for (const Case& outline : cases) {
        const auto log = std::make_shared<trials::trace::TraceLog>();
        tests::QuestionBench bench(304);
        bench.prepare(log);
        static_cast<void>(log->take());
        if (!outline.file.empty()) {
            bench.machine.createFile(folder + outline.file);
            bench.machine.setAttributes(folder + outline.file, outline.attributes);
        }
        EXPECT_EQ(bench.testePoint().causeErreur, outline.letter);
        EXPECT_EQ(log->take(), search("Plan exo 3.*") + search(outline.second));
    }
}

TEST(Question0304, FindsAnOutlineWithoutExtensionByItsName) {
    struct NoneWithADot final : automation::Observer {
        automation::Value around(const automation::Crossing& crossing, const Next& next) override {
            return crossing.display().find(u".*") == std::u16string::npos ? next() : automation::Value(u"");
        }
    };
    tests::QuestionBench bench(304);
    bench.prepare(std::make_shared<NoneWithADot>());
    bench.machine.createFile(std::u16string(tests::QuestionBench::folder) + u"Plan exo 3");
    EXPECT_EQ(bench.testePoint().causeErreur, u"B");
}

TEST(Question0304, FindsNothingInAFolderThatIsGone) {
    tests::QuestionBench bench(304);
    bench.prepare(std::make_shared<automation::CallCounter>());
    bench.work();
    std::filesystem::remove_all(bench.machine.realPath(tests::QuestionBench::folder));
    EXPECT_EQ(bench.testePoint().causeErreur, u"A");
    EXPECT_FALSE(bench.testePoint().error);
}

} // namespace question0304_tests
