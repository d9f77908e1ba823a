#include "tests/trials/learners/judges/Judges.h"

namespace trials::learners::judges::drawing {

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

const Found* textBox(const Work& work) {
    return frontmost(work, [](const Found& found) { return found.shape->type == simulator::msoTextBox; });
}

const Found* fixedShape(const Work& work) {
    return frontmost(work, [](const Found& found) { return found.mark == u"ZOR1"; });
}

constexpr auto box = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.standing().size() == 1 && work.standing().front().mark == u"ZOR1"; }},
    {u"C", [](const Work& work) { return work.standing().size() > 2; }},
    {u"Z", [](const Work& work) { return frontmost(work, [](const Found& f) { return f.isGroup(); }) != nullptr; }},
    {u"D", [](const Work& work) { return fixedShape(work) == nullptr; }},
    {u"B", [](const Work& work) { return textBox(work) == nullptr; }},
    {u"G",
     [](const Work& work) {
         return textBox(work)->shape->text->text().find_first_not_of(u' ') == std::u16string::npos;
     }},
    {u"E",
     [](const Work& work) {
         return !stands(fixedShape(work), {481.625F, 368.375F, 194.75F, 125.125F});
     }},
    {u"F",
     [](const Work& work) {
         const simulator::Frame& frame = textBox(work)->shape->frame();
         return frame.top >= 150 || frame.left >= 150;
     }},
});

constexpr auto basicShape = std::to_array<Rule>({
    {u"Z", [](const Work& work) { return work.addedGroups() != 0; }},
    {u"B", [](const Work& work) { return work.misses(u"ZOR1") || work.misses(u"ZOR2"); }},
    {u"A",
     [](const Work& work) {
         return work.addedThat([](const Found& found) {
             return found.shape->type == msoAutoShape && found.shape->autoShapeType >= 1 &&
                    found.shape->autoShapeType <= 32;
         }) == 0;
     }},
    {u"C", [](const Work& work) { return work.added().size() > 1; }},
});

constexpr auto rectangle = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.added().size() - work.addedGroups() > 1; }},
    {u"E", [](const Work& work) { return work.addedGroups() != 0; }},
    {u"B", [](const Work& work) { return work.added().empty(); }},
    {u"C", [](const Work& work) { return isAutoShape(work.added().front(), {5}); }},
    {u"F",
     [](const Work& work) {
         return isAutoShape(work.added().front(), {61, 62, 65, 66});
     }},
    {u"D", [](const Work& work) { return !isAutoShape(work.added().front(), {1}); }},
});

bool holdsTitle(const Work& work) {
    return frontmost(work, [](const Found& found) {
               return found.shape->type == simulator::msoPlaceholder &&
                      found.shape->placeholder == simulator::ppPlaceholderTitle;
           }) != nullptr;
}

constexpr auto wordArt = std::to_array<Rule>({
    {u"C", [](const Work& work) { return work.standing().empty(); }},
    {u"B", [](const Work& work) { return work.findStanding(u"ZOR1") != nullptr; }},
    {u"C", [](const Work& work) { return work.findStanding(u"ZOR2") == nullptr; }},
    {u"D", [](const Work& work) { return work.standing().size() == 1; }},
    {u"B", [](const Work& work) { return work.standing().size() == 3 && holdsTitle(work); }},
    {u"F", [](const Work& work) { return work.standing().size() > 2; }},
    {u"E", [](const Work& work) { return work.added().size() != work.added(simulator::msoTextEffect); }},
});

constexpr auto all = std::to_array<RuleBook>({
    {309, 1, box},
    {314, 1, basicShape},
    {317, 1, rectangle},
    {323, 5, wordArt},
});

} // namespace

std::span<const RuleBook> books() noexcept {
    return all;
}

} // namespace trials::learners::judges::drawing
