#include "automation/com/ComError.h"
#include "automation/com/Objects.h"
#include "automation/com/WideText.h"
#include "tests/library/ErrorSaid.h"
#include "tests/library/Training.h"
#include "tests/win32/TestWindow.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace module_tests {

namespace fs = std::filesystem;
using automation::LateBound;
using automation::ObjectPtr;
using automation::Value;
using automation::com::Bstr;
using automation::com::ComPtr;
using tests::errorOfCall;
using tests::errorOfInterface;
using tests::ErrorSaid;
using tests::UserHive;

class ModuleTest : public tests::Training {
protected:
    /// InitQuestion must fail alike by vtable and by name.
    void expectRefusal(std::int32_t question, const ErrorSaid& expected) {
        EXPECT_EQ(errorOfInterface(init(question)), expected);
        EXPECT_EQ(errorOfCall(*module_.get(), u"InitQuestion",
                              {question, folderText(), powerPoint_.object(), std::int32_t{window_}, u""}),
                  expected);
    }
    void expectVerdict(std::u16string_view cause) {
        VARIANT_BOOL isGeneral = VARIANT_TRUE;
        Bstr said;
        ASSERT_EQ(module_->TestePoint(), S_OK);
        EXPECT_EQ(module_->ErreurGenerale(&isGeneral), S_OK);
        EXPECT_EQ(isGeneral, VARIANT_FALSE);
        EXPECT_EQ(module_->CauseErreur(said.receive()), S_OK);
        EXPECT_EQ(said.text(), cause);
    }
    static std::u16string report(std::u16string_view where, std::u16string_view object) {
        return u"DLL K61027 - CLASSE " + std::u16string(where) + u" - OBJET " + std::u16string(object);
    }
};

TEST_F(ModuleTest, RefusesAQuestionThatThereIsNot) {
    startPowerPoint();
    const std::u16string text = u"Variable objet ou variable de bloc With non définie";
    expectRefusal(399, {0x800A005BU, report(u"Module\n\r - SERVICE Nettoyage", text), text});
    EXPECT_EQ(init(300), static_cast<HRESULT>(0x800A005BU));
}

TEST_F(ModuleTest, RefusesAQuestionWhoseFileIsMissing) {
    startPowerPoint();
    const std::u16string text = u"Fichier introuvable";
    expectRefusal(314, {0x800A0035U, report(u"Module\n\r - SERVICE Renomme", text), text});
}

TEST_F(ModuleTest, RefusesAKeyThatCannotBeRead) {
    startPowerPoint();
    const std::u16string start =
        u"Impossible d'accéder en lecture-écriture à la clé de base de registre\n\rHKEY_CURRENT_USER\\";
    const auto expected = [&](const wchar_t* key) {
        const std::u16string text = start + automation::com::fromWide(key);
        return ErrorSaid{0x800403E8U, report(u"Module\n\r - SERVICE InitQuestion", text), text};
    };
    UserHive::removeKey(shellFolders);
    EXPECT_EQ(errorOfInterface(init(314)), expected(shellFolders));
    UserHive::removeKey(officeSettings);
    expectRefusal(314, expected(officeSettings));
}

TEST_F(ModuleTest, TakesNothingHoweverAHostSaysIt) {
    startPowerPoint();
    const LateBound module(automation::com::objectOf(module_.get()));
    for (const Value& nothing : {Value(), Value(nullptr)}) {
        Value application = nothing;
        Value window = -1;
        deliver(314, 1);
        module.call(u"InitQuestion", 314, folderText(), Value::reference(application), Value::reference(window), u"");
        EXPECT_TRUE(isSame(application.to<ObjectPtr>(), powerPoint_.object()));
        EXPECT_EQ(window, Value(std::int32_t{mainWindow()}));
        EXPECT_EQ(module_->Fermer(), S_OK);
    }
    powerPoint_ = LateBound(); // the module has taken it over, and ends it
}

TEST_F(ModuleTest, RaisesThePassingAttemptOfQuestion305) {
    startPowerPoint();
    deliver(305, 4);
    std::ofstream(fs::path(folder_ + L"17305305.doc")) << "x";
    ASSERT_EQ(init(305), S_OK);
    expectVerdict(u"A");
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
    const ErrorSaid expected{0x800A0005U, report(u"Question0305\n\r - SERVICE TestePoint", u""), u""};
    EXPECT_EQ(errorOfInterface(module_->TestePoint()), expected);
    EXPECT_EQ(errorOfCall(*module_.get(), u"TestePoint", {}), expected);
    EXPECT_EQ(module_->Fermer(), S_OK);
}

TEST_F(ModuleTest, GivesTheTextsOfACheckByTheHostsInterface) {
    startPowerPoint();
    deliver(305, 4);
    std::ofstream(fs::path(folder_ + L"17305305.doc")) << "x";
    ASSERT_EQ(init(305), S_OK);
    expectVerdict(u"A");
    ComPtr<TableauTexte> texts;
    ASSERT_EQ(module_->Complement(texts.receive()), S_OK);
    LONG count = 0;
    Bstr text;
    EXPECT_EQ(texts->count(&count), S_OK);
    EXPECT_EQ(count, 1);
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
    const auto powerPoint = reinterpret_cast<HWND>(static_cast<std::intptr_t>(window_));
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
    EXPECT_EQ(module_->Fermer(), S_OK);

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
    deliver(314, 1);
    const LateBound module(automation::com::objectOf(module_.get()));
    Value application = nullptr;
    Value window = std::int32_t{-1};
    module.call(u"InitQuestion", 314, folderText(), Value::reference(application), Value::reference(window), u"");
    EXPECT_EQ(window, Value(std::int32_t{mainWindow()}));
    EXPECT_TRUE(isSame(application.to<ObjectPtr>(), powerPoint_.object()));
    module.call(u"TestePoint");
    EXPECT_EQ(module.call(u"CauseErreur"), Value(u"A"));
    module.call(u"Quitter", Value::reference(application), Value::reference(window));
    EXPECT_EQ(application, Value(nullptr));
    EXPECT_EQ(window, Value(std::int32_t{0}));
    powerPoint_ = LateBound();
}

