#include "simulator/files/drawing/DrawingGroup.h"

#include "simulator/files/Bytes.h"

#include <algorithm>

namespace simulator::drawing {

DrawingGroup::DrawingGroup(const records::Record& atom) : read_(atom) {
    files::ByteReader in(atom.data, "the list of drawings");
    highestShape_ = in.read<std::uint32_t>();
    in.skip(4);
    shapes_ = in.read<std::uint32_t>();
    drawings_ = in.read<std::uint32_t>();
    while (in.left() >= 8) {
        Cluster& cluster = clusters_.emplace_back();
        cluster.drawing = in.read<std::uint32_t>();
        cluster.used = in.read<std::uint32_t>();
    }
}

DrawingIds DrawingGroup::ids(std::uint32_t drawing) const {
    DrawingIds ids{drawing, {}};
    for (std::size_t place = 0; place < clusters_.size(); ++place) {
        if (clusters_[place].drawing == drawing) {
            ids.clusters.push_back(static_cast<std::uint32_t>(place + 1));
        }
    }
    return ids;
}

DrawingIds DrawingGroup::add() {
    DrawingIds ids;
    for (const Cluster& cluster : clusters_) {
        ids.drawing = std::max(ids.drawing, cluster.drawing);
    }
    ++ids.drawing;
    reserve(ids, 1);
    return ids;
}

void DrawingGroup::reserve(DrawingIds& ids, std::int32_t highestId) {
    const auto highest = static_cast<std::uint32_t>(highestId);
    while (ids.clusters.size() <= highest / clusterSize) {
        clusters_.push_back({ids.drawing, 0});
        ids.clusters.push_back(static_cast<std::uint32_t>(clusters_.size()));
    }
    std::uint32_t& used = clusters_[ids.clusters[highest / clusterSize] - 1].used;
    used = std::max(used, highest % clusterSize + 1);
    highestShape_ = std::max(highestShape_, ids.shapeOf(highestId) + 1);
}

void DrawingGroup::count(std::int64_t drawings, std::int64_t shapes) noexcept {
    drawings_ = static_cast<std::uint32_t>(drawings_ + drawings);
    shapes_ = static_cast<std::uint32_t>(shapes_ + shapes);
}

records::Record DrawingGroup::atom() const {
    files::ByteWriter out;
    out.write<std::uint32_t>(highestShape_).write<std::uint32_t>(static_cast<std::uint32_t>(clusters_.size() + 1));
    out.write<std::uint32_t>(shapes_).write<std::uint32_t>(drawings_);
    for (const Cluster& cluster : clusters_) {
        out.write<std::uint32_t>(cluster.drawing).write<std::uint32_t>(cluster.used);
    }
    records::Record atom = read_;
    atom.data = out.take();
    return atom;
}

} // namespace simulator::drawing
