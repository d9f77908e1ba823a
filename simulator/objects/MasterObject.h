#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class HeadersFootersObject;
class PresentationObject;
class ShapeRangeObject;
class ShapesObject;

/// Master: a slide master, title master, notes master or handout master.
class MasterObject final : public NodeSetObject<Slide> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    /// The presentation.
    [[nodiscard]] automation::ObjectPtr owner() const override;
    [[nodiscard]] std::shared_ptr<ShapesObject> shapes() const;
    [[nodiscard]] std::shared_ptr<ShapeRangeObject> background() const;
    [[nodiscard]] std::shared_ptr<HeadersFootersObject> headersFooters() const;
    [[nodiscard]] std::u16string name() const;
    void setName(const std::u16string& name);
    /// Points.
    [[nodiscard]] float width() const;
    [[nodiscard]] float height() const;
    /// Raises an invalid request for any but a title master.
    void erase();
};

/// The Master or the Slide that a sheet is, gone or not.
[[nodiscard]] std::shared_ptr<PowerPointObject> objectOf(const ProcessPtr& process, const std::weak_ptr<Slide>& sheet);

} // namespace simulator
