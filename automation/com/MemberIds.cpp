#include "automation/com/MemberIds.h"

#include "automation/Text.h"

namespace automation::com {

namespace {

std::u16string keyOf(const Name& name) {
    std::u16string key(name.scope());
    key += u'.';
    key += name.text();
    return lowerCase(key);
}

} // namespace

std::optional<DISPID> MemberIds::find(const Name& name) const {
    const auto found = ids_.find(keyOf(name));
    return found == ids_.end() ? std::nullopt : std::optional(found->second);
}

void MemberIds::remember(const Name& name, DISPID id) {
    ids_.insert_or_assign(keyOf(name), id);
}

} // namespace automation::com
