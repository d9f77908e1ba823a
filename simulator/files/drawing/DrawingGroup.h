#pragma once

#include "simulator/files/drawing/DrawingIds.h"
#include "simulator/files/records/Record.h"

#include <map>

namespace simulator::drawing {

/// The list of a document's drawings and of the clusters of numbers that they hold.
class DrawingGroup {
public:
    /// Raises DamagedPresentation.
    explicit DrawingGroup(const records::Record& atom);

    /// The numbers of a drawing that is there.
    [[nodiscard]] DrawingIds ids(std::uint32_t drawing) const;
    /// A further drawing, with one cluster.
    [[nodiscard]] DrawingIds add();
    /// Makes sure that a drawing has numbers for ids up to one.
    void reserve(DrawingIds& ids, std::int32_t highestId);
    /// Counts drawings and shapes that have come or gone.
    void count(std::int64_t drawings, std::int64_t shapes) noexcept;

    [[nodiscard]] records::Record atom() const;

private:
    struct Cluster {
        std::uint32_t drawing = 0;
        std::uint32_t used = 0;
    };

    /// Adds a cluster to a drawing; its number.
    std::uint32_t append(std::uint32_t drawing, std::uint32_t used);

    records::Record read_;
    std::uint32_t highestShape_ = 0;
    std::uint32_t shapes_ = 0;
    std::uint32_t drawings_ = 0;
    std::vector<Cluster> clusters_;
    std::map<std::uint32_t, std::vector<std::uint32_t>> byDrawing_; ///< numbers of clusters
};

} // namespace simulator::drawing
