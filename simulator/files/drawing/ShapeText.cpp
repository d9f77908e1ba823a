#include "simulator/files/drawing/ShapeText.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/LayoutCodes.h"
#include "simulator/files/drawing/Placeholders.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/records/Tags.h"

namespace simulator::drawing {

namespace {

using records::Record;
namespace type = records::type;

text::Numbering numberingIn(const Record& record) {
    const Record* const client = record.find(type::ArtClientData);
    const auto data = client == nullptr ? std::nullopt : records::readData(*client, text::extensionTag);
    if (!data || data->size() < records::headerSize) {
        return {};
    }
    files::ByteReader in(*data, "an extension of a shape");
    in.skip(2);
    const auto first = in.read<std::uint16_t>();
    const std::size_t length = in.read<std::uint32_t>();
    return first == type::StyleTextProp9Atom ? text::readNumbering(in.take(length)) : text::Numbering();
}

} // namespace

void ShapeTexts::read(const Record& record, const Looks& looks, Shape& shape, ShapeOrigin& origin) {
    const Record* const box = record.find(type::ArtClientTextbox);
    const std::vector<Record> none;
    const std::vector<Record>* block = box == nullptr ? &none : &box->children;
    if (const Record* const reference = box == nullptr ? nullptr : box->find(type::OutlineTextRefAtom)) {
        const auto place = files::ByteReader(reference->data, "a reference to the outline").read<std::uint32_t>();
        if (place < outline_.size()) {
            if (!taken_.insert(place).second) {
                throw DamagedPresentation("two shapes have text " + std::to_string(place) + " of the outline");
            }
            origin.outline = place;
            origin.outlineText = outline_[place];
            block = &origin.outlineText;
        }
    }
    if (block->empty() && shape.placeholder) {
        const std::vector<Record> header{
            Record::atom(type::TextHeaderAtom,
                         files::ByteWriter().write<std::uint32_t>(textKindOf(*shape.placeholder, sheet_)).take())};
        shape.text = text::readText(header, {}, context_);
    } else {
        shape.text = text::readText(*block, numberingIn(record), context_);
    }
    shape.text->layout = readLayout(looks);
}

bool holdsText(const Shape& shape, std::uint16_t kind) noexcept {
    const bool isConnector = kind >= kind::straightConnector && kind <= kind::lastConnector;
    const bool isContent = kind == kind::pictureFrame || kind == kind::hostControl; // in a placeholder
    return !isConnector && !isContent && shape.placeholder != ppPlaceholderSlideImage &&
           (shape.type == msoAutoShape || shape.type == msoTextBox || shape.type == msoPlaceholder ||
            shape.type == msoFreeform);
}

} // namespace simulator::drawing
