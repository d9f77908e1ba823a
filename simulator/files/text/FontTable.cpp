#include "simulator/files/text/FontTable.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::text {

namespace {

constexpr std::size_t nameUnits = 32;

records::Record entityOf(const std::u16string& name, std::size_t number) {
    files::ByteWriter out;
    const std::u16string_view fitting = std::u16string_view(name).substr(0, nameUnits - 1);
    out.append(files::utf16Bytes(fitting)).fill((nameUnits - fitting.size()) * 2);
    constexpr std::uint8_t trueType = 4;
    constexpr std::uint8_t variableSwiss = 0x22;
    out.write<std::uint8_t>(0).write<std::uint8_t>(0).write<std::uint8_t>(trueType).write<std::uint8_t>(variableSwiss);
    return records::Record::atom(records::type::FontEntityAtom, out.take(), static_cast<std::uint16_t>(number));
}

} // namespace

FontTable::FontTable(const records::Record& collection) {
    for (const records::Record& entity : collection.children) {
        if (!entity.is(records::type::FontEntityAtom)) {
            continue;
        }
        const std::u16string name = files::utf16Text(std::string_view(entity.data).substr(0, nameUnits * 2));
        names_.resize(std::max(names_.size(), std::size_t{entity.instance} + 1));
        names_[entity.instance] = name.substr(0, name.find(u'\0'));
    }
}

const std::u16string* FontTable::name(std::uint32_t number) const noexcept {
    return number < names_.size() && !names_[number].empty() ? &names_[number] : nullptr;
}

std::uint16_t FontTable::number(const std::u16string& name) {
    const std::u16string fitting = name.substr(0, nameUnits - 1);
    const auto found = std::find(names_.begin(), names_.end(), fitting);
    if (found == names_.end()) {
        names_.push_back(fitting);
        return static_cast<std::uint16_t>(names_.size() - 1);
    }
    return static_cast<std::uint16_t>(found - names_.begin());
}

void FontTable::complete(records::Record& collection) const {
    const FontTable there(collection);
    for (std::size_t number = there.names_.size(); number < names_.size(); ++number) {
        collection.children.push_back(entityOf(names_[number], number));
    }
}

} // namespace simulator::text
