#include "automation/com/WideText.h"
#include "tests/library/Library.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace {

/// The tables of a loaded file.
class Image {
public:
    explicit Image(HMODULE module) : base_(reinterpret_cast<const std::byte*>(module)) {}

    [[nodiscard]] std::set<std::string> imports() const {
        std::set<std::string> names;
        const auto* each = at<IMAGE_IMPORT_DESCRIPTOR>(directory(IMAGE_DIRECTORY_ENTRY_IMPORT));
        for (; each->Name != 0; ++each) {
            std::string name = at<char>(each->Name);
            std::transform(name.begin(), name.end(), name.begin(), [](char c) { return static_cast<char>(c | 32); });
            names.insert(name);
        }
        return names;
    }

    [[nodiscard]] std::set<std::string> exports() const {
        const auto& table = *at<IMAGE_EXPORT_DIRECTORY>(directory(IMAGE_DIRECTORY_ENTRY_EXPORT));
        const auto* const names = at<DWORD>(table.AddressOfNames);
        std::set<std::string> result;
        for (DWORD i = 0; i < table.NumberOfNames; ++i) {
            result.insert(at<char>(names[i]));
        }
        EXPECT_EQ(table.NumberOfFunctions, table.NumberOfNames);
        return result;
    }

private:
    template <typename T> [[nodiscard]] const T* at(DWORD offset) const {
        return reinterpret_cast<const T*>(base_ + offset);
    }
    [[nodiscard]] DWORD directory(int index) const {
        const auto* const headers = at<IMAGE_NT_HEADERS>(static_cast<DWORD>(at<IMAGE_DOS_HEADER>(0)->e_lfanew));
        return headers->OptionalHeader.DataDirectory[index].VirtualAddress;
    }

    const std::byte* base_;
};

TEST(LibraryFileTest, ImportsTheSystemAloneAndExportsPlainNames) {
    const tests::Library library;
    const Image image(library.handle());
    const std::set<std::string> system{"advapi32.dll", "kernel32.dll", "msvcrt.dll",
                                       "ole32.dll",    "oleaut32.dll", "user32.dll"};
    const auto imports = image.imports();
    EXPECT_FALSE(imports.empty());
    for (const std::string& name : imports) {
        EXPECT_TRUE(system.contains(name)) << name;
    }
    EXPECT_EQ(image.exports(), (std::set<std::string>{"DllCanUnloadNow", "DllGetClassObject", "DllInstall",
                                                      "DllRegisterServer", "DllUnregisterServer"}));
}

TEST(LibraryFileTest, SaysItsVersion) {
    const tests::Library library;
    HRSRC const found = FindResourceW(library.handle(), MAKEINTRESOURCEW(1), MAKEINTRESOURCEW(16)); // the version
    ASSERT_NE(found, nullptr);
    const auto* const bytes = static_cast<const char*>(LockResource(LoadResource(library.handle(), found)));
    const std::string_view content(bytes, SizeofResource(library.handle(), found));
    const auto holds = [&](std::wstring_view text) {
        return content.find({reinterpret_cast<const char*>(text.data()), text.size() * sizeof(wchar_t)}) !=
               std::string_view::npos;
    };
    EXPECT_TRUE(holds(L"OriginalFilename"));
    EXPECT_TRUE(holds(L"K73053.dll"));
    EXPECT_TRUE(holds(L"ProductVersion"));
}

} // namespace
