#include "library/classes/Classes.h"

#include "library/Apartment.h"
#include "library/classes/ComplementInfoDispatch.h"
#include "library/classes/FichiersDeTravailDispatch.h"
#include "library/classes/ModuleDispatch.h"

#include <algorithm>

namespace library {

namespace {

using automation::Published;
using automation::com::ComPtr;
using PublishedPtr = std::shared_ptr<Published>;

/// A module with what it needs for as long as it lives.
struct HeldModule {
    std::shared_ptr<Apartment> apartment = Apartment::current();
    k73053::Module module{apartment->api, apartment->services.services()};
};

PublishedPtr newModule() {
    const auto held = std::make_shared<HeldModule>();
    return {held, &held->module};
}

template <typename T> PublishedPtr newObject() {
    return std::make_shared<T>();
}

/// The dual form of an object that is a T; null for any other.
template <typename T, typename Dispatch> ComPtr<IDispatch> dualFormOf(const PublishedPtr& object) {
    const auto held = std::dynamic_pointer_cast<T>(object);
    if (!held) {
        return {};
    }
    const auto made = automation::com::makeCom<Dispatch>(held);
    return ComPtr<IDispatch>(static_cast<typename Dispatch::DefaultInterface*>(made.get()));
}

struct Class {
    const CLSID* id;
    PublishedPtr (*create)();
};

constexpr std::array<Class, 3> classes{{
    {&CLSID_Module, newModule},
    {&CLSID_FichiersDeTravail, newObject<collections::FichiersDeTravail>},
    {&CLSID_ComplementInfo, newObject<collections::ComplementInfo>},
}};

constexpr std::array<ComPtr<IDispatch> (*)(const PublishedPtr&), 4> dualForms{
    dualFormOf<k73053::Module, ModuleDispatch>,
    dualFormOf<collections::FichiersDeTravail, FichiersDeTravailDispatch>,
    dualFormOf<collections::WorkingFileRecord, FichierDeTravailDispatch>,
    dualFormOf<collections::ComplementInfo, ComplementInfoDispatch>,
};

ComPtr<IDispatch> makeDual(const PublishedPtr& object) {
    for (const auto dualForm : dualForms) {
        if (ComPtr<IDispatch> made = dualForm(object)) {
            return made;
        }
    }
    return {};
}

const Class* findClass(REFCLSID classId) noexcept {
    const auto* const found = std::find_if(classes.begin(), classes.end(),
                                           [&](const Class& each) { return IsEqualCLSID(*each.id, classId); });
    return found == classes.end() ? nullptr : found;
}

} // namespace

ComPtr<IDispatch> createObject(REFCLSID classId) {
    const Class* const found = findClass(classId);
    return found == nullptr ? nullptr : automation::com::dispatchOf(found->create());
}

bool hasClass(REFCLSID classId) noexcept {
    return findClass(classId) != nullptr;
}

void handOutDualInterfaces() noexcept {
    automation::com::makeDispatchBy(makeDual);
}

} // namespace library
