#include "simulator/files/drawing/Patches.h"

#include "simulator/files/drawing/FreeformCodes.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/drawing/ShapeHead.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/records/Tags.h"
#include "simulator/files/text/TextRecords.h"

#include <algorithm>
#include <array>

namespace simulator::drawing {

namespace {

using records::Record;
namespace type = records::type;

constexpr std::array tables{type::ArtProperties, type::ArtSecondaryProperties, type::ArtTertiaryProperties};

/// The flags of a property that have changed: only those are carried over.
std::uint32_t changedFlags(const Property* before, const Property& now) noexcept {
    return before == nullptr ? now.value >> 16U : (before->value ^ now.value) & 0xFFFFU;
}

Property combined(const Property& raw, const Property* before, const Property& now) {
    if (!property::areFlags(now.id)) {
        return now;
    }
    const std::uint32_t changed = changedFlags(before, now);
    Property property = raw;
    property.value = (raw.value & ~changed) | (now.value & changed) | (changed << 16U);
    return property;
}

/// Where a child record goes that a shape did not have: records of a shape stand in a set order.
std::size_t placeFor(const Record& record, std::uint16_t wanted) {
    constexpr std::array order{type::ArtShapeGroupAtom,      type::ArtShapeAtom,          type::ArtProperties,
                               type::ArtSecondaryProperties, type::ArtTertiaryProperties, type::ArtChildAnchor,
                               type::ArtClientAnchor,        type::ArtClientData,         type::ArtClientTextbox};
    const auto rank = [&](std::uint16_t each) { return std::find(order.begin(), order.end(), each); };
    const auto after = std::find_if(record.children.begin(), record.children.end(), [&](const Record& child) {
        return rank(child.type) != order.end() && rank(child.type) > rank(wanted);
    });
    return static_cast<std::size_t>(after - record.children.begin());
}

Record& insert(Record& record, Record child) {
    const auto place = static_cast<std::ptrdiff_t>(placeFor(record, child.type));
    return *record.children.insert(record.children.begin() + place, std::move(child));
}

bool differs(const Record& before, const Record& now, std::uint16_t wanted) {
    const Record* const one = before.find(wanted);
    const Record* const other = now.find(wanted);
    return (one == nullptr) != (other == nullptr) || (one != nullptr && *one != *other);
}

void putNumbering(Record& data, const Shape& asRead, const Shape& shape, const Record& now) {
    const TextStory none;
    if (text::numberingHasChanged(asRead.text ? *asRead.text : none, shape.text ? *shape.text : none)) {
        records::putData(data, text::extensionTag, records::readData(now, text::extensionTag));
    }
}

} // namespace

void patchHead(Record& record, const Record& before, const Record& now) {
    Record& atom = *record.find(type::ArtShapeAtom);
    const ShapeHead raw(record);
    const ShapeHead was(before);
    const ShapeHead is(now);
    if (was.kind != is.kind) {
        atom.instance = is.kind;
    }
    files::ByteWriter out;
    out.write<std::uint32_t>(is.number).write<std::uint32_t>(raw.flags ^ (was.flags ^ is.flags));
    out.append(std::string_view(atom.data).substr(out.size()));
    atom.data = out.take();
}

void patchProperties(Record& record, const PropertyTable& before, const PropertyTable& now) {
    const auto pathParts = [](const PropertyTable& table) {
        std::vector<Property> parts;
        std::copy_if(table.all().begin(), table.all().end(), std::back_inserter(parts),
                     [](const Property& property) { return isOfPath(property.id); });
        return parts;
    };
    const bool pathHasChanged = pathParts(before) != pathParts(now);
    std::vector<std::pair<Record*, PropertyTable>> raw;
    for (Record& child : record.children) {
        if (std::find(tables.begin(), tables.end(), child.type) != tables.end()) {
            raw.emplace_back(&child, PropertyTable(child));
        }
    }
    PropertyTable fresh;
    PropertyTable& usual = raw.empty() ? fresh : raw.front().second;
    const auto holderOf = [&](std::uint16_t id) -> PropertyTable& {
        const auto found =
            std::find_if(raw.begin(), raw.end(), [id](const auto& each) { return each.second.find(id) != nullptr; });
        return found == raw.end() ? usual : found->second;
    };
    for (const Property& property : now.all()) {
        const Property* const was = before.find(property.id);
        if (was != nullptr && *was == property && !(pathHasChanged && isOfPath(property.id))) {
            continue;
        }
        PropertyTable& holder = holderOf(property.id);
        const Property* const there = holder.find(property.id);
        const Property none{property.id, false, false, 0, {}};
        holder.put(combined(there == nullptr ? none : *there, was, property));
        for (auto& [child, table] : raw) {
            const Property* const also = &table == &holder ? nullptr : table.find(property.id);
            if (also != nullptr && property::areFlags(property.id)) { // says nothing more of what has changed
                const std::uint32_t changed = changedFlags(was, property);
                table.set(property.id, also->value & ~(changed | changed << 16U));
            }
        }
    }
    for (const Property& property : before.all()) {
        if (now.find(property.id) == nullptr) {
            holderOf(property.id).remove(property.id);
        }
    }
    for (auto& [child, table] : raw) {
        Record written = table.record(child->type);
        written.version = child->version;
        *child = std::move(written);
    }
    if (raw.empty() && !fresh.all().empty()) {
        insert(record, fresh.record(type::ArtProperties));
    }
}

void patchPlace(Record& record, const Record& before, const Record& now, bool always) {
    const bool hasMoved = always || differs(before, now, type::ArtChildAnchor) ||
                          differs(before, now, type::ArtClientAnchor) || differs(before, now, type::ArtShapeGroupAtom);
    if (!hasMoved) {
        return;
    }
    for (const std::uint16_t each : {type::ArtShapeGroupAtom, type::ArtChildAnchor, type::ArtClientAnchor}) {
        const Record* const wanted = now.find(each);
        Record* const there = record.find(each);
        if (wanted == nullptr) {
            std::erase_if(record.children, [each](const Record& child) { return child.is(each); });
        } else if (there != nullptr) {
            *there = *wanted;
        } else {
            insert(record, *wanted);
        }
    }
}

void patchClientData(Record& record, const Shape& asRead, const Shape& shape, const Record& before, const Record& now) {
    if (before == now && asRead.text == shape.text) {
        return;
    }
    Record* const there = record.find(type::ArtClientData);
    Record& data = there != nullptr ? *there : insert(record, Record::container(type::ArtClientData, {}));
    if (differs(before, now, type::PlaceholderAtom)) {
        std::erase_if(data.children, [](const Record& child) { return child.is(type::PlaceholderAtom); });
        if (const Record* const placeholder = now.find(type::PlaceholderAtom)) {
            data.children.insert(data.children.begin(), *placeholder);
        }
    }
    if (!(asRead.tags == shape.tags)) {
        records::putTags(data, shape.tags);
    }
    putNumbering(data, asRead, shape, now);
    std::erase_if(record.children, [](const Record& child) {
        return child.is(type::ArtClientData) && child.children.empty() && child.data.empty();
    });
}

} // namespace simulator::drawing
