#pragma once

#include "automation/com/ComObject.h"

namespace library {

/// The class object of one of the library's classes.
class ClassObject final : public automation::com::ComObject<IClassFactory> {
public:
    explicit ClassObject(REFCLSID classId) noexcept : classId_(classId) {}

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID wanted, void** result) noexcept override;
    /// E_UNEXPECTED where a lock is given back that nobody holds.
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) noexcept override;

    /// Locks held on the library by its hosts.
    [[nodiscard]] static LONG locks() noexcept { return lockCount; }

private:
    inline static std::atomic<LONG> lockCount = 0;

    CLSID classId_;
};

} // namespace library
