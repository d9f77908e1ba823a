#pragma once

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

namespace simulator::drawing {

inline constexpr std::uint32_t clusterSize = 1024;

/// The first number of a cluster.
[[nodiscard]] constexpr std::uint32_t clusterOf(std::uint32_t cluster) noexcept {
    return cluster * clusterSize;
}

/// The numbers of a drawing's shapes. A document hands them out by clusters of 1024; a shape's id on its slide is its
/// place in the drawing's own clusters.
struct DrawingIds {
    std::uint32_t drawing = 0;
    std::vector<std::uint32_t> clusters; ///< by their numbers, from 1, in ascending order

    /// Nothing for a shape that is in none of the clusters.
    [[nodiscard]] std::optional<std::int32_t> idOf(std::uint32_t shape) const noexcept {
        const auto found = std::lower_bound(clusters.begin(), clusters.end(), shape / clusterSize);
        if (found == clusters.end() || *found != shape / clusterSize) {
            return std::nullopt;
        }
        const auto place = static_cast<std::uint32_t>(found - clusters.begin());
        return static_cast<std::int32_t>(place * clusterSize + shape % clusterSize);
    }
    /// The clusters must be enough for the id.
    [[nodiscard]] std::uint32_t shapeOf(std::int32_t id) const {
        const auto number = static_cast<std::uint32_t>(id);
        return clusters.at(number / clusterSize) * clusterSize + number % clusterSize;
    }
};

} // namespace simulator::drawing
