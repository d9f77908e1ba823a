#include "host/win32/DesktopPowerPoint.h"

#include "automation/LateBound.h"
#include "host/win32/BorrowedRegistry.h"
#include "host/win32/StandIn.h"
#include "host/world/Refusal.h"
#include "platform/win32/Win32Servers.h"
#include "simulator/win32/Registration.h"
#include "simulator/win32/StandInIdentity.h"

#include <cstdio>

namespace host {

namespace {

namespace standin = simulator::standin;

using automation::ObjectPtr;

constexpr std::u16string_view programmaticId = u"PowerPoint.Application.11";
constexpr DWORD untilClosed = 10000;

HWND findFrame() noexcept {
    return FindWindowW(standin::frameClass, nullptr);
}

Handle processOf(HWND window) {
    DWORD id = 0;
    GetWindowThreadProcessId(window, &id);
    return Handle(OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id));
}

bool isModalAbove(HWND dialog, HWND frame) noexcept {
    const bool isModal = (GetWindowLongW(dialog, GWL_EXSTYLE) & WS_EX_DLGMODALFRAME) != 0;
    return isModal && dialog != frame && GetAncestor(dialog, GA_ROOTOWNER) == frame;
}

struct DialogCount {
    HWND frame = nullptr;
    std::size_t count = 0;
};

BOOL CALLBACK countDialog(HWND window, LPARAM data) {
    auto& dialogs = *reinterpret_cast<DialogCount*>(data);
    dialogs.count += isModalAbove(window, dialogs.frame) ? 1 : 0;
    return TRUE;
}

} // namespace

ObjectPtr DesktopPowerPoint::application() {
    const HWND frame = findFrame();
    if (frame == nullptr || frame != holder_) {
        forget();
    }
    if (frame != nullptr && !application_) {
        try {
            application_ = platform::Win32Servers().attach(programmaticId);
            holder_ = frame;
        } catch (const automation::Error&) {
            return nullptr;
        }
    }
    return application_;
}

std::int32_t DesktopPowerPoint::window() {
    return static_cast<std::int32_t>(reinterpret_cast<std::intptr_t>(findFrame()));
}

void DesktopPowerPoint::start() {
    if (!application()) {
        application_ = platform::Win32Servers().create(programmaticId);
        automation::LateBound(application_).put(u"Visible", true);
        holder_ = findFrame();
    }
    ShowWindow(holder_, SW_SHOW);
    SetForegroundWindow(holder_);
}

void DesktopPowerPoint::close() {
    const HWND frame = findFrame();
    const Handle process = processOf(frame);
    forget();
    SendMessageTimeoutW(frame, WM_CLOSE, 0, 0, SMTO_ABORTIFHUNG, untilClosed, nullptr);
    if (process && !process.isSignalled(untilClosed)) {
        automation::raise(automation::RunTimeError::PermissionDenied);
    }
}

void DesktopPowerPoint::kill() {
    const Handle process = processOf(findFrame());
    forget();
    if (process) {
        TerminateProcess(process.get(), 1);
        WaitForSingleObject(process.get(), untilClosed);
    }
}

void DesktopPowerPoint::dismiss() {
    const HWND frame = findFrame();
    const bool isReal = !isStandInRunning() && !standin::isRegistered();
    forget();
    SendMessageTimeoutW(frame, WM_CLOSE, 0, 0, SMTO_ABORTIFHUNG, untilClosed, nullptr);
    if (findFrame() == nullptr) {
        return;
    }
    if (isReal) {
        std::fputs("exercise-host: PowerPoint is left open, since it asks what is to be saved\n", stderr);
    } else {
        kill();
    }
}

void DesktopPowerPoint::hide() {
    ShowWindow(findFrame(), SW_HIDE);
}

void DesktopPowerPoint::minimize() {
    ShowWindow(findFrame(), SW_MINIMIZE);
}

std::size_t DesktopPowerPoint::dialogs() {
    DialogCount dialogs{findFrame()};
    if (dialogs.frame != nullptr) {
        EnumWindows(&countDialog, reinterpret_cast<LPARAM>(&dialogs));
    }
    return dialogs.count;
}

void DesktopPowerPoint::killAtCall(std::int32_t n) {
    standIn().call(u"DieAtCall", n);
}

void DesktopPowerPoint::setBusy(bool busy) {
    standIn().put(u"Busy", busy);
}

void DesktopPowerPoint::openDialog(std::u16string_view title) {
    standIn().call(u"OpenDialog", std::u16string(title));
}

void DesktopPowerPoint::closeDialog() {
    standIn().call(u"CloseDialog");
}

void DesktopPowerPoint::answerSaving(std::u16string_view answer) {
    standIn().call(u"AnswerSaving", std::u16string(answer));
}

void DesktopPowerPoint::uninstall() {
    if (!standin::isRegistered()) {
        refuse(u"only the stand-in is uninstalled for a scenario");
    }
    BorrowedRegistry(journal_).change(HKEY_LOCAL_MACHINE,
                                      L"Software\\Classes\\" + std::wstring(standin::programmaticIds[0]) + L"\\CLSID",
                                      L"", L"{00000000-0000-0000-0000-000000000000}");
}

void DesktopPowerPoint::forget() noexcept {
    application_ = nullptr;
    holder_ = nullptr;
}

} // namespace host
