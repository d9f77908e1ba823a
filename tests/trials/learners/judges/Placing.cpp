#include "tests/trials/learners/judges/Judges.h"

namespace trials::learners::judges {

namespace {

bool isBetween(float value, float least, float most) noexcept {
    return value >= least && value <= most;
}

const simulator::Frame& frameOf(const Work& work, std::u16string_view mark) noexcept {
    return work.find(mark)->shape->frame();
}

/// The letter of two shapes that must stand by themselves, the second where the picture stands.
std::u16string_view besidePicture(const Work& work, std::u16string_view moved, std::u16string_view picture) {
    return work.misses(moved)                                 ? u"A"
           : work.isInGroup(moved) || work.isInGroup(picture) ? u"Z"
           : work.misses(picture)                             ? u"B"
           : !stands(work.find(picture), sun)                 ? u"C"
                                                              : u"";
}

} // namespace

std::u16string_view moving(const Work& work) {
    const std::u16string_view letter = besidePicture(work, u"ZOR2", u"ZOR1");
    return !letter.empty()                                                                      ? letter
           : frameOf(work, u"ZOR2").width != 444.5F || frameOf(work, u"ZOR2").height != 40.875F ? u"D"
           : frameOf(work, u"ZOR2").top == 35 && frameOf(work, u"ZOR2").left == 57.875F         ? u"E"
           : !isBetween(frameOf(work, u"ZOR2").top, 128, 260) || !isBetween(frameOf(work, u"ZOR2").left, 105, 195)
               ? u"F"
               : u"";
}

std::u16string_view stacking(const Work& work) {
    const Found* const behind = work.findStanding(u"ZOR2");
    return work.misses(u"ZOR3")                                                                ? u"A"
           : work.isInGroup(u"ZOR3")                                                           ? u"Z"
           : behind == nullptr                                                                 ? u"B"
           : !stands(work.find(u"ZOR3"), {110.5F, 139.625F, 504.625F, 79.375F})                ? u"C"
           : behind->shape->frame().left != 138.875F || behind->shape->frame().top != 156.625F ? u"D"
           : behind->place < work.find(u"ZOR3")->place                                         ? u"E"
                                                                                               : u"";
}

std::u16string_view sizing(const Work& work) {
    return work.misses(u"ZOR4")                                       ? u"A"
           : work.isInGroup(u"ZOR4")                                  ? u"Z"
           : !isBetween(frameOf(work, u"ZOR4").width, 56.5F, 56.75F)  ? u"B"
           : !isBetween(frameOf(work, u"ZOR4").height, 56.5F, 56.75F) ? u"C"
                                                                      : u"";
}

std::u16string_view sizingAndMoving(const Work& work) {
    const std::u16string_view letter = besidePicture(work, u"ZOR4", u"ZOR2");
    return !letter.empty()                                                                       ? letter
           : frameOf(work, u"ZOR4").width != 56.625F || frameOf(work, u"ZOR4").height != 56.625F ? u"D"
           : frameOf(work, u"ZOR4").top != 311.625F                                              ? u"F"
           : frameOf(work, u"ZOR4").left != 311.625F                                             ? u"E"
                                                                                                 : u"";
}

} // namespace trials::learners::judges
