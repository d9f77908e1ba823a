#include "simulator/objects/ShapeFormatObject.h"

#include "simulator/objects/ShapeObject.h"
#include "simulator/objects/ShapeRangeObject.h"

namespace simulator {

automation::ObjectPtr objectOf(const ProcessPtr& process, const ShapeSet& shapes) {
    if (shapes.size() == 1) {
        return std::make_shared<ShapeObject>(process, shapes.at(0));
    }
    return std::make_shared<ShapeRangeObject>(process, shapes);
}

} // namespace simulator
