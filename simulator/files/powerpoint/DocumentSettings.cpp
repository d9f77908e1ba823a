#include "simulator/files/powerpoint/DocumentSettings.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"
#include "simulator/files/powerpoint/GridSpacing.h"
#include "simulator/files/powerpoint/HeadersFootersRecord.h"
#include "simulator/files/powerpoint/SlideShowRecords.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/records/Tags.h"

#include <algorithm>

namespace simulator::powerpoint {

namespace {

using records::Record;
namespace type = records::type;

constexpr std::size_t widthPlace = 0;
constexpr std::size_t heightPlace = 4;
constexpr std::size_t sizeKindPlace = 34;
constexpr std::size_t omitTitlesPlace = 37;
constexpr std::size_t snapPlace = 1;

const Record* slideView(const Record& document) noexcept {
    const Record* const list = document.find(type::DocInfoList);
    const Record* const view = list == nullptr ? nullptr : list->find(type::SlideViewInfo, slideViewInstance);
    return view == nullptr ? nullptr : view->find(type::SlideViewInfoAtom);
}

Record& docInfoList(Record& document) {
    if (Record* const found = document.find(type::DocInfoList)) {
        return *found;
    }
    std::vector<Record>& parts = document.children;
    const auto after = std::find_if(parts.begin(), parts.end(), [](const Record& part) {
        return part.is(type::SlideListWithText, slideList::slides) || part.is(type::EndDocument);
    });
    return *parts.insert(after, Record::container(type::DocInfoList, {}));
}

/// A child record of a type, put in front of the others where there is none.
Record& demandFirst(Record& owner, const Record& fresh) {
    Record* const found = owner.find(fresh.type, fresh.instance);
    return found != nullptr ? *found : *owner.children.insert(owner.children.begin(), fresh);
}

void writeSnapToGrid(Record& document, bool snaps) {
    Record& view = demandFirst(docInfoList(document), Record::container(type::SlideViewInfo, {}, slideViewInstance));
    std::string& data = demandFirst(view, Record::atom(type::SlideViewInfoAtom, {})).data;
    data.resize(std::max<std::size_t>(data.size(), 3));
    data[snapPlace] = snaps ? '\1' : '\0';
}

void writeSize(std::string& atom, float width, float height) {
    constexpr char custom = 6;
    files::putNumber(atom, widthPlace, drawing::code(double{width} * drawing::masterUnitsPerPoint));
    files::putNumber(atom, heightPlace, drawing::code(double{height} * drawing::masterUnitsPerPoint));
    if (atom.size() > sizeKindPlace) {
        atom[sizeKindPlace] = custom;
    }
}

} // namespace

void readSettings(const Record& document, Presentation& presentation) {
    files::ByteReader in(document.demand(type::DocumentAtom).data, "the record of the document");
    presentation.slideWidth = static_cast<float>(in.read<std::int32_t>()) / drawing::masterUnitsPerPoint;
    presentation.slideHeight = static_cast<float>(in.read<std::int32_t>()) / drawing::masterUnitsPerPoint;
    presentation.notesWidth = static_cast<float>(in.read<std::int32_t>()) / drawing::masterUnitsPerPoint;
    presentation.notesHeight = static_cast<float>(in.read<std::int32_t>()) / drawing::masterUnitsPerPoint;
    const std::string& atom = document.demand(type::DocumentAtom).data;
    presentation.areOnTitleSlides = atom.size() <= omitTitlesPlace || atom[omitTitlesPlace] == 0;
    presentation.onSlides = readHeadersFooters(document, headersFooters::ofSlides).value_or(HeadersFooters());
    presentation.onPages = readHeadersFooters(document, headersFooters::ofPages).value_or(HeadersFooters());
    presentation.slideShow = readSlideShow(document);
    if (const Record* const list = document.find(type::DocInfoList)) {
        presentation.tags = records::readTags(*list);
        presentation.gridDistance = readGridSpacing(*list).value_or(presentation.gridDistance);
    }
    const Record* const view = slideView(document);
    presentation.snapToGrid = view == nullptr || view->data.size() <= snapPlace || view->data[snapPlace] != 0;
}

void writeSettings(Record& document, const Presentation& presentation, const PresentationOrigin& origin) {
    if (presentation.slideWidth != origin.slideWidth || presentation.slideHeight != origin.slideHeight) {
        writeSize(document.find(type::DocumentAtom)->data, presentation.slideWidth, presentation.slideHeight);
    }
    if (!(presentation.tags == origin.tags)) {
        records::putTags(docInfoList(document), presentation.tags);
    }
    if (presentation.onSlides != origin.onSlides) {
        putHeadersFooters(document, headersFooters::ofSlides, presentation.onSlides);
    }
    if (presentation.onPages != origin.onPages) {
        putHeadersFooters(document, headersFooters::ofPages, presentation.onPages);
    }
    if (std::string& atom = document.find(type::DocumentAtom)->data;
        presentation.areOnTitleSlides != origin.areOnTitleSlides && atom.size() > omitTitlesPlace) {
        atom[omitTitlesPlace] = presentation.areOnTitleSlides ? '\0' : '\1';
    }
    if (presentation.slideShow != origin.slideShow) {
        putSlideShow(document, presentation.slideShow);
    }
    if (presentation.gridDistance != origin.gridDistance) {
        writeGridSpacing(docInfoList(document), presentation.gridDistance);
    }
    if (presentation.snapToGrid != origin.snapToGrid) {
        writeSnapToGrid(document, presentation.snapToGrid);
    }
}

} // namespace simulator::powerpoint
