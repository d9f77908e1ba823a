#include "host/world/TemporaryFolder.h"
#include "module/Module.h"
#include "module/TemplatesFolder.h"
#include "platform/observed/ObservedServices.h"
#include "simulator/Machine.h"
#include "tests/support/Errors.h"
#include "tests/support/Script.h"

namespace module_fault_tests {

using automation::Access;
using automation::Crossing;
using automation::Value;
using platform::Registry;

constexpr std::u16string_view folder = u"C:\\Formation\\";
constexpr std::u16string_view generalKey = u"SOFTWARE\\Microsoft\\Office\\11.0\\Common\\General";

/// Makes every call fail that a test picks.
class FailingCalls final : public automation::Observer {
public:
    Value around(const Crossing& crossing, const Next& next) override {
        if (fails && fails(crossing)) {
            throw automation::Error(automation::RunTimeError::PathAccess);
        }
        return next();
    }

    std::function<bool(const Crossing&)> fails;
};

/// A module on a computer with the delivered file of question 301.
class ModuleFaults : public testing::Test {
public:
    ModuleFaults() {
        machine.startPowerPoint();
        machine.createFile(std::u16string(folder) + u"x");
        const automation::LateBound deck =
            tests::ask(tests::ask(automation::LateBound(machine.application()), u"Presentations"), u"Add");
        tests::ask(tests::ask(deck, u"Slides"), u"Add", 1, 12);
        tests::say(deck, u"SaveAs", std::u16string(folder) + u"07305301.ppt");
        tests::say(deck, u"Close");
    }

    void init() { module.InitQuestion(301, std::u16string(folder), application, window, u""); }

    host::TemporaryFolder root;
    simulator::Machine machine{root.path()};
    std::shared_ptr<FailingCalls> calls = std::make_shared<FailingCalls>();
    platform::ObservedServices observed{machine.services(), calls};
    exercises::API api;
    automation::ObjectPtr application;
    std::int32_t window = -1;
    k73053::Module module{api, observed.services()};
};

TEST_F(ModuleFaults, AWindowThatCannotBeFoundAnyMoreIsAGeneralCode) {
    init();
    calls->fails = [](const Crossing& crossing) { return crossing.member == u"findWindow"; };
    module.TestePoint();
    EXPECT_TRUE(module.ErreurGenerale());
    EXPECT_EQ(module.CauseErreur(), u"AM");
    calls->fails = nullptr;
    module.TestePoint();
    EXPECT_FALSE(module.ErreurGenerale());
}

TEST_F(ModuleFaults, WhatTheStartDialogRefusesIsPassedOver) {
    calls->fails = [](const Crossing& crossing) {
        return crossing.member == u"ShowStartupDialog" && crossing.access == Access::Put;
    };
    init();
    module.TestePoint();
    EXPECT_FALSE(module.ErreurGenerale());
}

TEST_F(ModuleFaults, AKeyThatClosesBeforeTheFoldersChangeIsReported) {
    constexpr std::u16string_view access = u"Impossible d'accéder en lecture-écriture à la clé de base de registre\n\r"
                                           u"HKEY_CURRENT_USER\\SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\"
                                           u"Recent Folder List\\";
    int opened = 0;
    calls->fails = [&](const Crossing& crossing) {
        return crossing.member == u"open" && crossing.display().find(u"RecentFolderList") != std::u16string::npos &&
               ++opened > 5;
    };
    const auto error = errorOf([&] { init(); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->number(), static_cast<std::int32_t>(0x800403E8U));
    EXPECT_EQ(error->source(), u"DLL K61027 - CLASSE Module\n\r - SERVICE ChangeDir - OBJET " + std::u16string(access) +
                                   u"MultimediaDir");
    EXPECT_EQ(machine.registryText(u"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList", u"Default"),
              folder);
    const auto closing = errorOf([&] { module.Fermer(); });
    ASSERT_TRUE(closing);
    EXPECT_EQ(closing->source(), std::u16string(access) + u"Default");
    calls->fails = nullptr;
    module.Quitter(application, window);
    EXPECT_NE(machine.registryText(u"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList", u"Default"),
              folder)
        << "the learner's folder comes back at the last moment";
}

TEST_F(ModuleFaults, TemplatesFolderIsTheLearnersOwnWhereThereIsOne) {
    const std::u16string ordinary =
        u"c:\\documents and settings\\eleve\\application data\\Microsoft\\modèles\\ZOR Modèles\\";
    const std::u16string nul(1, u'\0');
    const std::vector<std::pair<std::u16string, std::u16string>> cases = {
        {u"D:\\Mes Modèles" + nul, u"d:\\mes modèles\\ZOR Modèles\\"},
        {u"D:\\Mes Modèles\\" + nul, u"d:\\mes modèles\\ZOR Modèles\\"},
        {u"D:\\ZOR Modèles" + nul, u"d:\\zor modèles"},
        {u"D:\\A" + nul + u"B" + nul, u"d:\\ab\\ZOR Modèles\\"},
        {u"D:\\Cut", u"d:\\cu\\ZOR Modèles\\"},
        {nul + nul + nul, ordinary},
        {u"", ordinary},
    };
    Registry& registry = machine.services().registry;
    for (const auto& [data, expected] : cases) {
        const platform::OpenKey key(registry, generalKey, Registry::queryAndSet);
        ASSERT_TRUE(key.set(u"UserTemplates", data, data.size()));
        EXPECT_EQ(k73053::templatesFolder(registry), expected);
    }
    machine.deleteRegistryValue(generalKey, u"UserTemplates");
    EXPECT_EQ(k73053::templatesFolder(registry), ordinary);
}

} // namespace module_fault_tests
