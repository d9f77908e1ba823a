#include "library/classes/ModuleDispatch.h"

#include "automation/Unmoved.h"
#include "automation/com/ClientVariable.h"

namespace library {

namespace {

using automation::com::Bstr;

/// The host's PowerPoint and window handle as the module takes them, for the length of one operation. The module's
/// changes reach the host however it ends, nothing in the place of its PowerPoint at once.
class HostReferences : automation::Unmoved {
public:
    HostReferences(IDispatch*& hostsApplication, LONG& hostsWindow)
        : hostsWindow_(hostsWindow), client_(reference(hostsApplication), automation::com::objectOf(hostsApplication)),
          argument_(client_.argument()), application_(argument_), window_(hostsWindow) {}
    ~HostReferences() {
        hostsWindow_ = window_;
        client_.follow(); // where it cannot, the host keeps what it has
    }

    [[nodiscard]] automation::ObjectVariable& application() noexcept { return application_; }
    [[nodiscard]] std::int32_t& window() noexcept { return window_; }

private:
    static VARIANT reference(IDispatch*& place) noexcept {
        VARIANT result;
        VariantInit(&result);
        result.vt = VT_BYREF | VT_DISPATCH;
        result.ppdispVal = &place;
        return result;
    }

    LONG& hostsWindow_;
    automation::com::ClientVariable client_;
    automation::Value argument_;
    automation::ObjectVariable application_;
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
