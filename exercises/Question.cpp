#include "exercises/Question.h"

#include "automation/Text.h"
#include "platform/ErrorReport.h"

namespace exercises {

using platform::ReportedObject;
using platform::reporting;

namespace {

constexpr std::u16string_view presentation = u"Méthodologie.ppt";

} // namespace

Question::Question(std::int32_t number, const Environment& environment,
                   std::initializer_list<collections::WorkingFile> furtherFiles)
    : className_(u"Question0" + automation::decimal(number)), environment_(environment) {
    createdFiles()->add(u"07305" + automation::decimal(number) + u".ppt", std::u16string(presentation), false);
    for (const collections::WorkingFile& file : furtherFiles) {
        createdFiles()->add(file.NomSource, file.NomDest, file.Modele);
    }
}

const std::shared_ptr<collections::FichiersDeTravail>& Question::createdFiles() {
    if (!fichiersDeTravail_) {
        fichiersDeTravail_ = std::make_shared<collections::FichiersDeTravail>();
    }
    return fichiersDeTravail_;
}

void Question::Prepare(automation::ObjectPtr& application, const std::u16string& folder,
                       const std::optional<std::u16string>& argument) {
    reporting(className_, u"Prepare", ReportedObject::Source, [&] {
        cheminTravail_ = folder;
        if (argument) {
            parametrePrepare_ = *argument;
        }
        CopieChemin();
        application_ = ppt::Application(application);
        application_.Presentations().Open(cheminTravail_ + std::u16string(presentation), ppt::msoFalse, ppt::msoFalse,
                                          ppt::msoTrue);
        prepare();
    });
}

void Question::prepareSlides() {
    api().MarqueDiapositives(application_);
    application_.ActiveWindow().ViewType(ppt::ppViewNormal);
    application_.ActiveWindow().Selection().Unselect();
}

void Question::prepareSlideWithShapes(std::int16_t slide) {
    api().MarqueDiapositives(application_);
    application_.ActiveWindow().ViewType(ppt::ppViewNormal);
    application_.ActiveWindow().View().GotoSlide(slide);
    api().MarqueFormes(slide, true, application_);
}

void Question::TestePoint() {
    reporting(className_, u"TestePoint", ReportedObject::Source, [&] {
        complementInfo_ = std::make_shared<collections::ComplementInfo>();
        if (!application_) {
            automation::raise(automation::RunTimeError::ObjectNotSet);
        }
        check();
    });
}

void Question::Fermer() {
    application_ = ppt::Application();
    fichiersDeTravail_ = nullptr;
    complementInfo_ = nullptr;
}

void Question::cause(std::u16string_view code) {
    causeErreur_ = code;
}

ppt::Slide Question::diapositive(std::int16_t slide) const {
    return application_.ActivePresentation().Slides().Item(slide);
}

ppt::Shape Question::forme(std::int16_t slide, const ppt::Index& shape) const {
    return diapositive(slide).Shapes().Item(shape);
}

std::u16string Question::identite(std::int16_t slide, const ppt::Index& shape) const {
    return forme(slide, shape).Tags().Item(API::Identite);
}

Place Question::place(std::int16_t slide, const ppt::Index& shape) const {
    const float left = forme(slide, shape).Left();
    const float top = forme(slide, shape).Top();
    const float width = forme(slide, shape).Width();
    const float height = forme(slide, shape).Height();
    return {left, top, width, height};
}

std::int16_t Question::cherche(std::int16_t slide, std::u16string_view identity, bool recursive) const {
    return api().ChercheForme(slide, identity, recursive, application_);
}

const automation::MemberTable& Question::members() const {
    using automation::method;
    using automation::property;
    static const automation::MemberTable table{
        property<&Question::FichiersDeTravail>(u"FichiersDeTravail"),
        property<&Question::PathDossierParDefaut>(u"PathDossierParDefaut"),
        property<&Question::BravoNuance>(u"BravoNuance"),
        property<&Question::CauseErreur>(u"CauseErreur"),
        method<&Question::Prepare>(u"Prepare"),
        method<&Question::TestePoint>(u"TestePoint"),
        property<&Question::ComplementInfo>(u"ComplementInfo"),
        method<&Question::Fermer>(u"Fermer"),
    };
    return table;
}

} // namespace exercises
