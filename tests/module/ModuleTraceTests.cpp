#include "host/world/TemporaryFolder.h"
#include "module/Module.h"
#include "platform/observed/ObservedServices.h"
#include "simulator/Machine.h"
#include "tests/support/Errors.h"
#include "tests/support/Script.h"
#include "tests/trials/trace/TraceLog.h"

namespace module_trace_tests {

using automation::LateBound;
using automation::ObjectPtr;
using tests::ask;
using tests::say;

constexpr std::u16string_view folder = u"C:\\Formation\\";

/// A computer with a delivered presentation of one slide, and a module whose calls are written down. What it does once
/// it has its PowerPoint stands in the expected traces.
class ModuleTrace : public testing::Test {
protected:
    ModuleTrace() { deliver(); }

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

    void init() { module.InitQuestion(301, std::u16string(folder), application, window, u""); }

    void bringPowerPoint() {
        machine.startPowerPoint();
        application = automation::observed(machine.application(), log);
        window = machine.mainWindow();
    }

    std::string obtaining() {
        init();
        const std::string all = log->take();
        const std::size_t start = all.find("Registry.close\n") + 15;
        return all.substr(start, all.find("Application.CommandBars.Count") - start);
    }

    host::TemporaryFolder root;
    simulator::Machine machine{root.path()};
    std::shared_ptr<trials::trace::TraceLog> log = std::make_shared<trials::trace::TraceLog>();
    platform::ObservedServices observed{machine.services(), log};
    exercises::API api;
    ObjectPtr application;
    std::int32_t window = -1;
    k73053::Module module{api, observed.services()};
};

/// How PowerPoint is obtained: what comes between the key of the recent folders and the learner's settings.
TEST_F(ModuleTrace, AttachesToARunningPowerPoint) {
    machine.startPowerPoint();
    EXPECT_EQ(obtaining(), R"~(Servers.attach("PowerPoint.application.11")
Application.Visible = -1
Windows.findWindow("PP11FrameClass")
Application.ShowStartupDialog
)~");
}

TEST_F(ModuleTrace, LeavesTheHostsPowerPointRunning) {
    bringPowerPoint();
    static_cast<void>(obtaining());
    module.Quitter(application, window);
    EXPECT_TRUE(machine.isPowerPointRunning());
}

TEST_F(ModuleTrace, TakesTheSamePowerPointAgain) {
    init();
    module.Fermer();
    deliver();
    static_cast<void>(log->take());
    EXPECT_EQ(obtaining(), R"~(Windows.className((window))
Windows.isVisible((window))
Windows.isVisible((window))
)~");
    module.Quitter(application, window);
    EXPECT_FALSE(machine.isPowerPointRunning()) << "the module's own PowerPoint is still its own";
}

TEST_F(ModuleTrace, StartsAfreshWhereTheHostsWindowIsDead) {
    init();
    module.Fermer();
    machine.endPowerPoint();
    deliver();
    static_cast<void>(log->take());
    EXPECT_EQ(obtaining(), R"~(Windows.className((window))
Servers.attach("PowerPoint.application.11")
Servers.create("PowerPoint.application.11")
Application.Visible = -1
Windows.findWindow("PP11FrameClass")
Application.ShowStartupDialog
)~");
}

TEST_F(ModuleTrace, QuitsAHiddenPowerPointAndStartsAnother) {
    bringPowerPoint();
    machine.hidePowerPoint();
    EXPECT_EQ(obtaining(), R"~(Windows.className((window))
Windows.isVisible(0)
Windows.isVisible((window))
Application.WindowState
Application.Quit
Windows.isVisible((window))
Servers.create("PowerPoint.application.11")
Application.Visible = -1
Windows.findWindow("PP11FrameClass")
Application.ShowStartupDialog
)~");
}

} // namespace module_trace_tests
