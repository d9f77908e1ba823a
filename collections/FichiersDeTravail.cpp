#include "collections/FichiersDeTravail.h"

#include "collections/Sequence.h"

namespace collections {

using automation::method;
using automation::property;

void FichiersDeTravail::add(const std::u16string& NomSource, const std::u16string& NomDest, bool Modele) {
    append(files_, WorkingFile{NomSource, NomDest, Modele});
}

std::int32_t FichiersDeTravail::count() const noexcept {
    return static_cast<std::int32_t>(files_.size());
}

std::shared_ptr<WorkingFileRecord> FichiersDeTravail::Item(std::int32_t index) const {
    return std::make_shared<WorkingFileRecord>(at(files_, index));
}

const automation::MemberTable& FichiersDeTravail::members() const {
    static const automation::MemberTable table{
        method<&FichiersDeTravail::add>(u"add", u"NomSource NomDest Modele"),
        method<&FichiersDeTravail::count>(u"count"),
        method<&FichiersDeTravail::Item>(u"Item", u"Index").asDefault(),
    };
    return table;
}

const automation::MemberTable& WorkingFileRecord::members() const {
    static const automation::MemberTable table{
        property<&WorkingFileRecord::NomSource>(u"NomSource"),
        property<&WorkingFileRecord::NomDest>(u"NomDest"),
        property<&WorkingFileRecord::Modele>(u"Modele"),
    };
    return table;
}

} // namespace collections
