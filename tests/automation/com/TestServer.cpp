#include "tests/automation/com/TestServer.h"

#include "automation/com/ComObject.h"
#include "automation/com/Objects.h"
#include "tests/automation/com/Sample.h"

#include <array>
#include <chrono>
#include <string_view>

namespace tests {

namespace {

using automation::com::ComObject;
using automation::com::ComPtr;
using automation::com::dispatchOf;
using automation::com::makeCom;
using Clock = std::chrono::steady_clock;

constexpr const wchar_t* readyEvent = L"windows-tests server is ready";
constexpr std::string_view serverSwitch = "--serve";

Clock::time_point busyUntil;

/// Refuses calls while the process says that it is busy.
class Filter final : public ComObject<IMessageFilter> {
public:
    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD /*type*/, HTASK /*task*/, DWORD /*tick*/,
                                               LPINTERFACEINFO /*info*/) noexcept override {
        return Clock::now() < busyUntil ? SERVERCALL_REJECTED : SERVERCALL_ISHANDLED;
    }
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK /*task*/, DWORD /*tick*/, DWORD /*type*/) noexcept override {
        return MAXDWORD;
    }
    DWORD STDMETHODCALLTYPE MessagePending(HTASK /*task*/, DWORD /*tick*/, DWORD /*type*/) noexcept override {
        return PENDINGMSG_WAITDEFPROCESS;
    }
};

/// Gives out a new Sample at every request.
class Factory final : public ComObject<IClassFactory> {
public:
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* /*outer*/, REFIID wanted, void** result) noexcept override {
        return dispatchOf(std::make_shared<Sample>())->QueryInterface(wanted, result);
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL /*locked*/) noexcept override { return S_OK; }
};

HANDLE openReadyEvent() {
    return CreateEventW(nullptr, TRUE, FALSE, readyEvent);
}

/// Serves until the process is ended.
int serve(bool isStartedByCom) {
    const auto filter = makeCom<Filter>();
    ComPtr<IMessageFilter> former;
    CoRegisterMessageFilter(filter.get(), former.receive());

    const auto sample = dispatchOf(std::make_shared<Sample>());
    const auto factory = makeCom<Factory>();
    DWORD registration = 0;
    // For a single use, since Wine goes on handing out the class object of a process that has died.
    const HRESULT status =
        isStartedByCom
            ? CoRegisterClassObject(serverClass, factory.get(), CLSCTX_LOCAL_SERVER, REGCLS_SINGLEUSE, &registration)
            : RegisterActiveObject(sample.get(), serverClass, ACTIVEOBJECT_STRONG, &registration);
    if (FAILED(status)) {
        return 1;
    }
    SetEvent(openReadyEvent());
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        DispatchMessageW(&message);
    }
    return 0;
}

} // namespace

std::optional<int> serveIfAsked(std::span<char*> arguments) {
    if (arguments.size() < 2 || arguments[1] != serverSwitch) {
        return std::nullopt;
    }
    const bool isStartedByCom = arguments.size() > 2; // it says so
    return serve(isStartedByCom);
}

void refuseCallsFor(std::int32_t milliseconds) {
    busyUntil = Clock::now() + std::chrono::milliseconds(milliseconds);
}

std::wstring serverCommand() {
    std::array<wchar_t, MAX_PATH> path{};
    GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    return L'"' + std::wstring(path.data()) + L"\" --serve";
}

ServerProcess::ServerProcess() {
    const HANDLE ready = openReadyEvent();
    ResetEvent(ready);
    std::wstring command = serverCommand();
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process) !=
        0) {
        CloseHandle(process.hThread);
        process_ = process.hProcess;
        WaitForSingleObject(ready, 10000);
    }
    CloseHandle(ready);
}

ServerProcess::~ServerProcess() {
    end();
    CloseHandle(process_);
}

void ServerProcess::end() {
    TerminateProcess(process_, 1);
    WaitForSingleObject(process_, 10000);
}

} // namespace tests
