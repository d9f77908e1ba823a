#include "simulator/win32/Server.h"

#include "automation/com/ComError.h"
#include "simulator/win32/StandInIdentity.h"

#include <utility>

namespace simulator::standin {

namespace {

using automation::com::ComPtr;

/// Time in which the last call's answer reaches its caller, in milliseconds.
constexpr DWORD farewell = 100;

bool showRunning() {
    ComPtr<IUnknown> running;
    if (FAILED(GetActiveObject(applicationClass, nullptr, running.receive()))) {
        return false;
    }
    const HWND window = FindWindowW(frameClass, nullptr);
    ShowWindow(window, SW_SHOW);
    SetForegroundWindow(window);
    return true;
}

/// Sets or resets the event of whoever has it wait; there may be none.
void tell(const std::wstring& eventName, bool isWaiting) {
    if (const HANDLE event = OpenEventW(EVENT_MODIFY_STATE, FALSE, eventName.c_str())) {
        static_cast<void>(isWaiting ? SetEvent(event) : ResetEvent(event));
        CloseHandle(event);
    }
}

} // namespace

/// Gives out the one application object.
class Server::Factory final : public automation::com::ComObject<IClassFactory> {
public:
    explicit Factory(Server& server) noexcept : server_(server) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID wanted, void** result) noexcept override {
        if (outer != nullptr) {
            return CLASS_E_NOAGGREGATION;
        }
        return automation::com::guarded(
            [&] { return server_.powerPoint().application()->QueryInterface(wanted, result); });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL /*locked*/) noexcept override { return S_OK; }

private:
    Server& server_;
};

void Server::run() {
    const bool isUsersStart = !options_.isEmbedding && options_.standbyEvent.empty();
    if (isUsersStart && showRunning()) {
        return;
    }
    if (options_.standbyEvent.empty()) {
        powerPoint();
    }
    if (isUsersStart && !options_.isHidden) {
        powerPoint().show(options_.isMinimised);
    }
    const auto factory = automation::com::makeCom<Factory>(*this);
    automation::com::check(
        CoRegisterClassObject(applicationClass, factory.get(), CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &classEntry_));
    tell(options_.standbyEvent, true);
    pump();
}

PowerPointRun& Server::powerPoint() {
    if (!powerPoint_) {
        tell(options_.standbyEvent, false);
        powerPoint_.emplace(options_, [this] { end(); });
    }
    return *powerPoint_;
}

void Server::end() {
    if (const DWORD entry = std::exchange(classEntry_, 0)) {
        CoRevokeClassObject(entry);
    }
    PostQuitMessage(0);
}

void Server::pump() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        deliver(message);
    }
    const DWORD start = GetTickCount();
    for (DWORD passed = 0; passed < farewell; passed = GetTickCount() - start) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, farewell - passed, QS_ALLINPUT);
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            deliver(message);
        }
    }
}

void Server::deliver(MSG& message) const {
    if (!powerPoint_ || !powerPoint_->takeDialogKey(message)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

} // namespace simulator::standin
