#include "simulator/Machine.h"

#include "automation/Text.h"
#include "host/world/TemporaryFolder.h"
#include "tests/support/Errors.h"
#include "tests/support/Script.h"
#include "tests/trials/histories/History.h"

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

/// A statement with a number in it, "#", and the least and the most that PowerPoint takes there.
struct Bounds {
    std::u16string_view statement;
    std::int32_t least;
    std::int32_t most;
};

TEST(Objects, TakeNumbersWithinTheirBoundsAlone) {
    constexpr auto bounds = std::to_array<Bounds>({
        {u"s.Line.Weight = #", 0, 1584},
        {u"s.Line.DashStyle = #", 1, 8},
        {u"s.Line.Pattern = #", 1, 48},
        {u"s.Line.Style = #", 1, 5},
        {u"s.Line.Transparency = #", 0, 1},
        {u"s.Line.BeginArrowheadStyle = #", 1, 6},
        {u"s.Line.EndArrowheadLength = #", 1, 3},
        {u"s.Line.EndArrowheadWidth = #", 1, 3},
        {u"s.Fill.Transparency = #", 0, 1},
        {u"s.Fill.Patterned #", 1, 48},
        {u"s.Fill.OneColorGradient 1, 1, #", 0, 1},
        {u"s.Fill.TwoColorGradient #, 1", 1, 7},
        {u"s.Fill.TwoColorGradient 1, #", 1, 4},
        {u"s.Fill.PresetGradient 1, 1, #", 1, 24},
        {u"s.Fill.PresetTextured #", 1, 24},
        {u"s.Fill.ForeColor.RGB = #", 0, 0xFFFFFF},
        {u"s.Fill.ForeColor.SchemeColor = #", 1, 8},
        {u"s.Shadow.Type = #", 1, 20},
        {u"s.Shadow.Transparency = #", 0, 1},
        {u"s.ThreeD.SetThreeDFormat #", 1, 20},
        {u"s.ThreeD.RotationX = #", -90, 90},
        {u"s.ThreeD.RotationY = #", -90, 90},
        {u"s.ThreeD.PresetMaterial = #", 1, 4},
        {u"s.ThreeD.PresetLightingDirection = #", 1, 9},
        {u"s.ThreeD.PresetLightingSoftness = #", 1, 3},
        {u"s.ThreeD.SetExtrusionDirection #", 1, 9},
        {u"s.AutoShapeType = #", 1, 137},
        {u"s.ZOrder #", 0, 3},
        {u"s.Flip #", 0, 1},
        {u"s.TextFrame.AutoSize = #", 0, 1},
        {u"s.TextFrame.MarginTop = #", 0, 1584},
        {u"s.TextFrame.Orientation = #", 1, 6},
        {u"s.TextFrame.HorizontalAnchor = #", 1, 2},
        {u"s.TextFrame.VerticalAnchor = #", 1, 5},
        {u"t.Font.Size = #", 1, 4000},
        {u"t.Font.BaselineOffset = #", -1, 1},
        {u"t.IndentLevel = #", 1, 5},
        {u"t.ChangeCase #", 1, 5},
        {u"t.ParagraphFormat.Alignment = #", 1, 5},
        {u"t.ParagraphFormat.SpaceWithin = #", 0, 132},
        {u"t.ParagraphFormat.Bullet.Type = #", 0, 2},
        {u"t.ParagraphFormat.Bullet.Character = #", 0, 0xFFFF},
        {u"c.ConnectorFormat.Type = #", 1, 3},
        {u"c.ConnectorFormat.BeginConnect s, #", 1, 4},
        {u"w.TextEffect.FontSize = #", 1, 4000},
        {u"w.TextEffect.PresetTextEffect = #", 0, 29},
        {u"g.Borders(#).Weight = 1", 1, 6},
        {u"ActivePresentation.Slides(1).SlideShowTransition.Speed = #", 1, 3},
        {u"ActivePresentation.Slides(1).SlideShowTransition.AdvanceTime = #", 0, 86400},
        {u"ActivePresentation.SlideShowSettings.ShowType = #", 1, 3},
        {u"ActivePresentation.GridDistance = #", 1, 144},
        {u"ActivePresentation.PageSetup.SlideWidth = #", 72, 4032},
        {u"ActivePresentation.PageSetup.SlideHeight = #", 72, 4032},
        {u"ActivePresentation.Slides(1).Shapes.AddShape #, 0, 0, 9, 9", 1, 137},
        {u"ActivePresentation.Slides(1).Shapes.AddConnector #, 0, 0, 9, 9", 1, 3},
        {u"ActivePresentation.Slides(1).Shapes.AddTable #, 1", 1, 25},
        {u"ActivePresentation.Slides(1).Shapes.AddTable 1, #", 1, 25},
    });
    for (const Bounds& row : bounds) {
        trials::histories::History history({});
        for (const std::u16string_view each :
             {u"Presentations.Add", u"Set all = ActivePresentation.Slides.Add(1, 12).Shapes",
              u"Set s = all.AddShape(1, 10, 20, 80, 40)", u"Set t = s.TextFrame.TextRange", u"t.Text = \"un\"",
              u"Set c = all.AddConnector(1, 0, 0, 9, 9)", u"Set g = all.AddTable(1, 1).Table.Cell(1, 1)",
              u"Set w = all.AddTextEffect(0, \"un\", \"Arial\", 36, 0, 0, 10, 10)"}) {
            ASSERT_TRUE(history.perform(std::u16string(each))) << automation::toUtf8(each);
        }
        for (const std::int32_t value : {row.least - 1, row.least, row.most, row.most + 1}) {
            std::u16string statement(row.statement);
            statement.replace(statement.find(u'#'), 1, automation::decimal(value));
            EXPECT_EQ(history.perform(statement), value >= row.least && value <= row.most)
                << automation::toUtf8(statement);
        }
    }
}

} // namespace machine_tests
