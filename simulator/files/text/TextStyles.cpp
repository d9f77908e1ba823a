#include "simulator/files/text/TextStyles.h"

#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::text {

namespace {

namespace type = records::type;

/// The kind whose style another one's is laid over; itself for one that stands alone.
constexpr std::array<std::size_t, kind::count> bases{0, 1, 2, 3, 4, kind::Body, kind::Title, kind::Body, kind::Body};
constexpr std::uint16_t firstDerived = kind::CenterBody;

} // namespace

TextStyles::TextStyles(const records::Record* master, const records::Record* environment, const FontTable& fonts) {
    Style common;
    if (environment != nullptr) {
        if (const records::Record* const defaults = environment->find(type::TextCharacterDefaults)) {
            files::ByteReader in(defaults->data, "the character defaults");
            asFarAsSound([&] { overlay(TextException::read(in, character::fields), fonts, common.character); });
        }
        if (const records::Record* const defaults = environment->find(type::TextParagraphDefaults)) {
            files::ByteReader in(defaults->data, "the paragraph defaults");
            asFarAsSound([&] {
                in.skip(2);
                overlay(TextException::read(in, paragraph::fields), common.paragraph);
            });
        }
    }
    for (std::size_t each = 0; each < kind::count; ++each) {
        styles_.at(each).fill(common);
        if (bases.at(each) != each) {
            styles_.at(each) = styles_.at(bases.at(each));
        }
        const auto instance = static_cast<std::uint16_t>(each);
        for (const records::Record* const source : {environment, master}) {
            if (source != nullptr && source->find(type::TextMasterStyleAtom, instance) != nullptr) {
                asFarAsSound(
                    [&] { apply(*source->find(type::TextMasterStyleAtom, instance), fonts, styles_.at(each)); });
            }
        }
    }
}

void TextStyles::apply(const records::Record& record, const FontTable& fonts, Levels& styles) {
    files::ByteReader in(record.data, "a master's text style");
    const auto count = in.read<std::uint16_t>();
    for (std::size_t each = 0; each < count; ++each) {
        const std::size_t level = record.instance >= firstDerived ? in.read<std::uint16_t>() : each;
        const TextException forParagraphs = TextException::read(in, paragraph::fields);
        const TextException forCharacters = TextException::read(in, character::fields);
        for (std::size_t place = level; place < styles.size(); ++place) {
            overlay(forParagraphs, styles.at(place).paragraph);
            overlay(forCharacters, fonts, styles.at(place).character);
        }
    }
}

const CharacterFormat& TextStyles::characters(std::uint32_t kind, std::size_t level) const {
    return styles_.at(kind < kind::count ? kind : kind::Other).at(std::min(level, levels - 1)).character;
}

const ParagraphFormat& TextStyles::paragraphs(std::uint32_t kind, std::size_t level) const {
    return styles_.at(kind < kind::count ? kind : kind::Other).at(std::min(level, levels - 1)).paragraph;
}

} // namespace simulator::text
