#include "library/ClassObject.h"

#include "automation/com/ComError.h"
#include "library/classes/Classes.h"

namespace library {

HRESULT ClassObject::CreateInstance(IUnknown* outer, REFIID wanted, void** result) noexcept {
    if (result == nullptr) {
        return E_POINTER;
    }
    *result = nullptr;
    if (outer != nullptr) {
        return CLASS_E_NOAGGREGATION;
    }
    return automation::com::guarded([&] { return createObject(classId_)->QueryInterface(wanted, result); });
}

HRESULT ClassObject::LockServer(BOOL lock) noexcept {
    if (lock != FALSE) {
        ++lockCount;
        return S_OK;
    }
    LONG held = lockCount;
    while (held > 0 && !lockCount.compare_exchange_weak(held, held - 1)) {
    }
    return held > 0 ? S_OK : E_UNEXPECTED;
}

} // namespace library
