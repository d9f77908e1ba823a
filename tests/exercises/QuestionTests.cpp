#include "automation/Text.h"
#include "automation/observe/CallTrace.h"
#include "collections/Sequence.h"
#include "exercises/Catalogue.h"
#include "host/world/TemporaryFolder.h"
#include "module/Session.h"
#include "module/Staging.h"
#include "module/UserSettings.h"
#include "platform/observed/ObservedServices.h"
#include "simulator/Machine.h"
#include "simulator/system/EmbeddedWindows.h"
#include "tests/support/Errors.h"
#include "tests/support/Script.h"

#include <gtest/gtest.h>

namespace question_tests {

using automation::Array;
using automation::LateBound;
using automation::ObjectPtr;
using exercises::API;
using tests::ask;
using tests::say;

constexpr std::int32_t rectangle = 1;
constexpr std::int32_t horizontalScroll = 102;

/// PowerPoint with a presentation of one slide, and the routines and variables of all questions.
class Questions : public testing::Test {
public:
    Questions() {
        machine.startPowerPoint();
        application = ppt::Application(machine.application());
        const LateBound deck = ask(ask(application, u"Presentations"), u"Add");
        shapes = ask(ask(ask(deck, u"Slides"), u"Add", 1, 12), u"Shapes");
    }
    ~Questions() override { machine.endPowerPoint(); }

    LateBound add(std::int32_t type) const { return ask(shapes, u"AddShape", type, 10, 10, 20, 20); }
    LateBound group(std::int32_t first, std::int32_t last) const {
        return ask(ask(shapes, u"Range", Array{first, last}), u"Group");
    }
    [[nodiscard]] static std::u16string mark(const LateBound& shape) {
        return say(ask(shape, u"Tags"), u"Item", u"Identite").to<std::u16string>();
    }
    [[nodiscard]] LateBound text(std::u16string_view words) const {
        LateBound range = ask(ask(add(rectangle), u"TextFrame"), u"TextRange");
        range.put(u"Text", words);
        return range;
    }

