#include "automation/Unmoved.h"
#include "automation/com/ComPtr.h"
#include "host/win32/KeyRights.h"
#include "library/registration/Entries.h"
#include "library/registration/Table.h"
#include "platform/win32/RegistryKey.h"
#include "tests/library/ClassesKey.h"
#include "tests/library/Library.h"
#include "tests/library/UserHive.h"

#include <K73053.h>
#include <gtest/gtest.h>

namespace registration_tests {

using automation::com::ComPtr;
using platform::RegistryKey;
using tests::allClassesContent;

constexpr REGSAM otherBitness = sizeof(void*) == 8 ? KEY_WOW64_32KEY : KEY_WOW64_64KEY;

const std::wstring classes = L"Software\\Classes\\";

/// The library of the other bitness, out of the registry for the length of a scope.
class OtherBitnessAside : automation::Unmoved {
public:
    OtherBitnessAside() {
        for (const auto& row : library::table::classes) {
            move(HKEY_LOCAL_MACHINE, keyOf(row), otherBitness, HKEY_CURRENT_USER, asideOf(row), 0);
        }
    }
    ~OtherBitnessAside() {
        for (const auto& row : library::table::classes) {
            move(HKEY_CURRENT_USER, asideOf(row), 0, HKEY_LOCAL_MACHINE, keyOf(row), otherBitness);
        }
        RegDeleteKeyW(HKEY_CURRENT_USER, aside);
    }

private:
    static constexpr const wchar_t* aside = L"Software\\K73053 put aside";

