#include "tests/trials/learners/judges/Judges.h"

#include <set>

namespace trials::learners::judges {

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

} // namespace

std::u16string_view selecting(const Work& work) {
    return work.misses(u"ZOR2")                                                      ? u"A"
           : work.isInGroup(u"ZOR2")                                                 ? u"Z"
           : work.scene().window()->selection.type() != simulator::ppSelectionShapes ? u"B"
           : selected(work).size() > 1                                               ? u"C"
           : markOf(**selected(work).begin()) != u"ZOR2"                             ? u"B"
                                                                                     : u"";
}

std::u16string_view deleting(const Work& work) {
    return !work.misses(u"ZOR3") ? u"A" : work.misses(u"ZOR1") || work.misses(u"ZOR2") ? u"B" : u"";
}

std::u16string_view grouping(const Work& work) {
    return work.misses(u"ZOR4")               ? u"A"
           : work.misses(u"ZOR2")             ? u"B"
           : work.addedGroups() == 0          ? u"E"
           : work.addedGroups() > 1           ? u"F"
           : !isInNewGroup(work, u"ZOR4")     ? u"C"
           : !isInNewGroup(work, u"ZOR2")     ? u"D"
           : itemsOfNewGroup(work).size() > 2 ? u"H"
                                              : u"";
}

} // namespace trials::learners::judges
