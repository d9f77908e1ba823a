#include "tests/library/Library.h"

#include <gtest/gtest.h>
#include <winver.h>

#include <algorithm>
#include <array>
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

TEST(LibraryFileTest, IsOfTheVersionThatWasBuilt) {
    const std::wstring path = tests::Library::path();
    std::vector<std::byte> resource(GetFileVersionInfoSizeW(path.c_str(), nullptr));
    ASSERT_TRUE(GetFileVersionInfoW(path.c_str(), 0, static_cast<DWORD>(resource.size()), resource.data()));
    VS_FIXEDFILEINFO* fixed = nullptr;
    UINT size = 0;
    ASSERT_TRUE(VerQueryValueW(resource.data(), L"\\", reinterpret_cast<void**>(&fixed), &size));
    ASSERT_EQ(size, sizeof(*fixed));
    EXPECT_EQ(fixed->dwFileType, static_cast<DWORD>(VFT_DLL));
    constexpr std::array<WORD, 4> built K73053_VERSION;
    for (const auto& [high, low] : {std::pair(fixed->dwFileVersionMS, fixed->dwFileVersionLS),
                                    std::pair(fixed->dwProductVersionMS, fixed->dwProductVersionLS)}) {
        EXPECT_EQ((std::array<WORD, 4>{HIWORD(high), LOWORD(high), HIWORD(low), LOWORD(low)}), built);
    }
}

} // namespace
