#pragma once

#include "automation/MemberTable.h"

#include "automation/com/Ole.h"

/// How a published object answers the calls of IDispatch: a member's DISPID is its position in the table, from 1, and
/// the default member's DISPID_VALUE, and that of `_NewEnum` DISPID_NEWENUM; a parameter's is its place, from 0. Errors
/// of a member leave in the EXCEPINFO and as the thread's error object alike; nothing but a status leaves.
namespace automation::com::member_dispatch {

[[nodiscard]] HRESULT getIdsOfNames(const MemberTable& members, LPOLESTR* names, UINT count, DISPID* ids) noexcept;

/// Arguments that refer to variables are written back where the member changed them, also where it raises, and
/// where one of them cannot take what it is given. Named arguments are refused by a member that names no parameters,
/// except for the new value of a property.
// NOLINTNEXTLINE(bugprone-exception-escape): as where it is defined
[[nodiscard]] HRESULT invoke(Published& object, DISPID id, WORD flags, const DISPPARAMS* parameters, VARIANT* result,
                             EXCEPINFO* raised) noexcept;

} // namespace automation::com::member_dispatch
