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
    lockCount += lock != FALSE ? 1 : -1;
    return S_OK;
}

} // namespace library
