#pragma once

#include "automation/Name.h"

#include "automation/com/Ole.h"

#include <optional>
#include <string>
#include <unordered_map>

namespace automation::com {

/// The DISPIDs of the names that were looked up so far, by class and member.
class MemberIds {
public:
    [[nodiscard]] std::optional<DISPID> find(const Name& name) const;
    void remember(const Name& name, DISPID id);

private:
    std::unordered_map<std::u16string, DISPID> ids_;
};

} // namespace automation::com
