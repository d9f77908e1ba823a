#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/text/Descent.h"
#include "simulator/files/text/StyleRuns.h"
#include "simulator/files/text/TextPlaces.h"
#include "simulator/files/text/TextRecords.h"

#include <algorithm>

namespace simulator::text {

namespace {

using records::Record;
namespace type = records::type;

/// Paragraphs of a text with the mark that ends the last one unwritten, as lengths.
std::vector<std::size_t> paragraphLengths(const std::u16string& text) {
    std::vector<std::size_t> lengths;
    std::size_t start = 0;
    for (std::size_t mark = text.find(TextStory::paragraphMark); mark != std::u16string::npos;
         mark = text.find(TextStory::paragraphMark, start)) {
        lengths.push_back(mark + 1 - start);
        start = mark + 1;
    }
    lengths.push_back(text.size() + 1 - start);
    return lengths;
}

/// Puts into a run's code what differs between two formats.
void change(TextException& code, const TextException& from, const TextException& to, std::span<const Field> fields) {
    for (std::size_t place = 0; place < fields.size(); ++place) {
        const std::uint32_t different = from.values.at(place) ^ to.values.at(place);
        if (different == 0) {
            continue;
        }
        const bool areFlags = place == 0;
        const std::uint32_t kept = areFlags ? code.values.at(place) & ~different : 0;
        const std::uint32_t taken = areFlags ? to.values.at(place) & different : to.values.at(place);
        code.set(place, areFlags ? different & to.mask : fields[place].bits, kept | taken);
    }
}

/// Puts all that a format says into a run's code.
void complete(TextException& code, const TextException& to, std::span<const Field> fields) {
    for (std::size_t place = 0; place < fields.size(); ++place) {
        const std::uint32_t said = to.mask & fields[place].bits;
        const bool areFlags = place == 0;
        const std::uint32_t kept = areFlags ? code.values.at(place) & ~said : 0;
        if (said != 0) {
            code.set(place, said, kept | (areFlags ? to.values.at(place) & said : to.values.at(place)));
        }
    }
}

void number(TextException& code, bool isNumbered) {
    constexpr std::uint32_t second = std::uint32_t{1} << character::extensionShift;
    if (isNumbered) {
        code.set(character::Style, character::extension, code.values[character::Style] | second);
    }
}

/// Where the runs of a text end, the last one after the mark that ends the text unwritten.
std::vector<std::size_t> runEnds(const TextStory& story) {
    std::vector<std::size_t> ends;
    std::size_t end = 0;
    for (const TextStory::Run& run : story.runs()) {
        end += run.length;
        ends.push_back(end);
    }
    ends.back() = story.text().size() + 1;
    return ends;
}

/// Runs that say everything.
StyleRuns freshRuns(const TextStory& story, FontTable& fonts) {
    StyleRuns out;
    const std::vector<std::size_t> lengths = paragraphLengths(story.text());
    const std::vector<std::size_t> ends = runEnds(story);
    std::size_t start = 0;
    std::size_t run = 0;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        const ParagraphFormat& format = story.paragraphFormats()[i];
        const auto level = static_cast<std::uint16_t>(format.indentLevel - 1);
        StyleRuns::append(out.paragraphs, {lengths[i], level, codeOf(format)});
        for (const std::size_t end = start + lengths[i]; start < end;) {
            run += ends[run] == start ? 1 : 0;
            const std::size_t stop = std::min(ends[run], end);
            TextException code = codeOf(story.runs()[run].format, fonts);
            number(code, format.bullet == ppBulletNumbered);
            StyleRuns::append(out.characters, {stop - start, 0, code});
            start = stop;
        }
    }
    return out;
}

/// The level of each character, and of the mark that ends the text unwritten.
std::vector<std::int32_t> levelsOf(const TextStory& story) {
    std::vector<std::int32_t> levels;
    const std::vector<std::size_t> lengths = paragraphLengths(story.text());
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        levels.insert(levels.end(), lengths[i], story.paragraphFormats()[i].indentLevel);
    }
    return levels;
}

