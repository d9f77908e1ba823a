#pragma once

// The system's headers for COM, in the order that they demand.
#include <windows.h>

#include <objbase.h>
#include <oleauto.h>

// A macro by the name of a property of PowerPoint's colours.
#undef RGB
