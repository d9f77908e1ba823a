#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class BordersObject;
class CellObject;

/// CellRange: the cells of a row or column.
class CellRangeObject final : public NodeSetObject<Shape> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;
    /// The table.
    [[nodiscard]] automation::ObjectPtr owner() const override;
    [[nodiscard]] std::int32_t count() const noexcept { return static_cast<std::int32_t>(nodes().size()); }
    /// By place from 1.
    [[nodiscard]] std::shared_ptr<CellObject> item(std::int32_t index) const;
    /// Those of every cell.
    [[nodiscard]] std::shared_ptr<BordersObject> borders() const;
};

} // namespace simulator
