#include "automation/com/WideText.h"
#include "host/win32/Clearing.h"
#include "platform/win32/Win32Files.h"
#include "tests/support/Errors.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <filesystem>
#include <fstream>
#include <functional>

namespace file_tests {

using platform::FileSystem;
using platform::Win32Files;

class FileTest : public testing::Test {
protected:
    void SetUp() override {
        root_ = std::filesystem::temp_directory_path() / L"K73053 \u00E9l\u00E8ve";
        TearDown();
        std::filesystem::create_directories(root_);
    }
    void TearDown() override { host::removing.vacate(root_); }

    [[nodiscard]] std::u16string path(std::u16string_view name) const {
        return root_.u16string() + u"\\" + std::u16string(name);
    }
    void make(std::u16string_view name, DWORD attributes = FILE_ATTRIBUTE_NORMAL) const {
        std::ofstream(std::filesystem::path(path(name))) << "x";
        ASSERT_TRUE(SetFileAttributesW(automation::com::WideText(path(name)).get(), attributes));
    }
    [[nodiscard]] bool exists(std::u16string_view name) const { return std::filesystem::exists(path(name)); }
    [[nodiscard]] DWORD attributes(std::u16string_view name) const {
        return GetFileAttributesW(automation::com::WideText(path(name)).get());
    }

    std::filesystem::path root_;
    Win32Files files_;
};

TEST_F(FileTest, ClearsRenamesAndRemovesOrSaysWhyNot) {
    make(u"07305301.ppt", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    make(u"prise.ppt");
    make(u"verrouillée.ppt", FILE_ATTRIBUTE_READONLY);
    make(u"ouverte.ppt");
    const HANDLE open = CreateFileW(automation::com::WideText(path(u"ouverte.ppt")).get(), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, 0, nullptr);

    files_.clearAttributes(path(u"07305301.ppt"));
    EXPECT_EQ(attributes(u"07305301.ppt") & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN), 0U);
    const struct {
        const char* what;
        std::function<void()> operation;
        std::int32_t number;
    } cases[] = {
        {"clear: no file", [&] { files_.clearAttributes(path(u"absente.ppt")); }, 53},
        {"clear: no folder", [&] { files_.clearAttributes(path(u"absent\\a.ppt")); }, 76},
        {"rename: no file", [&] { files_.rename(path(u"absente.ppt"), path(u"b.ppt")); }, 53},
        {"rename: taken", [&] { files_.rename(path(u"07305301.ppt"), path(u"prise.ppt")); }, 58},
        {"rename: no folder", [&] { files_.rename(path(u"07305301.ppt"), path(u"absent\\b.ppt")); }, 76},
        {"rename: open", [&] { files_.rename(path(u"ouverte.ppt"), path(u"b.ppt")); }, 70},
        {"rename", [&] { files_.rename(path(u"07305301.ppt"), path(u"Méthodologie.ppt")); }, noError},
        {"remove: no file", [&] { files_.remove(path(u"absente.ppt")); }, 53},
        {"remove: read-only", [&] { files_.remove(path(u"verrouillée.ppt")); }, 75},
        {"remove: open", [&] { files_.remove(path(u"ouverte.ppt")); }, 70},
        {"remove", [&] { files_.remove(path(u"prise.ppt")); }, noError},
    };
    for (const auto& [what, operation, number] : cases) {
        EXPECT_EQ(errorNumber(operation), number) << what;
    }
    CloseHandle(open);
    EXPECT_TRUE(exists(u"Méthodologie.ppt"));
    EXPECT_FALSE(exists(u"07305301.ppt"));
    EXPECT_FALSE(exists(u"prise.ppt"));
    EXPECT_TRUE(exists(u"ouverte.ppt"));
}

TEST_F(FileTest, FindsFilesByPatternAndAttributes) {
    make(u"cachée.rtf", FILE_ATTRIBUTE_HIDDEN);
    make(u"système.rtf", FILE_ATTRIBUTE_SYSTEM);
    std::filesystem::create_directory(root_ / L"dossier.rtf");
    EXPECT_EQ(files_.find(path(u"*.rtf"), 0), u"");
    EXPECT_EQ(files_.find(path(u"cach*.rtf"), 2), u"cachée.rtf");
    EXPECT_EQ(files_.find(path(u"cach*.rtf"), 4), u"");
    EXPECT_EQ(files_.find(path(u"SYST?ME.RTF"), FileSystem::hiddenAndSystem), u"système.rtf");
    EXPECT_EQ(files_.find(path(u"dossier.rtf"), FileSystem::hiddenAndSystem), u"");
    make(u"Plan.rtf", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(files_.find(path(u"*.rtf"), 0), u"Plan.rtf");
    EXPECT_EQ(files_.find(path(u"plan.rtf"), 0), u"Plan.rtf");
    EXPECT_EQ(files_.find(path(u"absent\\*.rtf"), 0), u"");
    EXPECT_EQ(files_.find(u"", 0), u"");
}

TEST_F(FileTest, MakesFoldersUpToTheLastBackslash) {
    make(u"fichier");
    const struct {
        const char16_t* asked;
        bool made;
        const char16_t* present;
        const char16_t* absent;
    } cases[] = {
        {u"modèles\\ZOR Modèles\\", true, u"modèles\\ZOR Modèles", nullptr},
        {u"modèles\\ZOR Modèles\\", true, u"modèles\\ZOR Modèles", nullptr},
        {u"un\\deux", true, u"un", u"un\\deux"},
        {u"fichier\\dessous\\", false, u"fichier", nullptr},
        {u"nom|interdit\\dessous\\", false, u"un", u"nom|interdit"},
    };
    for (const auto& [asked, made, present, absent] : cases) {
        EXPECT_EQ(files_.makeDirectories(path(asked)), made);
        EXPECT_TRUE(exists(present));
        EXPECT_FALSE(absent != nullptr && exists(absent));
    }
    EXPECT_FALSE(files_.makeDirectories(u"Q:\\aucun\\lecteur\\"));
}

} // namespace file_tests
