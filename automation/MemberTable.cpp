#include "automation/MemberTable.h"

#include <bit>
#include <cassert>

namespace automation {

MemberTable::MemberTable(std::initializer_list<Member> members) : members_(members) {
    index();
}

MemberTable MemberTable::with(std::initializer_list<Member> more) const {
    MemberTable both = *this;
    both.members_.insert(both.members_.end(), more);
    both.index();
    return both;
}

void MemberTable::index() {
    slots_.assign(std::bit_ceil(members_.size() * 2 + 1), 0);
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t i = 0; i < members_.size(); ++i) {
        std::size_t slot = members_[i].name.hash() & mask;
        while (slots_[slot] != 0) {
            [[maybe_unused]] const Name& other = members_[slots_[slot] - 1U].name;
            assert(other.hash() != members_[i].name.hash() || other.matches(members_[i].name)); // as `find` relies on
            slot = (slot + 1) & mask;
        }
        slots_[slot] = static_cast<std::uint16_t>(i + 1);
        if (members_[i].isDefault) {
            default_ = i + 1;
        }
    }
}

const Member* MemberTable::find(const Name& name) const noexcept {
    if (name.isDefault()) {
        return default_ == 0 ? nullptr : &members_[default_ - 1];
    }
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t slot = name.hash() & mask; slots_[slot] != 0; slot = (slot + 1) & mask) {
        const Member& member = members_[slots_[slot] - 1U];
        if (member.name.hash() == name.hash()) {
            return member.name.matches(name) ? &member : nullptr;
        }
    }
    return nullptr;
}

Value MemberTable::invoke(Object& object, const Name& name, Access access, std::span<Value> arguments) const {
    const Member* const member = find(name);
    if (member == nullptr || !member->answers(access)) {
        raise(RunTimeError::MemberNotFound);
    }
    if (!name.parameters().empty()) {
        std::vector<Value> ordered = parameters::inOrder(member->parameters, name.parameters(), access, arguments);
        return (access == Access::Put ? member->write : member->read)(object, ordered);
    }
    if (access == Access::Put) {
        return member->write(object, arguments);
    }
    if (member->isIndexable && !arguments.empty()) {
        const auto collection = member->read(object, {}).to<ObjectPtr>();
        if (!collection) {
            raise(RunTimeError::ObjectNotSet);
        }
        return collection->invoke(defaultMember, Access::GetOrCall, arguments);
    }
    return member->read(object, arguments);
}

} // namespace automation
