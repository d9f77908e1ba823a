#include "host/world/TemporaryFolder.h"
#include "simulator/system/EmbeddedFiles.h"
#include "simulator/system/FilePattern.h"
#include "tests/support/Errors.h"

#include <gtest/gtest.h>

namespace embedded_files_tests {

using automation::RunTimeError;
using simulator::EmbeddedFiles;

constexpr auto fileNotFound = static_cast<std::int32_t>(RunTimeError::FileNotFound);
constexpr auto alreadyExists = static_cast<std::int32_t>(RunTimeError::FileAlreadyExists);
constexpr auto pathAccess = static_cast<std::int32_t>(RunTimeError::PathAccess);
constexpr auto pathNotFound = static_cast<std::int32_t>(RunTimeError::PathNotFound);
constexpr std::uint32_t hiddenAndSystem = platform::FileSystem::hiddenAndSystem;

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
    [[nodiscard]] bool exists(std::u16string_view path) const { return std::filesystem::exists(files.realPath(path)); }

    host::TemporaryFolder folder;
    EmbeddedFiles files{folder.path()};
};

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

TEST_F(EmbeddedFilesTest, RenamesWithoutEverOverwriting) {
    files.create(u"C:\\a\\07305301.ppt");
    files.create(u"C:\\a\\Pris.ppt");
    files.setAttributes(u"C:\\a\\07305301.ppt", EmbeddedFiles::readOnly | EmbeddedFiles::hidden);
    const auto rename = [this](std::u16string_view from, std::u16string_view to) {
        return errorNumber([&] { files.rename(from, to); });
    };
    EXPECT_EQ(rename(u"C:\\a\\absent.ppt", u"C:\\a\\x.ppt"), fileNotFound);
    EXPECT_EQ(rename(u"C:\\a", u"C:\\b"), fileNotFound);
    EXPECT_EQ(rename(u"C:\\a\\07305301.ppt", u"C:\\a\\PRIS.ppt"), alreadyExists);
    EXPECT_EQ(rename(u"C:\\a\\07305301.ppt", u"C:\\a\\07305301.ppt"), alreadyExists);
    EXPECT_EQ(rename(u"C:\\a\\07305301.ppt", u"C:\\absent\\x.ppt"), pathAccess);
    EXPECT_EQ(rename(u"C:\\a\\07305301.ppt", u"C:\\a\\07305301.PPT"), noError);
    EXPECT_EQ(files.find(u"C:\\a\\07305301.ppt", hiddenAndSystem), u"07305301.PPT");
    EXPECT_EQ(rename(u"c:\\A\\07305301.ppt", u"C:\\a\\Méthodologie.ppt"), noError);
    EXPECT_FALSE(exists(u"C:\\a\\07305301.ppt"));
    EXPECT_EQ(files.attributes(u"C:\\a\\Méthodologie.ppt"), EmbeddedFiles::readOnly | EmbeddedFiles::hidden);
}

TEST_F(EmbeddedFilesTest, HeedsAttributes) {
    files.create(u"C:\\a\\x.ppt");
    files.setAttributes(u"C:\\a\\x.ppt", EmbeddedFiles::readOnly | EmbeddedFiles::hidden);
    EXPECT_EQ(errorNumber([&] { files.remove(u"C:\\a\\x.ppt"); }), pathAccess);
    EXPECT_EQ(files.find(u"C:\\a\\*", 0), u"");
    EXPECT_EQ(files.find(u"C:\\a\\*", EmbeddedFiles::system), u"");
    EXPECT_EQ(files.find(u"C:\\a\\*", hiddenAndSystem), u"x.ppt");
    files.clearAttributes(u"c:\\A\\X.PPT");
    EXPECT_EQ(files.find(u"C:\\a\\*", 0), u"x.ppt");
    files.remove(u"C:\\a\\x.ppt");
    EXPECT_FALSE(exists(u"C:\\a\\x.ppt"));
    EXPECT_EQ(errorNumber([&] { files.remove(u"C:\\a\\x.ppt"); }), fileNotFound);
    EXPECT_EQ(errorNumber([&] { files.setAttributes(u"C:\\a\\x.ppt", 0); }), fileNotFound);
    EXPECT_EQ(errorNumber([&] { files.clearAttributes(u"C:\\a\\x.ppt"); }), fileNotFound);
    EXPECT_EQ(errorNumber([&] { files.clearAttributes(u"C:\\absent\\x.ppt"); }), pathNotFound);
}

TEST_F(EmbeddedFilesTest, SearchesFilesOnlyAndInOrder) {
    std::filesystem::create_directories(files.realPath(u"C:\\a\\Aucun.ppt"));
    files.create(u"C:\\a\\zoo.ppt");
    files.create(u"C:\\a\\Bac.ppt");
    EXPECT_EQ(files.find(u"C:\\a\\*.ppt", hiddenAndSystem), u"Bac.ppt");
    EXPECT_EQ(files.find(u"C:\\a\\aucun.ppt", hiddenAndSystem), u"");
    EXPECT_EQ(files.find(u"C:\\absent\\*", hiddenAndSystem), u"");
    EXPECT_EQ(files.find(u"C:\\a\\", hiddenAndSystem), u"");
}

TEST_F(EmbeddedFilesTest, MakesFoldersUpToTheLastBackslash) {
    EXPECT_TRUE(files.makeDirectories(u"C:\\x\\y\\z"));
    EXPECT_TRUE(exists(u"C:\\x\\y"));
    EXPECT_FALSE(exists(u"C:\\x\\y\\z"));
    EXPECT_TRUE(files.makeDirectories(u"C:\\X\\Y\\z\\"));
    EXPECT_TRUE(std::filesystem::is_directory(folder.path() / "C" / "x" / "y" / "z"));
    EXPECT_FALSE(files.makeDirectories(u"Q:\\x\\"));
    files.create(u"C:\\x\\fichier");
    EXPECT_FALSE(files.makeDirectories(u"C:\\x\\fichier\\z\\"));
}

} // namespace embedded_files_tests
