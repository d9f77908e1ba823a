#include "simulator/files/drawing/DrawingGroup.h"

#include "simulator/files/bytes/Bytes.h"

#include <algorithm>

namespace simulator::drawing {

namespace {

constexpr std::size_t mostClusters = 1024;

} // namespace

DrawingGroup::DrawingGroup(const records::Record& atom) : read_(atom) {
    files::ByteReader in(atom.data, "the list of drawings");
    highestShape_ = in.read<std::uint32_t>();
    in.skip(4);
    shapes_ = in.read<std::uint32_t>();
    drawings_ = in.read<std::uint32_t>();
    while (in.left() >= 8) {
        const auto drawing = in.read<std::uint32_t>();
        append(drawing, in.read<std::uint32_t>());
        if (byDrawing_[drawing].size() > mostClusters) {
            throw DamagedPresentation("drawing " + std::to_string(drawing) + " is said to have more than " +
                                      std::to_string(mostClusters * clusterSize) + " shapes");
        }
    }
}

DrawingIds DrawingGroup::ids(std::uint32_t drawing) const {
    const auto found = byDrawing_.find(drawing);
    return {drawing, found == byDrawing_.end() ? std::vector<std::uint32_t>() : found->second};
}

DrawingIds DrawingGroup::add() {
    DrawingIds ids{1, {}};
    while (byDrawing_.contains(ids.drawing)) { // the lowest free one: a record has twelve bits for it
        ++ids.drawing;
    }
    reserve(ids, 1);
    return ids;
}

void DrawingGroup::reserve(DrawingIds& ids, std::int32_t highestId) {
    const auto highest = static_cast<std::uint32_t>(highestId);
    while (ids.clusters.size() <= highest / clusterSize) {
        ids.clusters.push_back(append(ids.drawing, 0));
    }
    std::uint32_t& used = clusters_[ids.clusters[highest / clusterSize] - 1].used;
    used = std::max(used, highest % clusterSize + 1);
    highestShape_ = std::max(highestShape_, ids.shapeOf(highestId) + 1);
}

std::uint32_t DrawingGroup::append(std::uint32_t drawing, std::uint32_t used) {
    clusters_.push_back({drawing, used});
    const auto number = static_cast<std::uint32_t>(clusters_.size());
    byDrawing_[drawing].push_back(number);
    return number;
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
