#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace simulator {

/// The tags of a presentation, slide or shape: names are compared without case and kept in capitals, in the order in
/// which they were added.
class TagList {
public:
    using Tag = std::pair<std::u16string, std::u16string>;

    TagList() = default;
    /// Tags as a file holds them, however many; of those with one name the last value counts.
    explicit TagList(const std::vector<Tag>& tags);

    /// Adds a tag, or replaces the value of the one that has this name.
    void add(std::u16string_view name, std::u16string_view value);
    /// Removes a tag; nothing happens where there is none of this name.
    void remove(std::u16string_view name);
    /// Value of a tag; empty where there is none of this name.
    [[nodiscard]] std::u16string value(std::u16string_view name) const;
    [[nodiscard]] const std::vector<Tag>& all() const noexcept { return tags_; }

    friend bool operator==(const TagList&, const TagList&) = default;

private:
    std::vector<Tag> tags_;
};

} // namespace simulator
