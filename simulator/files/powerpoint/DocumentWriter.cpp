#include "simulator/files/powerpoint/DocumentWriter.h"

#include "simulator/files/Bytes.h"
#include "simulator/files/compound/CompoundWriter.h"
#include "simulator/files/powerpoint/BlankDocument.h"
#include "simulator/files/powerpoint/ColorSchemeAtom.h"
#include "simulator/files/powerpoint/SlideAtom.h"
#include "simulator/files/powerpoint/SlideWriter.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/powerpoint/Tags.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace simulator::powerpoint {

namespace {

using files::ByteWriter;
using records::Record;
namespace type = records::type;

std::shared_ptr<const PresentationOrigin> originOf(const Presentation& presentation) {
    auto origin = std::dynamic_pointer_cast<const PresentationOrigin>(presentation.origin);
    return origin ? origin : blankDocument();
}

/// Writes one document.
class DocumentWriter {
public:
    explicit DocumentWriter(const Presentation& presentation)
        : presentation_(presentation), origin_(originOf(presentation)), objects_(origin_->objects),
          drawings_(*document().find(type::DrawingGroup)->find(type::ArtGroup)->find(type::ArtGroupAtom)) {
        if (Record* const collection = fontCollection()) {
            fonts_ = text::FontTable(*collection);
        }
        for (const PersistObject& object : objects_) {
            highestObject_ = std::max(highestObject_, object.id);
        }
    }

    std::string write() {
        writeSlides();
        dropSlidesThatAreGone();
        writeSlideList();
        writeSettings();
        writeColors();
        writeLists();
        return bytes();
    }

private:
    [[nodiscard]] Record& object(std::uint32_t id) {
        return std::find_if(objects_.begin(), objects_.end(), [id](const PersistObject& each) { return each.id == id; })
            ->record;
    }
    [[nodiscard]] Record& document() { return object(origin_->document); }
    [[nodiscard]] Record* fontCollection() {
        Record* const environment = document().find(type::Environment);
        return environment == nullptr ? nullptr : environment->find(type::FontCollection);
    }

    [[nodiscard]] std::uint32_t masterOfNewSlides() {
        const Record* const list = document().find(type::SlideListWithText, slideList::masters);
        const std::vector<SlideEntry> masters = list == nullptr ? std::vector<SlideEntry>() : entriesOf(*list);
        return masters.empty() ? 0 : SlideReference(masters.front().persist).slide;
    }

    void writeSlides() {
        const SlideTarget target{drawings_, fonts_, *origin_, masterOfNewSlides(), presentation_.colors};
        for (const SlidePtr& slide : presentation_.slides()) {
            const auto* origin = dynamic_cast<const SlideOrigin*>(slide->origin.get());
            origin = origin != nullptr && origin->document == origin_ ? origin : nullptr;
            const bool isCopy = origin != nullptr && !written_.insert(origin->object).second;
            WrittenSlide written = writeSlide(*slide, origin, isCopy, target);
            const bool isNew = origin == nullptr || isCopy;
            const std::uint32_t id = isNew ? ++highestObject_ : origin->object;
            if (isNew) {
                objects_.push_back({id, std::move(written.record)});
                written_.insert(id);
            } else {
                object(id) = std::move(written.record);
            }
            entries_.push_back(entryOf(*slide, origin, id, isNew, std::move(written.outline)));
        }
    }

    static SlideEntry entryOf(const Slide& slide, const SlideOrigin* origin, std::uint32_t id, bool isNew,
                              std::vector<std::vector<Record>> outline) {
        SlideEntry entry;
        if (origin != nullptr) {
            entry = origin->entry;
        }
        if (isNew) {
            constexpr std::uint32_t notOutlineAlone = 4;
            ByteWriter out;
            out.write<std::uint32_t>(id).write<std::uint32_t>(notOutlineAlone).fill(12);
            entry.persist = Record::atom(type::SlidePersistAtom, out.take());
        }
        std::string& data = entry.persist.data;
        files::putNumber(data, slideIdPlace, static_cast<std::uint32_t>(slide.id));
        const auto texts = static_cast<std::uint32_t>(outline.size());
        if (isNew || outline.size() != entry.texts.size()) {
            files::putNumber(data, textCountPlace, texts);
        }
        entry.texts = std::move(outline);
        return entry;
    }

