#include "tests/trials/learners/Work.h"

namespace trials::learners {

namespace {

const Found* findIn(const std::vector<Found>& list, std::u16string_view mark) noexcept {
    const auto found = std::find_if(list.begin(), list.end(), [mark](const Found& each) { return each.mark == mark; });
    return found == list.end() ? nullptr : &*found;
}

} // namespace

Work::Work(const Scene& scene, std::size_t slide) : scene_(scene) {
    const simulator::Slide* const ground = scene.slide(slide);
    std::size_t place = 0;
    for (const simulator::ShapePtr& shape : ground != nullptr ? ground->shapes() : std::vector<simulator::ShapePtr>()) {
        list(*shape, ++place, 0);
    }
    for (const Found& found : all_) {
        if (found.depth == 0) {
            standing_.push_back(found);
            if (found.isAdded()) {
                added_.push_back(found);
            }
        }
    }
}

void Work::list(const simulator::Shape& shape, std::size_t place, std::size_t depth) {
    all_.push_back({&shape, place, depth, markOf(shape)});
    for (const simulator::ShapePtr& item : shape.items()) {
        list(*item, place, depth + 1);
    }
}

const Found* Work::find(std::u16string_view mark) const noexcept {
    return findIn(all_, mark);
}

const Found* Work::findStanding(std::u16string_view mark) const noexcept {
    return findIn(standing_, mark);
}

bool Work::isInGroup(std::u16string_view mark) const noexcept {
    const Found* const found = find(mark);
    return found != nullptr && found->depth != 0;
}

} // namespace trials::learners
