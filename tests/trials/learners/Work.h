#pragma once

#include "tests/trials/learners/Scene.h"

#include <algorithm>

namespace trials::learners {

/// A shape as it is found on a slide.
struct Found {
    const simulator::Shape* shape;
    std::size_t place; ///< from 1 (the back), of the shape or of the outermost group around it
    std::size_t depth; ///< groups around it
    std::u16string mark;

    [[nodiscard]] bool isGroup() const noexcept { return shape->type == simulator::msoGroup; }
    [[nodiscard]] bool isAdded() const noexcept { return mark.empty(); }
};

/// What the learner has made of a slide: all its shapes in one list, from back to front, the items of a group behind
/// their group.
class Work {
public:
    explicit Work(const Scene& scene, std::size_t slide);

    [[nodiscard]] const Scene& scene() const noexcept { return scene_; }
    [[nodiscard]] const std::vector<Found>& all() const noexcept { return all_; }
    /// The shapes that stand directly on the slide.
    [[nodiscard]] const std::vector<Found>& standing() const noexcept { return standing_; }
    /// The standing shapes that the learner has added.
    [[nodiscard]] const std::vector<Found>& added() const noexcept { return added_; }
    /// The first shape that bears a mark, at any depth; null where there is none.
    [[nodiscard]] const Found* find(std::u16string_view mark) const noexcept;
    /// The first of the standing shapes that bears it.
    [[nodiscard]] const Found* findStanding(std::u16string_view mark) const noexcept;

    [[nodiscard]] bool misses(std::u16string_view mark) const noexcept { return find(mark) == nullptr; }
    [[nodiscard]] bool isInGroup(std::u16string_view mark) const noexcept;
    /// Number of the shapes added of which something holds.
    template <typename Predicate> [[nodiscard]] std::size_t addedThat(const Predicate& predicate) const {
        return static_cast<std::size_t>(std::count_if(added_.begin(), added_.end(), predicate));
    }
    [[nodiscard]] std::size_t addedGroups() const {
        return addedThat([](const Found& found) { return found.isGroup(); });
    }
    /// Number of shapes of a kind added.
    [[nodiscard]] std::size_t added(simulator::MsoShapeType type) const {
        return addedThat([type](const Found& found) { return found.shape->type == type; });
    }

private:
    void list(const simulator::Shape& shape, std::size_t place, std::size_t depth);

    const Scene& scene_;
    std::vector<Found> all_;
    std::vector<Found> standing_;
    std::vector<Found> added_;
};

} // namespace trials::learners