    static std::wstring keyOf(const library::table::Class& row) {
        return classes + L"CLSID\\" + std::wstring(row.identity.begin(), row.identity.end());
    }
    static std::wstring asideOf(const library::table::Class& row) {
        return std::wstring(aside) + L'\\' + std::wstring(row.name.begin(), row.name.end());
    }
    static void move(HKEY fromRoot, const std::wstring& from, REGSAM fromView, HKEY toRoot, const std::wstring& to,
                     REGSAM toView) {
        if (const auto source = RegistryKey::open(fromRoot, from, KEY_ALL_ACCESS | fromView)) {
            const auto target = RegistryKey::create(toRoot, to, KEY_ALL_ACCESS | toView);
            EXPECT_EQ(RegCopyTreeW(source.get(), nullptr, target.get()), ERROR_SUCCESS);
            EXPECT_EQ(RegDeleteTreeW(source.get(), nullptr), ERROR_SUCCESS);
            RegDeleteKeyExW(fromRoot, from.c_str(), fromView, 0);
        }
    }
};

/// A key that nobody may open, for the length of a scope.
class NoRights : automation::Unmoved {
public:
    NoRights(HKEY root, const std::wstring& path) : key_(RegistryKey::open(root, path, READ_CONTROL | WRITE_DAC)) {
        host::denyAll(key_.get());
    }
    ~NoRights() { host::setRights(key_.get(), former_); }

private:
    RegistryKey key_;
    std::vector<BYTE> former_ = host::rightsOn(key_.get());
};

/// The machine without the library, for the length of a test; afterwards it is registered as it was found.
class RegistrationTest : public testing::Test {
protected:
    void SetUp() override {
        // Bare keys that the user had go with the first registration.
        ASSERT_EQ(library_.install(true, L"user"), S_OK);
        ASSERT_EQ(library_.install(false, L"user"), S_OK);
        found_ = allClassesContent();
        ASSERT_EQ(library_.unregisterServer(), S_OK);
        clean_ = allClassesContent();
    }
    void TearDown() override {
        EXPECT_EQ(allClassesContent(), clean_);
        if (found_ != clean_) {
            EXPECT_EQ(library_.registerServer(), S_OK);
            EXPECT_EQ(allClassesContent(), found_);
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
    /// The same from what is registered for the user, by hand.
    static HRESULT createFromUsersClasses() {
        const auto name = RegistryKey::open(HKEY_CURRENT_USER, classes + L"K73053.Module\\CLSID", KEY_QUERY_VALUE);
        const std::wstring id = name ? name.text(L"") : L"{}";
        const auto server =
            RegistryKey::open(HKEY_CURRENT_USER, classes + L"CLSID\\" + id + L"\\InprocServer32", KEY_QUERY_VALUE);
        CLSID classId{};
        if (!server || server.text(L"") != tests::Library::path() || FAILED(CLSIDFromString(id.c_str(), &classId))) {
            return REGDB_E_CLASSNOTREG;
        }
        return tests::Library().create<AbstractModule>(classId) ? S_OK : E_NOINTERFACE;
    }
    /// Wine's COM finds classes of the machine alone.
    static bool findsUsersClasses() {
        return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") == nullptr;
    }
    static void expectWritten(HKEY root) {
        for (const library::Entry& entry : library::entriesFor(tests::Library::path())) {
            EXPECT_EQ(RegistryKey::open(root, classes + entry.key, KEY_QUERY_VALUE).text(entry.name), entry.text);
        }
    }

    OtherBitnessAside otherBitnessAside_;
    tests::Library library_;
    tests::RegistryContent found_;
    tests::RegistryContent clean_;
};

TEST_F(RegistrationTest, IsWrittenForTheMachineAndTakenBack) {
    EXPECT_NE(createByName(), S_OK);
    ASSERT_EQ(library_.registerServer(), S_OK);
    const auto registered = allClassesContent();
    expectWritten(HKEY_LOCAL_MACHINE);
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
    expectWritten(HKEY_CURRENT_USER);
    EXPECT_EQ(createFromUsersClasses(), S_OK);
    if (findsUsersClasses()) {
        EXPECT_EQ(createByName(), S_OK);
    }
    EXPECT_EQ(library_.install(false, L"USER"), S_OK);
    EXPECT_EQ(createFromUsersClasses(), REGDB_E_CLASSNOTREG);
    if (findsUsersClasses()) {
        EXPECT_NE(createByName(), S_OK);
    }
    EXPECT_EQ(library_.install(true, L"nobody"), E_INVALIDARG);
}

TEST_F(RegistrationTest, LeavesAUsersKeysAsTheyWere) {
    const tests::UserHive user;
    const auto isTakenBack = [&] {
        const auto before = tests::classesContent(HKEY_CURRENT_USER, 0);
        ASSERT_EQ(library_.install(true, L"user"), S_OK);
        EXPECT_NE(tests::classesContent(HKEY_CURRENT_USER, 0), before);
        ASSERT_EQ(library_.install(false, L"user"), S_OK);
        EXPECT_EQ(tests::classesContent(HKEY_CURRENT_USER, 0), before);
    };
    tests::UserHive::putKey(L"Software\\Classes");
    isTakenBack();
    for (const wchar_t* const common : {L"CLSID", L"Interface", L"TypeLib"}) {
        tests::UserHive::put(classes + common + L"\\{6D0C5A8E-52C1-4D55-9D52-0B6C9B0E8E11}", L"",
                             L"of another program");
    }
    isTakenBack();
}

TEST_F(RegistrationTest, LeavesWhatTheOtherBitnessNeeds) {
    const std::wstring path = classes + library::serverKeys().front();
    static_cast<void>(RegistryKey::create(HKEY_LOCAL_MACHINE, path, KEY_WRITE | otherBitness));
    CLSID id{};
    ASSERT_EQ(library_.registerServer(), S_OK);
    EXPECT_EQ(library_.unregisterServer(), S_OK);
    EXPECT_EQ(CLSIDFromProgID(L"K73053.Module", &id), S_OK) << "the name is that of both";
    EXPECT_NE(createByName(), S_OK);

    RegistryKey::removeBare(HKEY_LOCAL_MACHINE, path, classes + L"CLSID", otherBitness);
    EXPECT_EQ(library_.unregisterServer(), S_OK);
    EXPECT_NE(CLSIDFromProgID(L"K73053.Module", &id), S_OK);
}

TEST_F(RegistrationTest, SaysThatItCannotBeTakenBackWithoutRights) {
    ASSERT_EQ(library_.install(true, L"user"), S_OK);
    {
        const NoRights none(HKEY_CURRENT_USER, classes + library::serverKeys().front());
        EXPECT_EQ(library_.install(false, L"user"), E_ACCESSDENIED);
    }
    EXPECT_EQ(library_.install(false, L"user"), S_OK);
}

TEST_F(RegistrationTest, LeavesAnEarlierOneWhereItFails) {
    ASSERT_EQ(library_.install(true, L"user"), S_OK);
    const auto entries = library::entriesFor(L"C:\\Earlier\\K73053.dll");
    for (const library::Entry& entry : entries) {
        RegistryKey::create(HKEY_CURRENT_USER, classes + entry.key).setText(entry.name, entry.text);
    }
    const auto name = RegistryKey::open(HKEY_CURRENT_USER, classes + L"K73053.Module", KEY_ALL_ACCESS);
    name.setValue(L"", {REG_EXPAND_SZ, {L'%', 0, L'K', 0}});
    RegistryKey::open(HKEY_CURRENT_USER, classes + L"K73053.Module\\CLSID", KEY_SET_VALUE).deleteValue(L"");
    const auto before = tests::classesContent(HKEY_CURRENT_USER, 0);
    {
        const NoRights none(HKEY_CURRENT_USER, classes + entries.back().key);
        EXPECT_EQ(library_.install(true, L"user"), E_ACCESSDENIED);
    }
    EXPECT_EQ(tests::classesContent(HKEY_CURRENT_USER, 0), before);
    EXPECT_EQ(library_.install(false, L"user"), S_OK);
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

} // namespace registration_tests
