#include "tests/trials/learners/judges/Judges.h"

#include <set>

namespace trials::learners::judges::handling {

namespace {

using simulator::Shape;
using simulator::ShapePtr;

/// The shapes selected in the window in front, each as the outermost group around it.
std::set<const Shape*> selected(const Work& work) {
    std::set<const Shape*> outermost;
    for (ShapePtr shape : work.scene().window()->selection.shapes()) {
        while (shape->group()) {
            shape = shape->group();
        }
        outermost.insert(shape.get());
    }
    return outermost;
}

constexpr auto selecting = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.misses(u"ZOR2"); }},
    {u"Z", [](const Work& work) { return work.isInGroup(u"ZOR2"); }},
    {u"B", [](const Work& work) { return work.scene().window()->selection.type() != simulator::ppSelectionShapes; }},
    {u"C", [](const Work& work) { return selected(work).size() > 1; }},
    {u"B", [](const Work& work) { return markOf(**selected(work).begin()) != u"ZOR2"; }},
});

constexpr auto deleting = std::to_array<Rule>({
    {u"A", [](const Work& work) { return !work.misses(u"ZOR3"); }},
    {u"B", [](const Work& work) { return work.misses(u"ZOR1") || work.misses(u"ZOR2"); }},
});

/// The items of the backmost group added.
const std::vector<ShapePtr>& itemsOfNewGroup(const Work& work) {
    const auto group =
        std::find_if(work.added().begin(), work.added().end(), [](const Found& found) { return found.isGroup(); });
    return group->shape->items();
}

bool isInNewGroup(const Work& work, std::u16string_view mark) {
    const auto& items = itemsOfNewGroup(work);
    return std::any_of(items.begin(), items.end(), [mark](const ShapePtr& item) { return markOf(*item) == mark; });
}

constexpr auto grouping = std::to_array<Rule>({
    {u"A", [](const Work& work) { return work.misses(u"ZOR4"); }},
    {u"B", [](const Work& work) { return work.misses(u"ZOR2"); }},
    {u"E", [](const Work& work) { return work.addedGroups() == 0; }},
    {u"F", [](const Work& work) { return work.addedGroups() > 1; }},
    {u"C", [](const Work& work) { return !isInNewGroup(work, u"ZOR4"); }},
    {u"D", [](const Work& work) { return !isInNewGroup(work, u"ZOR2"); }},
    {u"H", [](const Work& work) { return itemsOfNewGroup(work).size() > 2; }},
});

constexpr auto all = std::to_array<RuleBook>({
    {310, 1, selecting},
    {313, 1, deleting},
    {322, 1, grouping},
});

} // namespace

std::span<const RuleBook> books() noexcept {
    return all;
}

} // namespace trials::learners::judges::handling
