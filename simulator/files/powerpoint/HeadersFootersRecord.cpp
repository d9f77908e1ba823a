#include "simulator/files/powerpoint/HeadersFootersRecord.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/bytes/DamagedPresentation.h"
#include "simulator/files/powerpoint/SlideList.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::powerpoint {

namespace {

using records::Record;
namespace type = records::type;

namespace flag {
enum : std::uint16_t { date = 1, today = 2, fixedDate = 4, number = 8, header = 16, footer = 32 };
} // namespace flag

/// Instances of the texts.
constexpr std::uint16_t dateText = 0;
constexpr std::uint16_t headerText = 1;
constexpr std::uint16_t footerText = 2;

std::u16string textIn(const Record& container, std::uint16_t instance) {
    const Record* const found = container.find(type::CString, instance);
    return found == nullptr ? std::u16string() : files::utf16Text(found->data);
}

Record recordOf(const HeadersFooters& all, std::uint16_t instance) {
    std::uint16_t flags = all.dateUsesFormat ? flag::today : flag::fixedDate;
    const auto add = [&flags](const HeaderFooter& part, std::uint16_t bit) {
        flags = static_cast<std::uint16_t>(flags | (part.isVisible ? bit : 0));
    };
    add(all.date, flag::date);
    add(all.number, flag::number);
    add(all.header, flag::header);
    add(all.footer, flag::footer);
    files::ByteWriter out;
    out.write<std::int16_t>(static_cast<std::int16_t>(all.dateFormat - 1)).write<std::uint16_t>(flags);
    std::vector<Record> parts{Record::atom(type::HeadersFootersAtom, out.take())};
    for (const auto& [place, part] :
         {std::pair(dateText, &all.date), std::pair(headerText, &all.header), std::pair(footerText, &all.footer)}) {
        if (!part->text.empty()) {
            parts.push_back(Record::atom(type::CString, files::utf16Bytes(part->text), place));
        }
    }
    return Record::container(type::HeadersFooters, std::move(parts), instance);
}

} // namespace

std::optional<HeadersFooters> readHeadersFooters(const Record& owner, std::uint16_t instance) {
    const Record* const container = owner.find(type::HeadersFooters, instance);
    const Record* const atom = container == nullptr ? nullptr : container->find(type::HeadersFootersAtom);
    HeadersFooters all;
    const bool isSound = atom != nullptr && asFarAsSound([&] {
                             files::ByteReader in(atom->data, "headers and footers");
                             all.dateFormat = in.read<std::int16_t>() + 1;
                             const auto flags = in.read<std::uint16_t>();
                             all.dateUsesFormat = (flags & flag::fixedDate) == 0;
                             all.date = {(flags & flag::date) != 0, textIn(*container, dateText)};
                             all.number.isVisible = (flags & flag::number) != 0;
                             all.header = {(flags & flag::header) != 0, textIn(*container, headerText)};
                             all.footer = {(flags & flag::footer) != 0, textIn(*container, footerText)};
                         });
    return isSound ? std::optional(std::move(all)) : std::nullopt;
}

void putHeadersFooters(Record& owner, std::uint16_t instance, const std::optional<HeadersFooters>& all) {
    std::vector<Record>& parts = owner.children;
    std::erase_if(parts, [instance](const Record& part) { return part.is(type::HeadersFooters, instance); });
    if (all) {
        const auto place = std::find_if(parts.begin(), parts.end(), [](const Record& part) {
            return part.is(type::Drawing) || part.is(type::SlideListWithText, slideList::slides) ||
                   part.is(type::SlideListWithText, slideList::notes) || part.is(type::SlideShowSettings) ||
                   part.is(type::EndDocument);
        });
        parts.insert(place, recordOf(*all, instance));
    }
}

} // namespace simulator::powerpoint
