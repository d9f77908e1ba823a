#include "simulator/files/powerpoint/DocumentReader.h"

#include "simulator/files/Bytes.h"
#include "simulator/files/drawing/DrawingGroup.h"
#include "simulator/files/drawing/ShapeHead.h"
#include "simulator/files/drawing/ShapeReader.h"
#include "simulator/files/powerpoint/ColorSchemeAtom.h"
#include "simulator/files/powerpoint/Layouts.h"
#include "simulator/files/powerpoint/Origins.h"
#include "simulator/files/powerpoint/PersistReader.h"
#include "simulator/files/powerpoint/SlideAtom.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/powerpoint/Tags.h"

#include <set>

namespace simulator::powerpoint {

namespace {

using files::ByteReader;
using files::hex;
using records::Record;
namespace type = records::type;

/// Reads one document.
class DocumentReader {
public:
    explicit DocumentReader(std::shared_ptr<PresentationOrigin> origin)
        : origin_(std::move(origin)), document_(demandObject(origin_->document, type::Document, "the document")) {
        const Record* const environment = document_.find(type::Environment);
        const Record* const collection = environment == nullptr ? nullptr : environment->find(type::FontCollection);
        fonts_ = collection == nullptr ? text::FontTable() : text::FontTable(*collection);
        const Record& group = document_.demand(type::DrawingGroup).demand(type::ArtGroup);
        drawings_.emplace(group.demand(type::ArtGroupAtom));
        if (const Record* const defaults = group.find(type::ArtProperties)) {
            defaults_ = drawing::PropertyTable(*defaults);
        }
        readMasters(environment);
    }

    PresentationPtr read() {
        auto presentation = std::make_shared<Presentation>();
        readSettings(*presentation);
        presentation->origin = origin_;
        const Record* const list = document_.find(type::SlideListWithText, slideList::slides);
        for (SlideEntry& entry : list == nullptr ? std::vector<SlideEntry>() : entriesOf(*list)) {
            presentation->insert(readSlide(std::move(entry)), presentation->slides().size());
        }
        return presentation;
    }

private:
    [[nodiscard]] const Record& demandObject(std::uint32_t id, std::uint16_t wanted, const char* what) const {
        const Record* const found = origin_->object(id);
        if (found == nullptr || !found->is(wanted)) {
            throw DamagedPresentation("PowerPoint Document: object " + std::to_string(id) + ", " + what +
                                      (found == nullptr ? ", does not exist" : ", is a record " + hex(found->type)));
        }
        return *found;
    }

    void readMasters(const Record* environment) {
        const Record* const list = document_.find(type::SlideListWithText, slideList::masters);
        for (const SlideEntry& entry : list == nullptr ? std::vector<SlideEntry>() : entriesOf(*list)) {
            const SlideReference reference(entry.persist);
            const Record* const master = origin_->object(reference.object);
            if (master == nullptr) {
                throw DamagedPresentation("PowerPoint Document: master " + hex(reference.slide) + " does not exist");
            }
            masters_.emplace(reference.slide, master);
            if (master->is(type::MainMaster)) {
                styles_.emplace(reference.slide, text::TextStyles(master, environment, fonts_));
            }
            if (const Record* const drawing = master->find(type::Drawing)) {
                collect(*drawing);
            }
        }
        if (styles_.empty()) {
            styles_.emplace(0, text::TextStyles(nullptr, environment, fonts_));
        }
    }

    void collect(const Record& container) {
        for (const Record& child : container.children) {
            if (child.is(type::ArtShape)) {
                masterShapes_.emplace(drawing::ShapeHead(child).number, child);
            } else if (child.is(type::ArtDrawing) || child.is(type::ArtShapeGroup)) {
                collect(child);
            }
        }
    }

