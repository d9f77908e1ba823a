#include "simulator/win32/Troubles.h"

#include <windows.h>

namespace simulator::standin {

namespace {
constexpr UINT diedOnPurpose = 3;
} // namespace

void Troubles::meet() {
    ++calls_;
    if (calls_ == deadly_) {
        TerminateProcess(GetCurrentProcess(), diedOnPurpose);
    }
    if (slowness_ > 0) {
        Sleep(static_cast<DWORD>(slowness_));
    }
}

} // namespace simulator::standin
