#include "module/Entry.h"
#include "simulator/process/Process.h"
#include "tests/module/ModuleBench.h"

namespace module_fault_tests {

using automation::Access;
using automation::Crossing;
using automation::Value;
using platform::Registry;
using tests::folder;

/// Makes every call fail that a test picks, and answers others in the place of who was called.
class FailingCalls final : public automation::Observer {
public:
    Value around(const Crossing& crossing, const Next& next) override {
        if (fails && fails(crossing)) {
            throw error;
        }
        const std::optional<Value> answer = answers ? answers(crossing) : std::nullopt;
        return answer ? *answer : next();
    }
    /// From now on a member always answers the same; `seen` counts how often it was asked.
    void answer(std::u16string_view member, const Value& value) {
        seen = 0;
        answers = [this, member, value](const Crossing& crossing) {
            const bool isAsked = crossing.member == member;
            seen += isAsked ? 1 : 0;
            return isAsked ? std::make_optional(value) : std::nullopt;
        };
    }

    std::function<bool(const Crossing&)> fails;
    std::function<std::optional<Value>(const Crossing&)> answers;
    int seen = 0;
    automation::Error error{automation::RunTimeError::PathAccess};
};

class ModuleFaults : public tests::ModuleBench<FailingCalls> {
public:
    ModuleFaults() { machine.startPowerPoint(); }
};

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
    EXPECT_EQ(closing->source(), u"DLL K61027 - CLASSE Module\n\r - SERVICE RestaureParamUser - OBJET " +
                                     std::u16string(access) + u"Default");
    calls->fails = nullptr;
    module.Fermer();
    EXPECT_NE(machine.registryText(u"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList", u"Default"),
              folder)
        << "the learner's folder comes back without a question";
    EXPECT_EQ(errorNumber([&] { module.Fermer(); }), 91) << "nothing is kept any more";
}

TEST_F(ModuleFaults, EveryOperationIsRefusedInEveryCallOfEveryOther) {
    k73053::Module another(api, observed.services());
    Value unset;
    automation::ObjectVariable nothing(unset);
    std::int32_t unknown = -1;
    std::size_t entered = 0;
    bool isProbing = false;
    const auto expectRefused = [&](std::u16string_view operation, const auto& call) {
        const auto refused = errorOf(call);
        ASSERT_TRUE(refused);
        EXPECT_EQ(refused->number(), automation::remote::retryLater);
        EXPECT_TRUE(refused->source().starts_with(u"DLL K61027 - CLASSE Module\n\r - SERVICE " +
                                                  std::u16string(operation) + u" - OBJET "));
    };
    calls->fails = [&](const Crossing&) {
        if (std::exchange(isProbing, true)) {
            return false;
        }
        for (k73053::Module* const probed : {&module, &another}) {
            expectRefused(u"InitQuestion", [&] { probed->InitQuestion(302, u"D:\\", nothing, unknown, u""); });
            expectRefused(u"TestePoint", [&] { probed->TestePoint(); });
            expectRefused(u"Fermer", [&] { probed->Fermer(); });
            expectRefused(u"Quitter", [&] { probed->Quitter(nothing, unknown); });
            static_cast<void>(probed->ErreurGenerale());
            static_cast<void>(errorNumber([&] { static_cast<void>(probed->CauseErreur()); }));
            static_cast<void>(errorNumber([&] { static_cast<void>(probed->BravoNuance()); }));
            static_cast<void>(errorNumber([&] { static_cast<void>(probed->Complement()); }));
        }
        ++entered;
        isProbing = false;
        return false;
    };
    const auto runs = [&](const auto& operation) {
        const std::size_t before = entered;
        operation();
        EXPECT_GT(entered, before);
    };
    runs([&] { init(); });
    runs([&] { module.TestePoint(); });
    EXPECT_FALSE(module.ErreurGenerale());
    EXPECT_EQ(module.CauseErreur(), u"");
    EXPECT_TRUE(module.Complement()) << "question 301 finds nothing wrong, but it has been asked";
    runs([&] { module.Fermer(); });
    runs([&] { module.Quitter(application, window); });
    EXPECT_FALSE(machine.isPowerPointRunning());
    calls->fails = nullptr;
    EXPECT_EQ(errorNumber([&] { another.Fermer(); }), 91) << "free again";
}

