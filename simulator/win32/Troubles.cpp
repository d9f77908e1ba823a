#include "simulator/win32/Troubles.h"

#include <windows.h>

#include <utility>

namespace simulator::standin {

namespace {
constexpr UINT diedOnPurpose = 3;
} // namespace

void Troubles::meet() {
    ++calls_;
    if (calls_ == deadly_) {
        TerminateProcess(GetCurrentProcess(), diedOnPurpose);
    }
    if (calls_ == awaited_) {
        action_();
    }
    const bool isLate = calls_ == delayed_;
    delays_ += isLate ? 1 : 0;
    const std::int32_t late = slowness_ + (isLate ? delay_ : 0);
    if (late > 0) {
        Sleep(static_cast<DWORD>(late));
    }
}

void Troubles::beforeCall(std::int32_t n, std::function<void()> action) {
    if (n <= 1) {
        return action();
    }
    awaited_ = calls_ + n - 1;
    action_ = std::move(action);
}

} // namespace simulator::standin
