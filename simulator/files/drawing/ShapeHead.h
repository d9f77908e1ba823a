#pragma once

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/DrawingIds.h"
#include "simulator/files/records/Record.h"
#include "simulator/files/records/RecordTypes.h"

namespace simulator::drawing {

/// A shape's own record: its kind, its number in the document and its flags.
struct ShapeHead {
    explicit ShapeHead(const records::Record& shape) {
        const records::Record& atom = shape.demand(records::type::ArtShapeAtom);
        files::ByteReader in(atom.data, "the record of a shape");
        kind = atom.instance;
        number = in.read<std::uint32_t>();
        flags = in.read<std::uint32_t>();
    }

    std::uint16_t kind = 0;
    std::uint32_t number = 0;
    std::uint32_t flags = 0;
};

/// The id of a drawing's background; nothing where it has none.
[[nodiscard]] inline std::optional<std::int32_t> backgroundId(const records::Record& drawing, const DrawingIds& ids) {
    const records::Record* const shape = drawing.find(records::type::ArtShape);
    const bool isShape = shape != nullptr && shape->find(records::type::ArtShapeAtom) != nullptr;
    return isShape ? ids.idOf(ShapeHead(*shape).number) : std::nullopt;
}

} // namespace simulator::drawing
