#include "simulator/files/powerpoint/SlideList.h"

#include "simulator/files/records/Damage.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::powerpoint {

namespace {

using records::Record;
namespace type = records::type;

constexpr std::size_t persistLength = 20;

std::vector<SlideEntry> entriesOf(const Record& list) {
    std::vector<SlideEntry> entries;
    for (const Record& child : list.children) {
        if (child.is(type::SlidePersistAtom)) {
            if (child.data.size() < persistLength) {
                throw records::DamagedRecord(child.offset, "the record of a slide in a list is too short");
            }
            entries.push_back({child, {}, {}});
        } else if (entries.empty()) {
            continue; // of no slide
        } else if (child.is(type::TextHeaderAtom)) {
            entries.back().texts.push_back({child});
        } else if (entries.back().texts.empty()) {
            entries.back().rest.push_back(child);
        } else {
            entries.back().texts.back().push_back(child);
        }
    }
    return entries;
}

std::vector<Record> recordsOf(const std::vector<SlideEntry>& entries) {
    std::vector<Record> records;
    for (const SlideEntry& entry : entries) {
        records.push_back(entry.persist);
        records.insert(records.end(), entry.rest.begin(), entry.rest.end());
        for (const std::vector<Record>& text : entry.texts) {
            records.insert(records.end(), text.begin(), text.end());
        }
    }
    return records;
}

} // namespace

Record persistAtom(std::uint32_t object, std::uint32_t flags, std::uint32_t slide) {
    files::ByteWriter out;
    out.write<std::uint32_t>(object).write<std::uint32_t>(flags).write<std::uint32_t>(0);
    return Record::atom(type::SlidePersistAtom, out.write<std::uint32_t>(slide).fill(4).take());
}

void SlideEntry::setTexts(std::vector<std::vector<Record>> now) {
    if (now.size() != texts.size()) {
        files::putNumber(persist.data, textCountPlace, static_cast<std::uint32_t>(now.size()));
    }
    texts = std::move(now);
}

std::vector<SlideEntry> entriesIn(const Record& document, std::uint16_t list) {
    const Record* const found = document.find(type::SlideListWithText, list);
    return found == nullptr ? std::vector<SlideEntry>() : entriesOf(*found);
}

void putEntries(Record& document, std::uint16_t list, const std::vector<SlideEntry>& entries) {
    std::vector<Record>& parts = document.children;
    Record* const found = document.find(type::SlideListWithText, list);
    if (entries.empty()) {
        std::erase_if(parts, [list](const Record& part) { return part.is(type::SlideListWithText, list); });
    } else if (found != nullptr) {
        found->children = recordsOf(entries);
    } else {
        const auto place = std::find_if(parts.begin(), parts.end(), [](const Record& part) {
            return part.is(type::SlideListWithText, slideList::notes) || part.is(type::SlideShowSettings) ||
                   part.is(type::EndDocument);
        });
        parts.insert(place, Record::container(type::SlideListWithText, recordsOf(entries), list));
    }
}

} // namespace simulator::powerpoint
