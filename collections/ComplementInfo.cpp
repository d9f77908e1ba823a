#include "collections/ComplementInfo.h"

#include "collections/Sequence.h"

namespace collections {

using automation::method;

void ComplementInfo::add(const std::u16string& text, std::int32_t /*ignored*/) {
    append(texts_, text);
}

std::int32_t ComplementInfo::count() const noexcept {
    return static_cast<std::int32_t>(texts_.size());
}

std::u16string ComplementInfo::item(std::int32_t index) const {
    return at(texts_, index);
}

const automation::MemberTable& ComplementInfo::members() const {
    static const automation::MemberTable table{
        method<&ComplementInfo::add>(u"ComplementInfo_add", u"Texte Reserve"),
        method<&ComplementInfo::count>(u"ComplementInfo_count"),
        method<&ComplementInfo::item>(u"ComplementInfo_item", u"Index"),
        method<&ComplementInfo::add>(u"add", u"Texte Reserve"),
        method<&ComplementInfo::count>(u"count"),
        method<&ComplementInfo::item>(u"item", u"Index").asDefault(),
    };
    return table;
}

} // namespace collections
