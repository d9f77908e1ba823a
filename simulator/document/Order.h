#pragma once

#include <algorithm>
#include <memory>
#include <vector>

/// Lists that own their elements and keep them in an order.
namespace simulator::order {

/// Place of an element from 0; the number of elements where it is not in the list.
template <typename T>
[[nodiscard]] std::size_t placeOf(const std::vector<std::shared_ptr<T>>& list, const T& element) noexcept {
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&element](const auto& candidate) { return candidate.get() == &element; });
    return static_cast<std::size_t>(found - list.begin());
}

/// Puts an element at a place from 0, or at the end where the place lies beyond.
template <typename T>
void insert(std::vector<std::shared_ptr<T>>& list, const std::shared_ptr<T>& element, std::size_t place) {
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(std::min(place, list.size())), element);
}

/// Takes an element out of the list, which may have been its only owner; null where it is not in it.
template <typename T>
std::shared_ptr<T> take(std::vector<std::shared_ptr<T>>& list, const std::shared_ptr<T>& element) {
    const auto found = std::find(list.begin(), list.end(), element);
    if (found == list.end()) {
        return nullptr;
    }
    std::shared_ptr<T> taken = std::move(*found);
    list.erase(found);
    return taken;
}

/// Moves an element to another place from 0; nothing happens where it is not in the list.
template <typename T>
void move(std::vector<std::shared_ptr<T>>& list, const std::shared_ptr<T>& element, std::size_t place) {
    if (const std::shared_ptr<T> taken = take(list, element)) {
        insert(list, taken, place);
    }
}

} // namespace simulator::order