    host::TemporaryFolder root;
    simulator::Machine machine{root.path()};
    ppt::Application application;
    API api;
    LateBound shapes;
};

TEST_F(Questions, MarkGroupsWithLevelAndPath) {
    for (int i = 0; i < 4; ++i) {
        add(rectangle);
    }
    group(2, 3);
    group(2, 3);
    api.MarqueFormes(1, true, application);
    const LateBound outer = ask(shapes, u"Item", 2);
    const LateBound inner = ask(outer, u"GroupItems", 1);
    EXPECT_EQ(mark(outer), u"ZOR2");
    EXPECT_EQ(mark(inner), u"1ZOR1:2");
    EXPECT_EQ(mark(ask(outer, u"GroupItems", 2)), u"1ZOR2:2");
    EXPECT_EQ(mark(ask(inner, u"GroupItems", 2)), u"2ZOR2:2,1");
    EXPECT_EQ(api.ChercheForme(1, u"2ZOR2:2,1", true, application), 2);
    EXPECT_EQ(api.NiveauForme, 2);
}

TEST_F(Questions, FindAShapeWhereverItWentAndTheLowestOne) {
    add(rectangle);
    add(rectangle);
    add(rectangle);
    api.MarqueFormes(1, true, application);
    EXPECT_EQ(api.ChercheForme(1, u"ZOR3", false, application), 3);
    EXPECT_EQ(api.NiveauForme, 0);

    group(2, 3);
    EXPECT_EQ(api.ChercheForme(1, u"ZOR3", true, application), 2);
    EXPECT_EQ(api.NiveauForme, 1);
    EXPECT_EQ(api.FormeNonTrouvee, 0);
    EXPECT_EQ(api.ChercheForme(1, u"ZOR3", false, application), 0);
    EXPECT_EQ(api.FormeNonTrouvee, -1);
    EXPECT_EQ(api.NiveauForme, 1) << "left as it was by a search without result";

    say(ask(ask(shapes, u"Item", 1), u"Tags"), u"Add", u"Identite", u"ZOR3");
    EXPECT_EQ(api.ChercheForme(1, u"ZOR3", true, application), 1) << "the top-level shape comes before the item";
    EXPECT_EQ(api.NiveauForme, 0);
    EXPECT_EQ(api.ChercheForme(1, u"zor3", true, application), 0) << "case counts";
}

TEST_F(Questions, CountFreeformsAndScrollsInsideGroupsOnly) {
    const auto point = [](int x, int y) { return automation::Value(Array{x, y}); };
    for (int i = 0; i < 3; ++i) {
        say(shapes, u"AddPolyline", Array{point(0, 0), point(10, 10), point(20, 0)});
        add(horizontalScroll);
    }
    say(add(rectangle), u"ZOrder", 1); // the lowest, and none of either
    group(1, 3);
    group(2, 3);
    group(3, 4);
    EXPECT_EQ(api.ChercheForme(1, u"msoFreeform", true, application), 0);
    EXPECT_EQ(api.ChercheForme(1, u"msoFreeform", false, application), 0);
    EXPECT_EQ(api.NbFormesLibres, 2);
    EXPECT_EQ(api.ChercheForme(1, u"msoShapeHorizontalScroll", true, application), 0);
    EXPECT_EQ(api.NbParchemins, 2);
    EXPECT_EQ(api.FormeNonTrouvee, -1);
}

TEST_F(Questions, CountWordsWithAndWithoutTheirBlank) {
    const LateBound range = text(u"le chat et le chien, le\vle\rle");
    const auto count = [&](std::u16string_view word) { return API::CompteMot(ppt::TextRange(range.object()), word); };
    EXPECT_EQ(count(u"le"), 3);
    EXPECT_EQ(count(u"chat"), 1);
    EXPECT_EQ(count(u"chien"), 0) << "a comma belongs to the word";
    EXPECT_EQ(count(u"Le"), 0);
}

/// A text of so many words, a slide of so many shapes, a group of so many items: more than 16 bits count.
class Huge final : public automation::Object, public std::enable_shared_from_this<Huge> {
public:
    static constexpr std::int32_t tooFar = 1;

