#include "simulator/objects/ShapeNodesObject.h"

#include "simulator/objects/SegmentArguments.h"
#include "simulator/objects/ShapeNodeObject.h"
#include "simulator/objects/ShapeObject.h"

#include <algorithm>

namespace simulator {

namespace {

using Nodes = std::vector<Node>;

auto iteratorAt(Nodes& nodes, std::size_t place) {
    return nodes.begin() + static_cast<std::ptrdiff_t>(place);
}

bool isControl(const Nodes& nodes, std::size_t place) {
    return place < nodes.size() && nodes[place].curve;
}

/// Place of the corner before a control point.
std::size_t cornerBefore(const Nodes& nodes, std::size_t place) {
    while (isControl(nodes, place)) {
        --place;
    }
    return place;
}

void removeControls(Nodes& nodes, std::size_t first) {
    while (isControl(nodes, first)) {
        nodes.erase(iteratorAt(nodes, first));
    }
}

void removeCorner(Nodes& nodes, std::size_t corner) {
    nodes.erase(iteratorAt(nodes, corner));
    if (corner == 0) {
        removeControls(nodes, 0);
        return;
    }
    const std::size_t before = cornerBefore(nodes, corner - 1);
    nodes.erase(iteratorAt(nodes, before + 1), iteratorAt(nodes, corner));
}

/// A control point on the straight way between two corners.
Node between(const Node& from, const Node& to, float share) {
    return {from.x + (to.x - from.x) * share, from.y + (to.y - from.y) * share, true};
}

} // namespace

const automation::MemberTable& ShapeNodesObject::members() const {
    using automation::method;
    using automation::property;
    using This = ShapeNodesObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::count>(u"Count"),
        property<&This::elements>(automation::newEnum.text()),
        method<&This::item>(u"Item", u"Index").asDefault(),
        method<&This::remove>(u"Delete", u"Index"),
        method<&This::insert>(u"Insert", u"Index SegmentType EditingType X1 Y1 X2 Y2 X3 Y3"),
        method<&This::setPosition>(u"SetPosition", u"Index X1 Y1"),
        method<&This::setSegmentType>(u"SetSegmentType", u"Index SegmentType"),
    });
    return table;
}

std::shared_ptr<ShapeNodeObject> ShapeNodesObject::item(std::int32_t index) const {
    const ShapePtr shape = node();
    const std::size_t place = placeIn(shape->nodes.size(), index, u"ShapeNodes.Item");
    return std::make_shared<ShapeNodeObject>(process(), shape, place);
}

void ShapeNodesObject::remove(std::int32_t index) {
    edit(index, u"ShapeNodes.Delete", [](Nodes& nodes, std::size_t place) {
        if (isControl(nodes, place)) {
            removeControls(nodes, cornerBefore(nodes, place) + 1);
            return;
        }
        if (std::count_if(nodes.begin(), nodes.end(), [](const Node& at) { return !at.curve; }) <= 2) {
            errors::invalidRequest(u"ShapeNodes.Delete", u"Une forme libre a au moins deux sommets.");
        }
        removeCorner(nodes, place);
    });
}

void ShapeNodesObject::insert(std::int32_t index, MsoSegmentType segmentType, MsoEditingType editingType, float x1,
                              float y1, std::optional<float> x2, std::optional<float> y2, std::optional<float> x3,
                              std::optional<float> y3) {
    edit(index, u"ShapeNodes.Insert", [&](Nodes& nodes, std::size_t place) {
        const std::size_t corner = cornerBefore(nodes, place);
        FreeformPath path(nodes[corner]);
        SegmentArguments{segmentType, editingType, x1, y1, x2, y2, x3, y3}.drawOn(path, u"ShapeNodes.Insert");
        const Nodes drawn = path.nodes();
        nodes.insert(iteratorAt(nodes, corner + 1), drawn.begin() + 1, drawn.end());
    });
}

void ShapeNodesObject::setPosition(std::int32_t index, float x1, float y1) {
    edit(index, u"ShapeNodes.SetPosition", [x1, y1](Nodes& nodes, std::size_t place) {
        nodes[place].x = x1;
        nodes[place].y = y1;
    });
}

void ShapeNodesObject::setSegmentType(std::int32_t index, MsoSegmentType segmentType) {
    errors::demandWithin(segmentType, msoSegmentLine, msoSegmentCurve, u"ShapeNodes.SetSegmentType");
    edit(index, u"ShapeNodes.SetSegmentType", [segmentType](Nodes& nodes, std::size_t place) {
        const std::size_t next = cornerBefore(nodes, place) + 1;
        if (segmentType == msoSegmentLine) {
            removeControls(nodes, next);
        } else if (next < nodes.size() && !isControl(nodes, next)) {
            const Node from = nodes[next - 1];
            const Node to = nodes[next];
            nodes.insert(iteratorAt(nodes, next), {between(from, to, 1.0F / 3), between(from, to, 2.0F / 3)});
        }
    });
}

template <typename Edit> void ShapeNodesObject::edit(std::int32_t index, std::u16string_view member, const Edit& edit) {
    nodes().change([&](Shape& shape) {
        Nodes edited = shape.nodes;
        edit(edited, placeIn(edited.size(), index, member));
        shape.setNodes(std::move(edited));
    });
}

automation::ObjectPtr ShapeNodesObject::owner() const {
    return std::make_shared<ShapeObject>(process(), node());
}

} // namespace simulator