    /// Slides that were deleted leave with their notes.
    void dropSlidesThatAreGone() {
        std::set<std::uint32_t> gone;
        std::set<std::uint32_t> goneNotes;
        for (const SlideEntry& entry : entriesIn(slideList::slides)) {
            const std::uint32_t id = SlideReference(entry.persist).object;
            if (written_.contains(id)) {
                continue;
            }
            gone.insert(id);
            if (const std::uint32_t notes = SlideAtom(object(id)).notes; notes != 0) {
                goneNotes.insert(notes);
            }
        }
        if (!goneNotes.empty()) {
            std::vector<SlideEntry> kept;
            for (const SlideEntry& entry : entriesIn(slideList::notes)) {
                const SlideReference reference(entry.persist);
                if (goneNotes.contains(reference.slide)) {
                    gone.insert(reference.object);
                } else {
                    kept.push_back(entry);
                }
            }
            putList(slideList::notes, recordsOf(kept));
        }
        std::erase_if(objects_, [&](const PersistObject& each) { return gone.contains(each.id); });
    }

    [[nodiscard]] std::vector<SlideEntry> entriesIn(std::uint16_t list) {
        const Record* const found = document().find(type::SlideListWithText, list);
        return found == nullptr ? std::vector<SlideEntry>() : entriesOf(*found);
    }

    void writeSlideList() { putList(slideList::slides, recordsOf(entries_)); }

    /// Gives a list its records; one without any goes.
    void putList(std::uint16_t list, std::vector<Record> records) {
        std::vector<Record>& parts = document().children;
        Record* const found = document().find(type::SlideListWithText, list);
        if (records.empty()) {
            std::erase_if(parts, [list](const Record& part) { return part.is(type::SlideListWithText, list); });
        } else if (found != nullptr) {
            found->children = std::move(records);
        } else {
            const auto place = std::find_if(parts.begin(), parts.end(), [](const Record& part) {
                return part.is(type::SlideListWithText, slideList::notes) || part.is(type::SlideShowSettings) ||
                       part.is(type::EndDocument);
            });
            parts.insert(place, Record::container(type::SlideListWithText, std::move(records), list));
        }
    }

    void writeSettings() {
        const auto units = [](float points) { return static_cast<std::uint32_t>(std::lround(points * 8)); };
        const bool isResized =
            presentation_.slideWidth != origin_->slideWidth || presentation_.slideHeight != origin_->slideHeight;
        if (std::string& atom = document().find(type::DocumentAtom)->data; isResized) {
            constexpr char custom = 6;
            files::putNumber(atom, 0, units(presentation_.slideWidth));
            files::putNumber(atom, 4, units(presentation_.slideHeight));
            if (atom.size() > sizeKindPlace) {
                atom[sizeKindPlace] = custom;
            }
        }
        if (!(presentation_.tags == origin_->tags)) {
            putTags(docInfoList(), presentation_.tags);
        }
        if (presentation_.snapToGrid != origin_->snapToGrid) {
            writeSnapToGrid();
        }
    }

    Record& docInfoList() {
        if (Record* const found = document().find(type::DocInfoList)) {
            return *found;
        }
        std::vector<Record>& parts = document().children;
        const auto after = std::find_if(parts.begin(), parts.end(), [](const Record& part) {
            return part.is(type::SlideListWithText, slideList::slides) || part.is(type::EndDocument);
        });
        return *parts.insert(after, Record::container(type::DocInfoList, {}));
    }

    void writeSnapToGrid() {
        Record& list = docInfoList();
        Record* view = list.find(type::SlideViewInfo, slideViewInstance);
        if (view == nullptr) {
            list.children.insert(list.children.begin(), Record::container(type::SlideViewInfo, {}, slideViewInstance));
            view = &list.children.front();
        }
        Record* atom = view->find(type::SlideViewInfoAtom);
        if (atom == nullptr) {
            view->children.insert(view->children.begin(), Record::atom(type::SlideViewInfoAtom, {}));
            atom = &view->children.front();
        }
        atom->data.resize(std::max<std::size_t>(atom->data.size(), 3));
        atom->data[1] = presentation_.snapToGrid ? '\1' : '\0';
    }

