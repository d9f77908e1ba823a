#include "automation/Unmoved.h"
#include "host/win32/Loan.h"
#include "simulator/win32/Registration.h"
#include "tests/library/Library.h"
#include "tests/library/UserHive.h"
#include "tests/win32/Program.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <functional>
#include <regex>
#include <set>
#include <thread>

namespace host_tests {

namespace fs = std::filesystem;

using simulator::standin::isRegistered;
using tests::Program;
using tests::UserHive;

const std::wstring host = L"host\\exercise-host.exe";
const std::wstring recentFolders = L"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList";
const fs::path folder = L"C:\\Formation";

/// The class that a name stands for, taken away for the length of a scope.
class NameAside : automation::Unmoved {
public:
    explicit NameAside(const std::wstring& name) : key_(L"Software\\Classes\\" + name + L"\\CLSID") {
        EXPECT_EQ(RegGetValueW(HKEY_LOCAL_MACHINE, key_.c_str(), nullptr, RRF_RT_REG_SZ, nullptr, text_, &size_),
                  ERROR_SUCCESS);
        EXPECT_EQ(RegDeleteKeyW(HKEY_LOCAL_MACHINE, key_.c_str()), ERROR_SUCCESS);
    }
    ~NameAside() {
        EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key_.c_str(), nullptr, REG_SZ, text_, size_), ERROR_SUCCESS);
    }

private:
    std::wstring key_;
    wchar_t text_[64] = {};
    DWORD size_ = sizeof(text_);
};

bool comesTrue(const std::function<bool()>& what) {
    using namespace std::chrono_literals;
    for (int wait = 0; wait < 4000 && !what(); ++wait) {
        std::this_thread::sleep_for(20ms);
    }
    return what();
}

TEST(HostTest, SaysInOneSentenceWhatIsNotRegistered) {
    const struct {
        const wchar_t* name;
        const char* said;
    } cases[] = {{L"K73053.Module", "exercise-host: K73053.dll is not registered for programs of"},
                 {L"PowerPoint.Application.11", "exercise-host: PowerPoint is not registered on this machine"}};
    for (const auto& [name, said] : cases) {
        const NameAside aside(name);
        const Program run(host, L"run 305 --powerpoint");
        EXPECT_EQ(run.exitCode(), 2U);
        const std::string output = run.output();
        EXPECT_EQ(output.find(said), 0U) << output;
        EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), 1) << output;
    }
}

TEST(HostTest, StandsInAFolderOfAnyName) {
    const fs::path built = fs::path(tests::Library::pathBeside(L"..\\host"));
    const std::wstring name = L"\u00C9l\u00E8ve \u0436"; // no code page has all of it
    const fs::path scenarios = built / name / "scenarios";
    fs::create_directories(scenarios);
    fs::copy_file(built / "exercise-host.exe", built / name / "exercise-host.exe",
                  fs::copy_options::overwrite_existing);
    std::ofstream(scenarios / "0314.scn") << "question 314\n";
    for (const std::wstring& arguments : {std::wstring(L"list"), L"list --scenarios \"" + scenarios.wstring() + L'"'}) {
        const Program run(L"host\\" + name + L"\\exercise-host.exe", arguments);
        EXPECT_EQ(run.exitCode(), 0U);
        EXPECT_EQ(run.output(), "0314.scn: question 314\r\n");
    }
    fs::remove_all(built / name);
}

TEST(HostTest, ReadsTheSameOfTheLibraryAsOfItsOwnModule) {
    const auto said = [](const std::wstring& options) {
        const Program run(host, L"run " + options);
        EXPECT_EQ(run.exitCode(), 0U);
        // The folder in which the learner's PowerPoint opens by itself is another one in every world, and only where
        // the calls are seen can be said what was read.
        return std::regex_replace(run.output(), std::regex(R"((folder Default is .* instead of) .*|\. Slide \d.*)"),
                                  "$1");
    };
    for (const wchar_t* const question : {L"306", L"318"}) {
        const std::string own = said(question);
        EXPECT_NE(own.find("\nCauseErreur: "), std::string::npos) << own;
        EXPECT_EQ(said(std::wstring(L"--powerpoint ") + question), own);
        EXPECT_NE(said(std::wstring(L"--powerpoint --trace ") + question).find("automation  Slides.Item"),
                  std::string::npos);
    }
}

