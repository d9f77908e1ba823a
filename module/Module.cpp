#include "module/Module.h"

#include "automation/FirstError.h"
#include "exercises/Catalogue.h"
#include "module/QuestionMembers.h"
#include "module/TemplatesFolder.h"
#include "platform/ErrorReport.h"

namespace k73053 {

using automation::FirstError;
using automation::LateBound;
using automation::ObjectPtr;
using automation::Value;
using platform::ignoringErrors;

namespace {

constexpr std::int32_t unknownWindow = -1;

} // namespace

Module::Module(exercises::API& api, const platform::Services& services)
    : api_(api), services_(services), session_(services), settings_(services.registry), staging_(services.files, api) {}

Module::~Module() {
    settings_.restoreLeftovers();
}

void Module::InitQuestion(std::int32_t questionNumber, const std::u16string& folder, ObjectPtr& application,
                          std::int32_t& window, const std::u16string& /*unused*/) {
    settings_.createKey();
    obtainPowerPoint(application, window);
    settings_.SauveParamUser(session_.application);
    session_.FermeDialogues(session_.window);
    if (question_) {
        FermeQuestion();
    }
    platform::reporting(u"Module", u"InitQuestion", platform::ReportedObject::Description,
                        [&] { createQuestion(questionNumber, folder); });
    stageQuestion(folder);
    prepareQuestion(folder);
}

void Module::obtainPowerPoint(ObjectPtr& application, std::int32_t& window) {
    if (window != unknownWindow && !services_.windows.className(window)) {
        application = nullptr;
        session_.application = ppt::Application();
        window = unknownWindow;
        session_.window = 0;
    }
    if (!application) {
        return startPowerPoint(application, window);
    }
    if (!automation::isSame(application, session_.application.object())) {
        started_ = false;
    }
    static_cast<void>(session_.PowerPointVisible());
    session_.application = ppt::Application(application);
    session_.window = window;
    if (!session_.PowerPointVisible()) {
        application = nullptr;
        startPowerPoint(application, window);
    }
}

void Module::startPowerPoint(ObjectPtr& application, std::int32_t& window) {
    session_.GetApplication();
    started_ = true;
    application = session_.application.object();
    window = session_.window;
}

void Module::createQuestion(std::int32_t questionNumber, const std::u16string& folder) {
    questionNumber_ = questionNumber;
    question_ = LateBound(exercises::createQuestion(questionNumber, {api_, services_}));
    staging_.hostFolder = folder;
    staging_.templatesFolder = templatesFolder(services_.registry);
    services_.files.makeDirectories(staging_.templatesFolder);
}

void Module::stageQuestion(const std::u16string& folder) {
    staging_.Nettoyage(question_, session_.application);
    staging_.Renomme(question_);
    const LateBound files(question_.get(members::FichiersDeTravail).to<ObjectPtr>());
    const LateBound first(files.call(members::Item, std::int32_t{1}).to<ObjectPtr>());
    api_.PremierFichier = first.get(members::NomDest).to<std::u16string>();
    api_.DossierHote = folder;
}

void Module::prepareQuestion(const std::u16string& folder) {
    settings_.commandBars.willChange(session_.application);
    session_.InitCommandBar();
    session_.application.CommandBars().DisplayTooltips(true);

    Value application(session_.application.object());
    Value hostFolder(folder);
    Value templates(staging_.templatesFolder);
    question_.call(members::Prepare, Value::reference(application), Value::reference(hostFolder),
                   Value::reference(templates));
    session_.application = ppt::Application(application);

    settings_.ChangeDir(question_.get(members::PathDossierParDefaut).to<std::u16string>(), staging_.templatesFolder);
    ignoringErrors(
        [&] { session_.application.ShowStartupDialog(session_.startupDialog ? ppt::msoTrue : ppt::msoFalse); });
    session_.ActiveFenetre();
}

void Module::TestePoint() {
    generalError_ = false;
    if (!session_.PowerPointVisible()) {
        return failGenerally(u"AK");
    }
    if (!session_.PowerPointRepond()) {
        return failGenerally(u"%AL");
    }
    if (!session_.ActiveFenetre()) {
        return failGenerally(u"AM");
    }
    if (!staging_.VerifieTravail(questionNumber_, session_.application, causeText_)) {
        generalError_ = true;
        return;
    }
    question_.call(members::TestePoint);
}

void Module::failGenerally(std::u16string_view cause) {
    generalError_ = true;
    causeText_ = cause;
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
    session_.FermeDialogues(session_.window);
    session_.readKeptSettings();
    if (session_.PowerPointRepond()) {
        FirstError error;
        error.attempt([&] { staging_.Nettoyage(question_, session_.application); });
        error.attempt([&] { settings_.commandBars.restore(session_.application); });
        error.raise();
    }
}

void Module::Fermer() {
    FermeQuestion();
}

void Module::Quitter(ObjectPtr& application, std::int32_t& window) {
    FirstError error;
    if (question_) {
        error.attempt([&] { FermeQuestion(); });
    }
    settings_.restoreLeftovers();
    error.attempt([&] {
        const bool isVisible = session_.PowerPointVisible();
        if (isVisible && settings_.commandBars.isChanged() && session_.PowerPointRepond()) {
            settings_.commandBars.restore(session_.application);
        }
        if (isVisible && started_) {
            const ppt::Application hosts(application);
            hosts.Quit();
            window = 0;
            application = nullptr;
        }
    });
    session_.application = ppt::Application();
    session_.window = 0;
    error.raise();
}

const automation::MemberTable& Module::members() const {
    using automation::method;
    static const automation::MemberTable table{
        method<&Module::InitQuestion>(u"InitQuestion"),
        method<&Module::TestePoint>(u"TestePoint"),
        method<&Module::ErreurGenerale>(u"ErreurGenerale"),
        method<&Module::CauseErreur>(u"CauseErreur"),
        method<&Module::BravoNuance>(u"BravoNuance"),
        method<&Module::Complement>(u"Complement"),
        method<&Module::Fermer>(u"Fermer"),
        method<&Module::Quitter>(u"Quitter"),
    };
    return table;
}

} // namespace k73053
