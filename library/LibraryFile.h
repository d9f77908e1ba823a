#pragma once

#include "automation/com/Ole.h"

#include <string>

namespace library {

/// Full path of the file that this library was loaded from. Raises the error of the system.
[[nodiscard]] std::wstring libraryPath();

/// The description of an interface in the type library that this library's file carries. Raises the error of the
/// system.
void describeInterface(REFIID interfaceId, ITypeInfo** info);

} // namespace library
