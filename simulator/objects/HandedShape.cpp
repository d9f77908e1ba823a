#include "simulator/objects/HandedShape.h"

#include "automation/LateBound.h"
#include "simulator/document/Presentation.h"
#include "simulator/objects/PowerPointObject.h"

namespace simulator {

using automation::LateBound;
using automation::ObjectPtr;

std::int32_t idBeside(const Shape& own, const ObjectPtr& handed) {
    const LateBound shape(handed);
    const LateBound sheet(shape.get(u"Parent").to<ObjectPtr>());
    const LateBound document(sheet.get(u"Parent").to<ObjectPtr>());
    const SlidePtr slide = alive(own.slide);
    const bool isBeside = sheet.get(u"Name").to<std::u16string>() == slide->name &&
                          document.get(u"Name").to<std::u16string>() == alive(slide->presentation)->name;
    return isBeside ? shape.get(u"Id").to<std::int32_t>() : 0;
}

} // namespace simulator
