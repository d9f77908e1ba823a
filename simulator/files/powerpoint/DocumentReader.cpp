#include "simulator/files/powerpoint/DocumentReader.h"

#include "simulator/document/Masters.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/ConnectionRules.h"
#include "simulator/files/drawing/DrawingGroup.h"
#include "simulator/files/drawing/ShapeHead.h"
#include "simulator/files/drawing/ShapeReader.h"
#include "simulator/files/powerpoint/ColorSchemeAtom.h"
#include "simulator/files/powerpoint/DocumentSettings.h"
#include "simulator/files/powerpoint/HeadersFootersRecord.h"
#include "simulator/files/powerpoint/PersistReader.h"
#include "simulator/files/powerpoint/SlideAtom.h"
#include "simulator/files/powerpoint/SlideShowRecords.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/Damage.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/records/Tags.h"

#include <set>

namespace simulator::powerpoint {

namespace {

using files::hex;
using records::DamagedRecord;
using records::Record;
namespace type = records::type;

/// Reads one document.
class DocumentReader {
public:
    explicit DocumentReader(std::shared_ptr<PresentationOrigin> origin)
        : origin_(std::move(origin)),
          document_(demandObject(origin_->document, type::Document, "the document", origin_->userEdit)) {
        const Record* const environment = document_.find(type::Environment);
        const Record* const collection = environment == nullptr ? nullptr : environment->find(type::FontCollection);
        fonts_ = collection == nullptr ? text::FontTable() : text::FontTable(*collection);
        const Record& group = document_.demand(type::DrawingGroup).demand(type::ArtGroup);
        const Record& drawings = group.demand(type::ArtGroupAtom);
        records::within(drawings, [&] { drawings_.emplace(drawings); });
        if (const Record* const defaults = group.find(type::ArtProperties)) {
            defaults_ = records::within(*defaults, [&] { return drawing::PropertyTable(*defaults); });
        }
        readStyles(environment);
        for (const SlideEntry& entry : entriesIn(document_, slideList::notes)) {
            notes_.emplace(entry.id(), entry.object());
        }
    }

    PresentationPtr read() {
        const PresentationPtr& presentation = presentation_;
        records::within(document_, [&] { readSettings(document_, *presentation); });
        presentation->colors = colors();
        origin_->slideWidth = presentation->slideWidth;
        origin_->slideHeight = presentation->slideHeight;
        origin_->snapToGrid = presentation->snapToGrid;
        origin_->gridDistance = presentation->gridDistance;
        origin_->tags = presentation->tags;
        origin_->colors = presentation->colors;
        origin_->onSlides = presentation->onSlides;
        origin_->onPages = presentation->onPages;
        origin_->areOnTitleSlides = presentation->areOnTitleSlides;
        origin_->slideShow = presentation->slideShow;
        presentation->origin = origin_;
        readMasters();
        for (SlideEntry& entry : entriesIn(document_, slideList::slides)) {
            const Record* const found = origin_->objects.find(entry.object());
            if (found == nullptr || !found->is(type::Slide)) {
                continue; // a slide that is not in the file is none
            }
            const Record& record = *found;
            const SlidePtr slide = records::within(record, [&] { return readSlide(record, std::move(entry)); });
            presentation->insert(slide, presentation->slides().size());
        }
        return presentation;
    }

private:
    /// The record of an object that `from` refers to.
    [[nodiscard]] const Record& demandObject(std::uint32_t id, std::uint16_t wanted, const char* what,
                                             const Record& from) const {
        const Record* const found = origin_->objects.find(id);
        if (found == nullptr || !found->is(wanted)) {
            throw DamagedRecord(from.offset,
                                "object " + std::to_string(id) + ", " + what +
                                    (found == nullptr ? ", does not exist" : ", is a record " + hex(found->type)));
        }
        return *found;
    }

    void readStyles(const Record* environment) {
        for (const SlideEntry& entry : entriesIn(document_, slideList::masters)) {
            const Record* const master = origin_->objects.find(entry.object());
            if (master == nullptr) {
                continue;
            }
            masters_.emplace(entry.id(), master);
            objectsTaken_.insert(entry.object());
            records::within(*master, [&] { readStylesOf(entry.id(), *master, environment); });
        }
        for (const std::size_t place : {notesMasterPlace, handoutMasterPlace}) {
            const std::uint32_t object = files::numberAt(document_.demand(type::DocumentAtom).data, place);
            const Record* const master = origin_->objects.find(object);
            if (const Record* const drawing = master == nullptr ? nullptr : master->find(type::Drawing)) {
                collect(*drawing);
            }
        }
        if (styles_.empty()) {
            styles_.emplace(0, text::TextStyles(nullptr, environment, fonts_));
        }
    }

