#include "tests/library/Training.h"

#include "automation/Text.h"
#include "automation/com/Objects.h"
#include "automation/com/WideText.h"
#include "platform/win32/Win32Servers.h"

#include <filesystem>

namespace tests {

namespace fs = std::filesystem;
using automation::com::Bstr;
using automation::com::ComPtr;

namespace {

HWND frame() {
    return FindWindowW(L"PP11FrameClass", nullptr);
}

} // namespace

void Training::SetUp() {
    folder_ = fs::temp_directory_path() / L"K73053 \u00E9l\u00E8ve";
    fs::remove_all(folder_);
    fs::create_directories(folder_);
    folder_ += L'\\';
    for (const wchar_t* const name : recentNames) {
        UserHive::put(recentFolders, name, std::wstring(L"C:\\\u00C9l\u00E8ve\\") + name);
    }
    UserHive::put(officeSettings, L"Templates", L"Mod\u00E8les");
    UserHive::put(shellFolders, L"AppData", folder_ + L"Profil");

    CLSID id{};
    ASSERT_EQ(CLSIDFromProgID(L"K73053.Module", &id), S_OK) << "the library is not registered";
    void* created = nullptr;
    ASSERT_EQ(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_AbstractModule, &created), S_OK);
    module_ = ComPtr<AbstractModule>::adopt(static_cast<AbstractModule*>(created));
}

void Training::TearDown() {
    if (module_) {
        EXPECT_EQ(module_->Quitter(&application_, &window_), S_OK);
    }
    module_ = nullptr;
    if (application_ != nullptr) {
        application_->Release();
    }
    if (powerPoint_) {
        powerPoint_.call(u"Quit");
        powerPoint_ = automation::LateBound();
    }
    if (process_ != nullptr) {
        // The next test starts a PowerPoint of its own, which needs that this one has gone.
        EXPECT_EQ(WaitForSingleObject(process_, 30000), WAIT_OBJECT_0);
        EXPECT_EQ(frame(), nullptr);
        CloseHandle(process_);
    }
    EXPECT_TRUE(library_.canUnload());
    fs::remove_all(folder_);
}

void Training::startPowerPoint() {
    powerPoint_ = automation::LateBound(platform::Win32Servers().create(u"PowerPoint.application.11"));
    powerPoint_.put(u"Visible", true);
    application_ = automation::com::dispatchOf(powerPoint_.object()).release();
    window_ = mainWindow();
    ASSERT_NE(window_, 0);
    DWORD id = 0;
    GetWindowThreadProcessId(frame(), &id);
    process_ = OpenProcess(SYNCHRONIZE, FALSE, id);
}

void Training::deliver(int question, int slides) {
    const auto presentations = powerPoint_.get(u"Presentations").to<automation::ObjectPtr>();
    const automation::LateBound deck(automation::LateBound(presentations).call(u"Add").to<automation::ObjectPtr>());
    const automation::LateBound added(deck.get(u"Slides").to<automation::ObjectPtr>());
    for (std::int32_t i = 1; i <= slides; ++i) {
        constexpr std::int32_t titleAndText = 2;
        added.call(u"Add", i, titleAndText);
    }
    deck.call(u"SaveAs", folderText() + u"07305" + automation::decimal(question) + u".ppt");
    deck.call(u"Close");
}

automation::LateBound Training::slides() const {
    const automation::LateBound deck(powerPoint_.get(u"ActivePresentation").to<automation::ObjectPtr>());
    return automation::LateBound(deck.get(u"Slides").to<automation::ObjectPtr>());
}

std::u16string Training::folderText() const {
    return automation::com::fromWide(folder_);
}

LONG Training::mainWindow() {
    return static_cast<LONG>(reinterpret_cast<std::intptr_t>(frame()));
}

HRESULT Training::init(LONG question) {
    return module_->InitQuestion(question, Bstr(folderText()).get(), &application_, &window_, nullptr);
}

} // namespace tests
