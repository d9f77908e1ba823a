#pragma once

#include "automation/com/Ole.h"

namespace simulator::standin {

/// The class of the stand-in's application object. PowerPoint's own is never touched.
inline constexpr CLSID applicationClass{0x0C2E8B51, 0x6D3A, 0x4F87, {0x9B, 0x1E, 0x52, 0x7A, 0x90, 0xD4, 0xC3, 0x18}};

/// The class under which the running stand-in shows its controls in the running-object table.
inline constexpr CLSID controlClass{0x5A7D1F36, 0x20C9, 0x4E5B, {0x8F, 0x64, 0x3B, 0xE1, 0x07, 0xA8, 0x92, 0xDC}};

/// The names under which PowerPoint 2003 is known, the versioned one first.
inline constexpr const wchar_t* programmaticIds[] = {L"PowerPoint.Application.11", L"PowerPoint.Application"};

inline constexpr const wchar_t* frameClass = L"PP11FrameClass";

} // namespace simulator::standin
