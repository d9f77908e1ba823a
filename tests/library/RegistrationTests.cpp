#include "automation/com/ComPtr.h"
#include "library/registration/Entries.h"
#include "library/registration/Table.h"
#include "tests/library/ClassesKey.h"
#include "tests/library/Library.h"

#include <K73053.h>
#include <gtest/gtest.h>

namespace {

using automation::com::ComPtr;
using tests::allClassesContent;

constexpr REGSAM otherBitness = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

/// The machine without the library, for the length of a test; afterwards it is registered as it was found.
class RegistrationTest : public testing::Test {
protected:
    void SetUp() override {
        const auto found = allClassesContent();
        ASSERT_EQ(library_.unregisterServer(), S_OK);
        clean_ = allClassesContent();
        wasRegistered_ = found != clean_;
    }
    void TearDown() override {
        EXPECT_EQ(allClassesContent(), clean_);
        if (wasRegistered_) {
            EXPECT_EQ(library_.registerServer(), S_OK);
        }
    }

    static HRESULT createByName() {
        CLSID id{};
        if (const HRESULT status = CLSIDFromProgID(L"K73053.Module", &id); FAILED(status)) {
            return status;
        }
        ComPtr<IUnknown> object;
        return CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, __uuidof(AbstractModule),
                                reinterpret_cast<void**>(object.receive()));
    }
    static std::wstring textAt(HKEY root, const library::Entry& entry) {
        wchar_t data[1024] = L"(missing)";
        DWORD size = sizeof(data);
        RegGetValueW(root, (L"Software\\Classes\\" + entry.key).c_str(), entry.name.c_str(), RRF_RT_REG_SZ, nullptr,
                     data, &size);
        return data;
    }

    tests::Library library_;
    tests::RegistryContent clean_;
    bool wasRegistered_ = false;
};

TEST_F(RegistrationTest, IsWrittenForTheMachineAndTakenBack) {
    EXPECT_NE(createByName(), S_OK);
    ASSERT_EQ(library_.registerServer(), S_OK);
    const auto registered = allClassesContent();
    for (const library::Entry& entry : library::entriesFor(tests::Library::path())) {
        EXPECT_EQ(textAt(HKEY_LOCAL_MACHINE, entry), entry.text);
    }
    EXPECT_EQ(createByName(), S_OK);
    EXPECT_EQ(library_.install(true, nullptr), S_OK);
    EXPECT_EQ(library_.install(true, L""), S_OK);
    EXPECT_EQ(allClassesContent(), registered) << "registering again changes nothing";
    EXPECT_EQ(library_.unregisterServer(), S_OK);
    EXPECT_EQ(allClassesContent(), clean_);
    EXPECT_EQ(library_.unregisterServer(), S_OK) << "nothing to take back is no failure";
}

TEST_F(RegistrationTest, IsWrittenForOneUserAndTakenBack) {
    const auto machine = [] { return tests::classesContent(HKEY_LOCAL_MACHINE, 0); };
    const auto before = machine();
    ASSERT_EQ(library_.install(true, L"user"), S_OK);
    EXPECT_EQ(machine(), before);
    for (const library::Entry& entry : library::entriesFor(tests::Library::path())) {
        EXPECT_EQ(textAt(HKEY_CURRENT_USER, entry), entry.text);
    }
    EXPECT_EQ(createByName(), S_OK);
    EXPECT_EQ(library_.install(false, L"USER"), S_OK);
    EXPECT_NE(createByName(), S_OK);
    EXPECT_EQ(library_.install(true, L"nobody"), E_INVALIDARG);
}

TEST_F(RegistrationTest, LeavesWhatTheOtherBitnessNeeds) {
    const std::wstring path = L"Software\\Classes\\" + library::serverKeys().front();
    HKEY other = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0, KEY_WRITE | otherBitness, nullptr, &other,
                              nullptr),
              ERROR_SUCCESS);
    RegCloseKey(other);
    const auto isNamed = [] {
        return RegGetValueW(HKEY_CURRENT_USER, L"Software\\Classes\\K73053.Module\\CLSID", L"", RRF_RT_REG_SZ, nullptr,
                            nullptr, nullptr) == ERROR_SUCCESS;
    };
    ASSERT_EQ(library_.install(true, L"user"), S_OK);
    EXPECT_TRUE(isNamed());
    EXPECT_EQ(library_.install(false, L"user"), S_OK);
    EXPECT_TRUE(isNamed());

    std::wstring key = path;
    for (int level = 0; level < 2; ++level, key.resize(key.rfind(L'\\'))) {
        EXPECT_EQ(RegDeleteKeyExW(HKEY_CURRENT_USER, key.c_str(), otherBitness, 0), ERROR_SUCCESS);
    }
    EXPECT_EQ(library_.install(false, L"user"), S_OK);
    EXPECT_FALSE(isNamed());
}

TEST_F(RegistrationTest, IsNotNeededWithTheManifest) {
    const std::wstring manifest = tests::Library::pathBeside(L"K73053.manifest");
    ACTCTXW wanted{};
    wanted.cbSize = sizeof(wanted);
    wanted.lpSource = manifest.c_str();
    HANDLE const context = CreateActCtxW(&wanted);
    ASSERT_NE(context, INVALID_HANDLE_VALUE) << GetLastError();
    ULONG_PTR cookie = 0;
    ASSERT_TRUE(ActivateActCtx(context, &cookie));
    EXPECT_EQ(createByName(), S_OK);
    EXPECT_TRUE(DeactivateActCtx(0, cookie));
    ReleaseActCtx(context);
    EXPECT_NE(createByName(), S_OK);
}

} // namespace
