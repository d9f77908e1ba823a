#pragma once

#include "automation/MemberTable.h"

namespace automation {

/// The member by which a collection gives its elements one after another: what `For Each` asks for.
inline constexpr Name newEnum{u"_NewEnum"};

/// The elements of a collection, one after another. Its one member, `Next`, gives the next of them.
class Elements : public Published {
public:
    /// The next element; Missing behind the last.
    virtual Value next() = 0;

    [[nodiscard]] const MemberTable& members() const final {
        static const MemberTable table{method<&Elements::next>(u"Next")};
        return table;
    }
};

} // namespace automation
