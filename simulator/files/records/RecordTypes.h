#pragma once

#include <cstddef>
#include <cstdint>

/// The records of PowerPoint's documents and of Office's drawings, by their published numbers.
namespace simulator::records {

inline constexpr std::size_t headerSize = 8;

namespace type {

enum : std::uint16_t {
    Document = 0x03E8,
    DocumentAtom = 0x03E9,
    EndDocument = 0x03EA,
    Slide = 0x03EE,
    SlideAtom = 0x03EF,
    Notes = 0x03F0,
    NotesAtom = 0x03F1,
    Environment = 0x03F2,
    SlidePersistAtom = 0x03F3,
    MainMaster = 0x03F8,
    SlideViewInfo = 0x03FA,
    ZoomViewInfoAtom = 0x03FD,
    SlideViewInfoAtom = 0x03FE,
    SlideShowSlideInfoAtom = 0x03F9,
    SlideShowSettings = 0x0401,
    DrawingGroup = 0x040B,
    Drawing = 0x040C,
    DocInfoList = 0x07D0,
    GridSpacing10Atom = 0x040D,
    FontCollection = 0x07D5,
    FontCollection10 = 0x07D6,
    ColorSchemeAtom = 0x07F0,
    PlaceholderAtom = 0x0BC3,
    OutlineTextRefAtom = 0x0F9E,
    TextHeaderAtom = 0x0F9F,
    TextCharsAtom = 0x0FA0,
    StyleTextPropAtom = 0x0FA1,
    MasterTextPropAtom = 0x0FA2,
    TextMasterStyleAtom = 0x0FA3,
    TextCharacterDefaults = 0x0FA4,
    TextParagraphDefaults = 0x0FA5,
    TextRulerAtom = 0x0FA6,
    TextBookmarkAtom = 0x0FA7,
    TextBytesAtom = 0x0FA8,
    TextSpecialDefaults = 0x0FA9,
    TextSpecialInfoAtom = 0x0FAA,
    StyleTextProp9Atom = 0x0FAC,
    TextMasterStyle10Atom = 0x0FB2,
    TextDefaults10Atom = 0x0FB4,
    FontEntityAtom = 0x0FB7,
    CString = 0x0FBA,
    Handout = 0x0FC9,
    SlideNumberField = 0x0FD8,
    TextInteractiveInfoAtom = 0x0FDF,
    SlideListWithText = 0x0FF0,
    InteractiveInfo = 0x0FF2,
    UserEditAtom = 0x0FF5,
    CurrentUserAtom = 0x0FF6,
    DateTimeField = 0x0FF7,
    GenericDateField = 0x0FF8,
    HeaderField = 0x0FF9,
    FooterField = 0x0FFA,
    HeadersFooters = 0x0FD9,
    HeadersFootersAtom = 0x0FDA,
    RtfDateTimeField = 0x1015,
    ProgTags = 0x1388,
    ProgStringTag = 0x1389,
    ProgBinaryTag = 0x138A,
    BinaryTagData = 0x138B,
    PersistDirectoryAtom = 0x1772,
    CryptSession = 0x2F14,

    ArtGroup = 0xF000,
    ArtDrawing = 0xF002,
    ArtShapeGroup = 0xF003,
    ArtShape = 0xF004,
    ArtSolver = 0xF005,
    ArtGroupAtom = 0xF006,
    ArtDrawingAtom = 0xF008,
    ArtShapeGroupAtom = 0xF009,
    ArtShapeAtom = 0xF00A,
    ArtProperties = 0xF00B,
    ArtClientTextbox = 0xF00D,
    ArtChildAnchor = 0xF00F,
    ArtClientAnchor = 0xF010,
    ArtClientData = 0xF011,
    ArtConnectorRule = 0xF012,
    ArtSplitMenuColors = 0xF11E,
    ArtSecondaryProperties = 0xF121,
    ArtTertiaryProperties = 0xF122,
};

} // namespace type

} // namespace simulator::records