    void readStylesOf(std::uint32_t id, const Record& master, const Record* environment) {
        if (master.is(type::MainMaster)) {
            styles_.emplace(id, text::TextStyles(&master, environment, fonts_));
        }
        if (const Record* const drawing = master.find(type::Drawing)) {
            collect(*drawing);
        }
    }

    void collect(const Record& container) {
        for (const Record& child : container.children) {
            if (child.is(type::ArtShape)) {
                asFarAsSound(
                    [&] { masterShapes_.emplace(drawing::ShapeHead(child).number, drawing::MasterShape(child)); });
            } else if (child.is(type::ArtDrawing) || child.is(type::ArtShapeGroup)) {
                collect(child);
            }
        }
    }

    /// The colours of the first master that has any.
    [[nodiscard]] ColorScheme colors() const {
        for (const auto& [id, master] : masters_) {
            const Record* const scheme = master->find(type::ColorSchemeAtom, shapesSchemeInstance);
            if (master->is(type::MainMaster) && scheme != nullptr) {
                return records::within(*scheme, [scheme] { return readColors(*scheme); });
            }
        }
        return {};
    }

    /// The text styles of a slide's master; a title master has those of the master that it stands beside.
    [[nodiscard]] const text::TextStyles& stylesFor(std::uint32_t master) const {
        auto found = styles_.find(master);
        const auto title = masters_.find(master);
        if (found == styles_.end() && title != masters_.end()) {
            asFarAsSound([&] { found = styles_.find(SlideAtom(*title->second).master); });
        }
        return found == styles_.end() ? styles_.begin()->second : found->second;
    }

    /// The masters. One that is damaged is taken for none: slides can be read without.
    void readMasters() {
        for (const SlideEntry& entry : entriesIn(document_, slideList::masters)) {
            const auto found = masters_.find(entry.id());
            if (found == masters_.end() || !(found->second->is(type::MainMaster) || found->second->is(type::Slide))) {
                continue;
            }
            const Record& record = *found->second;
            const SheetKind kind = record.is(type::Slide) ? SheetKind::TitleMaster : SheetKind::SlideMaster;
            if (const SlidePtr master = readSheet(kind, record, entry.object(), entry.id())) {
                sheets_.emplace(entry.id(), master);
                presentation_->masters.push_back(master);
                origin_->masters.insert(entry.object());
            }
        }
        for (const auto& [id, sheet] : sheets_) {
            if (sheet->kind == SheetKind::TitleMaster) {
                asFarAsSound([&, &title = sheet, number = id] {
                    const auto beside = sheets_.find(SlideAtom(*masters_.at(number)).master);
                    const bool isMaster = beside != sheets_.end() && beside->second->kind == SheetKind::SlideMaster;
                    title->master = isMaster ? beside->second : nullptr; // a damaged one names itself
                });
            }
        }
        const std::string& atom = document_.demand(type::DocumentAtom).data;
        presentation_->notesMaster =
            readPage(SheetKind::NotesMaster, type::Notes, files::numberAt(atom, notesMasterPlace));
        presentation_->handoutMaster =
            readPage(SheetKind::HandoutMaster, type::Handout, files::numberAt(atom, handoutMasterPlace));
    }

    /// The sheet that an object is; null where there is none of this type.
    SlidePtr readPage(SheetKind kind, std::uint16_t wanted, std::uint32_t object) {
        const Record* const record = object == 0 ? nullptr : origin_->objects.find(object);
        const bool isIt = record != nullptr && record->is(wanted);
        return isIt ? readSheet(kind, *record, object, 0) : nullptr;
    }

    /// A sheet other than a slide; null where it is damaged, or stands for another one already.
    SlidePtr readSheet(SheetKind kind, const Record& record, std::uint32_t object, std::uint32_t master) {
        auto sheet = std::make_shared<Slide>();
        sheet->kind = kind;
        sheet->presentation = presentation_;
        const bool isSound = asFarAsSound([&] {
            SlideEntry entry;
            entry.persist = persistAtom(object, 0, 0);
            readContent(record, std::move(entry), *sheet, master);
        });
        return isSound && sheetsTaken_.insert(object).second ? sheet : nullptr;
    }