/// A learner's settings and files, which a run borrows and cannot give back.
class CutShortTest : public testing::Test {
protected:
    void SetUp() override {
        aside_ = host::freeNameBeside(folder);
        if (fs::exists(folder)) {
            fs::rename(folder, aside_);
        }
        asideBefore_ = foldersAside();
        UserHive::put(recentFolders, L"Default", L"D:\\Cours\\");
        fs::create_directories(folder);
        std::ofstream(folder / "mine.txt") << "mine";
    }
    void TearDown() override {
        fs::remove(file_);
        host::removing.vacate(folder);
        if (fs::exists(aside_)) {
            fs::rename(aside_, folder);
        }
        former_.giveBack();
    }

    /// Folders that stand beside the one that a run borrows, under names made from its own.
    static std::set<fs::path> foldersAside() {
        std::set<fs::path> found;
        for (const auto& entry : fs::directory_iterator(folder.parent_path())) {
            if (entry.path().filename().wstring().starts_with(folder.filename().wstring() + L'-')) {
                found.insert(entry.path());
            }
        }
        return found;
    }

    /// A file with one scenario, named on the command line.
    [[nodiscard]] std::wstring scenario(const std::string& moves) const {
        std::ofstream(file_) << "question 305\ncourse\n  Presentations.Add\nscenario \"one\"\n  before InitQuestion\n"
                             << moves << "  expect PowerPoint.IsRunning = True\n";
        return L"verify --powerpoint --file \"" + file_.wstring() + L"\"";
    }

    host::Loan former_ = host::Loan::ofValue(HKEY_CURRENT_USER, recentFolders, L"Default");
    fs::path aside_; ///< what the machine has in the folder
    std::set<fs::path> asideBefore_;
    fs::path file_ = fs::temp_directory_path() / "K73053-long.scn";
};

TEST_F(CutShortTest, IsMadeGoodByTheNextRun) {
    std::string moves = R"(
  Files.Create "17305305.doc"
  Files.MakeReadOnly "17305305.doc"
  PowerPoint.Start
  Registry.Deny "SOFTWARE\Microsoft\Office\11.0\Powerpoint\RecentFolderList"
  PowerPoint.Uninstall
)";
    for (int i = 0; i < 8000; ++i) {
        moves += "  Set p = Presentations\n";
    }
    {
        const Program run(host, scenario(moves));
        ASSERT_TRUE(comesTrue([] { return !isRegistered(); })) << run.output();
        run.kill();
    }
    EXPECT_FALSE(isRegistered());
    EXPECT_FALSE(fs::exists(folder / "mine.txt"));
    EXPECT_EQ(UserHive::stored(recentFolders, L"Default"), UserHive::Stored()) << "nobody may open the key";

    const Program next(host, scenario("  PowerPoint.Start\n"));
    EXPECT_EQ(next.exitCode(), 0U) << next.output();
    EXPECT_NE(next.output().find("exercise-host: gave back"), std::string::npos) << next.output();
    EXPECT_TRUE(isRegistered());
    EXPECT_TRUE(fs::exists(folder / "mine.txt"));
    EXPECT_EQ(UserHive::stored(recentFolders, L"Default"), UserHive::text(L"D:\\Cours\\", 1));

    // What the run had made may be the user's by now.
    std::set<fs::path> kept = foldersAside();
    std::erase_if(kept, [&](const fs::path& each) { return asideBefore_.contains(each); });
    ASSERT_EQ(kept.size(), 1U) << "nothing else stays aside";
    EXPECT_TRUE(fs::exists(*kept.begin() / "17305305.doc"));
    EXPECT_NE(next.output().find("it is in " + kept.begin()->string()), std::string::npos) << next.output();
    host::removing.vacate(*kept.begin());
}

} // namespace host_tests
