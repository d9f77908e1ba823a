#include "simulator/files/drawing/PropertyTable.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <array>

namespace simulator::drawing {

namespace {

constexpr std::uint16_t idMask = 0x3FFF;
constexpr std::uint16_t pictureBit = 0x4000;
constexpr std::uint16_t complexBit = 0x8000;
constexpr std::size_t propertySize = 6; // its head and value
constexpr std::size_t arrayHeader = 6;  // its length
constexpr std::uint8_t tableVersion = 3;

constexpr std::array arrays{property::vertices,        property::segments,    property::connections,
                            property::adjustHandles,   property::guides,      property::inscribe,
                            property::fillShadeColors, property::wrapPolygon, property::lineDashStyle};

/// Number of bytes that belong to a property. Some programs do not count the header of an array.
std::size_t bytesOf(const Property& property, std::string_view left) {
    if (left.size() < arrayHeader || std::find(arrays.begin(), arrays.end(), property.id) == arrays.end()) {
        return property.value;
    }
    files::ByteReader in(left, "an array of a drawing");
    const ArrayHead head(in);
    const std::size_t elements = head.count * head.elementSize;
    return property.value != 0 && property.value == elements ? elements + arrayHeader : property.value;
}

} // namespace

ArrayHead::ArrayHead(files::ByteReader& in) : count(in.read<std::uint16_t>()) {
    constexpr std::uint16_t packedPoint = 0xFFF0; // two numbers of 16 bits
    in.skip(2);
    const auto size = in.read<std::uint16_t>();
    elementSize = size == packedPoint ? 4 : size;
}

PropertyTable::PropertyTable(const records::Record& record) {
    files::ByteReader in(record.data, "a table of drawing properties");
    properties_.reserve(std::min<std::size_t>(record.instance, record.data.size() / propertySize));
    asFarAsSound([&] {
        for (std::size_t i = 0; i < record.instance; ++i) {
            const auto head = in.read<std::uint16_t>();
            const auto value = in.read<std::uint32_t>();
            properties_.push_back({static_cast<std::uint16_t>(head & idMask),
                                   (head & pictureBit) != 0,
                                   (head & complexBit) != 0,
                                   value,
                                   {}});
        }
    });
    std::erase_if(properties_, [&](Property& property) {
        return property.isComplex && !asFarAsSound([&] {
                   property.bytes = in.take(bytesOf(property, std::string_view(record.data).substr(in.place())));
               });
    });
    rest_ = in.take(in.left());
}

const Property* PropertyTable::find(std::uint16_t id) const noexcept {
    const auto found = std::find_if(properties_.begin(), properties_.end(),
                                    [id](const Property& property) { return property.id == id; });
    return found == properties_.end() ? nullptr : &*found;
}

void PropertyTable::put(Property property) {
    const auto found = std::find_if(properties_.begin(), properties_.end(),
                                    [&](const Property& each) { return each.id == property.id; });
    if (found != properties_.end()) {
        *found = std::move(property);
        return;
    }
    const auto after = std::find_if(properties_.begin(), properties_.end(),
                                    [&](const Property& each) { return each.id > property.id; });
    properties_.insert(after, std::move(property));
}

void PropertyTable::merge(PropertyTable other) {
    const auto isDisorder = [](const Property& left, const Property& right) { return left.id >= right.id; };
    if (properties_.empty() &&
        std::adjacent_find(other.properties_.begin(), other.properties_.end(), isDisorder) == other.properties_.end()) {
        properties_ = std::move(other.properties_); // in order already, as nearly all are
        return;
    }
    properties_.reserve(properties_.size() + other.properties_.size());
    for (Property& property : other.properties_) {
        const auto place = std::lower_bound(properties_.begin(), properties_.end(), property.id,
                                            [](const Property& each, std::uint16_t id) { return each.id < id; });
        if (place == properties_.end() || place->id != property.id) {
            properties_.insert(place, std::move(property));
        } else if (property::areFlags(property.id)) {
            const std::uint32_t said = property.value & 0xFFFF0000U;
            place->value = (place->value & ~(said >> 16U)) | said | (property.value & said >> 16U);
        } else {
            *place = std::move(property);
        }
    }
}

void PropertyTable::remove(std::uint16_t id) noexcept {
    std::erase_if(properties_, [id](const Property& property) { return property.id == id; });
}

void PropertyTable::setBytes(std::uint16_t id, std::string bytes) {
    const auto length = static_cast<std::uint32_t>(bytes.size());
    put({id, false, true, length, std::move(bytes)});
}

void PropertyTable::setText(std::uint16_t id, std::u16string_view text) {
    setBytes(id, files::utf16Bytes(text) + std::string(2, '\0'));
}

void PropertyTable::setFlag(std::uint16_t id, std::uint16_t bit, bool on) {
    const Property* const found = find(id);
    const std::uint32_t others = found == nullptr ? 0 : found->value & ~std::uint32_t{bit};
    set(id, others | (std::uint32_t{bit} << 16U) | (on ? bit : 0U));
}

records::Record PropertyTable::record(std::uint16_t type) const {
    files::ByteWriter out;
    for (const Property& property : properties_) {
        out.write<std::uint16_t>(static_cast<std::uint16_t>(property.id | (property.isPicture ? pictureBit : 0) |
                                                            (property.isComplex ? complexBit : 0)));
        out.write<std::uint32_t>(property.value);
    }
    for (const Property& property : properties_) {
        out.append(property.bytes);
    }
    out.append(rest_);
    return records::Record::atom(type, out.take(), static_cast<std::uint16_t>(properties_.size()), tableVersion);
}

PropertyTable propertiesOf(const records::Record& shape) {
    namespace type = records::type;
    PropertyTable properties;
    for (const records::Record& child : shape.children) {
        if (child.is(type::ArtProperties) || child.is(type::ArtSecondaryProperties) ||
            child.is(type::ArtTertiaryProperties)) {
            properties.merge(PropertyTable(child));
        }
    }
    return properties;
}

std::uint32_t Looks::number(std::uint16_t id, std::uint32_t otherwise) const noexcept {
    for (const PropertyTable* const table : tables_) {
        if (const Property* const found = table->find(id)) {
            return found->value;
        }
    }
    return otherwise;
}

float Looks::fixed(std::uint16_t id, float otherwise) const noexcept {
    const auto scaled = static_cast<std::uint32_t>(static_cast<std::int32_t>(otherwise * fixedPoint));
    const std::uint32_t value = number(id, scaled);
    return value == scaled ? otherwise : static_cast<float>(static_cast<std::int32_t>(value) / fixedPoint);
}

float Looks::points(std::uint16_t id, float otherwise) const noexcept {
    for (const PropertyTable* const table : tables_) {
        if (const Property* const found = table->find(id)) {
            return static_cast<float>(static_cast<std::int32_t>(found->value) / emuPerPoint);
        }
    }
    return otherwise;
}

bool Looks::flag(std::uint16_t id, std::uint16_t bit, bool otherwise) const noexcept {
    for (const PropertyTable* const table : tables_) {
        const Property* const found = table->find(id);
        if (found != nullptr && ((found->value >> 16U) & bit) != 0) {
            return (found->value & bit) != 0;
        }
    }
    return otherwise;
}

std::u16string Looks::text(std::uint16_t id) const {
    const Property* const found = own(id);
    const std::u16string all = found == nullptr ? std::u16string() : files::utf16Text(found->bytes);
    return all.substr(0, all.find(u'\0'));
}

} // namespace simulator::drawing