    void readSettings(Presentation& presentation) {
        ByteReader in(document_.demand(type::DocumentAtom).data, "the record of the document");
        const auto units = static_cast<float>(8);
        presentation.slideWidth = static_cast<float>(in.read<std::int32_t>()) / units;
        presentation.slideHeight = static_cast<float>(in.read<std::int32_t>()) / units;
        if (const Record* const list = document_.find(type::DocInfoList)) {
            presentation.tags = readTags(*list);
            const Record* const view = list->find(type::SlideViewInfo, slideViewInstance);
            const Record* const atom = view == nullptr ? nullptr : view->find(type::SlideViewInfoAtom);
            presentation.snapToGrid = atom == nullptr || atom->data.size() < 2 || atom->data[1] != 0;
        }
        for (const auto& [id, master] : masters_) {
            const Record* const scheme = master->find(type::ColorSchemeAtom, shapesSchemeInstance);
            if (master->is(type::MainMaster) && scheme != nullptr) {
                presentation.colors = readColors(*scheme);
                break;
            }
        }
        origin_->slideWidth = presentation.slideWidth;
        origin_->slideHeight = presentation.slideHeight;
        origin_->snapToGrid = presentation.snapToGrid;
        origin_->tags = presentation.tags;
        origin_->colors = presentation.colors;
    }

    /// The text styles of a slide's master; a title master has those of the master that it stands beside.
    [[nodiscard]] const text::TextStyles& stylesFor(std::uint32_t master) const {
        auto found = styles_.find(master);
        const auto title = masters_.find(master);
        if (found == styles_.end() && title != masters_.end()) {
            found = styles_.find(SlideAtom(*title->second).master);
        }
        return found == styles_.end() ? styles_.begin()->second : found->second;
    }

    SlidePtr readSlide(SlideEntry entry) {
        const SlideReference reference(entry.persist);
        const Record& record = demandObject(reference.object, type::Slide, "a slide");
        if (!taken_.insert(reference.object).second || !taken_.insert(reference.slide | idMark).second) {
            throw DamagedPresentation("PowerPoint Document: slide " + std::to_string(reference.slide) +
                                      " stands twice in the list of slides");
        }
        auto slide = std::make_shared<Slide>();
        auto origin = std::make_shared<SlideOrigin>();
        readShapes(record, entry, *slide, *origin);
        slide->id = static_cast<std::int32_t>(reference.slide & 0x7FFFFFFFU);
        const Record* const name = record.find(type::CString, slideNameInstance);
        slide->name = name == nullptr ? std::u16string() : files::utf16Text(name->data);
        slide->layout = layoutOf(SlideAtom(record).geometry);
        slide->tags = readTags(record);
        origin->document = origin_;
        origin->object = reference.object;
        origin->entry = std::move(entry);
        origin->layout = slide->layout;
        origin->name = slide->name;
        origin->tags = slide->tags;
        slide->origin = origin;
        return slide;
    }

    void readShapes(const Record& record, const SlideEntry& entry, Slide& slide, SlideOrigin& origin) {
        const Record& drawing = record.demand(type::Drawing);
        const Record& art = drawing.demand(type::ArtDrawing);
        origin.drawing = art.demand(type::ArtDrawingAtom).instance;
        const drawing::DrawingIds ids = drawings_->ids(origin.drawing);
        const text::TextStyles& styles = stylesFor(SlideAtom(record).master);
        const drawing::SlideContext context{{fonts_, styles}, masterShapes_, defaults_, ids, entry.texts, origin_};
        const std::vector<ShapePtr> shapes = drawing::ShapeReader(context).read(drawing);
        for (const ShapePtr& shape : shapes) {
            slide.insert(shape, slide.shapes().size());
        }
        origin.shapes = countShapes(shapes);
        slide.keepIds(1);
        if (const Record* const background = art.find(type::ArtShape)) {
            slide.keepIds(ids.idOf(drawing::ShapeHead(*background).number).value_or(1));
        }
    }

    static constexpr std::uint64_t idMark = std::uint64_t{1} << 32U;

    std::shared_ptr<PresentationOrigin> origin_;
    const Record& document_;
    text::FontTable fonts_;
    std::optional<drawing::DrawingGroup> drawings_;
    drawing::PropertyTable defaults_;
    std::map<std::uint32_t, const Record*> masters_;
    std::map<std::uint32_t, text::TextStyles> styles_;
    drawing::MasterShapes masterShapes_;
    std::set<std::uint64_t> taken_; ///< objects that are slides, and the ids of slides above the mark
};

} // namespace

PresentationPtr readPresentation(std::string_view bytes) {
    return DocumentReader(readObjects(bytes)).read();
}

} // namespace simulator::powerpoint
