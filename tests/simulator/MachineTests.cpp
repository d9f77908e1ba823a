#include "simulator/Machine.h"

#include "host/world/TemporaryFolder.h"
#include "tests/support/Errors.h"
#include "tests/support/Script.h"

#include <gtest/gtest.h>

namespace machine_tests {

using automation::LateBound;
using automation::ObjectPtr;
using automation::RunTimeError;
using simulator::Machine;
using tests::ask;
using tests::number;
using tests::say;
namespace remote = automation::remote;

constexpr std::u16string_view programmaticId = u"PowerPoint.application.11";
constexpr auto cannotCreate = static_cast<std::int32_t>(RunTimeError::CannotCreateObject);
constexpr std::int32_t msoTrue = -1;

class MachineTest : public testing::Test {
public:
    ~MachineTest() override { EXPECT_EQ(machine.openRegistryKeys(), 0U); }

    [[nodiscard]] LateBound powerPoint() { return LateBound(machine.application()); }

    host::TemporaryFolder folder;
    Machine machine{folder.path()};
    platform::Services services = machine.services();
};

TEST_F(MachineTest, StartsOnePowerPointForWhoeverAsks) {
    EXPECT_EQ(errorNumber([&] { services.servers.attach(programmaticId); }), cannotCreate);
    EXPECT_EQ(errorNumber([&] { services.servers.create(u"Word.Application.11"); }), cannotCreate);
    EXPECT_FALSE(machine.isPowerPointRunning());

    const LateBound created(services.servers.create(programmaticId));
    const platform::WindowHandle window = services.windows.findWindow(u"PP11FrameClass");
    EXPECT_EQ(window, machine.mainWindow());
    EXPECT_FALSE(services.windows.isVisible(window));
    EXPECT_TRUE(isSame(services.servers.attach(u"powerpoint.APPLICATION.11"), created.object()));
    EXPECT_TRUE(isSame(services.servers.create(programmaticId), created.object()));
    EXPECT_EQ(services.windows.findWindow(u"PP11FrameClass"), window);

    created.put(u"Visible", msoTrue);
    EXPECT_TRUE(services.windows.isVisible(window));

    machine.uninstallPowerPoint();
    EXPECT_TRUE(isSame(services.servers.attach(programmaticId), created.object()));
    machine.endPowerPoint();
    EXPECT_EQ(errorNumber([&] { services.servers.create(programmaticId); }), cannotCreate);
}

TEST_F(MachineTest, RefusesCallsWhileBusyAndOnceEnded) {
    struct Ending {
        std::string_view name;
        void (*end)(MachineTest&);
    };
    for (const auto& [name, end] : std::initializer_list<Ending>{
             {"Quit",
              [](MachineTest& test) {
                  test.machine.closeDialog();
                  say(test.powerPoint(), u"Quit");
              }},
             {"the user", [](MachineTest& test) { test.machine.endPowerPoint(); }},
             {"WM_CLOSE",
              [](MachineTest& test) {
                  test.services.windows.send(test.machine.mainWindow(), platform::WindowSystem::closeMessage);
              }},
         }) {
        SCOPED_TRACE(name);
        machine.startPowerPoint();
        const LateBound application = powerPoint();
        const LateBound presentation = ask(ask(application, u"Presentations"), u"Add");
        const auto expectBoth = [&](std::int32_t error) {
            EXPECT_EQ(errorNumber([&] { say(application, u"WindowState"); }), error);
            EXPECT_EQ(errorNumber([&] { say(presentation, u"Name"); }), error);
        };
        machine.setBusy(true);
        expectBoth(remote::callRejected);
        machine.setBusy(false);
        expectBoth(noError);
        EXPECT_EQ(services.windows.title(machine.mainWindow()), u"Microsoft PowerPoint - [Présentation1]");

        machine.openDialog(u"Ouvrir");
        expectBoth(remote::retryLater);
        end(*this);
        EXPECT_FALSE(machine.isPowerPointRunning());
        expectBoth(remote::serverUnavailable);
        EXPECT_EQ(services.windows.findWindow(u"PP11FrameClass"), 0);
        EXPECT_EQ(machine.dialogs(), 0U);
    }
}

TEST_F(MachineTest, LocksTheFilesOfItsPresentations) {
    machine.startPowerPoint();
    services.files.makeDirectories(u"C:\\Exercices\\");
    const LateBound presentation = ask(ask(powerPoint(), u"Presentations"), u"Add");
    say(presentation, u"SaveAs", u"C:\\Exercices\\a.ppt");
    constexpr auto denied = static_cast<std::int32_t>(RunTimeError::PermissionDenied);
    const auto remove = [&] { return errorNumber([&] { services.files.remove(u"C:\\Exercices\\A.ppt"); }); };
    EXPECT_EQ(remove(), denied);
    EXPECT_EQ(errorNumber([&] { services.files.rename(u"C:\\Exercices\\a.ppt", u"C:\\Exercices\\c.ppt"); }), denied);
    say(presentation, u"Close");
    EXPECT_EQ(remove(), noError);
    const auto error = errorOf([&] { ask(ask(powerPoint(), u"Presentations"), u"Item", 6); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->description(),
              u"Presentations.Item : Entier hors limites. 6 n'appartient pas à la plage valide de 1 à 0.");
}

TEST_F(MachineTest, HasNoActivePresentationWhileInvisible) {
    const LateBound application(services.servers.create(programmaticId));
    const auto active = [&](std::u16string_view member) { return errorNumber([&] { say(application, member); }); };
    EXPECT_EQ(number(application, u"WindowState"), 1);
    EXPECT_NE(errorNumber([&] { ask(ask(application, u"Presentations"), u"Add"); }), noError);
    ask(ask(application, u"Presentations"), u"Add", 0);
    EXPECT_EQ(number(ask(application, u"Presentations"), u"Count"), 1);

    application.put(u"Visible", msoTrue);
    EXPECT_NE(active(u"ActivePresentation"), noError);
    const LateBound shown = ask(ask(application, u"Presentations"), u"Add");
    EXPECT_TRUE(isSame(ask(application, u"ActivePresentation").object(), shown.object()));
    EXPECT_EQ(active(u"ActiveWindow"), noError);
    EXPECT_NE(errorNumber([&] { application.put(u"Visible", 0); }), noError);

    machine.hidePowerPoint();
    EXPECT_EQ(number(application, u"Visible"), 0);
    EXPECT_NE(active(u"ActiveWindow"), noError);
    EXPECT_NE(active(u"ActivePresentation"), noError);
    EXPECT_EQ(active(u"WindowState"), noError);
}

} // namespace machine_tests
