#include "simulator/files/drawing/PresetSeal.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/records/Tags.h"

namespace simulator::drawing::preset {

namespace {

using records::Record;
namespace type = records::type;

constexpr std::u16string_view tagName = u"EmbeddedPowerPoint";
constexpr std::int32_t noPreset = -2;

struct Range {
    std::uint16_t first;
    std::uint16_t last;
};
constexpr Range effect{property::effectText, property::effectFlags};
constexpr Range shadow{property::shadowKind, property::shadowFlags};
constexpr Range threeD{property::extrusionGloss, property::extrusionViewFlags};

/// A number that changes with the properties of a range.
std::uint32_t fingerprint(const PropertyTable& properties, const Range& range) {
    constexpr std::uint32_t prime = 16777619;
    std::uint32_t print = 2166136261;
    const auto add = [&print](std::uint32_t byte) { print = (print ^ (byte & 0xFFU)) * prime; };
    for (const Property& property : properties.all()) {
        if (property.id < range.first || property.id > range.last) {
            continue;
        }
        for (unsigned shift = 0; shift < 32; shift += 8) {
            add(property.id >> shift);
            add(property.value >> shift);
        }
        for (const char byte : property.bytes) {
            add(static_cast<unsigned char>(byte));
        }
    }
    return print;
}

bool isWorthSaying(const Shape& shape) noexcept {
    return shape.shadow.type != noPreset || shape.threeD.preset != noPreset ||
           (shape.textEffect && shape.textEffect->preset != 0);
}

} // namespace

void read(const Record& record, const PropertyTable& properties, Shape& shape) {
    const Record* const client = record.find(type::ArtClientData);
    const auto data = client == nullptr ? std::nullopt : records::readData(*client, tagName);
    if (!data) {
        return;
    }
    files::ByteReader in(*data, "the presets of a shape");
    const auto number = [&](const Range& range, std::int32_t otherwise) {
        const auto preset = in.read<std::int32_t>();
        return in.read<std::uint32_t>() == fingerprint(properties, range) ? preset : otherwise;
    };
    const std::int32_t effectPreset = number(effect, 0);
    if (shape.textEffect) {
        shape.textEffect->preset = effectPreset;
    }
    shape.shadow.type = number(shadow, shape.shadow.type);
    shape.threeD.preset = number(threeD, shape.threeD.preset);
}

void write(Record& record, const Shape& shape) {
    Record* client = record.find(type::ArtClientData);
    if (!isWorthSaying(shape)) {
        if (client != nullptr) {
            records::putData(*client, tagName, std::nullopt);
        }
        return;
    }
    if (client == nullptr) {
        const Record* const text = record.find(type::ArtClientTextbox);
        const auto place =
            text == nullptr ? record.children.size() : static_cast<std::size_t>(text - record.children.data());
        client = &*record.children.insert(record.children.begin() + static_cast<std::ptrdiff_t>(place),
                                          Record::container(type::ArtClientData, {}));
    }
    const PropertyTable properties = propertiesOf(record);
    files::ByteWriter out;
    const auto put = [&](const Range& range, std::int32_t preset) {
        out.write<std::int32_t>(preset).write<std::uint32_t>(fingerprint(properties, range));
    };
    put(effect, shape.textEffect ? shape.textEffect->preset : 0);
    put(shadow, shape.shadow.type);
    put(threeD, shape.threeD.preset);
    records::putData(*client, tagName, out.bytes());
}

} // namespace simulator::drawing::preset
