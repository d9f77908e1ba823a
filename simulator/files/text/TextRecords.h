#pragma once

#include "simulator/document/TextStory.h"
#include "simulator/files/text/Numbering.h"
#include "simulator/files/text/TextStyles.h"

namespace simulator::text {

/// What a text is read against.
struct TextContext {
    const FontTable& fonts;
    const TextStyles& styles;
};

/// The kind of a text, from its header; that of any shape where there is none.
[[nodiscard]] std::uint32_t kindOf(const std::vector<records::Record>& block);

/// A text from its records: header, characters, styles. Its layout stands elsewhere. `numbering` says which formats of
/// the extension number paragraphs.
[[nodiscard]] TextStory readText(const std::vector<records::Record>& block, const Numbering& numbering,
                                 const TextContext& context);

/// A text as records.
[[nodiscard]] std::vector<records::Record> textRecords(const TextStory& story, std::uint32_t kind, FontTable& fonts);

/// The records of a text that has changed since it was read: what runs say beyond the object model stays with their
/// characters, records of other matters stay in their place.
[[nodiscard]] std::vector<records::Record> changedText(const std::vector<records::Record>& block,
                                                       const TextStory& asRead, const TextStory& now,
                                                       std::uint32_t kind, FontTable& fonts);

/// True where a paragraph of a changed text has an automatic number and the one that it comes from has none, or the
/// other way round.
[[nodiscard]] bool numberingHasChanged(const TextStory& asRead, const TextStory& now);
/// True where a paragraph has an automatic number.
[[nodiscard]] bool isNumbered(const TextStory& story) noexcept;

} // namespace simulator::text
