#include "simulator/files/records/Tags.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::records {

namespace {

constexpr std::uint16_t nameInstance = 0;
constexpr std::uint16_t valueInstance = 1;

std::u16string textOf(const Record& tag, std::uint16_t instance) {
    const Record* const text = tag.find(type::CString, instance);
    return text == nullptr ? std::u16string() : files::utf16Text(text->data);
}

Record cString(std::u16string_view text, std::uint16_t instance) {
    return Record::atom(type::CString, files::utf16Bytes(text), instance);
}

/// The container of a container's tags, a new one where there is none.
Record& tagsOf(Record& owner) {
    if (Record* const found = owner.find(type::ProgTags)) {
        return *found;
    }
    // What follows tags among the children of a document's list or of a slide is nothing that must come last.
    owner.children.push_back(Record::container(type::ProgTags, {}));
    return owner.children.back();
}

void dropEmptyTags(Record& owner) {
    std::erase_if(owner.children, [](const Record& child) {
        return child.is(type::ProgTags) && child.children.empty() && child.data.empty();
    });
}

} // namespace

TagList readTags(const Record& owner) {
    std::vector<TagList::Tag> tags;
    if (const Record* const all = owner.find(type::ProgTags)) {
        for (const Record& tag : all->children) {
            if (tag.is(type::ProgStringTag)) {
                tags.emplace_back(textOf(tag, nameInstance), textOf(tag, valueInstance));
            }
        }
    }
    return TagList(tags);
}

void putTags(Record& owner, const TagList& tags) {
    Record& container = tagsOf(owner);
    std::erase_if(container.children, [](const Record& tag) { return tag.is(type::ProgStringTag); });
    std::vector<Record> texts;
    for (const auto& [name, value] : tags.all()) {
        std::vector<Record> parts{cString(name, nameInstance)};
        if (!value.empty()) {
            parts.push_back(cString(value, valueInstance));
        }
        texts.push_back(Record::container(type::ProgStringTag, std::move(parts)));
    }
    container.children.insert(container.children.begin(), texts.begin(), texts.end());
    dropEmptyTags(owner);
}

std::optional<std::string> readData(const Record& owner, std::u16string_view name) {
    if (const Record* const all = owner.find(type::ProgTags)) {
        for (const Record& tag : all->children) {
            const Record* const data = tag.is(type::ProgBinaryTag) ? tag.find(type::BinaryTagData) : nullptr;
            if (data != nullptr && textOf(tag, nameInstance) == name) {
                return data->data;
            }
        }
    }
    return std::nullopt;
}

void putData(Record& owner, std::u16string_view name, const std::optional<std::string>& data) {
    Record& container = tagsOf(owner);
    const auto bearsName = [name](const Record& tag) {
        return tag.is(type::ProgBinaryTag) && textOf(tag, nameInstance) == name;
    };
    const auto found = std::find_if(container.children.begin(), container.children.end(), bearsName);
    if (!data) {
        std::erase_if(container.children, bearsName);
    } else {
        Record tag = Record::container(type::ProgBinaryTag,
                                       {cString(name, nameInstance), Record::atom(type::BinaryTagData, *data)});
        if (found == container.children.end()) {
            container.children.push_back(std::move(tag));
        } else {
            *found = std::move(tag);
        }
    }
    dropEmptyTags(owner);
}

} // namespace simulator::records
