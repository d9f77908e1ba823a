#pragma once

#include "automation/MemberTable.h"
#include "collections/ComplementInfo.h"
#include "collections/FichiersDeTravail.h"
#include "exercises/API.h"
#include "platform/Services.h"

#include <initializer_list>
#include <optional>

namespace exercises {

/// What a question works with beside PowerPoint; outlives every question.
struct Environment {
    API& api;
    platform::Services services;
};

/// Where a shape stands on its slide and how large it is, in points; compared exactly.
struct Place {
    float left;
    float top;
    float width;
    float height;

    friend bool operator==(const Place&, const Place&) = default;
};

/// The frame of every question class: its fields, its members in the order in which the module reaches them by name,
/// and how preparation and check run. A question adds its working files, its variant of the preparation and its checks.
class Question : public automation::Published {
public:
    /// The working presentation is delivered under the question's number; what a question works on beside it follows.
    Question(std::int32_t number, const Environment& environment,
             std::initializer_list<collections::WorkingFile> furtherFiles = {});

    /// The working files; created empty first where there are none.
    [[nodiscard]] automation::ObjectPtr FichiersDeTravail() { return createdFiles(); }
    /// Folder that PowerPoint is to propose to the learner; empty until `Prepare` has run.
    [[nodiscard]] std::u16string PathDossierParDefaut() const { return pathDossierParDefaut_; }
    /// -1 once a check was passed with a remark, else 0.
    [[nodiscard]] std::int16_t BravoNuance() const noexcept { return bravoNuance_; }
    /// Outcome code of the checks so far; no check clears it.
    [[nodiscard]] std::u16string CauseErreur() const { return causeErreur_; }
    /// Opens and marks the working presentation in a folder that ends with a backslash. Failures go to the error
    /// report.
    void Prepare(automation::ObjectPtr& application, const std::u16string& folder,
                 const std::optional<std::u16string>& argument);
    /// Checks the learner's work and leaves the verdict in `CauseErreur`, `BravoNuance` and a new `ComplementInfo`.
    /// Failures go to the error report; fields set before stay. Raises ObjectNotSet (91) before `Prepare`.
    void TestePoint();
    /// Complementary texts of the last check; nothing before the first.
    [[nodiscard]] automation::ObjectPtr ComplementInfo() const { return complementInfo_; }
    /// Releases PowerPoint, the working files and the complementary texts.
    void Fermer();

    [[nodiscard]] const automation::MemberTable& members() const final;

protected:
    /// The question's preparation once the working presentation is open: one of the variants below, and what it adds.
    virtual void prepare() = 0;
    /// The question's checks, in order.
    virtual void check() = 0;

    /// Marks the slides, shows normal view with nothing selected.
    void prepareSlides();
    /// Marks the slides, shows one slide in normal view and marks its shapes and the items of its groups. What is
    /// selected stays selected, unlike in `prepareSlides`.
    void prepareSlideWithShapes(std::int16_t slide);

    [[nodiscard]] const ppt::Application& application() const noexcept { return application_; }
    [[nodiscard]] API& api() const noexcept { return environment_.api; }
    [[nodiscard]] const platform::Services& services() const noexcept { return environment_.services; }
    [[nodiscard]] const std::u16string& cheminTravail() const noexcept { return cheminTravail_; }

    /// Leaves an outcome code.
    void cause(std::u16string_view code);
    /// Marks a success that carries a remark.
    void bravo() noexcept { bravoNuance_ = -1; }
    /// Adds a complementary text to the current check's.
    void complement(const std::u16string& text) { complementInfo_->add(text, 0); }

    /// Slide n of the active presentation, reached afresh.
    [[nodiscard]] ppt::Slide diapositive(std::int16_t slide) const;
    /// Shape k of a slide, reached afresh.
    [[nodiscard]] ppt::Shape forme(std::int16_t slide, const ppt::Index& shape) const;
    /// Identity of shape k of a slide, reached afresh; empty where it carries none, as a shape drawn by the
    /// learner (a copy carries that of its original).
    [[nodiscard]] std::u16string identite(std::int16_t slide, const ppt::Index& shape) const;
    /// Left, Top, Width and Height of shape k of a slide, each reached afresh, in this order.
    [[nodiscard]] Place place(std::int16_t slide, const ppt::Index& shape) const;
    /// Searches a slide for an identity; see API::ChercheForme.
    std::int16_t cherche(std::int16_t slide, std::u16string_view identity, bool recursive) const;

private:
    const std::shared_ptr<collections::FichiersDeTravail>& createdFiles();
    void CopieChemin() { pathDossierParDefaut_ = cheminTravail_; }

    std::u16string className_;
    Environment environment_;

    ppt::Application application_;
    std::shared_ptr<collections::FichiersDeTravail> fichiersDeTravail_;
    std::u16string causeErreur_;
    std::int16_t bravoNuance_ = 0;
    std::u16string cheminTravail_;
    std::u16string parametrePrepare_;
    std::u16string pathDossierParDefaut_;
    std::shared_ptr<collections::ComplementInfo> complementInfo_;
};

using QuestionPtr = std::shared_ptr<Question>;

} // namespace exercises
