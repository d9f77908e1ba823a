#include "simulator/objects/ColorFormatObject.h"

namespace simulator {

ColorFormatObject::ColorFormatObject(ProcessPtr process, automation::ObjectPtr owner, Getter getter, Setter setter,
                                     Scheme scheme, Mixture mixture)
    : PowerPointObject(std::move(process)), owner_(std::move(owner)), getter_(std::move(getter)),
      setter_(std::move(setter)), scheme_(std::move(scheme)), mixture_(std::move(mixture)) {}

const automation::MemberTable& ColorFormatObject::members() const {
    using automation::property;
    using This = ColorFormatObject;
    static const automation::MemberTable table = officeMembers().with({
        property<&This::rgb, &This::setRgb>(u"RGB").asDefault(),
        property<&This::type>(u"Type"),
        property<&This::schemeColor, &This::setSchemeColor>(u"SchemeColor"),
    });
    return table;
}

std::int32_t ColorFormatObject::rgb() const {
    return getter_().in(scheme_());
}

void ColorFormatObject::setRgb(std::int32_t rgb) {
    errors::demandWithin(rgb, 0, 0xFFFFFF, u"ColorFormat.RGB");
    setter_(Color::direct(rgb));
}

PpColorSchemeIndex ColorFormatObject::schemeColor() const {
    return mixture_() ? PpColorSchemeIndex{-2} : getter_().scheme;
}

void ColorFormatObject::setSchemeColor(PpColorSchemeIndex place) {
    errors::demandWithin(place, ppBackground, ppAccent3, u"ColorFormat.SchemeColor");
    setter_(Color::of(place));
}

MsoColorType ColorFormatObject::type() const {
    if (mixture_()) {
        return MsoColorType{-2};
    }
    return getter_().scheme == ppNotSchemeColor ? msoColorTypeRGB : msoColorTypeScheme;
}

ColorScheme schemeOf(const Shape& shape) {
    return alive(alive(shape.slide)->presentation)->colors;
}

} // namespace simulator
