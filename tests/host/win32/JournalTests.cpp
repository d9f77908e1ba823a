#include "automation/Error.h"
#include "host/win32/BorrowedFiles.h"
#include "host/win32/Journal.h"
#include "host/world/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <fstream>

namespace journal_tests {

namespace fs = std::filesystem;

using host::Journal;
using host::Loan;
using Names = std::vector<std::string>;

/// What was in the place before it was borrowed.
enum class Before : std::uint8_t { Nothing, EmptyFolder, Folder, NoFile };

/// A journal of its own, and a place on the disk that a run borrows.
class JournalTest : public testing::Test {
protected:
    void SetUp() override {
        GetEnvironmentVariableW(variable, former_.data(), static_cast<DWORD>(former_.size()));
        SetEnvironmentVariableW(variable, settings_.path().c_str());
    }
    void TearDown() override { SetEnvironmentVariableW(variable, former_.data()); }

    /// Makes the disk what it is while the place is borrowed, with something in it that is read-only.
    static Loan borrowed(Before before, const fs::path& place) {
        const fs::path aside = place.parent_path() / "aside";
        const bool isFolder = before != Before::NoFile;
        if (isFolder) {
            fs::create_directories(place);
        }
        if (before == Before::Folder) {
            fs::create_directories(aside);
            std::ofstream(aside / "mine.txt") << "mine";
        }
        const fs::path theirs = isFolder ? place / "theirs.txt" : place;
        std::ofstream(theirs) << "theirs";
        SetFileAttributesW(theirs.c_str(), FILE_ATTRIBUTE_READONLY);
        switch (before) {
        case Before::Nothing: return Loan::ofFolder(place, {});
        case Before::EmptyFolder: return Loan::ofFolder(place, place);
        case Before::Folder: return Loan::ofFolder(place, aside);
        default: return Loan::ofNothing(place);
        }
    }
    /// A run that was ended before it could give anything back.
    static void leave(const Loan& loan) {
        fs::create_directories(Journal::path().parent_path());
        const std::wstring line = loan.line() + L'\n';
        std::ofstream(Journal::path(), std::ios::binary)
            .write(reinterpret_cast<const char*>(line.data()),
                   static_cast<std::streamsize>(line.size() * sizeof(wchar_t)));
    }
    /// All files and folders below a folder; what stands for a free number in a name is "N".
    static Names content(const fs::path& folder) {
        Names names;
        for (const auto& entry : fs::recursive_directory_iterator(folder)) {
            std::string name;
            for (const char c : entry.path().lexically_relative(folder).generic_string()) {
                const bool isDigit = c >= '0' && c <= '9';
                if (!isDigit || name.back() != 'N') {
                    name += isDigit ? 'N' : c;
                }
            }
            names.push_back(name + (entry.is_directory() ? "/" : ""));
            SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
        }
        std::sort(names.begin(), names.end());
        return names;
    }

    static constexpr const wchar_t* variable = L"LOCALAPPDATA";

    std::array<wchar_t, MAX_PATH> former_{};
    host::TemporaryFolder settings_;
};

TEST_F(JournalTest, RemovesWhatItsOwnRunHasMadeAndNothingElse) {
    const struct {
        Before before;
        Names ofOwnRun;  ///< what is there when the run that borrowed has given back
        Names ofNextRun; ///< where it was cut short and a later one has
        Names whereGone; ///< the same, the place having been removed in between
    } cases[] = {
        {Before::Nothing, {}, {"place-N-N.old/", "place-N-N.old/theirs.txt"}, {}},
        {Before::EmptyFolder,
         {"place.old/"},
         {"place-N-N.old/", "place-N-N.old/theirs.txt", "place.old/"},
         {"place.old/"}},
        {Before::Folder,
         {"place.old/", "place.old/mine.txt"},
         {"place-N-N.old/", "place-N-N.old/theirs.txt", "place.old/", "place.old/mine.txt"},
         {"place.old/", "place.old/mine.txt"}},
        {Before::NoFile, {}, {"place-N-N.old"}, {}},
    };
    for (const auto& [before, ofOwnRun, ofNextRun, whereGone] : cases) {
        const testing::ScopedTrace where(__FILE__, __LINE__, "case " + std::to_string(static_cast<int>(before)));
        const host::TemporaryFolder own;
        {
            Journal journal;
            journal.note(borrowed(before, own.path() / "place.old"));
        }
        EXPECT_EQ(content(own.path()), ofOwnRun);
        for (const bool isGone : {false, true}) {
            const host::TemporaryFolder next;
            const fs::path place = next.path() / "place.old";
            leave(borrowed(before, place));
            if (isGone) {
                content(next.path()); // nothing is read-only any more
                fs::remove_all(place);
            }
            testing::internal::CaptureStderr();
            EXPECT_EQ(Journal().giveBack(), 1U);
            EXPECT_EQ(content(next.path()), isGone ? whereGone : ofNextRun);
            const bool isSaid =
                testing::internal::GetCapturedStderr().find("was not removed: it is in") != std::string::npos;
            EXPECT_NE(isSaid, isGone);
        }
        EXPECT_FALSE(fs::exists(Journal::path())) << "nothing is borrowed any more";
    }
}

TEST_F(JournalTest, LendsNoFileThatWasThereBefore) {
    const host::TemporaryFolder disk;
    const fs::path mine = disk.path() / "mine.txt";
    std::ofstream(mine) << "mine";
    Journal journal;
    host::BorrowedFiles files(journal, disk.path() / "Formation");
    EXPECT_THROW(files.announce(mine), automation::Error);
    EXPECT_THROW(files.demandOwn(mine), automation::Error);

    const fs::path theirs = disk.path() / "new" / "theirs.txt";
    files.announce(theirs);
    fs::create_directories(theirs.parent_path());
    std::ofstream(theirs) << "theirs";
    for (const fs::path& own : {theirs, disk.path() / "NEW" / "other.txt", disk.path() / "formation" / "x.ppt"}) {
        EXPECT_NO_THROW(files.announce(own)) << own;
        EXPECT_NO_THROW(files.demandOwn(own)) << own;
    }
    journal.giveBack();
    EXPECT_EQ(content(disk.path()), Names{"mine.txt"});
}

} // namespace journal_tests