TEST_F(ModuleFaults, NothingIsNothingHoweverTheHostSaysIt) {
    Value brought; // empty, as null arrives as well
    Value handle(std::int32_t{-1});
    const automation::LateBound host(std::shared_ptr<automation::Object>(&module, [](automation::Object*) {}));
    const auto start = [&] {
        host.call(u"InitQuestion", std::int32_t{301}, folder, Value::reference(brought), Value::reference(handle), u"");
    };
    {
        const k73053::Entry other(u"Fermer");
        EXPECT_EQ(errorNumber(start), automation::remote::retryLater);
        EXPECT_TRUE(brought.isEmpty());
    }
    start();
    EXPECT_TRUE(brought.isObject());
    host.call(u"Quitter", Value::reference(brought), Value::reference(handle));
    EXPECT_EQ(brought, Value(nullptr));
    EXPECT_EQ(errorNumber(start), 53) << "taken for nothing; what is missing now is the delivered file";
}

TEST_F(ModuleFaults, AnObjectThatTheModuleDropsIsGoneAtOnce) {
    struct Remembered final : automation::Object {
        Value invoke(const automation::Name&, Access, std::span<Value>) override { return {}; }
    };
    auto object = std::make_shared<Remembered>();
    const std::weak_ptr<Remembered> old = object;
    Value brought(std::move(object));
    Value handle(std::int32_t{12345});
    bool isDropped = false;
    calls->fails = [&](const Crossing& crossing) {
        EXPECT_EQ(old.expired(), isDropped);
        isDropped = isDropped || crossing.member == u"className"; // of a window that is no more
        return false;
    };
    const automation::LateBound host(std::shared_ptr<automation::Object>(&module, [](automation::Object*) {}));
    host.call(u"InitQuestion", std::int32_t{301}, folder, Value::reference(brought), Value::reference(handle), u"");
    calls->fails = nullptr;
}

TEST_F(ModuleFaults, BarsThatNoCloseCouldPutBackComeBackAtRelease) {
    const auto taskPane = [&]() -> simulator::CommandBar& {
        simulator::CommandBarSet& all = machine.process()->settings().commandBars;
        return all.bars[all.find(u"Task Pane")];
    };
    for (const bool isMeanwhile : {false, true}) {
        ASSERT_TRUE(taskPane().visible);
        auto closing = std::make_unique<k73053::Module>(api, observed.services());
        closing->InitQuestion(301, std::u16string(folder), application, window, u"");
        EXPECT_FALSE(taskPane().visible);
        calls->fails = [](const Crossing& crossing) { return crossing.member == u"WindowState"; };
        closing->Fermer();
        EXPECT_FALSE(taskPane().visible);
        calls->fails = nullptr;
        {
            const std::optional<k73053::Entry> other(isMeanwhile ? std::make_optional<k73053::Entry>(u"Fermer")
                                                                 : std::nullopt);
            closing.reset();
        }
        EXPECT_EQ(taskPane().visible, !isMeanwhile) << "not in the middle of another operation";
        deliver();
    }
}

TEST_F(ModuleFaults, ABarThatHasGoneIsForgotten) {
    init();
    calls->fails = [](const Crossing& crossing) { return crossing.member == u"WindowState"; };
    module.Fermer();
    calls->fails = nullptr;
    machine.process()->settings().commandBars.bars.pop_back();
    deliver();
    init();
    module.Fermer();
    EXPECT_EQ(errorNumber([&] { module.Fermer(); }), 91) << "nothing is kept any more";
}

TEST_F(ModuleFaults, AReaderDuringACheckAnswersFromTheLast) {
    init();
    calls->fails = [](const Crossing& crossing) { return crossing.member == u"WindowState"; };
    module.TestePoint();
    calls->fails = [&](const Crossing& crossing) {
        EXPECT_EQ(module.CauseErreur(), u"%AL");
        return crossing.member == u"isHung" || crossing.member == u"Count";
    };
    EXPECT_EQ(errorNumber([&] { module.TestePoint(); }), 75);
    calls->fails = nullptr;
    EXPECT_FALSE(module.ErreurGenerale());
}

TEST_F(ModuleFaults, APowerPointThatHangsIsNotCalled) {
    machine.endPowerPoint();
    init();
    calls->answer(u"isHung", true);
    calls->fails = [](const Crossing& crossing) {
        EXPECT_NE(crossing.border, automation::Border::Automation);
        return false;
    };
    module.Quitter(application, window);
    calls->fails = nullptr;
    EXPECT_TRUE(machine.isPowerPointRunning());
}

TEST_F(ModuleFaults, ABarThatComesMeanwhileShiftsNoOther) {
    init();
    std::vector<simulator::CommandBar>& bars = machine.process()->settings().commandBars.bars;
    simulator::CommandBar shown;
    shown.name = u"Nouvelle";
    shown.visible = true;
    std::vector<simulator::CommandBar> expected = bars;
    bars.insert(bars.begin(), shown);
    module.Fermer();
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const bool isLearners = expected[i].name == u"Task Pane" || expected[i].visible;
        EXPECT_EQ(bars[i + 1].visible, isLearners) << i;
    }
    EXPECT_TRUE(bars[0].visible);
}