    SlidePtr readSlide(const Record& record, SlideEntry entry) {
        const std::uint32_t id = entry.id() & slideIdMask;
        if (!objectsTaken_.insert(entry.object()).second || !idsTaken_.insert(id).second) {
            throw DamagedRecord(entry.persist.offset,
                                "slide " + std::to_string(id) + " stands twice in the lists of slides");
        }
        auto slide = std::make_shared<Slide>();
        const SlideAtom atom(record);
        slide->id = static_cast<std::int32_t>(id);
        if (const auto found = sheets_.find(atom.master); found != sheets_.end()) {
            const bool isTitle = found->second->kind == SheetKind::TitleMaster;
            slide->master = isTitle ? found->second->master : found->second;
        }
        readContent(record, std::move(entry), *slide, atom.master);
        if (const auto found = notes_.find(atom.notes); atom.notes != 0 && found != notes_.end()) {
            if (const SlidePtr page = readPage(SheetKind::NotesPage, type::Notes, found->second)) {
                slide->adoptNotesPage(page);
            }
        }
        return slide;
    }

    void readContent(const Record& record, SlideEntry entry, Slide& slide, std::uint32_t master) {
        auto origin = std::make_shared<SlideOrigin>();
        readShapes(record, entry, master, slide, *origin);
        const Record* const name = record.find(type::CString, slideNameInstance);
        slide.name = name == nullptr ? std::u16string() : files::utf16Text(name->data);
        if (record.find(type::SlideAtom) != nullptr) {
            slide.layout = SlideAtom(record).layout;
        }
        slide.tags = records::readTags(record);
        if (slide.kind == SheetKind::Slide || slide.kind == SheetKind::TitleMaster) {
            slide.headersFooters = readHeadersFooters(record, headersFooters::ofSheet);
            slide.transition = readTransition(record);
        }
        origin->document = origin_;
        origin->object = entry.object();
        origin->entry = std::move(entry);
        origin->layout = slide.layout;
        origin->name = slide.name;
        origin->tags = slide.tags;
        origin->followsMasterBackground = slide.followsMasterBackground;
        origin->displaysMasterShapes = slide.displaysMasterShapes;
        origin->headersFooters = slide.headersFooters;
        origin->transition = slide.transition;
        origin->master = findMaster(*presentation_, slide);
        slide.origin = origin;
    }

    void readShapes(const Record& record, const SlideEntry& entry, std::uint32_t master, Slide& slide,
                    SlideOrigin& origin) {
        const Record& drawing = record.demand(type::Drawing);
        const Record& art = drawing.demand(type::ArtDrawing);
        origin.drawing = art.demand(type::ArtDrawingAtom).instance;
        const drawing::DrawingIds ids = drawings_->ids(origin.drawing);
        const drawing::SlideContext context{
            {fonts_, stylesFor(master)}, masterShapes_, defaults_, ids, entry.texts, origin_, slide.kind};
        drawing::ShapeReader reader(context);
        for (const ShapePtr& shape : reader.read(drawing)) {
            slide.insert(shape, slide.shapes().size());
        }
        drawing::readConnections(art, ids, slide);
        slide.keepIds(drawing::backgroundId(art, ids).value_or(1));
        const Following following(record);
        slide.displaysMasterShapes = following.shapes;
        slide.followsMasterBackground = following.background;
        if (!following.background || isMaster(slide.kind)) {
            if (const ShapePtr background = reader.readBackground(drawing)) {
                slide.adoptBackground(background);
            }
        }
    }

    static constexpr std::uint32_t slideIdMask = 0x7FFFFFFF;

    PresentationPtr presentation_ = std::make_shared<Presentation>();
    std::shared_ptr<PresentationOrigin> origin_;
    const Record& document_;
    text::FontTable fonts_;
    std::optional<drawing::DrawingGroup> drawings_;
    drawing::PropertyTable defaults_;
    std::map<std::uint32_t, const Record*> masters_;
    std::map<std::uint32_t, text::TextStyles> styles_;
    drawing::MasterShapes masterShapes_;
    std::set<std::uint32_t> objectsTaken_; ///< by masters and slides
    std::set<std::uint32_t> idsTaken_;
    std::map<std::uint32_t, SlidePtr> sheets_;     ///< slide masters and title masters by their ids
    std::map<std::uint32_t, std::uint32_t> notes_; ///< objects of notes pages by their ids
    std::set<std::uint32_t> sheetsTaken_;          ///< objects of sheets other than slides
};

} // namespace

PresentationPtr readPresentation(std::string_view bytes) {
    return DocumentReader(readObjects(bytes)).read();
}

} // namespace simulator::powerpoint
