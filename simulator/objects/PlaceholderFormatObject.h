#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

/// PlaceholderFormat: what a placeholder is there for.
class PlaceholderFormatObject final : public NodeSetObject<Shape> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;
    [[nodiscard]] automation::ObjectPtr owner() const override;

    [[nodiscard]] PpPlaceholderType type() const { return node()->placeholder.value(); }
};

} // namespace simulator
