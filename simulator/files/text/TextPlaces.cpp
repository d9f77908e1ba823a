#include "simulator/files/text/TextPlaces.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <array>

namespace simulator::text {

namespace {

using records::Record;
namespace type = records::type;

constexpr std::array fieldTypes{type::SlideNumberField, type::DateTimeField, type::GenericDateField,
                                type::HeaderField,      type::FooterField,   type::RtfDateTimeField};
constexpr std::array stretchTypes{type::TextBookmarkAtom, type::TextInteractiveInfoAtom};

template <typename Types> bool isOneOf(const Types& types, const Record& record) {
    return std::find(types.begin(), types.end(), record.type) != types.end();
}

/// False where what the record names is gone.
bool moved(Record& record, const Descent& descent) {
    if (isOneOf(fieldTypes, record)) {
        const auto place = descent.after(files::numberAt(record.data, 0));
        files::putNumber(record.data, 0, static_cast<std::uint32_t>(place.value_or(0)));
        return place.has_value();
    }
    if (isOneOf(stretchTypes, record)) {
        const auto stretch =
            descent.after(Descent::Stretch{files::numberAt(record.data, 0), files::numberAt(record.data, 4)});
        files::putNumber(record.data, 0, static_cast<std::uint32_t>(stretch.start));
        files::putNumber(record.data, 4, static_cast<std::uint32_t>(stretch.end));
        return stretch.start < stretch.end;
    }
    return true;
}

} // namespace

void movePlaces(std::vector<Record>& block, const Descent& descent) {
    std::vector<Record> kept;
    for (Record& record : block) {
        if (moved(record, descent)) {
            kept.push_back(std::move(record));
        } else if (record.is(type::TextInteractiveInfoAtom) && !kept.empty() &&
                   kept.back().is(type::InteractiveInfo, record.instance)) {
            kept.pop_back(); // the link itself stands before the record that says where it is
        }
    }
    block = std::move(kept);
}

} // namespace simulator::text
