#include "host/run/TrainingHost.h"

#include "platform/ErrorReport.h"

namespace host {

TrainingHost::TrainingHost(World& world, const Course& course, std::int32_t question, Witness& witness)
    : world_(world), course_(course), question_(question), witness_(witness) {
    deliver(question);
}

void TrainingHost::deliver(std::int32_t question) {
    witness_.delivered(course_.deliver(world_, question));
    delivered_ = question;
}

template <typename Operation> void TrainingHost::call(HostCall name, const Operation& operation) {
    witness_.calling(name);
    try {
        operation();
    } catch (const automation::Error& error) {
        witness_.called(name, &error);
        throw;
    }
    witness_.called(name, nullptr);
}

void TrainingHost::initQuestion(std::int32_t question, const std::u16string& folder) {
    if (delivered_ != question) {
        deliver(question);
    }
    delivered_ = 0;
    isLeft_ = false;
    isOpen_ = false;
    call(HostCall::InitQuestion, [&] { world_.module().initQuestion(question, folder, application, window); });
    isOpen_ = true;
}

void TrainingHost::testePoint() {
    isLeft_ = false;
    call(HostCall::TestePoint, [&] { world_.module().testePoint(); });
}

Reading TrainingHost::check() {
    std::optional<automation::Error> raised;
    try {
        testePoint();
    } catch (const automation::Error& error) {
        raised = error;
    }
    Reading reading = read();
    if (raised) {
        reading.error = raised;
    }
    witness_.explain(reading);
    lastReading_ = reading;
    witness_.judged(reading);
    return reading;
}

Reading TrainingHost::read() {
    Reading reading;
    ModuleClient& module = world_.module();
    try {
        reading.erreurGenerale = module.erreurGenerale();
        reading.causeErreur = module.causeErreur();
        reading.bravoNuance = module.bravoNuance();
        reading.complement = module.complement();
    } catch (const automation::Error& error) {
        // Behind a general error there may be no question that could answer.
        if (!reading.erreurGenerale) {
            reading.error = error;
        }
    }
    return reading;
}

void TrainingHost::fermer() {
    isLeft_ = false;
    isOpen_ = false;
    call(HostCall::Fermer, [&] { world_.module().fermer(); });
}

void TrainingHost::quitter() {
    isLeft_ = true;
    isOpen_ = false;
    call(HostCall::Quitter, [&] { world_.module().quitter(application, window); });
}

void TrainingHost::kill() {
    isLeft_ = true;
    isOpen_ = false;
    world_.killHost();
}

void TrainingHost::finish() {
    if (isOpen_) {
        fermer();
    }
    if (!isLeft_) {
        quitter();
    }
}

} // namespace host
