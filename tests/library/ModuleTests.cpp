#include "automation/com/Objects.h"
#include "automation/com/Variant.h"
#include "automation/com/WideText.h"
#include "simulator/win32/StandInIdentity.h"
#include "tests/library/ErrorSaid.h"
#include "tests/library/Training.h"
#include "tests/win32/TestWindow.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <utility>
#include <vector>

namespace module_tests {

namespace fs = std::filesystem;
using automation::LateBound;
using automation::ObjectPtr;
using automation::Value;
using automation::com::Bstr;
using automation::com::ComPtr;
using automation::com::variantOf;
using tests::errorOfCall;
using tests::errorOfInterface;
using tests::errorOfInvoke;
using tests::ErrorSaid;
using tests::UserHive;

class ModuleTest : public tests::Training {
protected:
    /// A service of a class must fail alike by vtable and by name.
    void expectRaised(HRESULT status, std::u16string_view member, const std::vector<Value>& arguments,
                      std::uint32_t number, std::u16string_view where, const std::u16string& text) {
        const ErrorSaid expected{number, u"DLL K61027 - CLASSE " + std::u16string(where) + u" - OBJET " + text, text};
        EXPECT_EQ(errorOfInterface(status), expected);
        EXPECT_EQ(errorOfCall(*module_.get(), member, arguments), expected);
    }
    /// Question 305, with the verdict of a learner who has done nothing.
    void open305() {
        startPowerPoint();
        deliver(305, 4);
        std::ofstream(fs::path(folder_ + L"17305305.doc")) << "x";
        ASSERT_EQ(init(305), S_OK);
        Bstr said;
        ASSERT_EQ(module_->TestePoint(), S_OK);
        EXPECT_EQ(module_->CauseErreur(said.receive()), S_OK);
        EXPECT_EQ(said.text(), u"A");
    }
};

TEST_F(ModuleTest, RefusesAQuestionAlikeByVtableAndByName) {
    startPowerPoint();
    const std::u16string key =
        u"Impossible d'accéder en lecture-écriture à la clé de base de registre\n\rHKEY_CURRENT_USER\\";
    const struct {
        std::int32_t question;
        const wchar_t* missingKey;
        std::uint32_t number;
        std::u16string service;
        std::u16string text;
    } cases[] = {
        {399, nullptr, 0x800A005BU, u"Nettoyage", u"Variable objet ou variable de bloc With non définie"},
        {300, nullptr, 0x800A005BU, u"Nettoyage", u"Variable objet ou variable de bloc With non définie"},
        {314, nullptr, 0x800A0035U, u"Renomme", u"Fichier introuvable"},
        {314, shellFolders, 0x800403E8U, u"InitQuestion", key + automation::com::fromWide(shellFolders)},
        {314, officeSettings, 0x800403E8U, u"InitQuestion", key + automation::com::fromWide(officeSettings)},
    };
    for (const auto& [question, missingKey, number, service, text] : cases) {
        if (missingKey != nullptr) {
            UserHive::removeKey(missingKey);
        }
        expectRaised(init(question), u"InitQuestion",
                     {question, folderText(), powerPoint_.object(), std::int32_t{window_}, u""}, number,
                     u"Module\n\r - SERVICE " + service, text);
    }
}

TEST_F(ModuleTest, RaisesThePassingAttemptOfQuestion305) {
    open305();
    const LateBound texts = [&] {
        const LateBound slide(slides().call(u"Add", 5, 2).to<ObjectPtr>());
        return LateBound(slide.get(u"Shapes").to<ObjectPtr>());
    }();
    const auto write = [&](std::int32_t shape, std::u16string_view text) {
        const LateBound added(texts.call(u"Item", shape).to<ObjectPtr>());
        const LateBound frame(added.get(u"TextFrame").to<ObjectPtr>());
        LateBound(frame.get(u"TextRange").to<ObjectPtr>()).put(u"Text", text);
    };
    write(1, u"Conseils ");
    write(2, u"5 à 6 mots par ligne\r5 à 6 lignes par diapositive\r"
             u"Police et Taille des caractères parfaitement lisibles\r"
             u"Fort contraste entre couleur d'arrière-plan et couleur des caractères");
    expectRaised(module_->TestePoint(), u"TestePoint", {}, 0x800A0005U, u"Question0305\n\r - SERVICE TestePoint", u"");
    EXPECT_EQ(module_->Fermer(), S_OK);
}

TEST_F(ModuleTest, GivesTheTextsOfACheckByTheHostsInterface) {
    open305();
    ComPtr<TableauTexte> texts;
    ASSERT_EQ(module_->Complement(texts.receive()), S_OK);
    Bstr text;
    EXPECT_EQ(texts->item(1, text.receive()), S_OK);
    EXPECT_EQ(text.text(), u" 4");
    const LateBound late(automation::com::objectOf(module_.get()));
    const auto named = automation::com::dispatchOf(late.call(u"Complement").to<ObjectPtr>());
    EXPECT_EQ(automation::com::identityOf(named.get()), automation::com::identityOf(texts.get()))
        << "one object, however it is asked for";
    EXPECT_EQ(module_->Fermer(), S_OK);
}

TEST_F(ModuleTest, BringsPowerPointToTheFront) {
    startPowerPoint();
    deliver(314, 1);
    auto* const powerPoint = reinterpret_cast<HWND>(static_cast<std::intptr_t>(window_));
    const tests::TestWindow other({.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE});
    const struct {
        const char* what;
        std::function<HRESULT()> call;
    } cases[] = {{"for the learner's work", [&] { return init(314); }},
                 {"for the check", [&] { return module_->TestePoint(); }}};
    for (const auto& [what, call] : cases) {
        ShowWindow(powerPoint, SW_MINIMIZE);
        // A window of another process goes in its own time.
        for (int wait = 0; wait < 200 && GetForegroundWindow() != other.handle(); ++wait) {
            SetForegroundWindow(other.handle());
            Sleep(10);
        }
        ASSERT_EQ(GetForegroundWindow(), other.handle()) << what;
        EXPECT_EQ(call(), S_OK) << what;
        EXPECT_EQ(GetForegroundWindow(), powerPoint) << what;
        EXPECT_TRUE(IsZoomed(powerPoint)) << what;
    }
    EXPECT_EQ(module_->Fermer(), S_OK);
}

TEST_F(ModuleTest, WritesTheHostsReferencesBack) {
    startPowerPoint();
    deliver(314, 1);
    const LONG window = window_;
    IDispatch* const hosts = application_;
    ASSERT_EQ(init(314), S_OK);
    EXPECT_EQ(window_, window);
    EXPECT_EQ(application_, hosts) << "what is not replaced is left alone";
    EXPECT_EQ(UserHive::stored(recentFolders, L"Default"), UserHive::text(folder_, 1)) << "with the NUL that follows";
    EXPECT_EQ(UserHive::stored(recentFolders, L"PictureDir"), UserHive::text(L""));
    EXPECT_EQ(module_->Fermer(), S_OK);
    for (const wchar_t* const name : recentNames) {
        const std::wstring learners = std::wstring(L"C:\\\u00C9l\u00E8ve\\") + name;
        EXPECT_EQ(UserHive::stored(recentFolders, name), UserHive::text(learners, 1));
    }

    application_->Release();
    application_ = nullptr;
    window_ = -1;
    deliver(314, 1);
    ASSERT_EQ(init(314), S_OK);
    ASSERT_NE(application_, nullptr);
    EXPECT_EQ(window_, window);
    EXPECT_TRUE(isSame(automation::com::objectOf(application_), powerPoint_.object())) << "the one that runs";

    EXPECT_EQ(module_->Quitter(&application_, &window_), S_OK);
    EXPECT_EQ(application_, nullptr) << "obtained by the module, so ended by it";
    EXPECT_EQ(window_, 0);
    powerPoint_ = LateBound();
}

TEST_F(ModuleTest, WritesThemBackToALateBoundHost) {
    startPowerPoint();
    const LateBound module(automation::com::objectOf(module_.get()));
    Value application;
    Value window;
    for (const Value& nothing : {Value(), Value(nullptr)}) {
        application = nothing;
        window = -1;
        deliver(314, 1);
        module.call(u"InitQuestion", 314, folderText(), Value::reference(application), Value::reference(window), u"");
        EXPECT_TRUE(isSame(application.to<ObjectPtr>(), powerPoint_.object()));
        EXPECT_EQ(window, Value(std::int32_t{mainWindow()}));
        module.call(u"TestePoint");
        EXPECT_EQ(module.call(u"CauseErreur"), Value(u"A"));
        module.call(u"Fermer");
    }
    module.call(u"Quitter", Value::reference(application), Value::reference(window));
    EXPECT_EQ(application, Value(nullptr));
    EXPECT_EQ(window, Value(std::int32_t{0}));
    powerPoint_ = LateBound();
}

TEST_F(ModuleTest, WritesThemBackToVariablesOfTheirTypesAlsoWhereItRaises) {
    startPowerPoint();
    const LONG window = window_;
    VARIANT application;
    application.vt = VT_BYREF | VT_DISPATCH;
    application.ppdispVal = &application_;
    VARIANT handle;
    handle.vt = VT_BYREF | VT_I4;
    handle.plVal = &window_;
    const auto question = variantOf(314);
    const auto folder = variantOf(folderText());
    const auto unused = variantOf(u"");
    for (const std::uint32_t status : {0x800A0035U, 0U}) {
        if (status == 0) {
            deliver(314, 1); // its file was missing
        }
        std::exchange(application_, nullptr)->Release();
        window_ = -1;
        EXPECT_EQ(
            errorOfInvoke(*module_.get(), u"InitQuestion", {question, folder, application, handle, unused}).number,
            status);
        ASSERT_NE(application_, nullptr);
        EXPECT_TRUE(isSame(automation::com::objectOf(application_), powerPoint_.object()));
        EXPECT_EQ(window_, window);
    }
    EXPECT_EQ(errorOfInvoke(*module_.get(), u"Quitter", {application, handle}).number, 0U);
    EXPECT_EQ(application_, nullptr);
    EXPECT_EQ(window_, 0);
    powerPoint_ = LateBound();
}

/// A PowerPoint that was closed while the host still has a reference to it.
class Closed final : public automation::Published {
public:
    explicit Closed(std::vector<bool>& goneFirst) : goneFirst_(goneFirst) {}
    ~Closed() override { goneFirst_.push_back(FindWindowW(L"PP11FrameClass", nullptr) == nullptr); }
    [[nodiscard]] const automation::MemberTable& members() const override {
        static const automation::MemberTable none{};
        return none;
    }

private:
    std::vector<bool>& goneFirst_;
};

TEST_F(ModuleTest, LetsGoOfAClosedPowerPointBeforeItLooksForAnother) {
    const auto question = variantOf(314);
    const auto folder = variantOf(folderText());
    const auto unused = variantOf(u"");
    automation::com::Variant variable;
    VARIANT application;
    VARIANT handle;
    handle.vt = VT_BYREF | VT_I4;
    handle.plVal = &window_;
    const auto byName = [&] {
        return errorOfInvoke(*module_.get(), u"InitQuestion", {question, folder, application, handle, unused}).number;
    };
    const std::function<std::uint32_t()> forms[] = {
        [&] { return static_cast<std::uint32_t>(init(314)); },
        [&] {
            application.vt = VT_BYREF | VT_DISPATCH;
            application.ppdispVal = &application_;
            return byName();
        },
        [&] {
            variable.vt = VT_DISPATCH;
            variable.pdispVal = std::exchange(application_, nullptr);
            application.vt = VT_BYREF | VT_VARIANT;
            application.pvarVal = &variable;
            const std::uint32_t status = byName();
            application_ = variable.release().pdispVal;
            return status;
        },
    };
    std::vector<bool> goneFirst;
    for (const auto& form : forms) {
        application_ = automation::com::dispatchOf(std::make_shared<Closed>(goneFirst)).release();
        window_ = 1;
        EXPECT_EQ(form(), 0x800A0035U) << "its file is missing";
        EXPECT_EQ(window_, mainWindow());
        EXPECT_NE(window_, 0);
        EXPECT_EQ(module_->Quitter(&application_, &window_), S_OK);
        EXPECT_EQ(application_, nullptr);
        for (int wait = 0; wait < 500 && mainWindow() != 0; ++wait) {
            Sleep(10);
        }
    }
    EXPECT_EQ(goneFirst, std::vector<bool>(std::size(forms), true));
}

/// A PowerPoint of the host's that tells when it is called first.
class Telling final : public automation::Published {
public:
    explicit Telling(std::function<void()> called) : called_(std::move(called)) {}
    [[nodiscard]] const automation::MemberTable& members() const override {
        static const automation::MemberTable table{
            automation::property<&Telling::ShowStartupDialog>(u"ShowStartupDialog")};
        return table;
    }
    [[nodiscard]] bool ShowStartupDialog() const {
        called_();
        return false;
    }

private:
    std::function<void()> called_;
};

TEST_F(ModuleTest, OutlivesAnOperationInWhichItsHostReleasesIt) {
    const tests::TestWindow window({.style = WS_OVERLAPPEDWINDOW | WS_VISIBLE});
    bool isHeld = false;
    application_ = automation::com::dispatchOf(std::make_shared<Telling>([&] {
                       module_ = nullptr;
                       isHeld = !library_.canUnload();
                   })).release();
    window_ = static_cast<LONG>(reinterpret_cast<std::intptr_t>(window.handle()));
    EXPECT_NE(init(314), S_OK) << "it has no command bars";
    EXPECT_TRUE(isHeld);
    EXPECT_FALSE(module_);
    EXPECT_TRUE(library_.canUnload());
}

TEST_F(ModuleTest, HasPatienceForSixSecondsWhereEachCommandBarIsRefused) {
    startPowerPoint();
    ComPtr<IUnknown> running;
    ASSERT_EQ(GetActiveObject(simulator::standin::controlClass, nullptr, running.receive()), S_OK);
    const LateBound controls(automation::com::objectOf(running.as<IDispatch>().get()));
    std::int32_t untilTheBars = 0; // the calls that it makes until the file is missing
    for (int i = 0; i < 2; ++i) {  // the first has to get to know PowerPoint
        const auto before = controls.get(u"Calls").to<std::int32_t>();
        EXPECT_EQ(static_cast<std::uint32_t>(init(314)), 0x800A0035U);
        untilTheBars = controls.get(u"Calls").to<std::int32_t>() - before;
        EXPECT_EQ(module_->Fermer(), S_OK);
    }
    deliver(314, 1);
    controls.call(u"RefuseAtCall", untilTheBars + 8, 0);
    const DWORD start = GetTickCount();
    EXPECT_EQ(static_cast<std::uint32_t>(init(314)), 0x80010001U);
    const DWORD taken = GetTickCount() - start;
    controls.put(u"Busy", false);
    EXPECT_GT(taken, 5500U) << "more than one access was refused";
    EXPECT_LT(taken, 9000U);
    EXPECT_EQ(module_->Fermer(), S_OK);
}

} // namespace module_tests