    automation::Value invoke(const automation::Name& name, automation::Access /*access*/,
                             std::span<automation::Value> arguments) override {
        if (++calls_ > 100) {
            throw automation::Error(tooFar, u"", u"");
        }
        if (name.matches(u"Count")) {
            return 32768;
        }
        if (name.matches(u"Type")) {
            return ppt::msoGroup;
        }
        const bool isTag = name.matches(u"Item") && arguments.front().display() == u"\"Identite\"";
        return isTag ? automation::Value(u"") : automation::Value(shared_from_this());
    }

private:
    int calls_ = 0;
};

TEST_F(Questions, CountWordsAndItemsOfGroupsIn16Bits) {
    const auto huge = [] { return ppt::Application(ObjectPtr(std::make_shared<Huge>())); };
    const auto overflow = static_cast<std::int32_t>(automation::RunTimeError::Overflow);
    EXPECT_EQ(errorNumber([&] { (void)API::CompteMot(ppt::TextRange(huge().object()), u"le"); }), overflow);
    EXPECT_EQ(errorNumber([&] { api.ChercheForme(1, u"ZOR1", true, huge()); }), overflow);
    EXPECT_EQ(errorNumber([&] { api.MarqueDiapositives(huge()); }), overflow);
    EXPECT_EQ(errorNumber([&] { api.MarqueFormes(1, true, huge()); }), overflow);
    EXPECT_EQ(errorNumber([&] { api.ChercheForme(1, u"ZOR1", false, huge()); }), Huge::tooFar)
        << "the shapes of a slide are counted in 32 bits";
}

TEST_F(Questions, MarkNothingOnNoSlide) {
    say(ask(ask(ask(application, u"ActivePresentation"), u"Slides"), u"Item", 1), u"Delete");
    EXPECT_EQ(api.MarqueDiapositives(application), 0);
    EXPECT_EQ(errorNumber([&] { api.ChercheForme(1, u"ZOR1", true, application); }), requestRefused);
}

TEST_F(Questions, KeepTheirFrameBetweenCreationAndClosing) {
    const auto question = exercises::createQuestion(305, {api, machine.services()});
    const ObjectPtr files = question->FichiersDeTravail();
    EXPECT_EQ(question->FichiersDeTravail(), files);
    EXPECT_EQ(say(LateBound(files), u"count"), automation::Value(2));
    for (const std::int32_t outside : {0, 3}) {
        EXPECT_EQ(errorNumber([&] { ask(LateBound(files), u"Item", outside); }), 9);
    }
    std::vector<bool> full(std::numeric_limits<std::int32_t>::max());
    EXPECT_EQ(errorNumber([&] { collections::append(full, true); }), 6);

    const auto early = errorOf([&] { question->TestePoint(); });
    ASSERT_TRUE(early) << "there is no application before Prepare";
    EXPECT_EQ(early->number(), 91);
    EXPECT_EQ(early->source(), u"DLL K61027 - CLASSE Question0305\n\r - SERVICE TestePoint - OBJET K73053");
    const ObjectPtr first = question->ComplementInfo();
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(errorNumber([&] { question->TestePoint(); }), 91);
    EXPECT_NE(question->ComplementInfo(), first) << "each attempt has its own";

    EXPECT_EQ(errorNumber([&] { say(LateBound(question), u"Prepare", application.object(), u"C:\\"); }),
              requestRefused);
    EXPECT_EQ(question->PathDossierParDefaut(), u"C:\\") << "the third argument may be left out";

    machine.createFile(u"Plan exo 3.rtf");
    for (int number = exercises::firstQuestion; number <= exercises::lastQuestion; ++number) {
        const auto unprepared = exercises::createQuestion(number, {api, machine.services()});
        EXPECT_EQ(errorNumber([&] { unprepared->TestePoint(); }), 91) << number;
    }

    question->Fermer();
    question->Fermer();
    EXPECT_EQ(question->ComplementInfo(), nullptr);
    EXPECT_EQ(say(LateBound(question->FichiersDeTravail()), u"count"), automation::Value(0));
    EXPECT_EQ(exercises::createQuestion(300, {api, machine.services()}), nullptr);
    EXPECT_EQ(exercises::createQuestion(exercises::lastQuestion + 1, {api, machine.services()}), nullptr);
}

TEST_F(Questions, CloseTheDialogAboveFirst) {
    std::string calls;
    const auto trace = std::make_shared<automation::CallTrace>(
        [&](const automation::TracedCall& call) { calls += automation::toUtf8(call.call) + '\n'; });
    const platform::ObservedServices observed(machine.services(), trace);
    k73053::Session session(observed.services());
    session.GetApplication();
    machine.openDialog(u"Police");
    machine.openDialog(u"Couleurs");
    machine.openWindow(u"Autre", u"Autre programme");
    const auto closing = [&](std::u16string_view title) {
        platform::WindowHandle dialog = session.window();
        while (dialog != 0 && machine.services().windows.title(dialog) != title) {
            dialog = machine.services().windows.previous(dialog);
        }
        return "Windows.send(" + std::to_string(dialog) + ", 16)";
    };
    const std::string police = closing(u"Police");
    const std::string colours = closing(u"Couleurs");
    session.FermeDialogues(session.window());
    EXPECT_EQ(machine.dialogs(), 0U);
    EXPECT_NE(calls.find(police), std::string::npos) << calls;
    EXPECT_LT(calls.find(colours), calls.find(police)) << calls;
    session.FermeDialogues(session.window());
    session.EnvoieEchap(session.window());
    EXPECT_EQ(machine.keysSent(), u"{ESC}");
    EXPECT_EQ(machine.foregroundWindow(), session.window());
}

TEST_F(Questions, CloseNoWindowThatLacksWhatADialogHas) {
    simulator::EmbeddedWindows windows;
    const platform::Services& others = machine.services();
    const platform::WindowHandle main = windows.create({u"PP11FrameClass"});
    k73053::Session session({windows, others.registry, others.files, others.keyboard, others.locale, others.servers});
    const simulator::WindowTraits dialog{u"", u"Police", main, platform::WindowSystem::dialogModalFrame};
    std::vector<simulator::WindowTraits> all(5, dialog);
    all[0].title = u"";
    all[1].owner = 0;
    all[2].extendedStyle = 0;
    all[3].visible = false;
    std::vector<std::size_t> closed;
    for (std::size_t i = 0; i < all.size(); ++i) {
        all[i].onClose = [&closed, i] { closed.push_back(i); };
        const platform::WindowHandle window = windows.create(all[i]);
        session.FermeDialogues(main);
        windows.destroy(window);
    }
    EXPECT_EQ(closed, std::vector<std::size_t>{4});
}

TEST_F(Questions, TakeModelsFromTheFolderOfTemplates) {
    struct Question final : automation::Published {
        [[nodiscard]] ObjectPtr FichiersDeTravail() const { return files; }
        [[nodiscard]] const automation::MemberTable& members() const override {
            static const automation::MemberTable table{
                automation::property<&Question::FichiersDeTravail>(u"FichiersDeTravail")};
            return table;
        }
        std::shared_ptr<collections::FichiersDeTravail> files = std::make_shared<collections::FichiersDeTravail>();
    };
    const auto question = std::make_shared<Question>();
    question->files->add(u"a", u"b", true);
    machine.createFile(u"C:\\T\\a");
    k73053::Staging staging(machine.services().files, api);
    staging.templatesFolder = u"C:\\T\\";
    staging.Renomme(LateBound(question));
    EXPECT_EQ(machine.services().files.find(u"C:\\T\\*", 0), u"b");
    staging.Nettoyage(LateBound(question), application);
    EXPECT_EQ(machine.services().files.find(u"C:\\T\\*", 0), u"");
}

TEST_F(Questions, TakeASettingThatGoesBetweenItsSizeAndItsTextForEmpty) {
    struct Fading final : platform::Locale {
        std::int32_t getInfo(std::int32_t, std::int32_t, std::span<char> buffer) override {
            return buffer.empty() ? 2 : 0;
        }
    } settings;
    EXPECT_EQ(platform::queryLocale(settings, 0, 13), u"");
}

TEST_F(Questions, KeepEachFolderInItsOwnKeyForOlderVersions) {
    const std::u16string key = u"SOFTWARE\\Microsoft\\Office\\10.0\\Powerpoint\\Recent Folder List\\";
    for (const std::u16string_view name : {u"Default", u"MultimediaDir", u"PictureDir", u"TemplateDir"}) {
        machine.setRegistryText(key + std::u16string(name), u"", u"C:\\" + std::u16string(name));
    }
    const std::u16string longFolder = u"D:\\" + std::u16string(400, u'x');
    machine.setRegistryText(key + u"PictureDir", u"", longFolder);
    k73053::UserSettings settings(machine.services().registry, u"10.0");
    settings.createKey();
    settings.SauveParamUser(application);
    settings.ChangeDir(u"E:\\", u"T:\\");
    EXPECT_EQ(machine.registryText(key + u"Default", u""), u"E:\\");
    EXPECT_EQ(machine.registryText(key + u"PictureDir", u""), u"");
    machine.denyRegistryKey(key + u"MultimediaDir");
    const auto refused = errorOf([&] { settings.RestaureParamUser(); });
    ASSERT_TRUE(refused);
    EXPECT_TRUE(refused->source().ends_with(u"Office\\10.0\\Powerpoint\\Recent Folder List\\MultimediaDir"));
    EXPECT_EQ(machine.registryText(key + u"PictureDir", u""), longFolder) << "the others are restored all the same";
    machine.denyRegistryKey(key + u"MultimediaDir", false);
    settings.SauveParamUser(application);
    settings.RestaureParamUser();
    EXPECT_EQ(machine.registryText(key + u"MultimediaDir", u""), u"C:\\MultimediaDir")
        << "the exercise's folder is never taken for the learner's";
}

} // namespace question_tests
