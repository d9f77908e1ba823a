#include "simulator/files/powerpoint/PersistWriter.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/compound/CompoundWriter.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>

namespace simulator::powerpoint {

namespace {

using records::Record;

/// The directory of objects: numbers that follow each other make a run.
Record directoryOf(const std::map<std::uint32_t, std::uint32_t>& places) {
    files::ByteWriter out;
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
    return Record::atom(records::type::PersistDirectoryAtom, out.take());
}

} // namespace

std::string writeObjects(const PersistObjects& objects, Record lastEdit, const PresentationOrigin& origin) {
    std::string stream;
    std::map<std::uint32_t, std::uint32_t> places;
    for (const PersistObject& each : objects.all()) {
        places[each.id] = static_cast<std::uint32_t>(stream.size());
        records::append(stream, each.record);
    }
    const auto directory = static_cast<std::uint32_t>(stream.size());
    records::append(stream, directoryOf(places));
    const auto edit = static_cast<std::uint32_t>(stream.size());
    const std::uint32_t highest =
        std::max(files::numberAt(lastEdit.data, userEdit::highestObject), objects.highestId());
    files::putNumber(lastEdit.data, userEdit::editBefore, 0);
    files::putNumber(lastEdit.data, userEdit::directory, directory);
    files::putNumber(lastEdit.data, userEdit::highestObject, highest);
    records::append(stream, lastEdit);

    compound::Storage file = origin.file;
    std::string currentUser = file.stream(currentUserStream)->bytes;
    files::putNumber(currentUser, lastEditPlace, edit);
    file.put(currentUserStream, std::move(currentUser));
    file.put(documentStream, std::move(stream));
    return compound::write(file);
}

} // namespace simulator::powerpoint
