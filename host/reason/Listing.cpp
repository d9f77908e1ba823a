#include "host/reason/Listing.h"

#include "host/reason/Told.h"

#include <algorithm>
#include <functional>

namespace host::reason {

namespace {

/// `a, b and c`.
std::string listed(const std::vector<std::string>& texts) {
    std::string all;
    for (std::size_t i = 0; i < texts.size(); ++i) {
        all += (i == 0 ? "" : i + 1 == texts.size() ? " and " : ", ") + texts[i];
    }
    return all;
}

bool isAmong(const std::string& identity, const std::vector<Mark>& marks) {
    return std::any_of(marks.begin(), marks.end(), [&](const Mark& mark) { return mark.identity == identity; });
}

/// ` ZOR2 is missing.` for the marks given that were not found, where all places were looked at.
std::string missing(const std::vector<Mark>& given, const std::vector<Mark>& found) {
    std::vector<std::string> gone;
    for (const Mark& mark : given) {
        if (!isAmong(mark.identity, found)) {
            gone.push_back(mark.identity);
        }
    }
    return gone.empty() ? "" : " " + listed(gone) + (gone.size() == 1 ? " is missing." : " are missing.");
}

std::vector<Mark> filtered(const std::vector<Mark>& marks, const std::function<bool(const Path&)>& isWanted) {
    std::vector<Mark> wanted;
    std::copy_if(marks.begin(), marks.end(), std::back_inserter(wanted),
                 [&](const Mark& mark) { return isWanted(mark.bearer); });
    return wanted;
}

/// True where all items of the slide and of its groups were looked at.
bool isComplete(const Path& slide, const std::vector<Mark>& seen, const Trail& trail) {
    const auto& all = trail.accesses();
    return std::all_of(all.begin(), all.end(), [&](const Access& access) {
        if (access.path.slide() != slide || access.path.member() != u"Count" || access.error) {
            return true;
        }
        const Path collection = access.path.owner();
        const bool isOfShapes = collection.member() == u"Shapes" || collection.member() == u"GroupItems";
        return !isOfShapes || std::count_if(seen.begin(), seen.end(), [&](const Mark& mark) {
                                  return mark.bearer.collection() == collection;
                              }) >= access.value.to<std::int32_t>();
    });
}

/// The mark, or the place where there is none: `shape 2 without a mark`.
std::string named(const Mark& mark) {
    const std::string place = mark.bearer.place();
    return mark.identity.empty()
               ? (place.find(',') == std::string::npos ? place : place.substr(place.rfind(',') + 2)) + " without a mark"
               : mark.identity;
}

/// A shape with the items that it has as a group: `ZOR1 (1ZOR1:1, 1ZOR2:1)`.
std::string shapeOf(const Mark& shape, const std::vector<Mark>& onSlide) {
    std::string items;
    for (const Mark& mark : onSlide) {
        if (mark.bearer.isBelow(shape.bearer) && mark.bearer != shape.bearer) {
            items += (items.empty() ? "" : ", ") + named(mark);
        }
    }
    const std::string itself = items.empty() || !shape.identity.empty() ? named(shape) : std::string("a group");
    return itself + (items.empty() ? "" : " (" + items + ")");
}

} // namespace

std::string shapesOn(const Path& slide, const Trail& trail, const Topic& topic) {
    const auto isOnSlide = [&](const Path& path) { return path.slide() == slide && !path.topShape().isEmpty(); };
    const std::vector<Mark> found = filtered(trail.marks(), isOnSlide);
    const auto isTop = [](const Path& path) { return path == path.topShape(); };
    std::vector<Mark> shapes = filtered(found, isTop);
    // A group whose own mark nobody asked for is known by its items.
    for (const Mark& mark : found) {
        const Path top = mark.bearer.topShape();
        if (std::none_of(shapes.begin(), shapes.end(), [&](const Mark& shape) { return shape.bearer == top; })) {
            shapes.push_back({top, ""});
        }
    }
    if (shapes.empty()) {
        return {};
    }
    std::vector<std::string> all(shapes.size());
    std::transform(shapes.begin(), shapes.end(), all.begin(), [&](const Mark& shape) { return shapeOf(shape, found); });
    std::string text = all.size() == 1 ? " has one shape: " : ", from back to front: ";
    text = sentence(slide.place() + text + listed(all));
    if (!isComplete(slide, found, trail)) {
        return text;
    }
    const std::vector<Mark> given =
        filtered(trail.given(), [&](const Path& path) { return isOnSlide(path) && isTop(path); });
    std::vector<Mark> spokenOf;
    std::copy_if(given.begin(), given.end(), std::back_inserter(spokenOf),
                 [&](const Mark& mark) { return topic.namesMark(mark.identity); });
    return text + missing(spokenOf.empty() ? given : spokenOf, found);
}

std::string slidesIn(const Trail& trail) {
    const auto isSlide = [](const Path& path) { return !path.isEmpty() && path == path.slide(); };
    const std::vector<Mark> found = filtered(trail.marks(), isSlide);
    std::vector<std::string> all(found.size());
    std::transform(found.begin(), found.end(), all.begin(), [](const Mark& slide) { return named(slide); });
    return all.empty() ? "" : "The slides are " + listed(all) + "." + missing(filtered(trail.given(), isSlide), found);
}

} // namespace host::reason
