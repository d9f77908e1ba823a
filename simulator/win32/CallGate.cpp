#include "simulator/win32/CallGate.h"

namespace simulator::standin {

using automation::com::identityOf;

namespace {

/// The interface by which the system asks an object of another process for interfaces, and drops references to it.
constexpr IID remoteUnknown{0x00000131, 0, 0, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

/// Where calls of a method are counted, by its place in its interface.
std::size_t placeOf(const INTERFACEINFO& call) noexcept {
    constexpr std::size_t others = 4;
    if (IsEqualIID(call.iid, IID_IDispatch)) {
        return call.wMethod == 6 ? 0 : call.wMethod == 5 ? 1 : others;
    }
    if (IsEqualIID(call.iid, remoteUnknown)) {
        return call.wMethod == 3 ? 2 : call.wMethod == 5 ? 3 : others;
    }
    return others;
}

} // namespace

DWORD CallGate::HandleInComingCall(DWORD /*type*/, HTASK /*task*/, DWORD /*tick*/, LPINTERFACEINFO call) noexcept {
    if (call == nullptr || identityOf(call->pUnk).get() == always_) {
        return SERVERCALL_ISHANDLED;
    }
    // Counting references and asking for interfaces is not the program's business.
    const bool isAutomation = IsEqualIID(call->iid, IID_IDispatch) != FALSE;
    if (isAutomation && isModal_()) {
        ++refused_;
        return SERVERCALL_RETRYLATER;
    }
    if (!isAutomation || !isBusy()) {
        ++taken_.at(placeOf(*call));
        return SERVERCALL_ISHANDLED;
    }
    ++refused_;
    if (refusals_ != withoutEnd) {
        --refusals_;
    }
    return SERVERCALL_REJECTED;
}

DWORD CallGate::RetryRejectedCall(HTASK /*task*/, DWORD /*tick*/, DWORD /*type*/) noexcept {
    return MAXDWORD; // it calls nobody who might refuse
}

DWORD CallGate::MessagePending(HTASK /*task*/, DWORD /*tick*/, DWORD /*type*/) noexcept {
    return PENDINGMSG_WAITDEFPROCESS;
}

} // namespace simulator::standin
