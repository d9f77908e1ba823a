#include "platform/win32/Win32Servers.h"

#include "automation/Error.h"
#include "automation/com/ComError.h"
#include "automation/com/Objects.h"
#include "automation/com/WideText.h"

namespace platform {

namespace {

using automation::ObjectPtr;
using automation::RunTimeError;
using automation::com::ComPtr;

/// Raises 429 for the statuses that say that there is no such server, or none that starts; others as they are.
void require(HRESULT status) {
    switch (status) {
    case CO_E_CLASSSTRING:
    case CO_E_APPNOTFOUND:
    case CO_E_SERVER_EXEC_FAILURE:
    case MK_E_UNAVAILABLE:
    case REGDB_E_CLASSNOTREG:
    case REGDB_E_READREGDB:
    case E_NOINTERFACE: automation::raise(RunTimeError::CannotCreateObject);
    default: automation::com::check(status);
    }
}

CLSID classOf(std::u16string_view programmaticId) {
    CLSID id{};
    require(CLSIDFromProgID(automation::com::WideText(programmaticId).get(), &id));
    return id;
}

} // namespace

ObjectPtr Win32Servers::attach(std::u16string_view programmaticId) {
    ComPtr<IUnknown> running;
    require(GetActiveObject(classOf(programmaticId), nullptr, running.receive()));
    const auto dispatch = running.as<IDispatch>();
    require(dispatch ? S_OK : E_NOINTERFACE);
    return automation::com::objectOf(dispatch.get());
}

ObjectPtr Win32Servers::create(std::u16string_view programmaticId) {
    void* created = nullptr;
    require(CoCreateInstance(classOf(programmaticId), nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch, &created));
    return automation::com::objectOf(ComPtr<IDispatch>::adopt(static_cast<IDispatch*>(created)).get());
}

} // namespace platform
