#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class LineFormatObject;

/// Borders: the borders of some cells and the diagonals through them. Neighbours share the one between them.
class BordersObject final : public NodeSetObject<Shape> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;
    /// The first of the cells.
    [[nodiscard]] automation::ObjectPtr owner() const override;
    /// Four sides and two diagonals.
    [[nodiscard]] std::int32_t count() const noexcept { return ppBorderDiagonalUp; }
    /// That side of each of the cells, ppBorderTop to ppBorderDiagonalUp.
    [[nodiscard]] std::shared_ptr<LineFormatObject> item(PpBorderType borderType) const;
};

} // namespace simulator
