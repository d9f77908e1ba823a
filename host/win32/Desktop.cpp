#include "host/win32/Desktop.h"

#include "automation/com/ComPtr.h"
#include "host/win32/DesktopPowerPoint.h"
#include "host/win32/StandIn.h"
#include "simulator/win32/StandInIdentity.h"

#include <chrono>
#include <cstdio>
#include <stdexcept>
#include <thread>

namespace host {

namespace {

namespace standin = simulator::standin;

using automation::com::ComPtr;

void endLeftPowerPoint(Journal& journal) {
    DesktopPowerPoint powerPoint(journal);
    if (powerPoint.window() == 0) {
        return;
    }
    if (!isStandInRunning()) {
        throw std::runtime_error("PowerPoint runs on this desktop: close it first");
    }
    powerPoint.dismiss();
}

/// Refuses where one of the two is missing that are to be driven. The library is loaded, so that one that is registered
/// and gone is found out here.
void requireRegistered() {
    CLSID id{};
    if (FAILED(CLSIDFromProgID(standin::programmaticIds[0], &id))) {
        throw std::runtime_error("PowerPoint is not registered on this machine: install it, or leave --powerpoint out");
    }
    ComPtr<IUnknown> factory;
    if (FAILED(CLSIDFromProgID(L"K73053.Module", &id)) ||
        FAILED(CoGetClassObject(id, CLSCTX_INPROC_SERVER, nullptr, IID_IUnknown,
                                reinterpret_cast<void**>(factory.receive())))) {
        throw std::runtime_error("K73053.dll is not registered for programs of " + std::to_string(8 * sizeof(void*)) +
                                 " bits: regsvr32 K73053.dll does that, or leave --powerpoint out");
    }
}

/// A stand-in that was killed with its run stays known to the system for a moment, and nobody creates PowerPoint until
/// then.
void awaitCreation(Journal& journal) {
    using namespace std::chrono_literals;
    for (int attempt = 0; attempt < 50; ++attempt) {
        try {
            DesktopPowerPoint powerPoint(journal);
            powerPoint.start();
            powerPoint.dismiss();
            return;
        } catch (const automation::Error&) {
            std::this_thread::sleep_for(200ms);
        }
    }
}

/// Starts the PowerPoint that is registered, and asks it.
void requireBits(std::int32_t demanded, Journal& journal) {
    DesktopPowerPoint powerPoint(journal);
    powerPoint.start();
    const auto bits = isStandInRunning() ? standIn().get(u"Bits").to<std::int32_t>() : std::int32_t{0};
    powerPoint.dismiss();
    if (bits != demanded) {
        throw std::runtime_error("the PowerPoint that is registered is no stand-in of " + std::to_string(demanded) +
                                 " bits");
    }
}

} // namespace

Desktop::Desktop(std::int32_t powerPointBits) {
    endLeftPowerPoint(journal_);
    const std::size_t given = journal_.giveBack();
    if (given != 0) {
        std::fprintf(stderr, "exercise-host: gave back %zu files and settings that a run cut short had borrowed\n",
                     given);
    }
    requireRegistered();
    if (given != 0) {
        awaitCreation(journal_);
    }
    standby_.emplace();
    if (powerPointBits != 0) {
        standby_->prepare();
        requireBits(powerPointBits, journal_);
    }
}

void Desktop::makeReady() {
    endLeftPowerPoint(journal_);
    standby_->prepare();
}

} // namespace host
