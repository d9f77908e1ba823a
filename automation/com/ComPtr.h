#pragma once

#include "automation/com/Ole.h"

#include <cassert>
#include <utility>

namespace automation::com {

template <typename T> class ComPtr;

/// An object by another interface; null where it has none of that kind, or is null.
template <typename Other> [[nodiscard]] ComPtr<Other> queryFor(IUnknown* object) noexcept;

/// A counted reference to a COM object.
template <typename T> class ComPtr {
public:
    ComPtr() noexcept = default;
    ComPtr(std::nullptr_t) noexcept {}
    /// Counts a reference of its own.
    explicit ComPtr(T* object) noexcept : object_(object) {
        if (object_ != nullptr) {
            object_->AddRef();
        }
    }
    ComPtr(const ComPtr& other) noexcept : ComPtr(other.object_) {}
    ComPtr(ComPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    ~ComPtr() {
        if (object_ != nullptr) {
            object_->Release();
        }
    }
    ComPtr& operator=(ComPtr other) noexcept {
        std::swap(object_, other.object_);
        return *this;
    }

    /// Takes over a reference that has been counted already.
    [[nodiscard]] static ComPtr adopt(T* object) noexcept {
        ComPtr result;
        result.object_ = object;
        return result;
    }

    [[nodiscard]] T* get() const noexcept { return object_; }
    T* operator->() const noexcept {
        assert(object_ != nullptr);
        return object_;
    }
    [[nodiscard]] explicit operator bool() const noexcept { return object_ != nullptr; }
    friend bool operator==(const ComPtr& left, const ComPtr& right) noexcept { return left.object_ == right.object_; }

    /// Where a call leaves the reference that it gives out; to be used on an empty pointer.
    [[nodiscard]] T** receive() noexcept {
        assert(object_ == nullptr);
        return &object_;
    }
    /// Hands the reference over to the caller.
    [[nodiscard]] T* release() noexcept { return std::exchange(object_, nullptr); }

    /// The same object by another interface; null where it has none of that kind.
    template <typename Other> [[nodiscard]] ComPtr<Other> as() const noexcept { return queryFor<Other>(object_); }

private:
    T* object_ = nullptr;
};

template <typename Other> ComPtr<Other> queryFor(IUnknown* object) noexcept {
    void* found = nullptr;
    if (object == nullptr || FAILED(object->QueryInterface(__uuidof(Other), &found))) {
        return {};
    }
    return ComPtr<Other>::adopt(static_cast<Other*>(found));
}

/// The reference by which COM objects are compared.
[[nodiscard]] inline ComPtr<IUnknown> identityOf(IUnknown* object) noexcept {
    return queryFor<IUnknown>(object);
}

} // namespace automation::com
