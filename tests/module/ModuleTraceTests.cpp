#include "host/world/TemporaryFolder.h"
#include "module/Module.h"
#include "platform/observed/ObservedServices.h"
#include "simulator/Machine.h"
#include "tests/support/Errors.h"
#include "tests/support/Script.h"
#include "tests/support/TraceLog.h"

namespace module_trace_tests {

using automation::LateBound;
using automation::ObjectPtr;
using tests::ask;
using tests::say;

constexpr std::u16string_view folder = u"C:\\Formation\\";

/// A computer with a delivered presentation of one slide, and a module whose calls are written down.
class ModuleTrace : public testing::Test {
protected:
    ModuleTrace() {
        log.hide(R"("SOFTWARE\Microsoft\Office\11.0\Powerpoint\RecentFolderList")", "(recent)");
        log.hide(R"("SOFTWARE\Microsoft\Office\11.0\Common\General")", "(general)");
        log.hide(R"(C:\Documents and Settings\Eleve\Mes documents\)", "(documents)");
        deliver();
    }

    void deliver() {
        const bool wasRunning = machine.isPowerPointRunning();
        machine.startPowerPoint();
        machine.createFile(std::u16string(folder) + u"x");
        const LateBound learners(machine.application());
        const LateBound deck = ask(ask(learners, u"Presentations"), u"Add");
        ask(ask(deck, u"Slides"), u"Add", 1, 12);
        say(deck, u"SaveAs", std::u16string(folder) + u"07305301.ppt");
        say(deck, u"Close");
        if (!wasRunning) {
            machine.endPowerPoint();
        }
    }

    std::string init(std::int32_t number = 301) {
        module.InitQuestion(number, std::u16string(folder), application, window, u"");
        log.hide(window, "(main)");
        return log.take();
    }

    void bringPowerPoint() {
        machine.startPowerPoint();
        application = automation::observed(machine.application(), log.observer());
        window = machine.mainWindow();
    }

    std::string obtaining() {
        const std::string all = init();
        const std::size_t start = all.find("Registry.close -> True\n") + 23;
        return all.substr(start, all.find("Application.CommandBars.Count") - start);
    }