    /// Masters and slides that have the document's colours take the new ones.
    void writeColors() {
        const std::string before = colorBytes(origin_->colors);
        const std::string now = colorBytes(presentation_.colors);
        const std::string usual = colorBytes({});
        for (PersistObject& each : objects_) {
            Record* const atom = each.record.find(type::ColorSchemeAtom, shapesSchemeInstance);
            const bool isFresh = origin_->object(each.id) == nullptr && atom != nullptr && atom->data == usual;
            if (atom != nullptr && (isFresh || (before != now && atom->data == before))) {
                atom->data = now;
            }
        }
    }

    void writeLists() {
        const auto shapesIn = [](const std::vector<PersistObject>& objects) {
            std::int64_t count = 0;
            for (const PersistObject& each : objects) {
                count += static_cast<std::int64_t>(countShapeRecords(each.record));
            }
            return count;
        };
        drawings_.count(static_cast<std::int64_t>(objects_.size()) - static_cast<std::int64_t>(origin_->objects.size()),
                        shapesIn(objects_) - shapesIn(origin_->objects));
        *document().find(type::DrawingGroup)->find(type::ArtGroup)->find(type::ArtGroupAtom) = drawings_.atom();
        if (Record* const collection = fontCollection()) {
            fonts_.complete(*collection);
        }
    }

    std::string bytes() {
        std::string stream;
        std::map<std::uint32_t, std::uint32_t> places;
        for (const PersistObject& each : objects_) {
            places[each.id] = static_cast<std::uint32_t>(stream.size());
            records::append(stream, each.record);
        }
        const auto directory = static_cast<std::uint32_t>(stream.size());
        records::append(stream, directoryOf(places));
        const auto edit = static_cast<std::uint32_t>(stream.size());
        records::append(stream, userEdit(directory));

        compound::Storage file = origin_->file;
        std::string currentUser = file.stream(currentUserStream)->bytes;
        files::putNumber(currentUser, lastEditPlace, edit);
        file.put(currentUserStream, std::move(currentUser));
        file.put(documentStream, std::move(stream));
        return compound::write(file);
    }

    static Record directoryOf(const std::map<std::uint32_t, std::uint32_t>& places) {
        ByteWriter out;
        for (auto place = places.begin(); place != places.end();) {
            std::vector<std::uint32_t> run;
            const std::uint32_t first = place->first;
            while (place != places.end() && run.size() < longestRun && place->first == first + run.size()) {
                run.push_back(place->second);
                ++place;
            }
            out.write<std::uint32_t>(first | static_cast<std::uint32_t>(run.size() << persistIdBits));
            for (const std::uint32_t offset : run) {
                out.write<std::uint32_t>(offset);
            }
        }
        return Record::atom(type::PersistDirectoryAtom, out.take());
    }

    Record userEdit(std::uint32_t directory) const {
        Record edit = origin_->userEdit;
        const auto& slides = presentation_.slides();
        const std::uint32_t lastSlide = files::numberAt(edit.data, 0);
        const bool isThere = std::any_of(slides.begin(), slides.end(), [lastSlide](const SlidePtr& slide) {
            return static_cast<std::uint32_t>(slide->id) == lastSlide;
        });
        if (!isThere) {
            files::putNumber(edit.data, 0, slides.empty() ? 0 : static_cast<std::uint32_t>(slides.front()->id));
        }
        files::putNumber(edit.data, editBeforePlace, 0);
        files::putNumber(edit.data, directoryPlace, directory);
        files::putNumber(edit.data, seedPlace, std::max(files::numberAt(edit.data, seedPlace), highestObject_));
        return edit;
    }

    static constexpr std::size_t slideIdPlace = 12;
    static constexpr std::size_t textCountPlace = 8;
    static constexpr std::size_t sizeKindPlace = 34;
    static constexpr std::size_t editBeforePlace = 8;
    static constexpr std::size_t directoryPlace = 12;
    static constexpr std::size_t seedPlace = 20;

    const Presentation& presentation_;
    std::shared_ptr<const PresentationOrigin> origin_;
    std::vector<PersistObject> objects_;
    drawing::DrawingGroup drawings_;
    text::FontTable fonts_;
    std::uint32_t highestObject_ = 0;
    std::set<std::uint32_t> written_;
    std::vector<SlideEntry> entries_;
};

} // namespace

std::string writePresentation(const Presentation& presentation) {
    return DocumentWriter(presentation).write();
}

} // namespace simulator::powerpoint
