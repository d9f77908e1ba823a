#include "simulator/document/TagList.h"

#include "automation/Text.h"

#include <algorithm>

namespace simulator {

namespace {

/// The capital of a small letter: the letter whose small form it is.
char16_t capital(char16_t letter) noexcept {
    for (const int distance : {32, 1, 80}) {
        const auto candidate = static_cast<char16_t>(letter - distance);
        if (automation::lowerCase(candidate) == letter) {
            return candidate;
        }
    }
    return letter;
}

template <typename Tags> auto find(Tags& tags, std::u16string_view name) noexcept {
    return std::find_if(tags.begin(), tags.end(),
                        [name](const TagList::Tag& tag) { return automation::equalIgnoringCase(tag.first, name); });
}

} // namespace

void TagList::add(std::u16string_view name, std::u16string_view value) {
    const auto existing = find(tags_, name);
    if (existing != tags_.end()) {
        existing->second = value;
        return;
    }
    std::u16string capitals(name);
    std::transform(capitals.begin(), capitals.end(), capitals.begin(), capital);
    tags_.emplace_back(std::move(capitals), value);
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
