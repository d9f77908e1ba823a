#pragma once

#include "ppt/Application.h"

#include <string>

namespace exercises {

/// The routines that mark slides and shapes with the "Identite" tag and find them again, and the variables that all
/// questions share. One instance lives as long as the library is loaded; its variables start at zero and are never
/// reset but where a routine says so.
///
/// Those that take an application work on its active presentation and reach slides and shapes afresh at each step; the
/// items of a group are reached from their group. None has an error handler: automation errors and integer overflows
/// pass to the caller.
class API {
public:
    /// Name of the tag that carries an identity.
    static constexpr std::u16string_view Identite = u"Identite";
    /// What every identity of a slide or a top-level shape begins with.
    static constexpr std::u16string_view Prefixe = u"ZOR";

    // Marking and lookup.
    std::int16_t NbDiapositives{};  ///< slides that `MarqueDiapositives` found; rewritten by `VerifieDiapositives`
    std::int16_t FormeNonTrouvee{}; ///< -1 when the last `ChercheForme` found nothing, else 0
    std::int32_t NiveauForme{};     ///< 0: the last shape found carries the identity; n: an item at group level n
    std::int16_t NbFormesLibres{};  ///< freeforms met inside groups when asked for "msoFreeform"; only counted
    std::int16_t NbParchemins{};    ///< horizontal scrolls met when asked for "msoShapeHorizontalScroll"; only counted

    // Set for the current question.
    std::u16string PremierFichier; ///< working name of the question's first file
    std::u16string DossierHote;    ///< the host's folder, as the host gives it

    std::int32_t SystemeMesure{}; ///< 0 metric, 1 U.S., as the last question 318 found it

    // Results of `VerifiePresentation`.
    bool PresentationOuverte{};
    bool OuverteSousNom{};
    bool DansDossierHote{};
    bool PresentationActive{};

    // Results of `VerifieDiapositives`, which keep their values when it is not run.
    bool DiapoC{};
    bool DiapoD{};
    bool DiapoE{};
    bool DiapositivesConformes{};

    /// Marks slide i "ZORi"; returns the number of slides, as 16 bits.
    std::int16_t MarqueDiapositives(const ppt::Application& application);
    /// Marks shape j of a slide "ZORj" and, where `recursive`, the items of groups.
    void MarqueFormes(std::int16_t slide, bool recursive, const ppt::Application& application);
    /// 1-based index of the top-level shape that carries an identity or, where `recursive`, contains it; 0 if none.
    std::int16_t ChercheForme(std::int16_t slide, std::u16string_view identity, bool recursive,
                              const ppt::Application& application);
    /// Number of words of a text that equal `word`, with or without a trailing blank.
    [[nodiscard]] static std::int16_t CompteMot(const ppt::TextRange& text, std::u16string_view word);

    /// Sees whether the first working file is open, from the host's folder, and active.
    void VerifiePresentation(const ppt::Application& application);
    /// Compares the slides of the active presentation with their marks. Run a second time it starts from what the first
    /// run left in `NbDiapositives`.
    void VerifieDiapositives(const ppt::Application& application);

    /// The identity of slide or shape number n.
    [[nodiscard]] static std::u16string identity(std::int32_t number);

private:
    static void MarqueGroupe(const ppt::Shape& group, const std::u16string& path, std::int16_t level);
    bool ChercheDansForme(const ppt::Shape& shape, std::u16string_view identity, std::int16_t level);
};

} // namespace exercises
