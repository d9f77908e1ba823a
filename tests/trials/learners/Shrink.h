#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace trials::learners {

/// Leaves out of a list what is not needed for something to hold of it, first many elements at a time, then one by one;
/// `holds` is asked of shorter and shorter lists.
template <typename Element, typename Predicate>
[[nodiscard]] std::vector<Element> shrunk(std::vector<Element> list, const Predicate& holds) {
    for (std::size_t length = list.size(); length != 0;) {
        bool isShorter = false;
        for (std::size_t start = 0; start + length <= list.size();) {
            std::vector<Element> without = list;
            const auto first = without.begin() + static_cast<std::ptrdiff_t>(start);
            without.erase(first, first + static_cast<std::ptrdiff_t>(length));
            if (holds(without)) {
                list = std::move(without);
                isShorter = true;
            } else {
                ++start;
            }
        }
        length = isShorter ? std::min(length, list.size()) : length / 2;
    }
    return list;
}

} // namespace trials::learners
