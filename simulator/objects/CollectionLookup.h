#pragma once

#include "automation/Text.h"
#include "simulator/objects/PowerPointObject.h"

#include <algorithm>
#include <optional>

namespace simulator {

/// True when two weak references stand for the same object, gone or not.
template <typename T>
[[nodiscard]] bool isSameReference(const std::weak_ptr<T>& left, const std::weak_ptr<T>& right) noexcept {
    return !left.owner_before(right) && !right.owner_before(left);
}

/// Place from 0 of the element at an index from 1. `member` is the member that took it. Raises out of range.
[[nodiscard]] inline std::size_t placeIn(std::size_t count, std::int32_t index, std::u16string_view member) {
    if (index < 1 || static_cast<std::size_t>(index) > count) {
        errors::outOfRange(member, index, count);
    }
    return static_cast<std::size_t>(index) - 1;
}

/// Place from 0 of the element that `index` names: its place from 1, or its name, case ignored. `member` is the member
/// that took it; `nameAt` gives the name at a place from 0. Raises an invalid request where there is no such element.
template <typename NameAt>
[[nodiscard]] std::size_t placeIn(std::size_t count, const automation::Value& index, std::u16string_view member,
                                  const NameAt& nameAt) {
    if (!index.is<std::u16string>()) {
        return placeIn(count, index.to<std::int32_t>(), member);
    }
    const auto& name = index.as<std::u16string>();
    for (std::size_t place = 0; place < count; ++place) {
        if (automation::equalIgnoringCase(nameAt(place), name)) {
            return place;
        }
    }
    errors::invalidRequest(member, u"L'élément " + name + u" n'appartient pas à la collection.");
}

/// The slide or shape that `index` names, by its place from 1 or its name.
template <typename Node>
[[nodiscard]] const std::shared_ptr<Node>& elementAt(const std::vector<std::shared_ptr<Node>>& elements,
                                                     const automation::Value& index, std::u16string_view member) {
    const auto nameAt = [&elements](std::size_t place) -> const std::u16string& { return elements[place]->name; };
    return elements[placeIn(elements.size(), index, member, nameAt)];
}

/// The slides or shapes that `index` names: one, those of an array of places and names, each once, or all where it is
/// left out.
template <typename Node>
[[nodiscard]] std::vector<std::shared_ptr<Node>> elementsAt(const std::vector<std::shared_ptr<Node>>& elements,
                                                            const std::optional<automation::Value>& index,
                                                            std::u16string_view member) {
    if (!index) {
        return elements;
    }
    if (!index->template is<automation::Array>()) {
        return {elementAt(elements, *index, member)};
    }
    std::vector<std::shared_ptr<Node>> named;
    for (const automation::Value& one : index->template as<automation::Array>()) {
        const std::shared_ptr<Node>& element = elementAt(elements, one, member);
        if (std::find(named.begin(), named.end(), element) == named.end()) {
            named.push_back(element);
        }
    }
    return named;
}

} // namespace simulator
