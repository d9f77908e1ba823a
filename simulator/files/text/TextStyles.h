#pragma once

#include "simulator/files/text/FormatCodes.h"

namespace simulator::text {

/// The kinds of text that a master has styles for.
namespace kind {
enum : std::uint32_t {
    Title = 0,
    Body = 1,
    Notes = 2,
    Other = 4,
    CenterBody = 5,
    CenterTitle = 6,
    Half = 7,
    Quarter = 8
};
inline constexpr std::size_t count = 9;
} // namespace kind

inline constexpr std::size_t levels = 5;

/// How text looks that says nothing of itself: by its kind and its level, from the master and the document.
class TextStyles {
public:
    /// Styles of a document without masters.
    TextStyles() = default;
    TextStyles(const records::Record* master, const records::Record* environment, const FontTable& fonts);

    /// For a level from 0; unknown kinds and levels take the nearest known.
    [[nodiscard]] const CharacterFormat& characters(std::uint32_t kind, std::size_t level) const;
    [[nodiscard]] const ParagraphFormat& paragraphs(std::uint32_t kind, std::size_t level) const;

private:
    struct Style {
        CharacterFormat character;
        ParagraphFormat paragraph;
    };
    using Levels = std::array<Style, levels>;

    /// Puts a style record's levels over those that a kind has; a level inherits from the one before.
    static void apply(const records::Record& record, const FontTable& fonts, Levels& styles);

    std::array<Levels, kind::count> styles_;
};

} // namespace simulator::text
