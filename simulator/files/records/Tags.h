#pragma once

#include "simulator/document/TagList.h"
#include "simulator/files/records/Record.h"

#include <optional>

/// Programmable tags: texts by name, which the object model shows, and data by name, which programs keep to themselves.
namespace simulator::records {

/// The tags with texts among the children of a container that can bear tags.
[[nodiscard]] TagList readTags(const Record& owner);
/// Gives a container these tags with texts in the place of those that it has; tags with data stay.
void putTags(Record& owner, const TagList& tags);

/// The data of a tag of a container; nothing where it has none of this name.
[[nodiscard]] std::optional<std::string> readData(const Record& owner, std::u16string_view name);
/// Gives a container a tag with data, or takes it away.
void putData(Record& owner, std::u16string_view name, const std::optional<std::string>& data);

} // namespace simulator::records
