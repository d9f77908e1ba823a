#include "module/Staging.h"

#include "automation/Text.h"
#include "module/QuestionMembers.h"
#include "platform/ErrorReport.h"

#include <cassert>

namespace k73053 {

using automation::LateBound;
using automation::lowerCase;
using platform::ignoringErrors;
using platform::ReportedObject;
using platform::reporting;

namespace {

/// Gives `visit` each working file of a question, in order.
template <typename Visit> void walkFiles(const LateBound& question, const Visit& visit) {
    const LateBound files(question.get(members::FichiersDeTravail).to<automation::ObjectPtr>());
    const auto count = files.call(members::count).to<std::int32_t>();
    for (std::int32_t i = 1; i <= count; ++i) {
        visit(LateBound(files.call(members::Item, i).to<automation::ObjectPtr>()));
    }
}

/// Closes every presentation of a path, given in lower case, without PowerPoint asking a question.
void closePresentations(const ppt::Application& application, const std::u16string& path) {
    assert(path == lowerCase(path));
    std::int32_t count = application.Presentations().Count();
    for (std::int32_t i = 1; i <= count;) {
        if (lowerCase(application.Presentations().Item(i).FullName()) == path) {
            application.Presentations().Item(i).Saved(ppt::msoTrue);
            application.Presentations().Item(i).Close();
            --count;
        } else {
            ++i;
        }
    }
}

} // namespace

const std::u16string& Staging::folderOf(const LateBound& file) const {
    return file.get(members::Modele).to<bool>() ? templatesFolder : hostFolder;
}

void Staging::Nettoyage(const LateBound& question, const ppt::Application& application) {
    reporting(u"Module", u"Nettoyage", ReportedObject::Description, [&] {
        walkFiles(question, [&](const LateBound& file) {
            const auto name = file.get(members::NomDest).to<std::u16string>();
            const std::u16string path = folderOf(file) + name;
            if (lowerCase(name).ends_with(u".ppt")) {
                closePresentations(application, lowerCase(path));
            }
            ignoringErrors([&] { files_.clearAttributes(path); });
            ignoringErrors([&] { files_.remove(path); });
        });
    });
}

void Staging::Renomme(const LateBound& question) {
    reporting(u"Module", u"Renomme", ReportedObject::Description, [&] {
        walkFiles(question, [&](const LateBound& file) {
            const auto source = file.get(members::NomSource).to<std::u16string>();
            if (source.empty()) {
                return;
            }
            const std::u16string& folder = folderOf(file);
            files_.clearAttributes(folder + source);
            files_.rename(folder + source, folder + file.get(members::NomDest).to<std::u16string>());
        });
    });
}

std::u16string Staging::firstFile(const LateBound& question) {
    const LateBound files(question.get(members::FichiersDeTravail).to<automation::ObjectPtr>());
    const LateBound first(files.call(members::Item, std::int32_t{1}).to<automation::ObjectPtr>());
    return first.get(members::NomDest).to<std::u16string>();
}

bool Staging::VerifieTravail(std::int32_t questionNumber, const ppt::Application& application, std::u16string& cause) {
    const auto fails = [&](std::u16string_view code) {
        cause = code;
        return false;
    };
    api_.VerifiePresentation(application);
    if (api_.PresentationActive) {
        api_.VerifieDiapositives(application);
    }
    if (!api_.PresentationOuverte) {
        return fails(u"A");
    }
    if (!api_.DansDossierHote && questionNumber != 304) {
        return fails(u"F");
    }
    if (!api_.PresentationActive && questionNumber != 304) {
        return fails(u"G");
    }
    if (questionNumber == 301) {
        return true;
    }
    if (api_.DiapoC) {
        return fails(u"C");
    }
    if (questionNumber == 305) {
        return true;
    }
    if (api_.DiapoD) {
        return fails(u"D");
    }
    return api_.DiapoE ? fails(u"E") : true;
}

} // namespace k73053
