#include "tests/trials/learners/judges/Judges.h"

namespace trials::learners::judges {

namespace {

using simulator::msoAutoShape;

bool isAutoShape(const Found& found, std::initializer_list<std::int32_t> types) {
    return found.shape->type == msoAutoShape &&
           std::find(types.begin(), types.end(), found.shape->autoShapeType) != types.end();
}

/// The frontmost of the standing shapes of which something holds; null where there is none.
template <typename Predicate> const Found* frontmost(const Work& work, const Predicate& predicate) {
    const auto found = std::find_if(work.standing().rbegin(), work.standing().rend(), predicate);
    return found == work.standing().rend() ? nullptr : &*found;
}

bool holdsTitle(const Work& work) {
    return frontmost(work, [](const Found& found) {
               return found.shape->type == simulator::msoPlaceholder &&
                      found.shape->placeholder == simulator::ppPlaceholderTitle;
           }) != nullptr;
}

} // namespace

std::u16string_view box(const Work& work) {
    const Found* const text =
        frontmost(work, [](const Found& each) { return each.shape->type == simulator::msoTextBox; });
    const Found* const fixed = frontmost(work, [](const Found& each) { return each.mark == u"ZOR1"; });
    return work.standing().size() == 1 && work.standing().front().mark == u"ZOR1"         ? u"A"
           : work.standing().size() > 2                                                   ? u"C"
           : frontmost(work, [](const Found& each) { return each.isGroup(); }) != nullptr ? u"Z"
           : fixed == nullptr                                                             ? u"D"
           : text == nullptr                                                              ? u"B"
           : text->shape->text->text().find_first_not_of(u' ') == std::u16string::npos    ? u"G"
           : !stands(fixed, sun)                                                          ? u"E"
           : text->shape->frame().top >= 150 || text->shape->frame().left >= 150          ? u"F"
                                                                                          : u"";
}

std::u16string_view basicShape(const Work& work) {
    const auto isBasic = [](const Found& found) {
        return found.shape->type == msoAutoShape && found.shape->autoShapeType >= 1 && found.shape->autoShapeType <= 32;
    };
    return work.addedGroups() != 0                        ? u"Z"
           : work.misses(u"ZOR1") || work.misses(u"ZOR2") ? u"B"
           : work.addedThat(isBasic) == 0                 ? u"A"
           : work.added().size() > 1                      ? u"C"
                                                          : u"";
}

std::u16string_view rectangle(const Work& work) {
    return work.added().size() - work.addedGroups() > 1          ? u"A"
           : work.addedGroups() != 0                             ? u"E"
           : work.added().empty()                                ? u"B"
           : isAutoShape(work.added().front(), {5})              ? u"C"
           : isAutoShape(work.added().front(), {61, 62, 65, 66}) ? u"F"
           : !isAutoShape(work.added().front(), {1})             ? u"D"
                                                                 : u"";
}

std::u16string_view wordArt(const Work& work) {
    return work.standing().empty()                                       ? u"C"
           : work.findStanding(u"ZOR1") != nullptr                       ? u"B"
           : work.findStanding(u"ZOR2") == nullptr                       ? u"C"
           : work.standing().size() == 1                                 ? u"D"
           : work.standing().size() == 3 && holdsTitle(work)             ? u"B"
           : work.standing().size() > 2                                  ? u"F"
           : work.added().size() != work.added(simulator::msoTextEffect) ? u"E"
                                                                         : u"";
}

} // namespace trials::learners::judges
