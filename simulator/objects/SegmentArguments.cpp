#include "simulator/objects/SegmentArguments.h"

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

void SegmentArguments::drawOn(FreeformPath& path, std::u16string_view member) const {
    errors::demandWithin(type, msoSegmentLine, msoSegmentCurve, member);
    errors::demandWithin(editing, msoEditingAuto, msoEditingCorner, member);
    const bool hasThreePoints = x2 && y2 && x3 && y3;
    if (type == msoSegmentLine ? editing != msoEditingAuto : editing == msoEditingCorner && !hasThreePoints) {
        errors::invalidRequest(member, u"Ces arguments ne forment pas un segment.");
    }
    if (type == msoSegmentLine) {
        path.lineTo({x1, y1});
    } else if (editing == msoEditingAuto) {
        path.smoothTo({x1, y1});
    } else {
        path.curveTo({x1, y1}, {*x2, *y2}, {*x3, *y3});
    }
}

} // namespace simulator
