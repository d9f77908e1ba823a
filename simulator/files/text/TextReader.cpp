#include "simulator/document/ParagraphMarks.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/text/StyleRuns.h"
#include "simulator/files/text/TextRecords.h"

#include <algorithm>

namespace simulator::text {

namespace {

using records::Record;
namespace type = records::type;

const Record* find(const std::vector<Record>& block, std::uint16_t wanted) {
    const auto found = std::find_if(block.begin(), block.end(), [=](const Record& each) { return each.is(wanted); });
    return found == block.end() ? nullptr : &*found;
}

std::u16string charactersOf(const std::vector<Record>& block) {
    if (const Record* const wide = find(block, type::TextCharsAtom)) {
        return files::utf16Text(wide->data);
    }
    const Record* const narrow = find(block, type::TextBytesAtom);
    if (narrow == nullptr) {
        return {};
    }
    std::u16string text(narrow->data.size(), u'\0');
    std::transform(narrow->data.begin(), narrow->data.end(), text.begin(),
                   [](char byte) { return static_cast<char16_t>(static_cast<unsigned char>(byte)); });
    return text;
}

bool numbers(const TextException& exception, const Numbering& numbering) {
    const std::size_t place =
        (exception.mask & character::extension) != 0
            ? (exception.values[character::Style] & character::extension) >> character::extensionShift
            : 0;
    return place < numbering.size() && numbering[place];
}

/// The text with the level of each character, while it is put together.
class Reading {
public:
    Reading(std::u16string text, const StyleRuns& styles, std::uint32_t kind, const Numbering& numbering,
            const TextContext& context)
        : text_(std::move(text)), styles_(styles), kind_(kind), numbering_(numbering), context_(context) {}

    TextStory story() {
        readParagraphs();
        readCharacters();
        return {std::move(text_), std::move(runs_), std::move(paragraphs_)};
    }

private:
    void readParagraphs() {
        RunWalk paragraphs(styles_.paragraphs);
        RunWalk characters(styles_.characters);
        std::size_t start = 0;
        for (bool isLast = false; !isLast;) {
            const std::size_t mark = findParagraphMark(text_, start);
            isLast = mark == std::u16string::npos;
            addParagraph(paragraphs.at(start), characters.at(start));
            start = isLast ? text_.size() : mark + 1;
            ends_.push_back(isLast ? text_.size() + 1 : start);
        }
    }

    void addParagraph(const StyleRun& run, const StyleRun& first) {
        const std::size_t level = std::min<std::size_t>(run.level, levels - 1);
        ParagraphFormat format = context_.styles.paragraphs(kind_, level);
        overlay(run.exception, format);
        format.indentLevel = static_cast<std::int32_t>(level) + 1;
        if (format.bullet != ppBulletNone && numbers(first.exception, numbering_)) {
            format.bullet = ppBulletNumbered;
        }
        paragraphs_.push_back(format);
    }

    /// Cuts the runs of characters where paragraphs end: what a run does not say depends on the level.
    void readCharacters() {
        std::size_t place = 0;
        std::size_t paragraph = 0;
        for (const StyleRun& run : styles_.characters) {
            for (const std::size_t end = place + run.length; place < end;) {
                while (place >= ends_[paragraph]) {
                    ++paragraph;
                }
                const std::size_t stop = std::min(end, ends_[paragraph]);
                const auto level = static_cast<std::size_t>(paragraphs_[paragraph].indentLevel) - 1;
                CharacterFormat format = context_.styles.characters(kind_, level);
                overlay(run.exception, context_.fonts, format);
                addRun(std::min(stop, text_.size()) - std::min(place, text_.size()), format);
                place = stop;
            }
        }
    }

    void addRun(std::size_t length, const CharacterFormat& format) {
        if (length != 0 || text_.empty()) {
            runs_.push_back({length, format});
        }
    }

    std::u16string text_;
    const StyleRuns& styles_;
    std::uint32_t kind_;
    const Numbering& numbering_;
    const TextContext& context_;
    std::vector<TextStory::Run> runs_;
    std::vector<ParagraphFormat> paragraphs_;
    std::vector<std::size_t> ends_;
};

} // namespace

std::uint32_t kindOf(const std::vector<Record>& block) {
    const Record* const header = find(block, type::TextHeaderAtom);
    return header == nullptr ? kind::Other : files::ByteReader(header->data, "a text header").read<std::uint32_t>();
}

TextStory readText(const std::vector<Record>& block, const Numbering& numbering, const TextContext& context) {
    std::u16string text = charactersOf(block);
    const StyleRuns runs = StyleRuns::of(block, text.size() + 1);
    return Reading(std::move(text), runs, kindOf(block), numbering, context).story();
}

bool isNumbered(const TextStory& story) noexcept {
    const std::vector<ParagraphFormat>& formats = story.paragraphFormats();
    return std::any_of(formats.begin(), formats.end(),
                       [](const ParagraphFormat& format) { return format.bullet == ppBulletNumbered; });
}

} // namespace simulator::text
