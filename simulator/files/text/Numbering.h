#pragma once

#include "simulator/files/records/Record.h"

namespace simulator::text {

/// Automatic numbers of paragraphs stand apart, in the extension that PowerPoint 2000 brought: a list of formats that
/// character runs refer to by place.
using Numbering = std::vector<bool>;

/// The tag that holds the extension's record.
inline constexpr std::u16string_view extensionTag = u"___PPT9";

/// For each format of the extension's record whether it numbers its paragraphs.
[[nodiscard]] Numbering readNumbering(std::string_view data);
/// The extension's record with two formats: one that does not number, and one that does.
[[nodiscard]] records::Record numberingRecord();

} // namespace simulator::text
