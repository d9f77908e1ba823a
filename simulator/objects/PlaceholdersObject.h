#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class ShapeObject;

/// Placeholders: the placeholders of a slide, from back to front.
class PlaceholdersObject final : public NodeSetObject<Slide> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;
    [[nodiscard]] automation::ObjectPtr owner() const override;

    [[nodiscard]] std::int32_t count() const;
    /// By place from 1.
    [[nodiscard]] std::shared_ptr<ShapeObject> item(std::int32_t index) const;
};

} // namespace simulator
