#pragma once

#include "automation/Name.h"

/// The members by which the module reaches a question and its working files, late-bound.
namespace k73053::members {

inline constexpr automation::Name FichiersDeTravail{u"FichiersDeTravail", u"Question"};
inline constexpr automation::Name PathDossierParDefaut{u"PathDossierParDefaut", u"Question"};
inline constexpr automation::Name BravoNuance{u"BravoNuance", u"Question"};
inline constexpr automation::Name CauseErreur{u"CauseErreur", u"Question"};
inline constexpr automation::Name Prepare{u"Prepare", u"Question"};
inline constexpr automation::Name TestePoint{u"TestePoint", u"Question"};
inline constexpr automation::Name ComplementInfo{u"ComplementInfo", u"Question"};
inline constexpr automation::Name Fermer{u"Fermer", u"Question"};

inline constexpr automation::Name count{u"count", u"FichiersDeTravail"};
inline constexpr automation::Name Item{u"Item", u"FichiersDeTravail"};
inline constexpr automation::Name NomSource{u"NomSource", u"WorkingFileRecord"};
inline constexpr automation::Name NomDest{u"NomDest", u"WorkingFileRecord"};
inline constexpr automation::Name Modele{u"Modele", u"WorkingFileRecord"};

} // namespace k73053::members
