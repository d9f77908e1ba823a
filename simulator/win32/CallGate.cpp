#include "simulator/win32/CallGate.h"

namespace simulator::standin {

using automation::com::identityOf;

namespace {
/// The place of GetIDsOfNames in IDispatch.
constexpr WORD getIdsOfNames = 5;
} // namespace

DWORD CallGate::HandleInComingCall(DWORD /*type*/, HTASK /*task*/, DWORD /*tick*/, LPINTERFACEINFO call) noexcept {
    // Counting references and asking for interfaces is not the program's business.
    const bool isAutomation = call != nullptr && IsEqualIID(call->iid, IID_IDispatch);
    if (!isAutomation || identityOf(call->pUnk).get() == always_) {
        return SERVERCALL_ISHANDLED;
    }
    if (isModal_()) {
        ++refused_;
        return SERVERCALL_RETRYLATER;
    }
    if (!isBusy()) {
        lookUps_ += call->wMethod == getIdsOfNames ? 1 : 0;
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