/// The runs of a changed text, character by character.
StyleRuns changedRuns(const StyleRuns& before, const TextStory& asRead, const TextStory& now, const Descent& descent,
                      FontTable& fonts) {
    StyleRuns out;
    RunWalk paragraphs(before.paragraphs);
    RunWalk characters(before.characters);
    const std::vector<std::int32_t> levels = levelsOf(asRead);
    const std::vector<std::size_t> lengths = paragraphLengths(now.text());
    std::size_t start = 0;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        const std::size_t origin = descent.of(start);
        StyleRun paragraph = paragraphs.at(origin);
        const ParagraphFormat& format = now.paragraphFormats()[i];
        const ParagraphFormat& old = asRead.paragraphFormats({origin, 0}).front();
        if (format.indentLevel == old.indentLevel) {
            change(paragraph.exception, codeOf(old), codeOf(format), paragraph::fields);
        } else {
            complete(paragraph.exception, codeOf(format), paragraph::fields);
        }
        paragraph.level = static_cast<std::uint16_t>(format.indentLevel - 1);
        paragraph.length = lengths[i];
        StyleRuns::append(out.paragraphs, std::move(paragraph));
        for (const std::size_t end = start + lengths[i]; start < end; ++start) {
            const std::size_t from = descent.of(start);
            StyleRun run = characters.at(from);
            const CharacterFormat& formerly = asRead.formatAt(from);
            const CharacterFormat& current = now.formatAt(start);
            if (!(formerly == current)) {
                change(run.exception, codeOf(formerly, fonts), codeOf(current, fonts), character::fields);
            }
            if (levels.at(from) != format.indentLevel) {
                complete(run.exception, codeOf(current, fonts), character::fields); // what it inherits is another's
            }
            run.length = 1;
            StyleRuns::append(out.characters, std::move(run));
        }
    }
    return out;
}

void put(std::vector<Record>& block, Record record) {
    const auto found =
        std::find_if(block.begin(), block.end(), [&](const Record& each) { return each.type == record.type; });
    if (found != block.end()) {
        *found = std::move(record);
        return;
    }
    // Characters and styles follow the header in this order, before all else.
    const auto before = std::find_if(block.begin(), block.end(), [&](const Record& each) {
        return !each.is(type::OutlineTextRefAtom) && !each.is(type::TextHeaderAtom) &&
               !(record.is(type::StyleTextPropAtom) && each.is(type::TextCharsAtom));
    });
    block.insert(before, std::move(record));
}

void drop(std::vector<Record>& block, std::uint16_t wanted) {
    std::erase_if(block, [wanted](const Record& each) { return each.is(wanted); });
}

std::string headerOf(std::uint32_t kind) {
    return files::ByteWriter().write<std::uint32_t>(kind).take();
}

void putText(std::vector<Record>& block, const std::u16string& text, const StyleRuns& runs) {
    drop(block, type::TextBytesAtom);
    if (text.empty()) {
        drop(block, type::TextCharsAtom);
    } else {
        put(block, Record::atom(type::TextCharsAtom, files::utf16Bytes(text)));
    }
    put(block, Record::atom(type::StyleTextPropAtom, runs.bytes()));
}

bool isNumberedAt(const TextStory& story, std::size_t paragraph) {
    return story.paragraphFormats()[paragraph].bullet == ppBulletNumbered;
}

/// The paragraph that a character belongs to.
std::size_t paragraphAt(const std::u16string& text, std::size_t place) {
    const auto end = text.begin() + static_cast<std::ptrdiff_t>(std::min(place, text.size()));
    return static_cast<std::size_t>(std::count(text.begin(), end, TextStory::paragraphMark));
}

} // namespace

bool numberingHasChanged(const TextStory& asRead, const TextStory& now) {
    if (!isNumbered(asRead) && !isNumbered(now)) {
        return false;
    }
    const Descent descent(asRead.text(), now.text());
    const std::vector<std::size_t> lengths = paragraphLengths(now.text());
    std::size_t start = 0;
    for (std::size_t i = 0; i < lengths.size(); ++i) {
        if (isNumberedAt(now, i) != isNumberedAt(asRead, paragraphAt(asRead.text(), descent.of(start)))) {
            return true;
        }
        start += lengths[i];
    }
    return false;
}

std::vector<Record> textRecords(const TextStory& story, std::uint32_t kind, FontTable& fonts) {
    std::vector<Record> block{Record::atom(type::TextHeaderAtom, headerOf(kind))};
    putText(block, story.text(), freshRuns(story, fonts));
    return block;
}

std::vector<Record> changedText(const std::vector<Record>& block, const TextStory& asRead, const TextStory& now,
                                std::uint32_t kind, FontTable& fonts) {
    const auto header =
        std::find_if(block.begin(), block.end(), [](const Record& each) { return each.is(type::TextHeaderAtom); });
    if (header == block.end() || numberingHasChanged(asRead, now)) {
        std::vector<Record> fresh = textRecords(now, kind, fonts);
        if (header != block.end()) {
            fresh.front().instance = header->instance;
        }
        return fresh;
    }
    const StyleRuns before = StyleRuns::of(block, asRead.text().size() + 1);
    const Descent descent(asRead.text(), now.text());
    std::vector<Record> changed = block;
    drop(changed, type::TextSpecialInfoAtom);
    drop(changed, type::MasterTextPropAtom); // the styles say the levels, too
    changed[static_cast<std::size_t>(header - block.begin())].data = headerOf(kind);
    putText(changed, now.text(), changedRuns(before, asRead, now, descent, fonts));
    movePlaces(changed, descent);
    return changed;
}

} // namespace simulator::text
