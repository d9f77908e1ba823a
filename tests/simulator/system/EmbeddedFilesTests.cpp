#include "host/world/TemporaryFolder.h"
#include "simulator/system/EmbeddedFiles.h"
#include "simulator/system/FilePattern.h"
#include "tests/support/FileContract.h"

#include <gtest/gtest.h>

namespace embedded_files_tests {

using automation::RunTimeError;
using simulator::EmbeddedFiles;

TEST(FilePattern, MatchesAsADirectorySearchByWindows) {
    struct Case {
        std::u16string_view name;
        std::u16string_view pattern;
        bool matches;
    };
    for (const auto& [name, pattern, matches] : std::initializer_list<Case>{
             {u"Plan exo 3.rtf", u"Plan exo 3.*", true},
             {u"PLAN EXO 3.RTF", u"plan exo 3.rtf", true},
             {u"Plan exo 3", u"Plan exo 3.*", true},
             {u"Plan exo 3", u"Plan exo 3", true},
             {u"Plan exo 3.rtf", u"Plan exo 3", false},
             {u"Plan exo 30.rtf", u"Plan exo 3.*", false},
             {u"Plan exo 3.a.b", u"Plan exo 3.*", true},
             {u"MÉTHODOLOGIE.PPT", u"méthodologie.ppt", true},
             {u"sans extension", u"*.*", true},
             {u"a.ppt", u"*.ppt", true},
             {u"a.ppt.bak", u"*.ppt", false},
             {u"a.b.ppt", u"*.ppt", true},
             {u"a1.ppt", u"a?.ppt", true},
             {u"a.ppt", u"a?.ppt", true},
             {u"a12.ppt", u"a?.ppt", false},
             {u"a", u"a??", true},
             {u"", u"*", true},
             {u"a", u"", false},
         }) {
        EXPECT_EQ(simulator::matchesPattern(name, pattern), matches)
            << std::filesystem::path(name) << " and " << std::filesystem::path(pattern);
    }
}

class EmbeddedFilesTest : public testing::Test {
protected:
    [[nodiscard]] static std::u16string path(std::u16string_view name) {
        return name.empty() ? std::u16string() : u"C:\\a\\" + std::u16string(name);
    }
    [[nodiscard]] tests::FileGround ground() {
        std::filesystem::create_directories(files.realPath(u"C:\\a"));
        return {files, path,
                [this](std::u16string_view name, std::uint32_t attributes) {
                    files.create(path(name));
                    files.setAttributes(path(name), attributes);
                },
                [this](std::u16string_view name) { std::filesystem::create_directory(files.realPath(path(name))); },
                [this](std::u16string_view name) {
                    files.setIsOpen([open = files.realPath(path(name))](const auto& file) { return file == open; });
                }};
    }

    host::TemporaryFolder folder;
    EmbeddedFiles files{folder.path()};
};

TEST_F(EmbeddedFilesTest, ChangeAsThoseOfWindows) {
    demandChanges(ground());
}
TEST_F(EmbeddedFilesTest, AreFoundAsThoseOfWindows) {
    demandSearches(ground());
}
TEST_F(EmbeddedFilesTest, HaveFoldersAsThoseOfWindows) {
    demandFolders(ground());
}

TEST_F(EmbeddedFilesTest, FindsFilesByAnySpellingOfTheirPath) {
    files.create(u"C:\\Élève\\Exercices\\Méthodologie.ppt");
    const auto real = folder.path() / "C" / "Élève" / "Exercices" / "Méthodologie.ppt";
    for (const std::u16string_view spelling :
         {u"C:\\Élève\\Exercices\\Méthodologie.ppt", u"c:\\élève\\EXERCICES\\MÉTHODOLOGIE.PPT",
          u"C:/Élève/Exercices/Méthodologie.ppt", u"C:\\Élève\\.\\Autre\\..\\Exercices\\\\Méthodologie.ppt",
          u"\\Élève\\Exercices\\Méthodologie.ppt. ", u"C:\\..\\..\\Élève\\Exercices\\Méthodologie.ppt"}) {
        EXPECT_EQ(files.realPath(spelling), real);
    }
    for (const std::u16string_view outside : {u"/:\\tmp\\x", u"..:\\x", u"1:\\x", u"\\\\server\\share\\x"}) {
        EXPECT_TRUE(files.realPath(outside).string().starts_with(folder.path().string()));
    }
}

TEST_F(EmbeddedFilesTest, KeepAttributesUnderAnotherNameAndAreFoundInOrder) {
    const tests::FileGround at = ground();
    at.make(u"zoo.ppt", EmbeddedFiles::readOnly | EmbeddedFiles::hidden);
    at.make(u"Cas.ppt", 0);
    EXPECT_EQ(errorNumber([&] { files.rename(path(u"Cas.ppt"), path(u"Cas.ppt")); }), 58);
    files.rename(path(u"zoo.ppt"), path(u"Bac.ppt"));
    EXPECT_EQ(files.attributes(path(u"Bac.ppt")), EmbeddedFiles::readOnly | EmbeddedFiles::hidden);
    EXPECT_EQ(files.find(path(u"*.ppt"), platform::FileSystem::hiddenAndSystem), u"Bac.ppt");
    EXPECT_EQ(errorNumber([&] { files.setAttributes(path(u"zoo.ppt"), 0); }), 53);
}

} // namespace embedded_files_tests
