#include "host/win32/Standby.h"

#include "platform/win32/RegistryKey.h"
#include "simulator/win32/Registration.h"
#include "simulator/win32/StandInIdentity.h"

#include <array>

namespace host {

namespace {

namespace standin = simulator::standin;

constexpr std::size_t wanted = 2;
constexpr DWORD untilReady = 20000;

/// The command that starts the stand-in, as it is registered for this program; empty where it is not what PowerPoint's
/// name stands for.
std::wstring registeredProgram() {
    if (!standin::isRegistered()) {
        return {};
    }
    std::array<wchar_t, 40> text{};
    StringFromGUID2(standin::applicationClass, text.data(), static_cast<int>(text.size()));
    const std::wstring key = L"CLSID\\" + std::wstring(text.data()) + L"\\LocalServer32";
    const auto opened = platform::RegistryKey::open(HKEY_CLASSES_ROOT, key, KEY_QUERY_VALUE);
    return opened ? opened.text(L"") : std::wstring();
}

Handle jobThatEndsItsProcesses() {
    Handle job(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof(limits));
    return job;
}

} // namespace

Standby::Standby() : program_(registeredProgram()), job_(jobThatEndsItsProcesses()) {}

Standby::~Standby() {
    forgetTaken();
    for (const Waiting& each : waiting_) {
        // A process that is killed would stay known to Wine as one that offers PowerPoint. One that has become
        // PowerPoint unseen is never ready again, but comes to its end.
        const std::array<HANDLE, 2> either{each.ready.get(), each.process.get()};
        if (WaitForMultipleObjects(static_cast<DWORD>(either.size()), either.data(), FALSE, untilReady) ==
            WAIT_OBJECT_0) {
            PostThreadMessageW(each.thread, WM_QUIT, 0, 0);
        }
    }
    for (const Waiting& each : waiting_) {
        WaitForSingleObject(each.process.get(), untilReady);
    }
}

void Standby::prepare() {
    if (program_.empty()) {
        return;
    }
    forgetTaken();
    while (waiting_.size() < wanted) {
        start();
    }
    waitForOne();
    forgetTaken(); // so that whoever is ready now is known to be taken when it no longer is
}

void Standby::forgetTaken() {
    std::erase_if(waiting_, [this](Waiting& each) {
        const bool isReady = each.ready.isSignalled();
        const bool wasTaken = each.wasReady && !isReady;
        each.wasReady = isReady;
        const bool isForgotten = wasTaken || each.process.isSignalled();
        if (isForgotten) {
            forgotten_.push_back(std::move(each.process));
        }
        return isForgotten;
    });
}

void Standby::start() {
    const std::wstring name =
        L"K73053-standby-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++started_);
    Waiting one;
    one.ready = Handle(CreateEventW(nullptr, TRUE, FALSE, name.c_str()));
    std::wstring command = program_ + L" /Standby:" + name;
    STARTUPINFOW startup{};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process{};
    // In a group of its own: an interruption at the console is meant for the host.
    if (CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, CREATE_NEW_PROCESS_GROUP, nullptr, nullptr,
                       &startup, &process) != FALSE) {
        CloseHandle(process.hThread);
        one.process = Handle(process.hProcess);
        one.thread = process.dwThreadId;
        AssignProcessToJobObject(job_.get(), process.hProcess);
    }
    waiting_.push_back(std::move(one));
}

void Standby::waitForOne() {
    std::array<HANDLE, wanted> events{};
    for (std::size_t i = 0; i < wanted; ++i) {
        events.at(i) = waiting_[i].ready.get();
    }
    WaitForMultipleObjects(static_cast<DWORD>(wanted), events.data(), FALSE, untilReady);
}

} // namespace host