TEST_F(ModuleFaults, APowerPointThatDiesWhileItIsAttachedToIsReplaced) {
    calls->error = automation::Error(static_cast<std::int32_t>(0x80010012U), u"", u"");
    std::vector<std::u16string> reached;
    calls->fails = [&](const Crossing& crossing) {
        const bool isFirst = crossing.member == u"Visible" && crossing.target == u"Application" &&
                             std::find(reached.begin(), reached.end(), u"Servers.create") == reached.end();
        reached.push_back(std::u16string(crossing.target) + u'.' + std::u16string(crossing.member));
        return isFirst;
    };
    init();
    EXPECT_EQ(std::count(reached.begin(), reached.end(), u"Servers.create"), 1);
    calls->fails = nullptr;
}

TEST_F(ModuleFaults, BarsAreTriedOneByOneUnlessPowerPointDoesNotAnswerAtAll) {
    constexpr auto isGone = static_cast<std::int32_t>(0x800706BAU);
    struct Case {
        std::int32_t error;
        int tried;
    };
    simulator::CommandBarSet& all = machine.process()->settings().commandBars;
    all.bars[all.find(u"Drawing")].position = simulator::msoBarTop;
    const auto stand = [&] {
        std::vector<std::pair<bool, simulator::MsoBarPosition>> bars;
        for (const simulator::CommandBar& bar : all.bars) {
            bars.emplace_back(bar.visible, bar.position);
        }
        return bars;
    };
    const auto found = stand();
    for (const Case refused : {Case{75, 4}, Case{isGone, 1}, Case{automation::remote::callRejected, 1},
                               Case{automation::remote::retryLater, 1}}) {
        init();
        int tried = 0;
        calls->error = automation::Error(refused.error, u"", u"");
        calls->fails = [&](const Crossing& crossing) { return crossing.member == u"Position" && ++tried > 0; };
        module.Fermer();
        EXPECT_EQ(tried, refused.tried) << refused.error;
        calls->fails = nullptr;
        module.Fermer();
        EXPECT_EQ(stand(), found) << refused.error;
        deliver();
    }
}

TEST_F(ModuleFaults, DialogsAreClosedWhereACallIsRefusedAndThereAlone) {
    calls->fails = [](const Crossing& crossing) { return crossing.border == automation::Border::Automation; };
    for (const std::int32_t number : {automation::remote::callRejected, automation::remote::retryLater, 75}) {
        machine.openDialog(u"Police");
        calls->error = automation::Error(number, u"", u"");
        EXPECT_EQ(errorNumber([&] { init(); }), number);
        EXPECT_EQ(machine.dialogs(), number == 75 ? 1U : 0U);
    }
    calls->fails = nullptr;
}

TEST_F(ModuleFaults, ACheckSaysWhyPowerPointCannotBeAsked) {
    init();
    calls->answer(u"findWindow", platform::WindowHandle(0));
    module.TestePoint();
    EXPECT_EQ(module.CauseErreur(), u"AM");
}

TEST_F(ModuleFaults, OfTwoBarsOfOneNameTheFirstCounts) {
    std::vector<simulator::CommandBar>& bars = machine.process()->settings().commandBars.bars;
    bars.push_back(bars.front());
    bars.back().visible = !bars.front().visible;
    const bool isVisible = bars.front().visible;
    init();
    module.Fermer();
    EXPECT_EQ(bars.front().visible, isVisible);
    EXPECT_EQ(bars.back().visible, !isVisible);
}

TEST_F(ModuleFaults, AWindowThatStaysAnIconIsShown) {
    std::u16string shown;
    calls->fails = [&](const Crossing& crossing) {
        shown = crossing.member == u"show" ? crossing.display() : shown;
        return false;
    };
    calls->answer(u"isIconic", true);
    init();
    calls->fails = nullptr;
    EXPECT_TRUE(shown.ends_with(u", 3)")) << automation::toUtf8(shown);
}

TEST_F(ModuleFaults, AWalkOverWindowsThatChangePlacesEnds) {
    init();
    calls->answer(u"previous", window);
    module.Fermer();
    EXPECT_EQ(calls->seen, 10001);
}

TEST_F(ModuleFaults, DefaultIsWrittenFromABufferThatEndsWithANul) {
    init();
    const platform::OpenKey key(machine.services().registry,
                                u"SOFTWARE\\Microsoft\\Office\\11.0\\Powerpoint\\RecentFolderList", Registry::read);
    EXPECT_EQ(key.query(u"Default"), std::u16string(folder) + u'\0');
    EXPECT_EQ(key.query(u"PictureDir"), u"");
}

} // namespace module_fault_tests
