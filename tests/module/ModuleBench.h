#pragma once

#include "host/world/TemporaryFolder.h"
#include "module/Module.h"
#include "platform/observed/ObservedServices.h"
#include "simulator/Machine.h"
#include "tests/support/Errors.h"
#include "tests/support/Script.h"

namespace tests {

inline constexpr std::u16string_view folder = u"C:\\Formation\\";

/// A module on a computer with the delivered presentation of question 301, of one slide; its calls pass through an
/// observer.
template <typename Observer> class ModuleBench : public testing::Test {
public:
    ModuleBench() { deliver(); }

    void deliver() {
        const bool wasRunning = machine.isPowerPointRunning();
        machine.startPowerPoint();
        machine.createFile(std::u16string(folder) + u"x");
        const automation::LateBound deck =
            ask(ask(automation::LateBound(machine.application()), u"Presentations"), u"Add");
        ask(ask(deck, u"Slides"), u"Add", 1, 12);
        say(deck, u"SaveAs", std::u16string(folder) + u"07305301.ppt");
        say(deck, u"Close");
        if (!wasRunning) {
            machine.endPowerPoint();
        }
    }
    void init() { module.InitQuestion(301, std::u16string(folder), application, window, u""); }

    host::TemporaryFolder root;
    simulator::Machine machine{root.path()};
    std::shared_ptr<Observer> calls = std::make_shared<Observer>();
    platform::ObservedServices observed{machine.services(), calls};
    exercises::API api;
    automation::Value hosts;
    automation::ObjectVariable application{hosts};
    std::int32_t window = -1;
    k73053::Module module{api, observed.services()};
};

} // namespace tests
