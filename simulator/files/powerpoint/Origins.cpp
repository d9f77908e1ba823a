#include "simulator/files/powerpoint/Origins.h"

#include "simulator/files/Bytes.h"
#include "simulator/files/records/RecordTypes.h"

namespace simulator::powerpoint {

using records::Record;
namespace type = records::type;

std::size_t countShapes(const std::vector<ShapePtr>& shapes) noexcept {
    std::size_t count = shapes.size();
    for (const ShapePtr& shape : shapes) {
        count += countShapes(shape->items());
    }
    return count;
}

std::vector<SlideEntry> entriesOf(const Record& list) {
    std::vector<SlideEntry> entries;
    for (const Record& child : list.children) {
        if (child.is(type::SlidePersistAtom)) {
            entries.push_back({child, {}, {}});
        } else if (entries.empty()) {
            throw DamagedPresentation("a list of slides does not begin with a slide");
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

SlideReference::SlideReference(const Record& persist) {
    files::ByteReader in(persist.data, "the record of a slide in a list");
    object = in.read<std::uint32_t>();
    in.skip(8);
    slide = in.read<std::uint32_t>();
}

} // namespace simulator::powerpoint
