#include "simulator/win32/Server.h"

#include "automation/com/ComError.h"
#include "simulator/win32/StandInIdentity.h"

#include <utility>

namespace simulator::standin {

namespace {

using automation::com::ComPtr;

/// Time in which the last call's answer reaches its caller, in milliseconds.
constexpr DWORD farewell = 100;

/// The PowerPoint of another process; null where none runs.
ComPtr<IDispatch> running() {
    ComPtr<IUnknown> found;
    GetActiveObject(applicationClass, nullptr, found.receive());
    return found.as<IDispatch>();
}

void bringForward() {
    const HWND window = FindWindowW(frameClass, nullptr);
    ShowWindow(window, SW_SHOW);
    SetForegroundWindow(window);
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
        return automation::com::guarded([&] { return server_.application()->QueryInterface(wanted, result); });
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL /*locked*/) noexcept override { return S_OK; }

private:
    Server& server_;
};

void Server::run() {
    const bool isUsersStart = !options_.isEmbedding && options_.standbyEvent.empty();
    if (isUsersStart && running()) {
        return bringForward();
    }
    if (isUsersStart) {
        powerPoint();
    }
    if (isUsersStart && !options_.isHidden) {
        powerPoint().show(options_.isMinimised);
    }
    const auto factory = automation::com::makeCom<Factory>(*this);
    // For a single use, since Wine goes on handing out the class object of a process that has died.
    automation::com::check(
        CoRegisterClassObject(applicationClass, factory.get(), CLSCTX_LOCAL_SERVER, REGCLS_SINGLEUSE, &classEntry_));
    tell(options_.standbyEvent, true);
    pump();
    withdraw();
}

ComPtr<IDispatch> Server::application() {
    tell(options_.standbyEvent, false);
    if (powerPoint_) {
        return powerPoint_->application();
    }
    if (ComPtr<IDispatch> other = running()) {
        PostQuitMessage(0);
        return other;
    }
    return powerPoint().application();
}

PowerPointRun& Server::powerPoint() {
    if (!powerPoint_) {
        powerPoint_.emplace(options_, [this] {
            withdraw();
            PostQuitMessage(0);
        });
    }
    return *powerPoint_;
}

void Server::withdraw() {
    if (const DWORD entry = std::exchange(classEntry_, 0)) {
        CoRevokeClassObject(entry);
    }
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
