#include "module/Module.h"

#include "automation/FirstError.h"
#include "exercises/Catalogue.h"
#include "module/Entry.h"
#include "module/QuestionMembers.h"
#include "module/TemplatesFolder.h"
#include "platform/ErrorReport.h"

namespace k73053 {

using automation::FirstError;
using automation::LateBound;
using automation::ObjectPtr;
using automation::ObjectVariable;
using automation::Value;
using platform::ignoringErrors;

namespace {

constexpr std::int32_t unknownWindow = -1;

} // namespace

Module::Module(exercises::API& api, const platform::Services& services)
    : api_(api), services_(services), session_(services), settings_(services.registry), staging_(services.files, api) {}

Module::~Module() {
    ignoringErrors([&] {
        const Entry entry(u"Release");
        restoreLeftovers();
    });
}

void Module::InitQuestion(std::int32_t questionNumber, const std::u16string& folder, ObjectVariable& application,
                          std::int32_t& window, const std::u16string& /*unused*/) {
    const Entry entry(u"InitQuestion");
    settings_.createKey();
    forgetClosedPowerPoint(application, window);
    try {
        obtainPowerPoint(application, window);
        if (!question_) {
            ignoringErrors([&] { restoreLeftovers(); });
        }
        settings_.SauveParamUser(session_.application());
    } catch (const automation::Error& error) {
        session_.closeWhatRefuses(error);
        throw;
    }
    session_.FermeDialogues(session_.window());
    if (question_) {
        FermeQuestion();
    }
    platform::reporting(u"Module", u"InitQuestion", platform::ReportedObject::Description, [&] {
        questionNumber_ = questionNumber;
        question_ = LateBound(exercises::createQuestion(questionNumber, {api_, services_}));
        staging_.hostFolder = folder;
        staging_.templatesFolder = templatesFolder(services_.registry);
        services_.files.makeDirectories(staging_.templatesFolder);
    });
    staging_.Nettoyage(question_, session_.application());
    staging_.Renomme(question_);
    api_.PremierFichier = Staging::firstFile(question_);
    api_.DossierHote = folder;
    settings_.commandBars.willChange(session_.application());
    session_.InitCommandBar();
    session_.application().CommandBars().DisplayTooltips(true);
    prepareQuestion(folder);
    settings_.ChangeDir(question_.get(members::PathDossierParDefaut).to<std::u16string>(), staging_.templatesFolder);
    session_.restoreStartupDialog();
    session_.ActiveFenetre();
}

void Module::forgetClosedPowerPoint(ObjectVariable& application, std::int32_t& window) {
    if (window != unknownWindow && !services_.windows.className(window)) {
        application.set(nullptr);
        window = unknownWindow;
        session_.forget();
    }
}

void Module::obtainPowerPoint(ObjectVariable& application, std::int32_t& window) {
    if (!application.get()) {
        return startPowerPoint(application, window);
    }
    const bool isAnother = !automation::isSame(application.get(), session_.application().object());
    if (isAnother) {
        started_ = false;
    }
    // For what it does, not for its answer: a PowerPoint of an earlier question that has become invisible is quit
    // before the host's takes its place.
    static_cast<void>(session_.PowerPointVisible());
    session_.adopt(application.get(), window);
    if (!session_.PowerPointVisible()) {
        application.set(nullptr);
        startPowerPoint(application, window);
    } else if (isAnother) {
        session_.readStartupDialog();
    }
}

void Module::startPowerPoint(ObjectVariable& application, std::int32_t& window) {
    session_.GetApplication();
    started_ = true;
    application.set(session_.application().object());
    window = session_.window();
}

void Module::prepareQuestion(const std::u16string& folder) {
    Value application(session_.application().object());
    Value hostFolder(folder);
    Value templates(staging_.templatesFolder);
    question_.call(members::Prepare, Value::reference(application), Value::reference(hostFolder),
                   Value::reference(templates));
    session_.adopt(application.to<ObjectPtr>(), session_.window());
}

void Module::TestePoint() {
    const Entry entry(u"TestePoint");
    std::u16string cause;
    FirstError error;
    error.attempt([&] { cause = check(); });
    // Only now: a reader that comes in during the check answers from the last one.
    generalError_ = !cause.empty();
    causeText_ = std::move(cause);
    error.raise();
}

std::u16string Module::check() {
    if (!session_.PowerPointVisible()) {
        return u"AK";
    }
    if (!session_.PowerPointRepond()) {
        return u"%AL";
    }
    if (!session_.ActiveFenetre()) {
        return u"AM";
    }
    std::u16string cause;
    if (staging_.VerifieTravail(questionNumber_, session_.application(), cause)) {
        question_.call(members::TestePoint);
    }
    return cause;
}

std::u16string Module::CauseErreur() const {
    return generalError_ ? causeText_ : question_.get(members::CauseErreur).to<std::u16string>();
}

bool Module::BravoNuance() const {
    return question_.get(members::BravoNuance).to<bool>();
}

ObjectPtr Module::Complement() const {
    return question_.get(members::ComplementInfo).to<ObjectPtr>();
}

void Module::FermeQuestion() {
    // The learner's settings and the question are given back whatever PowerPoint refuses on the way.
    FirstError error;
    error.attempt([&] { leavePowerPointAsFound(); });
    if (question_) {
        error.attempt([&] { settings_.RestaureParamUser(); });
    }
    error.attempt([&] { question_.call(members::Fermer); });
    question_ = LateBound();
    error.raise();
}

void Module::leavePowerPointAsFound() {
    if (!session_.PowerPointVisible()) {
        return;
    }
    session_.FermeDialogues(session_.window());
    session_.readKeptSettings();
    if (session_.PowerPointRepond()) {
        FirstError error;
        error.attempt([&] { staging_.Nettoyage(question_, session_.application()); });
        error.attempt([&] { settings_.commandBars.restore(session_.application()); });
        error.raise();
    }
}

void Module::restoreLeftovers() {
    if (settings_.commandBars.isChanged() && services_.windows.isVisible(session_.window()) &&
        session_.PowerPointRepond()) {
        settings_.commandBars.restore(session_.application());
    }
    settings_.restoreLeftovers();
}

void Module::Fermer() {
    const Entry entry(u"Fermer");
    if (!question_ && settings_.isChanged()) {
        return restoreLeftovers();
    }
    FermeQuestion();
}

void Module::Quitter(ObjectVariable& application, std::int32_t& window) {
    const Entry entry(u"Quitter");
    FirstError error;
    if (question_) {
        error.attempt([&] { FermeQuestion(); });
    }
    ignoringErrors([&] { restoreLeftovers(); });
    error.attempt([&] {
        if (session_.PowerPointVisible() && started_ && !session_.isHung()) {
            ppt::Application(application.get()).Quit();
            window = 0;
            application.set(nullptr);
        }
    });
    session_.forget();
    error.raise();
}

const automation::MemberTable& Module::members() const {
    using automation::method;
    static const automation::MemberTable table{
        method<&Module::InitQuestion>(u"InitQuestion", u"NumeroQuestion Dossier Application Fenetre Reserve"),
        method<&Module::TestePoint>(u"TestePoint"),
        method<&Module::ErreurGenerale>(u"ErreurGenerale"),
        method<&Module::CauseErreur>(u"CauseErreur"),
        method<&Module::BravoNuance>(u"BravoNuance"),
        method<&Module::Complement>(u"Complement"),
        method<&Module::Fermer>(u"Fermer"),
        method<&Module::Quitter>(u"Quitter", u"Application Fenetre"),
    };
    return table;
}

} // namespace k73053
