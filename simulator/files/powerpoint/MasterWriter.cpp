#include "simulator/files/powerpoint/MasterWriter.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/powerpoint/BlankDocument.h"
#include "simulator/files/powerpoint/SlideList.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <set>

namespace simulator::powerpoint {

namespace {

constexpr std::uint32_t firstMasterId = 0x80000000;

SlideEntry newMaster(WrittenDocument& document, const Slide& master, const std::vector<SlideEntry>& entries) {
    std::uint32_t id = firstMasterId;
    for (const SlideEntry& entry : entries) {
        id = std::max(id, entry.id() + 1);
    }
    SlideEntry entry;
    entry.persist = persistAtom(document.append(document.writeSheet(master, nullptr).record), 0, id);
    document.setMasterId(master, id);
    return entry;
}

} // namespace

void writeMasters(WrittenDocument& document) {
    std::vector<SlideEntry> entries = entriesIn(document.record(), slideList::masters);
    document.setFirstMasterId(entries.empty() ? 0 : entries.front().id());
    bool isFirst = true;
    std::set<std::uint32_t> kept;
    for (const SlidePtr& master : document.presentation().masters) {
        const SlideOrigin* const origin =
            document.isBlank() && std::exchange(isFirst, false) ? blankMaster().get() : document.originIn(*master);
        if (origin == nullptr) {
            entries.push_back(newMaster(document, *master, entries));
            putEntries(document.record(), slideList::masters, entries);
            continue;
        }
        kept.insert(origin->object);
        for (const SlideEntry& entry : entries) {
            if (entry.object() == origin->object) {
                document.setMasterId(*master, entry.id());
            }
        }
        if (document.isBlank() || master->isTouched) {
            *document.objects().find(origin->object) = document.writeSheet(*master, origin).record;
        }
    }
    const auto isGone = [&](std::uint32_t object) {
        return document.origin().masters.contains(object) && !kept.contains(object);
    };
    if (std::erase_if(entries, [&](const SlideEntry& entry) { return isGone(entry.object()); }) != 0) {
        putEntries(document.record(), slideList::masters, entries);
        document.objects().eraseIf(isGone);
    }
}

void writePageMaster(WrittenDocument& document, const SlidePtr& master, std::size_t place) {
    if (!master || !master->isTouched) {
        return;
    }
    const SlideOrigin* const origin = document.originIn(*master);
    records::Record written = document.writeSheet(*master, origin).record;
    if (origin != nullptr) {
        *document.objects().find(origin->object) = std::move(written);
    } else {
        const std::uint32_t object = document.append(std::move(written));
        files::putNumber(document.record().find(records::type::DocumentAtom)->data, place, object);
    }
}

} // namespace simulator::powerpoint
