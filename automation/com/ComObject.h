#pragma once

#include "automation/Unmoved.h"
#include "automation/com/ComPtr.h"

#include <atomic>
#include <cstddef>
#include <memory>

namespace automation::com {

/// The reference count of a COM object, which starts with its maker's reference.
class ReferenceCount {
public:
    ULONG add() noexcept { return count_.fetch_add(1, std::memory_order_relaxed) + 1; }
    ULONG drop() noexcept { return count_.fetch_sub(1, std::memory_order_acq_rel) - 1; }

    /// Counts a reference unless the last one has been dropped, and the object is on its way out.
    bool addIfAlive() noexcept {
        ULONG count = count_.load(std::memory_order_relaxed);
        while (count != 0 && !count_.compare_exchange_weak(count, count + 1, std::memory_order_relaxed)) {
        }
        return count != 0;
    }

private:
    std::atomic<ULONG> count_ = 1;
};

/// Counts the COM objects of this library that are alive.
class CountedAlive : Unmoved {
public:
    CountedAlive() noexcept { count.fetch_add(1, std::memory_order_relaxed); }
    ~CountedAlive() { count.fetch_sub(1, std::memory_order_relaxed); }

    inline static std::atomic<std::size_t> count = 0;
};

/// What every COM object has: identity, interfaces, reference count. The first interface gives the identity.
template <typename First, typename... Others> class ComObject : public First, public Others..., Unmoved {
public:
    virtual ~ComObject() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID wanted, void** result) noexcept override {
        if (result == nullptr) {
            return E_POINTER;
        }
        *result = find(wanted);
        if (*result == nullptr) {
            return E_NOINTERFACE;
        }
        count_.add();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() noexcept override { return count_.add(); }
    ULONG STDMETHODCALLTYPE Release() noexcept override {
        const ULONG left = count_.drop();
        if (left == 0) {
            const std::unique_ptr<ComObject> last(this);
        }
        return left;
    }

protected:
    [[nodiscard]] IUnknown* identity() noexcept { return static_cast<First*>(this); }
    [[nodiscard]] ReferenceCount& references() noexcept { return count_; }

    /// The interface of that identity, without a reference; null where there is none. A class adds those that its own
    /// are derived from.
    [[nodiscard]] virtual void* find(REFIID wanted) noexcept {
        if (IsEqualIID(wanted, __uuidof(IUnknown))) {
            return identity();
        }
        void* found = IsEqualIID(wanted, __uuidof(First)) ? static_cast<First*>(this) : nullptr;
        ((found = found == nullptr && IsEqualIID(wanted, __uuidof(Others)) ? static_cast<Others*>(this) : found), ...);
        return found;
    }

private:
    ReferenceCount count_;
    CountedAlive alive_;
};

/// A new COM object with its first reference.
template <typename T, typename... Arguments> [[nodiscard]] ComPtr<T> makeCom(Arguments&&... arguments) {
    return ComPtr<T>::adopt(std::make_unique<T>(std::forward<Arguments>(arguments)...).release());
}

} // namespace automation::com
