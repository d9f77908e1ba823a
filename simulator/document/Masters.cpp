#include "simulator/document/Masters.h"

#include "simulator/document/NewShape.h"

#include <algorithm>
#include <array>
#include <span>

namespace simulator {

namespace {

/// A placeholder of a sheet: its place in points on one of 720 x 540, or 540 x 720 for pages.
struct StandardPlaceholder {
    PpPlaceholderType type;
    Frame frame;
    float textSize;
    PpParagraphAlignment alignment;
    MsoVerticalAnchor anchor;
    std::u16string_view text;
};

constexpr std::u16string_view titlePrompt = u"Cliquez pour modifier le style du titre";
constexpr std::u16string_view bodyPrompt = u"Cliquez pour modifier les styles du texte du masque\rDeuxième niveau\r"
                                           u"Troisième niveau\rQuatrième niveau\rCinquième niveau";
constexpr std::u16string_view field = u"*"; ///< stands for a date, a number and so on
constexpr std::array<float, 5> levelSizes{32, 28, 24, 20, 20};

constexpr StandardPlaceholder footing(PpPlaceholderType type, const Frame& frame, PpParagraphAlignment alignment) {
    return {type, frame, 14, alignment, msoAnchorTop, field};
}
constexpr StandardPlaceholder corner(PpPlaceholderType type, float left, float top) {
    return {type,
            {left, top, 234, 36},
            12,
            left == 0 ? ppAlignLeft : ppAlignRight,
            top == 0 ? msoAnchorTop : msoAnchorBottom,
            field};
}

constexpr StandardPlaceholder slideDate = footing(ppPlaceholderDate, {36, 491.625F, 168, 37.5F}, ppAlignLeft);
constexpr StandardPlaceholder slideFooter = footing(ppPlaceholderFooter, {246, 491.625F, 228, 37.5F}, ppAlignCenter);
constexpr StandardPlaceholder slideNumber =
    footing(ppPlaceholderSlideNumber, {516, 491.625F, 168, 37.5F}, ppAlignRight);
constexpr StandardPlaceholder pageHeader = corner(ppPlaceholderHeader, 0, 0);
constexpr StandardPlaceholder pageDate = corner(ppPlaceholderDate, 306, 0);
constexpr StandardPlaceholder pageFooter = corner(ppPlaceholderFooter, 0, 684);
constexpr StandardPlaceholder pageNumber = corner(ppPlaceholderSlideNumber, 306, 684);
constexpr StandardPlaceholder slideImage{
    ppPlaceholderSlideImage, {90, 54, 360, 270}, 12, ppAlignLeft, msoAnchorTop, u""};
constexpr Frame notesFrame{72, 342, 396, 324};

/// What every sheet of a kind has.
namespace standard {

constexpr std::array slideMaster{
    StandardPlaceholder{ppPlaceholderTitle, {36, 21.625F, 648, 90}, 44, ppAlignCenter, msoAnchorMiddle, titlePrompt},
    StandardPlaceholder{ppPlaceholderBody, {36, 126, 648, 356.375F}, 32, ppAlignLeft, msoAnchorTop, bodyPrompt},
    slideDate, slideFooter, slideNumber};
constexpr std::array titleMaster{
    StandardPlaceholder{
        ppPlaceholderCenterTitle, {54, 167.75F, 612, 115.75F}, 44, ppAlignCenter, msoAnchorMiddle, titlePrompt},
    StandardPlaceholder{ppPlaceholderSubtitle,
                        {108, 306, 504, 138},
                        32,
                        ppAlignCenter,
                        msoAnchorTop,
                        u"Cliquez pour modifier le style des sous-titres du masque"},
    slideDate, slideFooter, slideNumber};
constexpr std::array notesPage{slideImage,
                               StandardPlaceholder{ppPlaceholderBody, notesFrame, 12, ppAlignLeft, msoAnchorTop, u""}};
constexpr std::array notesMaster{
    pageHeader, pageDate,
    slideImage, StandardPlaceholder{ppPlaceholderBody, notesFrame, 12, ppAlignLeft, msoAnchorTop, bodyPrompt},
    pageFooter, pageNumber};
constexpr std::array handoutMaster{pageHeader, pageDate, pageFooter, pageNumber};

} // namespace standard

std::span<const StandardPlaceholder> placeholdersOf(SheetKind kind) noexcept {
    switch (kind) {
    case SheetKind::SlideMaster: return standard::slideMaster;
    case SheetKind::TitleMaster: return standard::titleMaster;
    case SheetKind::NotesPage: return standard::notesPage;
    case SheetKind::NotesMaster: return standard::notesMaster;
    case SheetKind::HandoutMaster: return standard::handoutMaster;
    case SheetKind::Slide: break;
    }
    return {};
}

/// The text of a placeholder, one level a paragraph.
TextStory storyOf(const StandardPlaceholder& wanted, SheetKind kind) {
    TextStory story;
    story.layout.anchor = wanted.anchor;
    story.replace({}, wanted.text);
    story.format({0, wanted.text.size()}, [&wanted](CharacterFormat& format) {
        format.size = wanted.textSize;
        format.color = Color::of(isTitle(wanted.type) ? ppTitle : ppForeground);
    });
    const bool isList = kind == SheetKind::SlideMaster && wanted.type == ppPlaceholderBody;
    std::int32_t level = 0;
    for (const Span& paragraph : std::vector<Span>(story.paragraphs())) {
        ++level;
        story.formatParagraphs({paragraph.start, 0}, [&](ParagraphFormat& format) { format.indentLevel = level; });
        if (isList) {
            const float size = levelSizes.at(static_cast<std::size_t>(level) - 1);
            story.format(paragraph, [size](CharacterFormat& format) { format.size = size; });
        }
    }
    story.formatParagraphs({0, wanted.text.size()}, [&](ParagraphFormat& format) {
        format.alignment = wanted.alignment;
        format.bullet = isList ? ppBulletUnnumbered : ppBulletNone;
    });
    return story;
}

ShapePtr makePlaceholder(const StandardPlaceholder& wanted, SheetKind kind, const Presentation& presentation) {
    const float across = isPage(kind) ? presentation.notesWidth / 540 : presentation.slideWidth / 720;
    const float down = isPage(kind) ? presentation.notesHeight / 720 : presentation.slideHeight / 540;
    const Frame& frame = wanted.frame;
    ShapePtr shape = newShape::placeholder(
        wanted.type, {frame.left * across, frame.top * down, frame.width * across, frame.height * down});
    if (wanted.type == ppPlaceholderSlideImage) {
        shape->text.reset();
        shape->line.visible = true;
        shape->lockAspectRatio = true;
    } else {
        shape->text = storyOf(wanted, kind);
    }
    return shape;
}

SlidePtr firstSlideMaster(const Presentation& presentation) noexcept {
    const auto found = std::find_if(presentation.masters.begin(), presentation.masters.end(),
                                    [](const SlidePtr& each) { return each->kind == SheetKind::SlideMaster; });
    return found == presentation.masters.end() ? nullptr : *found;
}

SlidePtr& settled(SlidePtr& place, SheetKind kind, Presentation& presentation) {
    if (!place) {
        place = makeSheet(kind, presentation);
        place->presentation = presentation.weak_from_this();
    }
    return place;
}

} // namespace

SlidePtr makeSheet(SheetKind kind, const Presentation& presentation) {
    auto sheet = std::make_shared<Slide>();
    sheet->kind = kind;
    sheet->layout = kind == SheetKind::TitleMaster ? ppLayoutTitle : ppLayoutText;
    sheet->name = kind == SheetKind::SlideMaster ? u"Modèle par défaut" : u"";
    for (const StandardPlaceholder& each : placeholdersOf(kind)) {
        const ShapePtr shape = makePlaceholder(each, kind, presentation);
        sheet->add(shape);
    }
    return sheet;
}

SlidePtr slideMasterOf(Presentation& presentation) {
    SlidePtr master = firstSlideMaster(presentation);
    if (!master) {
        presentation.masters.insert(presentation.masters.begin(),
                                    settled(master, SheetKind::SlideMaster, presentation));
    }
    return master;
}

SlidePtr notesMasterOf(Presentation& presentation) {
    return settled(presentation.notesMaster, SheetKind::NotesMaster, presentation);
}

SlidePtr handoutMasterOf(Presentation& presentation) {
    return settled(presentation.handoutMaster, SheetKind::HandoutMaster, presentation);
}

SlidePtr titleMasterOf(const Presentation& presentation, const Slide& slideMaster) noexcept {
    for (const SlidePtr& each : presentation.masters) {
        if (each->kind == SheetKind::TitleMaster && each->master.lock().get() == &slideMaster) {
            return each;
        }
    }
    return nullptr;
}

SlidePtr addTitleMaster(Presentation& presentation) {
    const SlidePtr beside = slideMasterOf(presentation);
    SlidePtr title;
    settled(title, SheetKind::TitleMaster, presentation)->master = beside;
    presentation.masters.push_back(title);
    return title;
}

SlidePtr findMaster(const Presentation& presentation, const Slide& sheet) noexcept {
    const SlidePtr named = sheet.master.lock();
    const bool isHere = named && named->presentation.lock().get() == &presentation;
    SlidePtr master = isHere ? named : firstSlideMaster(presentation);
    SlidePtr title = master && sheet.kind == SheetKind::Slide && sheet.layout == ppLayoutTitle
                         ? titleMasterOf(presentation, *master)
                         : nullptr;
    return title ? title : master;
}

SlidePtr masterOf(Presentation& presentation, const Slide& sheet) {
    switch (sheet.kind) {
    case SheetKind::NotesPage: return notesMasterOf(presentation);
    case SheetKind::Slide:
    case SheetKind::TitleMaster: break;
    default: return nullptr;
    }
    SlidePtr found = findMaster(presentation, sheet);
    return found ? found : slideMasterOf(presentation);
}

SlidePtr notesPageOf(Slide& slide) {
    if (!slide.notesPage) {
        slide.adoptNotesPage(makeSheet(SheetKind::NotesPage, *slide.presentation.lock()));
    }
    return slide.notesPage;
}

ShapePtr backgroundOf(Presentation& presentation, Slide& sheet) {
    const SlidePtr master = masterOf(presentation, sheet);
    if (master && sheet.followsMasterBackground) {
        return backgroundOf(presentation, *master);
    }
    if (!sheet.background) {
        const ShapePtr shape = newShape::autoShape(msoShapeRectangle, {});
        shape->line.visible = false;
        shape->fill.fore = Color::of(ppBackground);
        if (master) {
            shape->fill = backgroundOf(presentation, *master)->fill;
        }
        shape->text.reset();
        shape->name = u"Background";
        sheet.adoptBackground(shape);
    }
    return sheet.background;
}

ShapePtr restoreStandardPlaceholder(Slide& sheet, PpPlaceholderType type) {
    const auto isThere = [&sheet, type] {
        return std::any_of(sheet.shapes().begin(), sheet.shapes().end(),
                           [type](const ShapePtr& shape) { return shape->placeholder == type; });
    };
    for (const StandardPlaceholder& each : placeholdersOf(sheet.kind)) {
        if (each.type == type && !isThere()) {
            ShapePtr shape = makePlaceholder(each, sheet.kind, *sheet.presentation.lock());
            sheet.add(shape);
            return shape;
        }
    }
    return nullptr;
}

} // namespace simulator