TEST_F(ModuleTest, WritesThemBackToVariablesOfTheirTypesAlsoWhereItRaises) {
    startPowerPoint();
    const LONG window = window_;
    const auto call = [&](std::u16string_view member, std::vector<VARIANT> arguments) {
        const Bstr name(member);
        LPOLESTR asked = name.get();
        DISPID id = DISPID_UNKNOWN;
        EXPECT_EQ(module_->GetIDsOfNames(IID_NULL, &asked, 1, 0, &id), S_OK);
        std::reverse(arguments.begin(), arguments.end());
        DISPPARAMS given{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        automation::com::ExceptionInfo raised;
        const HRESULT status = module_->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &given, nullptr, &raised, nullptr);
        return status == DISP_E_EXCEPTION ? raised.scode : status;
    };
    VARIANT application;
    application.vt = VT_BYREF | VT_DISPATCH;
    application.ppdispVal = &application_;
    VARIANT handle;
    handle.vt = VT_BYREF | VT_I4;
    handle.plVal = &window_;
    const Bstr folder(folderText());
    const auto init = [&](std::int32_t number) {
        if (application_ != nullptr) {
            application_->Release();
        }
        application_ = nullptr;
        window_ = -1;
        VARIANT question;
        question.vt = VT_I4;
        question.lVal = number;
        VARIANT place;
        place.vt = VT_BSTR;
        place.bstrVal = folder.get();
        VARIANT unused;
        unused.vt = VT_BSTR;
        unused.bstrVal = nullptr;
        return call(u"InitQuestion", {question, place, application, handle, unused});
    };
    const auto expectWritten = [&] {
        ASSERT_NE(application_, nullptr);
        EXPECT_TRUE(isSame(automation::com::objectOf(application_), powerPoint_.object()));
        EXPECT_EQ(window_, window);
    };
    EXPECT_EQ(static_cast<std::uint32_t>(init(314)), 0x800A0035U) << "its file is missing";
    expectWritten();
    deliver(314, 1);
    EXPECT_EQ(init(314), S_OK);
    expectWritten();
    EXPECT_EQ(call(u"Quitter", {application, handle}), S_OK);
    EXPECT_EQ(application_, nullptr);
    EXPECT_EQ(window_, 0);
    powerPoint_ = LateBound();
}

TEST_F(ModuleTest, LendsTheRecentFoldersToAQuestion) {
    startPowerPoint();
    deliver(314, 1);
    const auto expectLearners = [&] {
        for (const wchar_t* const name : recentNames) {
            const std::wstring text = std::wstring(L"C:\\\u00C9l\u00E8ve\\") + name;
            EXPECT_EQ(UserHive::stored(recentFolders, name), UserHive::text(text, 1));
        }
    };
    expectLearners();
    ASSERT_EQ(init(314), S_OK);
    EXPECT_EQ(UserHive::stored(recentFolders, L"Default"), UserHive::text(folder_)) << "no terminating NUL is counted";
    for (const wchar_t* const name : {L"MultimediaDir", L"PictureDir", L"TemplateDir"}) {
        EXPECT_EQ(UserHive::stored(recentFolders, name), UserHive::text(L""));
    }
    EXPECT_EQ(module_->Fermer(), S_OK);
    expectLearners();
}

TEST_F(ModuleTest, MakesTheTemplatesFolder) {
    startPowerPoint();
    const std::wstring usual = folder_ + L"profil\\microsoft\\mod\u00E8les\\ZOR Mod\u00E8les";
    const struct {
        std::optional<std::wstring> userTemplates;
        std::wstring made;
    } cases[] = {{std::nullopt, usual},
                 {std::wstring(3, L'\0'), usual},
                 {folder_ + L"Perso", folder_ + L"perso\\ZOR Mod\u00E8les"},
                 {folder_ + L"Autre\\", folder_ + L"autre\\ZOR Mod\u00E8les"},
                 {folder_ + L"Fait\\ZOR Mod\u00E8les", folder_ + L"fait"},
                 {folder_ + L"Clos\\zor MOD\u00C8LES\\", folder_ + L"clos"}};
    for (const auto& [userTemplates, made] : cases) {
        if (userTemplates) {
            UserHive::put(officeSettings, L"UserTemplates", *userTemplates);
        }
        EXPECT_FALSE(fs::exists(made));
        EXPECT_TRUE(FAILED(init(399))) << "after the folder was made";
        EXPECT_TRUE(fs::is_directory(made)) << fs::path(made);
        EXPECT_FALSE(fs::exists(made + L"\\ZOR Mod\u00E8les")) << "a last name without a backslash is no folder's";
        fs::remove_all(made);
    }
}

} // namespace module_tests
