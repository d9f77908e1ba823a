#include "simulator/picture/SlidePicture.h"

#include "automation/Text.h"
#include "simulator/picture/ShapePicture.h"

namespace simulator::picture {

std::string drawSlide(const Presentation& presentation, const Slide& slide, const Wanted& wanted) {
    const std::string width = number(presentation.slideWidth);
    const std::string height = number(presentation.slideHeight);
    Markup out;
    {
        const Markup::Element root =
            out.element("svg", {{"xmlns", "http://www.w3.org/2000/svg"},
                                {"viewBox", "0 0 " + width + " " + height},
                                {"width", wanted.width > 0 ? std::to_string(wanted.width) : width},
                                {"height", wanted.height > 0 ? std::to_string(wanted.height) : height},
                                {"font-family", "Arial, Liberation Sans, Helvetica, sans-serif"}});
        out.leaf("title", {}, automation::toUtf8(slide.name));
        out.leaf("path", {{"d", "M0 0H" + width + "V" + height + "H0Z"},
                          {"fill", hex(Color::of(ppBackground).in(presentation.colors))}});
        ShapePicture picture(out, presentation.colors);
        for (const ShapePtr& shape : slide.shapes()) {
            picture.draw(*shape);
        }
        for (const ShapePtr& shape : wanted.selected) {
            picture.markSelected(*shape);
        }
    }
    return out.take() + "\n";
}

} // namespace simulator::picture
