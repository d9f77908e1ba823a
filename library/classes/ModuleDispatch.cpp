#include "library/classes/ModuleDispatch.h"

#include "automation/Unmoved.h"
#include "automation/com/Variant.h"

namespace library {

namespace {

using automation::ObjectPtr;
using automation::com::Bstr;

/// The host's PowerPoint and window handle as the module takes them, for the length of one operation. What it leaves
/// there goes back to the host however it ends.
class HostReferences : automation::Unmoved {
public:
    HostReferences(IDispatch*& hostsApplication, LONG& hostsWindow)
        : hostsApplication_(hostsApplication), hostsWindow_(hostsWindow),
          given_(automation::com::objectOf(hostsApplication)), application_(given_), window_(hostsWindow) {}
    ~HostReferences() {
        hostsWindow_ = window_;
        if (!automation::isSame(application_, given_)) {
            giveBackApplication();
        }
    }

    [[nodiscard]] ObjectPtr& application() noexcept { return application_; }
    [[nodiscard]] std::int32_t& window() noexcept { return window_; }

private:
    void giveBackApplication() const noexcept {
        VARIANT place;
        VariantInit(&place);
        place.vt = VT_BYREF | VT_DISPATCH;
        place.ppdispVal = &hostsApplication_;
        try {
            automation::com::assign(place, application_);
        } catch (...) {
            return; // the host keeps what it has
        }
    }

    IDispatch*& hostsApplication_;
    LONG& hostsWindow_;
    ObjectPtr given_;
    ObjectPtr application_;
    std::int32_t window_;
};

} // namespace

HRESULT ModuleDispatch::InitQuestion(LONG number, BSTR folder, IDispatch** application, LONG* window,
                                     BSTR unused) noexcept {
    return run([&] {
        HostReferences host(required(application), required(window));
        object().InitQuestion(number, Bstr::textOf(folder), host.application(), host.window(), Bstr::textOf(unused));
    });
}

HRESULT ModuleDispatch::TestePoint() noexcept {
    return run([&] { object().TestePoint(); });
}

HRESULT ModuleDispatch::ErreurGenerale(VARIANT_BOOL* result) noexcept {
    return give(result, [&] { return object().ErreurGenerale(); });
}

HRESULT ModuleDispatch::CauseErreur(BSTR* result) noexcept {
    return give(result, [&] { return object().CauseErreur(); });
}

HRESULT ModuleDispatch::BravoNuance(VARIANT_BOOL* result) noexcept {
    return give(result, [&] { return object().BravoNuance(); });
}

HRESULT ModuleDispatch::Complement(TableauTexte** result) noexcept {
    return give(result, [&] { return object().Complement(); });
}

HRESULT ModuleDispatch::Fermer() noexcept {
    return run([&] { object().Fermer(); });
}

HRESULT ModuleDispatch::Quitter(IDispatch** application, LONG* window) noexcept {
    return run([&] {
        HostReferences host(required(application), required(window));
        object().Quitter(host.application(), host.window());
    });
}

void* ModuleDispatch::find(REFIID wanted) noexcept {
    return IsEqualIID(wanted, __uuidof(AbstractModule)) ? static_cast<AbstractModule*>(this)
                                                        : DualDispatch::find(wanted);
}

} // namespace library
