#include "simulator/files/powerpoint/GridSpacing.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/records/Damage.h"
#include "simulator/files/records/RecordReader.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/records/Tags.h"

namespace simulator::powerpoint {

namespace {

using records::Record;
namespace type = records::type;

constexpr std::u16string_view tagName = u"___PPT10";
constexpr float unitsPerPoint = 8192;

/// Where a record of the extension stands; where it would have to stand, and false, for one that is not in it.
struct Place {
    std::size_t offset = 0;
    bool isThere = false;
};

Place findGrid(const std::string& extension) {
    Place place;
    asFarAsSound([&] {
        while (place.offset < extension.size()) {
            const std::size_t length = records::sizeOfRecord(extension, place.offset);
            const std::uint16_t found = records::readRecord(extension, place.offset).type;
            const bool standsBefore = found == type::FontCollection10 || found == type::TextMasterStyle10Atom ||
                                      found == type::TextDefaults10Atom;
            place.isThere = found == type::GridSpacing10Atom;
            if (!standsBefore) {
                return;
            }
            place.offset += length;
        }
    });
    return place;
}

} // namespace

std::optional<float> readGridSpacing(const Record& settings) {
    const auto extension = records::readData(settings, tagName);
    const Place place = extension ? findGrid(*extension) : Place();
    std::optional<float> points;
    if (place.isThere) {
        asFarAsSound([&] {
            const Record atom = records::readRecord(*extension, place.offset);
            files::ByteReader in(atom.data, "the distance of the grid");
            points = static_cast<float>(in.read<std::int32_t>()) / unitsPerPoint;
        });
    }
    return points;
}

void writeGridSpacing(Record& settings, float points) {
    std::string extension = records::readData(settings, tagName).value_or(std::string());
    const Place place = findGrid(extension);
    const std::uint32_t units = drawing::code(double{points} * unitsPerPoint);
    const Record atom = Record::atom(
        type::GridSpacing10Atom, files::ByteWriter().write<std::uint32_t>(units).write<std::uint32_t>(units).take());
    extension.replace(place.offset, place.isThere ? records::sizeOfRecord(extension, place.offset) : 0, bytesOf(atom));
    records::putData(settings, tagName, extension);
}

} // namespace simulator::powerpoint
