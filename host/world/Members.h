#pragma once

#include "automation/LateBound.h"

/// What PowerPoint's object model is made of: members that are objects, and collections.
namespace host {

/// The object that a property holds.
[[nodiscard]] inline automation::LateBound memberOf(const automation::LateBound& object, std::u16string_view name) {
    return automation::LateBound(object.get(name).to<automation::ObjectPtr>());
}

[[nodiscard]] inline std::int32_t countOf(const automation::LateBound& collection) {
    return collection.get(u"Count").to<std::int32_t>();
}

/// An item of a collection, by its place from 1.
[[nodiscard]] inline automation::LateBound itemOf(const automation::LateBound& collection, std::int32_t place) {
    return automation::LateBound(collection.call(u"Item", place).to<automation::ObjectPtr>());
}

/// Takes every item of a collection, in order.
template <typename Take> void forEachItem(const automation::LateBound& collection, const Take& take) {
    const std::int32_t count = countOf(collection);
    for (std::int32_t i = 1; i <= count; ++i) {
        take(itemOf(collection, i));
    }
}

} // namespace host
