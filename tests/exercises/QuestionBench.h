#pragma once

#include "automation/Text.h"
#include "exercises/Catalogue.h"
#include "host/language/Interpreter.h"
#include "host/language/Parser.h"
#include "host/world/TemporaryFolder.h"
#include "platform/observed/ObservedServices.h"
#include "simulator/Machine.h"
#include "simulator/files/WholeFile.h"
#include "tests/support/Script.h"

#include <algorithm>

namespace tests {

/// One question without the module around it, on a computer where the presentation of its scenario file lies ready, and
/// the moves of the file's first scenario, by which a learner passes.
class QuestionBench final : public host::language::Stage {
public:
    static constexpr std::u16string_view folder = u"C:\\Formation\\";

    explicit QuestionBench(std::int32_t number)
        : number_(number),
          file_(host::language::parse("first scenario", read("/0" + std::to_string(number) + ".scn"))) {
        machine.startPowerPoint();
        application_ = automation::LateBound(machine.application());
        createFile(u"Cours.txt");
        for (const host::language::Statement& statement : file_.course) {
            interpreter_.execute(statement);
        }
        interpreter_.forget();
        say(ask(application_, u"ActivePresentation"), u"SaveAs", std::u16string(folder) + u"Méthodologie.ppt");
        closePresentation();
    }

    [[nodiscard]] std::u16string className() const { return u"Question0" + automation::decimal(number_); }

    /// Makes the question and has it prepared; its calls pass through the observer.
    void prepare(const automation::ObserverPtr& observer) {
        services_ = std::make_unique<platform::ObservedServices>(machine.services(), observer);
        question = exercises::createQuestion(number_, {api, services_->services()});
        automation::ObjectPtr observed = automation::observed(machine.application(), observer);
        question->Prepare(observed, std::u16string(folder), std::nullopt);
    }

    /// What the learner does before the first check of the scenario.
    void work() {
        for (const host::language::Statement& move : scenario().firstMoves()) {
            interpreter_.execute(move);
        }
        interpreter_.forget();
    }

    [[nodiscard]] std::int32_t presentations() const { return number(ask(application_, u"Presentations"), u"Count"); }
    void closePresentation() { say(ask(application_, u"ActivePresentation"), u"Close"); }

    automation::ObjectPtr application() override { return machine.application(); }
    automation::ObjectPtr object(std::u16string_view name) override {
        return name == u"Host" || name == u"Files" ? std::make_shared<Desk>(*this) : nullptr;
    }
    host::Reading testePoint() override {
        host::Reading reading;
        try {
            question->TestePoint();
        } catch (const automation::Error& error) {
            reading.error = error;
        }
        reading.causeErreur = question->CauseErreur();
        reading.bravoNuance = question->BravoNuance() != 0;
        return reading;
    }

    host::TemporaryFolder root;
    simulator::Machine machine{root.path()};
    exercises::API api;
    exercises::QuestionPtr question;

private:
    /// `Host.Folder` and `Files.Create`, as far as the moves before a first check go.
    class Desk final : public automation::Object {
    public:
        explicit Desk(QuestionBench& bench) : bench_(bench) {}
        automation::Value invoke(const automation::Name& name, automation::Access /*access*/,
                                 std::span<automation::Value> arguments) override {
            if (name.matches(u"Folder")) {
                return folder;
            }
            bench_.createFile(arguments.front().to<std::u16string>());
            return {};
        }

    private:
        QuestionBench& bench_;
    };

    static std::string read(const std::string& name) {
        return simulator::files::wholeFile(SCENARIOS "/questions" + name).value();
    }

    void createFile(const std::u16string& name) { machine.createFile(std::u16string(folder) + name); }

    [[nodiscard]] const host::language::Scenario& scenario() const { return file_.scenarios.front(); }

    std::int32_t number_;
    host::language::ScenarioFile file_;
    host::language::Interpreter interpreter_{*this};
    automation::LateBound application_;
    std::unique_ptr<platform::ObservedServices> services_;
};

} // namespace tests
