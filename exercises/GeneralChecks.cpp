#include "exercises/API.h"

#include "automation/Integer.h"
#include "automation/Text.h"

namespace exercises {

using automation::increase;
using automation::lowerCase;

void API::VerifiePresentation(const ppt::Application& application) {
    PresentationOuverte = true;
    OuverteSousNom = false;
    DansDossierHote = false;
    PresentationActive = false;
    const std::int32_t count = application.Presentations().Count();
    if (count == 0) {
        PresentationOuverte = false;
    }
    const std::u16string workingName = lowerCase(PremierFichier);
    const std::u16string workingPath = lowerCase(DossierHote) + workingName;
    for (std::int32_t i = 1; i <= count; ++i) {
        if (lowerCase(application.Presentations().Item(i).Name()) != workingName) {
            continue;
        }
        OuverteSousNom = true;
        const std::u16string path = application.Presentations().Item(i).FullName();
        if (lowerCase(path) != workingPath) {
            continue;
        }
        DansDossierHote = true;
        // By path and not by identity: PowerPoint hands out a new object for the same presentation.
        if (path == application.ActivePresentation().FullName()) {
            PresentationActive = true;
            return;
        }
    }
}

void API::VerifieDiapositives(const ppt::Application& application) {
    const auto mark = [&](std::int32_t i) {
        return application.ActivePresentation().Slides().Item(i).Tags().Item(Identite);
    };
    DiapoC = false;
    DiapoD = false;
    DiapoE = false;
    DiapositivesConformes = true;
    const std::int32_t count = application.ActivePresentation().Slides().Count();
    std::int16_t counter = NbDiapositives;
    if (NbDiapositives > count) {
        DiapoD = true;
        DiapositivesConformes = false;
    }
    for (std::int32_t i = 1; i <= count; ++i) {
        if (mark(i).substr(0, Prefixe.size()) == Prefixe) {
            increase<std::int16_t>(counter, -1);
        }
    }
    if (counter > 0) {
        DiapoC = true;
        DiapositivesConformes = false;
    } else if (counter < 0) {
        DiapoD = true;
        DiapositivesConformes = false;
    }
    for (std::int32_t i = 1; i <= count; ++i) {
        if (mark(i) != identity(i)) {
            DiapoE = true;
            DiapositivesConformes = false;
            break;
        }
    }
    // What is left over is where a check of the same question starts that finds no new marking.
    NbDiapositives = counter;
}

} // namespace exercises
