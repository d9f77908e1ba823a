#include "simulator/objects/ShapeFormatObject.h"

#include "simulator/objects/ShapeObject.h"
#include "simulator/objects/ShapeRangeObject.h"

namespace simulator {

automation::ObjectPtr objectOf(const SessionPtr& session, const ShapeSet& shapes) {
    if (shapes.size() == 1) {
        return std::make_shared<ShapeObject>(session, shapes.at(0));
    }
    return std::make_shared<ShapeRangeObject>(session, shapes);
}

} // namespace simulator
