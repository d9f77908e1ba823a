#pragma once

#include "automation/LateBound.h"
#include "automation/com/ComPtr.h"
#include "tests/library/Library.h"
#include "tests/library/UserHive.h"

#include <K73053.h>
#include <gtest/gtest.h>

namespace tests {

/// The registered module, a PowerPoint in another process, a working folder, and the settings of a user who has used
/// PowerPoint before.
class Training : public testing::Test {
protected:
    static constexpr const wchar_t* recentFolders = L"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList";
    static constexpr const wchar_t* officeSettings = L"SOFTWARE\\Microsoft\\Office\\11.0\\Common\\General";
    static constexpr const wchar_t* shellFolders =
        L"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Shell Folders";
    static constexpr const wchar_t* recentNames[] = {L"Default", L"MultimediaDir", L"PictureDir", L"TemplateDir"};

    void SetUp() override;
    void TearDown() override;

    /// Starts PowerPoint as the host's.
    void startPowerPoint();
    /// Delivers a presentation of so many slides for a question.
    void deliver(int question, int slides);
    [[nodiscard]] automation::LateBound slides() const;
    [[nodiscard]] std::u16string folderText() const;
    [[nodiscard]] static LONG mainWindow();

    HRESULT init(LONG question);

    Library library_;
    UserHive hive_;
    std::wstring folder_; ///< with a trailing backslash
    automation::com::ComPtr<AbstractModule> module_;
    automation::LateBound powerPoint_; ///< null where the test has not started it
    IDispatch* application_ = nullptr; ///< the host's reference
    LONG window_ = -1;                 ///< the host's window handle

private:
    HANDLE process_ = nullptr; ///< of the PowerPoint that the test has started
};

} // namespace tests
