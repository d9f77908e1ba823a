#include "simulator/files/drawing/Anchor.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <array>

namespace simulator::drawing {

namespace {

using records::Record;
namespace type = records::type;

/// Four whole numbers in master units.
struct Place {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;
};

double scale(double from, double to) noexcept {
    return from == 0 ? 1 : to / from;
}

Place placeOf(const Frame& straight, float rotation) noexcept {
    const Frame frame = liesOnItsSide(rotation) ? onItsSide(straight) : straight;
    const auto unit = [](double points) { return nearest(points * masterUnitsPerPoint); };
    return {unit(frame.left), unit(frame.top), unit(double{frame.left} + double{frame.width}),
            unit(double{frame.top} + double{frame.height})};
}

bool isShort(std::int32_t number) noexcept {
    return std::in_range<std::int16_t>(number);
}

Edges leftTopRightBottom(const Record& record, std::string_view what) {
    files::ByteReader in(record.data, what);
    Edges edges;
    for (double* const edge : {&edges.left, &edges.top, &edges.right, &edges.bottom}) {
        *edge = in.read<std::int32_t>();
    }
    return edges;
}

Edges clientEdges(const Record& record) {
    files::ByteReader in(record.data, "the place of a shape");
    const bool areShort = in.left() < 16;
    Edges edges;
    for (double* const edge : {&edges.top, &edges.left, &edges.right, &edges.bottom}) {
        *edge = areShort ? in.read<std::int16_t>() : in.read<std::int32_t>();
    }
    return edges;
}

Record leftTopRightBottom(std::uint16_t type, const Place& place, std::uint8_t version) {
    files::ByteWriter out;
    out.write<std::int32_t>(place.left).write<std::int32_t>(place.top);
    out.write<std::int32_t>(place.right).write<std::int32_t>(place.bottom);
    return Record::atom(type, out.take(), 0, version);
}

} // namespace

Mapping::Mapping(const Edges& inner, const Edges& outer) noexcept
    : scaleX_(scale(inner.right - inner.left, outer.right - outer.left)),
      scaleY_(scale(inner.bottom - inner.top, outer.bottom - outer.top)), shiftX_(outer.left - inner.left * scaleX_),
      shiftY_(outer.top - inner.top * scaleY_) {}

Edges Mapping::onSlide(const Edges& edges) const noexcept {
    return {edges.left * scaleX_ + shiftX_, edges.top * scaleY_ + shiftY_, edges.right * scaleX_ + shiftX_,
            edges.bottom * scaleY_ + shiftY_};
}

std::optional<Edges> edgesOf(const Record& shape, const Mapping& mapping) {
    std::optional<Edges> edges;
    asFarAsSound([&] {
        if (const Record* const child = shape.find(type::ArtChildAnchor)) {
            edges = mapping.onSlide(leftTopRightBottom(*child, "the place of a shape in its group"));
        } else if (const Record* const client = shape.find(type::ArtClientAnchor)) {
            edges = clientEdges(*client);
        }
    });
    return edges;
}

Edges coordinatesOf(const Record& shape) {
    return leftTopRightBottom(shape.demand(type::ArtShapeGroupAtom), "the coordinates of a group");
}

Edges edgesOf(const Frame& frame) noexcept {
    const Place place = placeOf(frame, 0);
    return {static_cast<double>(place.left), static_cast<double>(place.top), static_cast<double>(place.right),
            static_cast<double>(place.bottom)};
}

Frame frameOf(const Edges& edges, float rotation) noexcept {
    const Place place{nearest(std::min(edges.left, edges.right)), nearest(std::min(edges.top, edges.bottom)),
                      nearest(std::max(edges.left, edges.right)), nearest(std::max(edges.top, edges.bottom))};
    const auto points = [](double units) { return static_cast<float>(units / masterUnitsPerPoint); };
    const Frame frame{points(place.left), points(place.top), points(static_cast<double>(place.right) - place.left),
                      points(static_cast<double>(place.bottom) - place.top)};
    return liesOnItsSide(rotation) ? onItsSide(frame) : frame;
}

Record clientAnchor(const Frame& frame, float rotation) {
    const Place place = placeOf(frame, rotation);
    const std::array edges{place.top, place.left, place.right, place.bottom};
    const bool areShort = std::all_of(edges.begin(), edges.end(), isShort);
    files::ByteWriter out;
    for (const std::int32_t edge : edges) {
        if (areShort) {
            out.write<std::int16_t>(static_cast<std::int16_t>(edge));
        } else {
            out.write<std::int32_t>(edge);
        }
    }
    return Record::atom(type::ArtClientAnchor, out.take());
}

Record childAnchor(const Frame& frame, float rotation) {
    return leftTopRightBottom(type::ArtChildAnchor, placeOf(frame, rotation), 0);
}

Record groupCoordinates(const Frame& frame) {
    return leftTopRightBottom(type::ArtShapeGroupAtom, placeOf(frame, 0), 1);
}

} // namespace simulator::drawing
