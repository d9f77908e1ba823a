#include "simulator/files/powerpoint/PersistReader.h"

#include "automation/Text.h"
#include "simulator/files/Bytes.h"
#include "simulator/files/compound/CompoundReader.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/RecordReader.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <map>
#include <set>

namespace simulator::powerpoint {

namespace {

using files::ByteReader;
using files::hex;
using records::Record;
namespace type = records::type;

[[noreturn]] void refuseEncrypted() {
    throw DamagedPresentation("the presentation is encrypted, and only its password opens it");
}

const std::string& demandStream(const compound::Storage& file, std::u16string_view name) {
    const compound::Stream* const stream = file.stream(name);
    if (stream == nullptr) {
        throw DamagedPresentation("the stream \"" + automation::toUtf8(name) + "\" is missing");
    }
    return stream->bytes;
}

void refuseWhatIsEncrypted(const compound::Storage& file) {
    for (const std::u16string_view name : {u"EncryptedPackage", u"EncryptionInfo", u"EncryptedSummary"}) {
        if (file.stream(name) != nullptr) {
            refuseEncrypted();
        }
    }
}

std::uint32_t lastEditOf(const std::string& currentUser) {
    ByteReader in(currentUser, "the stream \"Current User\"");
    in.skip(2);
    const auto first = in.read<std::uint16_t>();
    if (first != type::CurrentUserAtom) {
        throw DamagedPresentation("the stream \"Current User\" holds a record " + hex(first));
    }
    in.skip(8); // the length cannot be relied on: programs count the last member or do not
    const auto token = in.read<std::uint32_t>();
    if (token == encryptedToken) {
        refuseEncrypted();
    }
    if (token != plainToken) {
        throw DamagedPresentation("the stream \"Current User\" has an unknown mark " + hex(token));
    }
    return in.read<std::uint32_t>();
}

/// The places of the objects in force, by their numbers.
class EditChain {
public:
    EditChain(const std::string& stream, std::uint32_t last) : stream_(stream) {
        std::set<std::uint32_t> seen;
        for (std::uint32_t offset = last; offset != 0 || seen.empty();) {
            if (!seen.insert(offset).second) {
                throw DamagedPresentation("PowerPoint Document, offset " + hex(offset) +
                                          ": the edits of the document run in a circle");
            }
            offset = follow(offset);
        }
    }

    [[nodiscard]] const std::map<std::uint32_t, std::uint32_t>& places() const noexcept { return places_; }
    [[nodiscard]] const Record& lastEdit() const noexcept { return lastEdit_; }
    [[nodiscard]] std::uint32_t document() const noexcept { return document_; }

private:
    [[nodiscard]] Record demand(std::uint32_t offset, std::uint16_t wanted, const char* what) const {
        Record record = records::readRecord(stream_, offset);
        if (!record.is(wanted)) {
            throw DamagedPresentation("PowerPoint Document, offset " + hex(offset) + ": record " + hex(record.type) +
                                      " stands where " + what + " should");
        }
        return record;
    }

    /// Takes what an edit says and is not yet known; where the edit before it stands, 0 for none.
    std::uint32_t follow(std::uint32_t offset) {
        const Record edit = demand(offset, type::UserEditAtom, "an edit of the document");
        ByteReader in(edit.data, "the record of an edit");
        in.skip(8);
        const auto before = in.read<std::uint32_t>();
        const auto directory = in.read<std::uint32_t>();
        const auto document = in.read<std::uint32_t>();
        in.skip(8);
        if (in.left() >= 4 && in.read<std::uint32_t>() != 0) {
            refuseEncrypted();
        }
        if (document_ == 0) {
            lastEdit_ = edit;
            document_ = document;
        }
        readDirectory(demand(directory, type::PersistDirectoryAtom, "the directory of objects"));
        return before;
    }

    void readDirectory(const Record& directory) {
        ByteReader in(directory.data, "the directory of objects");
        while (in.left() != 0) {
            const auto head = in.read<std::uint32_t>();
            const std::uint32_t first = head & persistIdMask;
            for (std::uint32_t i = 0; i < head >> persistIdBits; ++i) {
                places_.emplace(first + i, in.read<std::uint32_t>());
            }
        }
    }

    const std::string& stream_;
    std::map<std::uint32_t, std::uint32_t> places_;
    Record lastEdit_;
    std::uint32_t document_ = 0;
};

/// Reads the objects in the order of their places; no two may share bytes.
std::vector<PersistObject> readAll(const std::string& stream, const std::map<std::uint32_t, std::uint32_t>& places) {
    std::vector<std::pair<std::uint32_t, std::uint32_t>> ordered;
    ordered.reserve(places.size());
    for (const auto& [id, offset] : places) {
        ordered.emplace_back(offset, id);
    }
    std::sort(ordered.begin(), ordered.end());
    std::vector<PersistObject> objects;
    std::size_t end = 0;
    for (const auto& [offset, id] : ordered) {
        if (offset < end) {
            throw DamagedPresentation("PowerPoint Document, offset " + hex(offset) + ": object " + std::to_string(id) +
                                      " begins within the one before it");
        }
        end = offset + records::sizeOfRecord(stream, offset);
        objects.push_back({id, records::readRecord(stream, offset)});
    }
    return objects;
}

} // namespace

std::shared_ptr<PresentationOrigin> readObjects(std::string_view bytes) {
    auto origin = std::make_shared<PresentationOrigin>();
    origin->file = compound::read(bytes);
    refuseWhatIsEncrypted(origin->file);
    const std::string& currentUser = demandStream(origin->file, currentUserStream);
    const std::string& stream = demandStream(origin->file, documentStream);
    const EditChain chain(stream, lastEditOf(currentUser));
    origin->userEdit = chain.lastEdit();
    origin->document = chain.document();
    origin->objects = readAll(stream, chain.places());
    origin->file.put(documentStream, {});
    return origin;
}

} // namespace simulator::powerpoint
