#include "simulator/win32/StandIn.h"

#include "automation/com/ComError.h"
#include "automation/com/Objects.h"
#include "automation/com/WideText.h"
#include "simulator/objects/ApplicationObject.h"
#include "simulator/win32/StandInIdentity.h"

#include <shlobj.h>

#include <array>

namespace simulator::standin {

namespace {

using automation::com::check;
using automation::com::ComPtr;
using automation::com::dispatchOf;
using automation::com::identityOf;
using automation::com::makeCom;

/// Time in which the last call's answer reaches its caller, in milliseconds.
constexpr DWORD farewell = 100;

/// Gives out the one application object.
class ApplicationFactory final : public automation::com::ComObject<IClassFactory> {
public:
    explicit ApplicationFactory(ComPtr<IDispatch> application) noexcept : application_(std::move(application)) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID wanted, void** result) noexcept override {
        return outer != nullptr ? CLASS_E_NOAGGREGATION : application_->QueryInterface(wanted, result);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL /*locked*/) noexcept override { return S_OK; }

private:
    ComPtr<IDispatch> application_;
};

std::filesystem::path onDisk(std::u16string_view path) {
    return std::filesystem::path(path);
}

std::u16string documentsFolder() {
    std::array<wchar_t, MAX_PATH> folder{};
    return SUCCEEDED(SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, folder.data()))
               ? automation::com::fromWide(folder.data())
               : Settings().documentsFolder;
}

} // namespace

StandIn::StandIn()
    : store_(onDisk), window_([this] { session_->end(); }),
      session_(std::make_shared<Session>(window_, store_, settings_)),
      control_(std::make_shared<ControlObject>(window_, troubles_)), controlDispatch_(dispatchOf(control_)),
      application_(dispatchOf(std::make_shared<ApplicationObject>(session_))),
      gate_(makeCom<CallGate>(identityOf(controlDispatch_.get()).get())) {
    settings_.documentsFolder = documentsFolder();
    control_->setGate(gate_);
    session_->onCall([this] { troubles_.meet(); });
    session_->onEnd([this] {
        withdraw();
        PostQuitMessage(0);
    });
}

StandIn::~StandIn() {
    session_->end();
    session_->onCall(nullptr);
    control_->end();
    ComPtr<IMessageFilter> former;
    CoRegisterMessageFilter(nullptr, former.receive());
}

void StandIn::run(const Options& options) {
    if (!options.isEmbedding && showRunning()) {
        return;
    }
    troubles_.setSlowness(options.slowness);
    troubles_.dieAtCall(options.deadlyCall);
    gate_->refuse(options.refusals);
    publish();
    show(options);
    pump();
}

bool StandIn::showRunning() {
    ComPtr<IUnknown> running;
    const HWND window = FindWindowW(frameClass, nullptr);
    if (FAILED(GetActiveObject(applicationClass, nullptr, running.receive()))) {
        return false;
    }
    ShowWindow(window, SW_SHOW);
    SetForegroundWindow(window);
    return true;
}

void StandIn::publish() {
    ComPtr<IMessageFilter> former;
    check(CoRegisterMessageFilter(gate_.get(), former.receive()));
    check(RegisterActiveObject(application_.get(), applicationClass, ACTIVEOBJECT_STRONG, &applicationEntry_));
    check(RegisterActiveObject(controlDispatch_.get(), controlClass, ACTIVEOBJECT_STRONG, &controlEntry_));
    const auto factory = makeCom<ApplicationFactory>(application_);
    check(
        CoRegisterClassObject(applicationClass, factory.get(), CLSCTX_LOCAL_SERVER, REGCLS_MULTIPLEUSE, &classEntry_));
}

void StandIn::withdraw() {
    if (const DWORD entry = std::exchange(classEntry_, 0)) {
        CoRevokeClassObject(entry);
    }
    for (DWORD* const entry : {&applicationEntry_, &controlEntry_}) {
        if (const DWORD held = std::exchange(*entry, 0)) {
            RevokeActiveObject(held, nullptr);
        }
    }
}

void StandIn::show(const Options& options) {
    if (options.isMinimised) {
        window_.setState(ppWindowMinimized);
    }
    if (!options.isEmbedding && !options.isHidden) {
        window_.setVisible(true);
        window_.activate();
    }
}

void StandIn::pump() {
    MSG message;
    const auto deliver = [&] {
        if (!window_.takeDialogKey(message)) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    };
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        deliver();
    }
    const DWORD start = GetTickCount();
    for (DWORD passed = 0; passed < farewell; passed = GetTickCount() - start) {
        MsgWaitForMultipleObjects(0, nullptr, FALSE, farewell - passed, QS_ALLINPUT);
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
            deliver();
        }
    }
}

} // namespace simulator::standin
