#include "simulator/files/drawing/ShadowCodes.h"

#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"

namespace simulator::drawing {

Shadow readShadow(const Looks& looks) {
    constexpr std::uint32_t gray = 0x808080;
    Shadow shadow;
    shadow.visible = looks.flag(property::shadowFlags, flag::shadowed, false);
    shadow.obscured = looks.flag(property::shadowFlags, flag::shadowObscured, false);
    shadow.color = colorOf(looks.number(property::shadowColor, gray), shadow.color);
    shadow.transparency = 1 - looks.fixed(property::shadowOpacity, 1);
    shadow.offsetX = looks.points(property::shadowOffsetX, shadow.offsetX);
    shadow.offsetY = looks.points(property::shadowOffsetY, shadow.offsetY);
    return shadow;
}

void writeShadow(PropertyTable& properties, const Shadow& shadow) {
    properties.setFlag(property::shadowFlags, flag::shadowed, shadow.visible);
    properties.setFlag(property::shadowFlags, flag::shadowObscured, shadow.obscured);
    properties.set(property::shadowColor, codeOf(shadow.color));
    if (shadow.transparency != 0) {
        properties.set(property::shadowOpacity, code((1 - double{shadow.transparency}) * fixedPoint));
    }
    properties.set(property::shadowOffsetX, emu(shadow.offsetX));
    properties.set(property::shadowOffsetY, emu(shadow.offsetY));
}

} // namespace simulator::drawing
