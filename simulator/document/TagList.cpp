#include "simulator/document/TagList.h"

#include "automation/Text.h"
#include "simulator/document/LetterCase.h"

#include <algorithm>
#include <map>

namespace simulator {

namespace {

template <typename Tags> auto find(Tags& tags, std::u16string_view name) noexcept {
    return std::find_if(tags.begin(), tags.end(),
                        [name](const TagList::Tag& tag) { return automation::equalIgnoringCase(tag.first, name); });
}

std::u16string capitalsOf(std::u16string_view name) {
    std::u16string capitals(name);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), upperCase);
    return capitals;
}

} // namespace

TagList::TagList(const std::vector<Tag>& tags) {
    std::map<std::u16string, std::size_t> places;
    for (const auto& [name, value] : tags) {
        const auto [place, isNew] = places.emplace(capitalsOf(name), tags_.size());
        if (isNew) {
            tags_.emplace_back(place->first, value);
        } else {
            tags_[place->second].second = value;
        }
    }
}

void TagList::add(std::u16string_view name, std::u16string_view value) {
    const auto existing = find(tags_, name);
    if (existing != tags_.end()) {
        existing->second = value;
        return;
    }
    tags_.emplace_back(capitalsOf(name), value);
}

void TagList::remove(std::u16string_view name) {
    const auto existing = find(tags_, name);
    if (existing != tags_.end()) {
        tags_.erase(existing);
    }
}

std::u16string TagList::value(std::u16string_view name) const {
    const auto existing = find(tags_, name);
    return existing == tags_.end() ? std::u16string() : existing->second;
}

} // namespace simulator
