#include "automation/com/WideText.h"
#include "host/win32/Clearing.h"
#include "platform/win32/Win32Files.h"
#include "tests/support/FileContract.h"

#include <windows.h>

#include <filesystem>
#include <fstream>

namespace file_tests {

using platform::Win32Files;

class FileTest : public testing::Test {
protected:
    void SetUp() override {
        root_ = std::filesystem::temp_directory_path() / L"K73053 \u00E9l\u00E8ve";
        TearDown();
        std::filesystem::create_directories(root_);
    }
    void TearDown() override {
        if (open_ != INVALID_HANDLE_VALUE) {
            CloseHandle(open_);
        }
        host::removing.vacate(root_);
    }

    [[nodiscard]] std::u16string path(std::u16string_view name) const {
        return name.empty() ? std::u16string() : root_.u16string() + u"\\" + std::u16string(name);
    }
    [[nodiscard]] tests::FileGround ground() {
        return {files_, [this](std::u16string_view name) { return path(name); },
                [this](std::u16string_view name, std::uint32_t attributes) {
                    std::ofstream(std::filesystem::path(path(name))) << "x";
                    const DWORD wanted = attributes == 0 ? FILE_ATTRIBUTE_NORMAL : attributes;
                    ASSERT_TRUE(SetFileAttributesW(automation::com::WideText(path(name)).get(), wanted));
                },
                [this](std::u16string_view name) { std::filesystem::create_directory(path(name)); },
                [this](std::u16string_view name) {
                    open_ = CreateFileW(automation::com::WideText(path(name)).get(), GENERIC_READ, 0, nullptr,
                                        OPEN_EXISTING, 0, nullptr);
                    ASSERT_NE(open_, INVALID_HANDLE_VALUE);
                }};
    }

    std::filesystem::path root_;
    HANDLE open_ = INVALID_HANDLE_VALUE;
    Win32Files files_;
};

TEST_F(FileTest, ChangeAsThoseInMemory) {
    demandChanges(ground());
}
TEST_F(FileTest, AreFoundAsThoseInMemory) {
    demandSearches(ground());
}
TEST_F(FileTest, HaveFoldersAsThoseInMemory) {
    demandFolders(ground());
    EXPECT_FALSE(files_.makeDirectories(path(u"nom|interdit\\dessous\\")));
}

} // namespace file_tests
