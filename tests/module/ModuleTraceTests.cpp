#include "tests/module/ModuleBench.h"
#include "tests/trials/trace/TraceLog.h"

namespace module_trace_tests {

/// What the module does once it has its PowerPoint stands in the expected traces.
class ModuleTrace : public tests::ModuleBench<trials::trace::TraceLog> {
protected:
    void bringPowerPoint() {
        machine.startPowerPoint();
        application.set(automation::observed(machine.application(), calls));
        window = machine.mainWindow();
    }

    std::string obtaining() {
        init();
        const std::string all = calls->take();
        const std::size_t start = all.find("Registry.close\n") + 15;
        return all.substr(start, all.find("Application.CommandBars.Count") - start);
    }
};

/// How PowerPoint is obtained: what comes between the key of the recent folders and the learner's settings.
TEST_F(ModuleTrace, AttachesToARunningPowerPoint) {
    for (int again = 0; again < 2; ++again) {
        machine.startPowerPoint();
        EXPECT_EQ(obtaining(), R"~(Servers.attach("PowerPoint.application.11")
Application.Visible = -1
Windows.findWindow("PP11FrameClass")
Application.ShowStartupDialog
)~");
        module.Quitter(application, window);
        static_cast<void>(calls->take());
        window = -1;
        deliver();
    }
}

TEST_F(ModuleTrace, TakesTheSamePowerPointAgain) {
    init();
    module.Fermer();
    deliver();
    static_cast<void>(calls->take());
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
    static_cast<void>(calls->take());
    EXPECT_EQ(obtaining(), R"~(Windows.className((window))
Servers.attach("PowerPoint.application.11")
Servers.create("PowerPoint.application.11")
Application.Visible = -1
Windows.findWindow("PP11FrameClass")
Application.ShowStartupDialog
)~");
}

TEST_F(ModuleTrace, GivesNoPowerPointBackThatItHasQuitAndCannotReplace) {
    bringPowerPoint();
    machine.hidePowerPoint();
    machine.uninstallPowerPoint();
    EXPECT_NE(errorNumber([&] { init(); }), noError);
    EXPECT_EQ(application.get(), nullptr);
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
