#pragma once

#include "automation/com/ComPtr.h"

namespace library {

/// A new object of one of the library's classes; null for any other class.
[[nodiscard]] automation::com::ComPtr<IDispatch> createObject(REFCLSID classId);

/// True for a class that the library has.
[[nodiscard]] bool hasClass(REFCLSID classId) noexcept;

/// From now on, objects of the library's classes are handed out with their dual interfaces.
void handOutDualInterfaces() noexcept;

} // namespace library
