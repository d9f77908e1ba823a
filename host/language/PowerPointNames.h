#pragma once

#include <string_view>
#include <vector>

/// What PowerPoint 2003 publishes, whether the embedded PowerPoint has it or not.
namespace host::language {

/// The members of a class; empty for one that is not listed. Names are compared without regard to their case.
[[nodiscard]] std::vector<std::u16string_view> membersInPowerPoint(std::u16string_view className);
[[nodiscard]] bool isMemberInPowerPoint(std::u16string_view className, std::u16string_view name);

[[nodiscard]] std::vector<std::u16string_view> classesOfPowerPoint();
[[nodiscard]] bool isClassOfPowerPoint(std::u16string_view name);

} // namespace host::language
