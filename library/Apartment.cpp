#include "library/Apartment.h"

#include <windows.h>

#include <mutex>
#include <unordered_map>

namespace library {

namespace {

struct Apartments {
    std::mutex mutex;
    std::unordered_map<DWORD, std::shared_ptr<Apartment>> byThread;
};

Apartments& all() {
    static Apartments instance;
    return instance;
}

} // namespace

std::shared_ptr<Apartment> Apartment::current() {
    Apartments& apartments = all();
    const std::lock_guard lock(apartments.mutex);
    std::shared_ptr<Apartment>& own = apartments.byThread[GetCurrentThreadId()];
    if (!own) {
        own = std::make_shared<Apartment>();
    }
    return own;
}

void Apartment::forgetCurrent() noexcept {
    Apartments& apartments = all();
    const std::lock_guard lock(apartments.mutex);
    apartments.byThread.erase(GetCurrentThreadId());
}

} // namespace library