    host::TemporaryFolder root;
    simulator::Machine machine{root.path()};
    tests::TraceLog log;
    platform::ObservedServices observed{machine.services(), log.observer()};
    exercises::API api;
    ObjectPtr application;
    std::int32_t window = -1;
    k73053::Module module{api, observed.services()};
};

TEST_F(ModuleTrace, WholeStartOfAQuestion) {
    EXPECT_EQ(init(), R"~(Registry.create((recent)) -> 0
Registry.close -> True
Servers.attach("PowerPoint.application.11") -> error 429
Servers.create("PowerPoint.application.11")
Application.Visible = -1
Windows.findWindow("PP11FrameClass") -> (main)
Application.ShowStartupDialog
Application.CommandBars.Count
Application.CommandBars.Item(...).Visible
Registry.open((recent), 3) -> 0
Registry.query("Default", 255) -> 0
Registry.close -> True
Registry.open((recent), 3) -> 0
Registry.query("MultimediaDir", 255) -> 0
Registry.close -> True
Registry.open((recent), 3) -> 0
Registry.query("PictureDir", 255) -> 0
Registry.close -> True
Registry.open((recent), 3) -> 0
Registry.query("TemplateDir", 255) -> 0
Registry.close -> True
Windows.previous((main)) -> 0
Registry.open((general), 131097) -> 0
Registry.enumerate(0) -> 0
Registry.enumerate(1) -> 259
Registry.close -> True
Registry.open("SOFTWARE\Microsoft\Windows\CurrentVersion\Explorer\Shell Folders", 3) -> 0
Registry.query("AppData", 255) -> 0
Registry.close -> True
Registry.open((general), 3) -> 0
Registry.query("Templates", 255) -> 0
Registry.close -> True
Files.makeDirectories("c:\documents and settings\eleve\application data\Microsoft\modèles\ZOR Modèles\") -> True
Application.Presentations.Count
Files.clearAttributes("C:\Formation\Méthodologie.ppt") -> error 53
Files.remove("C:\Formation\Méthodologie.ppt") -> error 53
Files.clearAttributes("C:\Formation\07305301.ppt")
Files.rename("C:\Formation\07305301.ppt", "C:\Formation\Méthodologie.ppt")
Application.CommandBars.Item("standard").Enabled
Application.CommandBars.Item("standard").Position
Application.CommandBars.Item("formatting").Enabled
Application.CommandBars.Item("formatting").Position
Application.CommandBars.Item("Drawing").Enabled
Application.CommandBars.Item("Drawing").Position
Application.CommandBars.Item("Task Pane").Enabled
Application.CommandBars.Item("Task Pane").Position
Application.CommandBars.DisplayTooltips
Application.CommandBars.Item("standard").Enabled = True
Application.CommandBars.Item("standard").Visible = False
Application.CommandBars.Item("standard").Position = 1
Application.CommandBars.Item("standard").Visible = True
Application.CommandBars.Item("formatting").Enabled = True
Application.CommandBars.Item("formatting").Visible = False
Application.CommandBars.Item("formatting").Position = 1
Application.CommandBars.Item("formatting").Visible = True
Application.CommandBars.Item("Drawing").Enabled = True
Application.CommandBars.Item("Drawing").Visible
Application.CommandBars.Item("Drawing").Position
Application.CommandBars.Item("Drawing").Visible = False
Application.CommandBars.Item("Drawing").Position = 3
Application.CommandBars.Item("Drawing").Visible = True
Application.CommandBars.Item("Task Pane").Enabled
Application.CommandBars.Item("Task Pane").Position = 2
Application.CommandBars.Item("Task Pane").Visible = False
Application.CommandBars.DisplayTooltips = True
Application.Presentations.Open("C:\Formation\Méthodologie.ppt", 0, 0, -1)
Application.ActivePresentation.Slides.Count
Application.ActivePresentation.Slides.Item(1).Tags.Add("Identite", "ZOR1")
Application.ActivePresentation.Slides.Count
Application.ActivePresentation.Slides.Count
Application.ActiveWindow.ViewType = 9
Application.ActiveWindow.Selection.Unselect
Registry.open((recent), 3) -> 0
Registry.set("Default", "C:\Formation\", 13) -> 0
Registry.close -> True
Registry.open((recent), 3) -> 0
Registry.set("MultimediaDir", "C:\Formation\", 0) -> 0
Registry.close -> True
Registry.open((recent), 3) -> 0
Registry.set("PictureDir", "C:\Formation\", 0) -> 0
Registry.close -> True
Registry.open((recent), 3) -> 0
Registry.set("TemplateDir", "c:\documents and settings\eleve\application data\Microsoft\modèles\ZOR Modèles\", 0) -> 0
Registry.close -> True
Application.ShowStartupDialog = -1
Windows.findWindow("PP11FrameClass") -> (main)
Application.WindowState = 3
Windows.isIconic((main)) -> False
Windows.setForeground((main)) -> True
)~");
}

TEST_F(ModuleTrace, GeneralChecks) {
    init();
    module.TestePoint();
    EXPECT_EQ(log.take(), R"~(Windows.isVisible((main)) -> True
Windows.isHung((main)) -> False
Application.WindowState
Application.WindowState = 3
Application.WindowState = 3
Windows.findWindow("PP11FrameClass") -> (main)
Application.WindowState = 3
Windows.isIconic((main)) -> False
Windows.setForeground((main)) -> True
Application.Presentations.Count
Application.Presentations.Item(1).Name
Application.Presentations.Item(1).FullName
Application.ActivePresentation.FullName
Application.ActivePresentation.Slides.Count
Application.ActivePresentation.Slides.Item(1).Tags.Item("Identite")
Application.ActivePresentation.Slides.Item(1).Tags.Item("Identite")
)~");
}

TEST_F(ModuleTrace, Closing) {
    init();
    module.Fermer();
    EXPECT_EQ(log.take(), R"~(Windows.isVisible((main)) -> True
Windows.previous((main)) -> 0
Application.CommandBars.Item("Task Pane").Visible
Application.ShowStartupDialog
Windows.isHung((main)) -> False
Application.WindowState
Application.WindowState = 3
Application.WindowState = 3
Application.Presentations.Count
Application.Presentations.Item(1).FullName
Application.Presentations.Item(1).Saved = -1
Application.Presentations.Item(1).Close
Files.clearAttributes("C:\Formation\Méthodologie.ppt")
Files.remove("C:\Formation\Méthodologie.ppt")
Application.CommandBars.Item(...).Position
Application.CommandBars.Item(...).Visible
Application.CommandBars.Item(17).Visible = True
Application.CommandBars.Item(...).Visible
Application.CommandBars.Item(...).Enabled
Application.CommandBars.DisplayTooltips
Registry.open((recent), 3) -> 0
Registry.set("Default", "(documents)", 47) -> 0
Registry.close -> True
Registry.open((recent), 3) -> 0
Registry.set("MultimediaDir", "(documents)Ma musique\", 58) -> 0
Registry.close -> True
Registry.open((recent), 3) -> 0
Registry.set("PictureDir", "(documents)Mes images\", 58) -> 0
Registry.close -> True
Registry.open((recent), 3) -> 0
Registry.set("TemplateDir", "C:\Documents and Settings\Eleve\Application Data\Microsoft\Modèles\", 68) -> 0
Registry.close -> True
)~");
    module.Quitter(application, window);
    EXPECT_EQ(log.take(), R"~(Windows.isVisible((main)) -> True
Application.Quit
)~");
}

/// How PowerPoint is obtained: what comes between the key of the recent folders and the learner's settings.
TEST_F(ModuleTrace, AttachesToARunningPowerPoint) {
    machine.startPowerPoint();
    EXPECT_EQ(obtaining(), R"~(Servers.attach("PowerPoint.application.11")
Application.Visible = -1
Windows.findWindow("PP11FrameClass") -> (main)
Application.ShowStartupDialog
)~");
}

TEST_F(ModuleTrace, TakesTheHostsPowerPoint) {
    bringPowerPoint();
    EXPECT_EQ(obtaining(), R"~(Windows.className((main)) -> True
Windows.isVisible(0) -> False
Windows.isVisible((main)) -> True
)~");
    module.Quitter(application, window);
    EXPECT_TRUE(machine.isPowerPointRunning()) << "the host's PowerPoint is left running";
}

TEST_F(ModuleTrace, TakesTheSamePowerPointAgain) {
    init();
    module.Fermer();
    deliver();
    static_cast<void>(log.take());
    EXPECT_EQ(obtaining(), R"~(Windows.className((main)) -> True
Windows.isVisible((main)) -> True
Windows.isVisible((main)) -> True
)~");
    module.Quitter(application, window);
    EXPECT_FALSE(machine.isPowerPointRunning()) << "the module's own PowerPoint is still its own";
}

TEST_F(ModuleTrace, StartsAfreshWhereTheHostsWindowIsDead) {
    init();
    module.Fermer();
    machine.endPowerPoint();
    deliver();
    static_cast<void>(log.take());
    EXPECT_EQ(obtaining(), R"~(Windows.className((main)) -> False
Servers.attach("PowerPoint.application.11") -> error 429
Servers.create("PowerPoint.application.11")
Application.Visible = -1
Windows.findWindow("PP11FrameClass") -> (main)
Application.ShowStartupDialog
)~");
}

TEST_F(ModuleTrace, QuitsAHiddenPowerPointAndStartsAnother) {
    bringPowerPoint();
    machine.hidePowerPoint();
    log.hide(window, "(hidden)");
    EXPECT_EQ(obtaining(), R"~(Windows.className((hidden)) -> True
Windows.isVisible(0) -> False
Windows.isVisible((hidden)) -> False
Application.WindowState
Application.Quit
Windows.isVisible((hidden)) -> False
Servers.create("PowerPoint.application.11")
Application.Visible = -1
Windows.findWindow("PP11FrameClass") -> (main)
Application.ShowStartupDialog
)~");
}

} // namespace module_trace_tests
