#include "tests/trials/learners/judges/Judges.h"

namespace trials::learners::judges {

namespace {

constexpr std::int32_t grey = 0x808080;

const simulator::Fill& fillOf(const Work& work) noexcept {
    return work.find(u"ZOR1")->shape->fill;
}

const simulator::ThreeD& thirdOf(const Work& work) noexcept {
    return work.find(u"ZOR4")->shape->threeD;
}

std::int32_t rgbOf(const Work& work, const simulator::Color& color) {
    return color.in(work.scene().active()->colors);
}

} // namespace

std::u16string_view filling(const Work& work) {
    return work.misses(u"ZOR1")                                                                        ? u"A"
           : work.isInGroup(u"ZOR1")                                                                   ? u"Z"
           : fillOf(work).transparency > 0                                                             ? u"B"
           : fillOf(work).type != simulator::msoFillSolid                                              ? u"G"
           : !fillOf(work).visible || rgbOf(work, fillOf(work).fore) == rgbOf(work, fillOf(work).back) ? u"C"
           : rgbOf(work, fillOf(work).fore) == grey                                                    ? u"D"
                                                                                                       : u"";
}

std::u16string_view snapping(const Work& work) {
    return work.scene().active()->snapToGrid ? u"A" : u"";
}

std::u16string_view thirdDimension(const Work& work) {
    return work.misses(u"ZOR4")                                  ? u"A"
           : work.isInGroup(u"ZOR4")                             ? u"Z"
           : work.find(u"ZOR4")->shape->shadow.visible           ? u"B"
           : !thirdOf(work).visible                              ? u"D"
           : thirdOf(work).preset == simulator::msoTriStateMixed ? u"E"
           : thirdOf(work).preset != 1                           ? u"C"
                                                                 : u"";
}

} // namespace trials::learners::judges
