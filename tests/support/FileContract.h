#pragma once

#include "platform/FileSystem.h"
#include "tests/support/Errors.h"

#include <gtest/gtest.h>

#include <functional>

/// What a module may rely on from the files of every system, those of Windows and those in memory.
namespace tests {

/// An empty folder of a system, and what a test does there beside the module.
struct FileGround {
    platform::FileSystem& files;
    std::function<std::u16string(std::u16string_view name)> path;
    /// Makes a file with attributes: 1 read-only, 2 hidden, 4 of the system.
    std::function<void(std::u16string_view name, std::uint32_t attributes)> make;
    std::function<void(std::u16string_view name)> makeFolder;
    std::function<void(std::u16string_view name)> holdOpen; ///< to the end of the test
};

/// Clears, renames and removes, or says why not.
inline void demandChanges(const FileGround& at) {
    constexpr std::uint32_t all = platform::FileSystem::hiddenAndSystem;
    at.make(u"07305301.ppt", 1 | 2);
    at.make(u"prise.ppt", 0);
    at.make(u"ouverte.ppt", 0);
    at.holdOpen(u"ouverte.ppt");
    const auto clear = [&at](std::u16string_view name) { at.files.clearAttributes(at.path(name)); };
    const auto rename = [&at](std::u16string_view from, std::u16string_view to) {
        at.files.rename(at.path(from), at.path(to));
    };
    const auto remove = [&at](std::u16string_view name) { at.files.remove(at.path(name)); };
    struct Case {
        const char* what;
        std::function<void()> operation;
        std::int32_t number;
    };
    for (const auto& [what, operation, number] : std::initializer_list<Case>{
             {"remove: read-only", [&] { remove(u"07305301.ppt"); }, 75},
             {"clear", [&] { clear(u"07305301.PPT"); }, noError},
             {"clear: no file", [&] { clear(u"absente.ppt"); }, 53},
             {"clear: no folder", [&] { clear(u"absent\\a.ppt"); }, 76},
             {"rename: no file", [&] { rename(u"absente.ppt", u"b.ppt"); }, 53},
             {"rename: taken", [&] { rename(u"07305301.ppt", u"PRISE.ppt"); }, 58},
             {"rename: no folder", [&] { rename(u"07305301.ppt", u"absent\\b.ppt"); }, 76},
             {"rename: open", [&] { rename(u"ouverte.ppt", u"b.ppt"); }, 70},
             {"rename: another case", [&] { rename(u"07305301.ppt", u"07305301.PPT"); }, noError},
             {"rename", [&] { rename(u"07305301.ppt", u"Méthodologie.ppt"); }, noError},
             {"remove: no file", [&] { remove(u"absente.ppt"); }, 53},
             {"remove: open", [&] { remove(u"ouverte.ppt"); }, 70},
             {"remove", [&] { remove(u"PRISE.ppt"); }, noError},
         }) {
        EXPECT_EQ(errorNumber(operation), number) << what;
    }
    const auto found = [&at](std::u16string_view name) { return at.files.find(at.path(name), all); };
    EXPECT_EQ(found(u"méthodologie.ppt"), u"Méthodologie.ppt");
    EXPECT_EQ(found(u"07305301.ppt"), u"");
    EXPECT_EQ(found(u"prise.ppt"), u"");
    EXPECT_EQ(found(u"ouverte.ppt"), u"ouverte.ppt");
}

/// Finds files, and no folders, by pattern and attributes.
inline void demandSearches(const FileGround& at) {
    constexpr std::uint32_t all = platform::FileSystem::hiddenAndSystem;
    at.make(u"cachée.rtf", 2);
    at.make(u"système.rtf", 4);
    at.makeFolder(u"dossier.rtf");
    const auto found = [&at](std::u16string_view pattern, std::uint32_t attributes) {
        return at.files.find(at.path(pattern), attributes);
    };
    EXPECT_EQ(found(u"*.rtf", 0), u"");
    EXPECT_EQ(found(u"cach*.rtf", 2), u"cachée.rtf");
    EXPECT_EQ(found(u"cach*.rtf", 4), u"");
    EXPECT_EQ(found(u"SYST?ME.RTF", all), u"système.rtf");
    EXPECT_EQ(found(u"dossier.rtf", all), u"");
    at.make(u"Plan.rtf", 1);
    EXPECT_EQ(found(u"*.rtf", 0), u"Plan.rtf");
    EXPECT_EQ(found(u"plan.rtf", 0), u"Plan.rtf");
    EXPECT_EQ(found(u"absent\\*.rtf", 0), u"");
    EXPECT_EQ(found(u"", all), u"");
}

/// Makes folders up to the last backslash of a path.
inline void demandFolders(const FileGround& at) {
    at.make(u"fichier", 0);
    const auto made = [&at](std::u16string_view name) { return at.files.makeDirectories(at.path(name)); };
    const auto holds = [&at](std::u16string_view folder) {
        return errorNumber([&] { at.files.rename(at.path(u"fichier"), at.path(folder) + u"\\fichier"); }) == noError &&
               errorNumber([&] { at.files.rename(at.path(folder) + u"\\fichier", at.path(u"fichier")); }) == noError;
    };
    EXPECT_TRUE(made(u"modèles\\ZOR Modèles\\"));
    EXPECT_TRUE(made(u"MODÈLES\\ZOR Modèles\\"));
    EXPECT_TRUE(holds(u"modèles\\ZOR Modèles"));
    EXPECT_TRUE(made(u"un\\deux"));
    EXPECT_TRUE(holds(u"un"));
    EXPECT_FALSE(holds(u"un\\deux"));
    EXPECT_FALSE(made(u"fichier\\dessous\\"));
    EXPECT_FALSE(at.files.makeDirectories(u"Q:\\aucun\\lecteur\\"));
}

} // namespace tests
