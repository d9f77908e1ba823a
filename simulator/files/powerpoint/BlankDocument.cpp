#include "simulator/files/powerpoint/BlankDocument.h"

#include "simulator/document/NewShape.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/DrawingIds.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/drawing/PropertyTable.h"
#include "simulator/files/powerpoint/ColorSchemeAtom.h"
#include "simulator/files/powerpoint/Layouts.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/text/TextStyles.h"

namespace simulator::powerpoint {

namespace {

using files::ByteWriter;
using records::Record;
namespace type = records::type;

constexpr std::uint32_t documentObject = 1;
constexpr std::uint32_t masterObject = 2;
constexpr std::uint32_t masterId = 0x80000000;
constexpr std::uint16_t masterDrawing = 1;
constexpr std::uint32_t masterCluster = 1;

constexpr std::array<unsigned char, 16> powerPointClass{0x10, 0x8D, 0x81, 0x64, 0x9B, 0x4F, 0xCF, 0x11,
                                                        0x86, 0xEA, 0x00, 0xAA, 0x00, 0xB9, 0x29, 0xE8};

Record documentAtom() {
    ByteWriter out;
    for (const std::int32_t length : {5760, 4320, 4320, 5760, 1, 2, 0, 0}) { // slide, notes, zoom, no further masters
        out.write<std::int32_t>(length);
    }
    out.write<std::uint16_t>(1).write<std::uint16_t>(0).fill(3).write<std::uint8_t>(1);
    return Record::atom(type::DocumentAtom, out.take(), 0, 1);
}

/// A style of one level or of five, the sizes given.
Record style(std::uint16_t kind, CharacterFormat character, ParagraphFormat paragraph, const std::vector<float>& sizes,
             text::FontTable& fonts) {
    ByteWriter out;
    out.write<std::uint16_t>(static_cast<std::uint16_t>(sizes.size()));
    for (std::size_t level = 0; level < sizes.size(); ++level) {
        if (kind >= text::kind::CenterBody) {
            out.write<std::uint16_t>(static_cast<std::uint16_t>(level));
        }
        character.size = sizes[level];
        text::TextException forParagraphs = text::codeOf(paragraph);
        const auto margin = static_cast<std::uint32_t>(288 * level + (paragraph.bullet == ppBulletNone ? 0 : 216));
        forParagraphs.set(text::paragraph::LeftMargin, text::paragraph::fields[text::paragraph::LeftMargin].bits,
                          margin);
        forParagraphs.set(text::paragraph::Indent, text::paragraph::fields[text::paragraph::Indent].bits,
                          static_cast<std::uint32_t>(288 * level));
        forParagraphs.write(out, text::paragraph::fields);
        text::codeOf(character, fonts).write(out, text::character::fields);
    }
    return Record::atom(type::TextMasterStyleAtom, out.take(), kind);
}

std::vector<Record> masterStyles(text::FontTable& fonts) {
    const Shape title = *newShape::placeholder(ppPlaceholderTitle, {});
    const Shape body = *newShape::placeholder(ppPlaceholderBody, {});
    const Shape subtitle = *newShape::placeholder(ppPlaceholderSubtitle, {});
    const auto of = [&](std::uint16_t kind, const Shape& shape, const std::vector<float>& sizes) {
        return style(kind, shape.text->runs().front().format, shape.text->paragraphFormats().front(), sizes, fonts);
    };
    const std::vector<float> plain(text::levels, CharacterFormat().size);
    const std::vector<float> falling{32, 28, 24, 20, 20};
    return {of(text::kind::Title, title, {44}),
            of(text::kind::Body, body, falling),
            style(text::kind::Notes, {}, {}, std::vector<float>(text::levels, 12), fonts),
            style(text::kind::Other, {}, {}, plain, fonts),
            of(text::kind::CenterBody, subtitle, falling),
            of(text::kind::CenterTitle, title, {44}),
            of(text::kind::Half, body, {28, 24, 20, 18, 18}),
            of(text::kind::Quarter, body, {24, 20, 18, 16, 16})};
}

Record environment() {
    text::FontTable fonts;
    Record collection = Record::container(type::FontCollection, {});
    Record other = style(text::kind::Other, {}, {}, std::vector<float>(text::levels, CharacterFormat().size), fonts);
    const CharacterFormat usual;
    ByteWriter character;
    text::codeOf(usual, fonts).write(character, text::character::fields);
    ByteWriter paragraph;
    paragraph.write<std::uint16_t>(0);
    text::codeOf(ParagraphFormat()).write(paragraph, text::paragraph::fields);
    fonts.complete(collection);
    constexpr std::uint32_t languages = 7;
    constexpr std::uint16_t french = 0x040C;
    ByteWriter special;
    special.write<std::uint32_t>(languages).write<std::uint16_t>(0).write<std::uint16_t>(french);
    special.write<std::uint16_t>(french);
    return Record::container(type::Environment,
                             {std::move(collection), Record::atom(type::TextCharacterDefaults, character.take()),
                              Record::atom(type::TextParagraphDefaults, paragraph.take()),
                              Record::atom(type::TextSpecialDefaults, special.take()), std::move(other)});
}

Record drawingGroup() {
    ByteWriter list;
    list.write<std::uint32_t>(drawing::clusterOf(masterCluster) + 2).write<std::uint32_t>(2);
    list.write<std::uint32_t>(2).write<std::uint32_t>(1);
    list.write<std::uint32_t>(masterDrawing).write<std::uint32_t>(2);
    drawing::PropertyTable defaults;
    defaults.set(drawing::property::fillColor, drawing::codeOf(Color::of(ppFill)));
    defaults.set(drawing::property::fillBackColor, drawing::codeOf(Color::of(ppBackground)));
    defaults.setFlag(drawing::property::fillFlags, drawing::flag::filled, true);
    defaults.set(drawing::property::lineColor, drawing::codeOf(Color::of(ppForeground)));
    defaults.setFlag(drawing::property::lineFlags, drawing::flag::lined, true);
    defaults.set(drawing::property::shadowColor, drawing::codeOf(Color::of(ppShadow)));
    return Record::container(type::DrawingGroup,
                             {Record::container(type::ArtGroup, {Record::atom(type::ArtGroupAtom, list.take()),
                                                                 defaults.record(type::ArtProperties)})});
}

Record zoomAtom() {
    ByteWriter out;
    for (int i = 0; i < 8; ++i) {
        out.write<std::int32_t>(i % 2 == 0 ? 66 : 100); // the scale, four times
    }
    return Record::atom(type::ZoomViewInfoAtom, out.fill(16).write<std::uint8_t>(1).fill(3).take());
}

Record document() {
    const std::string snapping{'\0', '\1', '\0'};
    return Record::container(
        type::Document,
        {documentAtom(), environment(), drawingGroup(),
         Record::container(type::SlideListWithText, {persistAtom(masterObject, 0, masterId)}, slideList::masters),
         Record::container(
             type::DocInfoList,
             {Record::container(type::SlideViewInfo, {Record::atom(type::SlideViewInfoAtom, snapping), zoomAtom()},
                                slideViewInstance)}),
         Record::atom(type::EndDocument, {})});
}

Record slideAtom(const std::string& layout, std::uint32_t master, bool followsMaster) {
    ByteWriter out;
    out.append(layout).write<std::uint32_t>(master).fill(4).write<std::uint16_t>(followsMaster ? 7 : 0).fill(2);
    return Record::atom(type::SlideAtom, out.take(), 0, 2);
}

Record notesAtom(bool followsMaster) {
    ByteWriter out;
    out.write<std::uint32_t>(0).write<std::uint16_t>(followsMaster ? 7 : 0).fill(2); // the slide comes in front
    return Record::atom(type::NotesAtom, out.take(), 0, 1);
}

Record shapeAtom(std::uint16_t kind, std::uint32_t number, std::uint32_t flags) {
    ByteWriter out;
    out.write<std::uint32_t>(number).write<std::uint32_t>(flags);
    return Record::atom(type::ArtShapeAtom, out.take(), kind, 2);
}

/// A drawing without shapes: the group that is to hold them, and the background.
Record emptyDrawing(std::uint16_t number, std::uint32_t cluster) {
    const std::uint32_t first = drawing::clusterOf(cluster);
    Record all = Record::container(type::ArtShape,
                                   {Record::atom(type::ArtShapeGroupAtom, std::string(16, '\0'), 0, 1),
                                    shapeAtom(0, first, drawing::shapeFlag::group | drawing::shapeFlag::patriarch)});
    drawing::PropertyTable looks;
    looks.set(drawing::property::fillColor, drawing::codeOf(Color::of(ppBackground)));
    looks.setFlag(drawing::property::fillFlags, drawing::flag::filled, true);
    looks.setFlag(drawing::property::lineFlags, drawing::flag::lined, false);
    Record background = Record::container(
        type::ArtShape,
        {shapeAtom(drawing::kind::rectangle, first + 1, drawing::shapeFlag::background | drawing::shapeFlag::typed),
         looks.record(type::ArtProperties)});
    ByteWriter counts;
    counts.write<std::uint32_t>(2).write<std::uint32_t>(first + 1);
    return Record::container(
        type::Drawing, {Record::container(type::ArtDrawing, {Record::atom(type::ArtDrawingAtom, counts.take(), number),
                                                             Record::container(type::ArtShapeGroup, {std::move(all)}),
                                                             std::move(background)})});
}

Record master() {
    text::FontTable fonts;
    std::vector<Record> parts{slideAtom(layoutBytes(ppLayoutText), 0, false)};
    for (Record& each : masterStyles(fonts)) {
        parts.push_back(std::move(each));
    }
    parts.push_back(emptyDrawing(masterDrawing, masterCluster));
    parts.push_back(Record::atom(type::ColorSchemeAtom, colorBytes({}), shapesSchemeInstance));
    return Record::container(type::MainMaster, std::move(parts));
}

std::string currentUser() {
    constexpr std::string_view user = "PowerPoint";
    constexpr std::size_t fixedLength = 20;
    constexpr std::uint16_t fileVersion = 0x03F4;
    ByteWriter out;
    out.write<std::uint16_t>(0).write<std::uint16_t>(type::CurrentUserAtom);
    out.write<std::uint32_t>(static_cast<std::uint32_t>(fixedLength + user.size() + 4));
    out.write<std::uint32_t>(fixedLength).write<std::uint32_t>(plainToken).write<std::uint32_t>(0);
    out.write<std::uint16_t>(static_cast<std::uint16_t>(user.size())).write<std::uint16_t>(fileVersion);
    out.write<std::uint8_t>(3).write<std::uint8_t>(0).fill(2).append(user).write<std::uint32_t>(8);
    return out.take();
}

Record userEdit() {
    constexpr std::uint16_t slideView = 1;
    ByteWriter out;
    out.write<std::uint32_t>(0).write<std::uint32_t>(0x03000000).write<std::uint32_t>(0).write<std::uint32_t>(0);
    out.write<std::uint32_t>(documentObject).write<std::uint32_t>(masterObject);
    return Record::atom(type::UserEditAtom, out.write<std::uint16_t>(slideView).fill(2).take());
}

std::shared_ptr<const PresentationOrigin> makeBlank() {
    auto blank = std::make_shared<PresentationOrigin>();
    for (std::size_t i = 0; i < powerPointClass.size(); ++i) {
        blank->file.classId.at(i) = static_cast<char>(powerPointClass.at(i));
    }
    blank->file.put(currentUserStream, currentUser());
    blank->userEdit = userEdit();
    blank->objects.append(documentObject, document());
    blank->objects.append(masterObject, master());
    blank->document = documentObject;
    const Presentation usual;
    blank->snapToGrid = usual.snapToGrid;
    blank->gridDistance = usual.gridDistance;
    blank->slideWidth = usual.slideWidth;
    blank->slideHeight = usual.slideHeight;
    return blank;
}

std::shared_ptr<const SlideOrigin> makeBlankMaster() {
    auto blank = std::make_shared<SlideOrigin>();
    blank->document = blankDocument();
    blank->object = masterObject;
    blank->drawing = masterDrawing;
    blank->layout = ppLayoutText;
    return blank;
}

} // namespace

const std::shared_ptr<const PresentationOrigin>& blankDocument() {
    static const std::shared_ptr<const PresentationOrigin> blank = makeBlank();
    return blank;
}

const std::shared_ptr<const SlideOrigin>& blankMaster() {
    static const std::shared_ptr<const SlideOrigin> blank = makeBlankMaster();
    return blank;
}

Record blankSheet(SheetKind kind, std::uint32_t master) {
    Record colors = Record::atom(type::ColorSchemeAtom, colorBytes({}), shapesSchemeInstance);
    switch (kind) {
    case SheetKind::Slide:
    case SheetKind::TitleMaster: break;
    case SheetKind::SlideMaster: return simulator::powerpoint::master();
    case SheetKind::HandoutMaster: return Record::container(type::Handout, {emptyDrawing(0, 0), std::move(colors)});
    case SheetKind::NotesPage:
    case SheetKind::NotesMaster:
        return Record::container(type::Notes,
                                 {notesAtom(kind == SheetKind::NotesPage), emptyDrawing(0, 0), std::move(colors)});
    }
    return Record::container(
        type::Slide, {slideAtom(layoutBytes(ppLayoutBlank), master, true), emptyDrawing(0, 0), std::move(colors)});
}

} // namespace simulator::powerpoint
