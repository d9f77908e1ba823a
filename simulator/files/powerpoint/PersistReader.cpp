#include "simulator/files/powerpoint/PersistReader.h"

#include "automation/Text.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/compound/CompoundReader.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/Damage.h"
#include "simulator/files/records/RecordReader.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <map>

namespace simulator::powerpoint {

namespace {

using files::ByteReader;
using files::hex;
using records::DamagedRecord;
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
    if (!stream->damage.empty()) {
        throw DamagedPresentation(stream->damage);
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

/// The places of the objects in force, by their numbers. No byte of the stream may belong to two parts of the chain, so
/// that it neither runs in a circle nor takes longer than the stream is long.
class EditChain {
public:
    EditChain(const std::string& stream, std::uint32_t last) : stream_(stream) {
        std::uint32_t offset = last;
        do {
            offset = follow(offset);
        } while (offset != 0);
    }

    [[nodiscard]] const std::map<std::uint32_t, std::uint32_t>& places() const noexcept { return places_; }
    [[nodiscard]] const Record& lastEdit() const noexcept { return lastEdit_; }
    [[nodiscard]] std::uint32_t document() const noexcept { return document_; }

private:
    [[nodiscard]] Record demand(std::uint32_t offset, std::uint16_t wanted, const char* what) {
        claim(offset, offset + records::sizeOfRecord(stream_, offset));
        Record record = records::readRecord(stream_, offset);
        if (!record.is(wanted)) {
            throw DamagedRecord(offset, "record " + hex(record.type) + " stands where " + what + " should");
        }
        return record;
    }

    void claim(std::size_t start, std::size_t end) {
        const auto next = claimed_.lower_bound(start);
        const bool reachesIntoNext = next != claimed_.end() && next->first < end;
        const bool liesInFormer = next != claimed_.begin() && std::prev(next)->second > start;
        if (reachesIntoNext || liesInFormer) {
            throw DamagedRecord(start, "the edits of the document run in a circle");
        }
        claimed_.emplace(start, end);
    }

    /// Takes what an edit says and is not yet known; where the edit before it stands, 0 for none.
    std::uint32_t follow(std::uint32_t offset) {
        const Record edit = demand(offset, type::UserEditAtom, "an edit of the document");
        return records::within(edit, [&] { return follow(edit); });
    }

    std::uint32_t follow(const Record& edit) {
        if (edit.data.size() < userEdit::encryption) {
            throw DamagedPresentation("the record of an edit is too short");
        }
        const auto at = [&edit](std::size_t place) { return files::numberAt(edit.data, place); };
        if (at(userEdit::encryption) != 0) {
            refuseEncrypted();
        }
        if (document_ == 0) {
            lastEdit_ = edit;
            document_ = at(userEdit::document);
        }
        const Record list = demand(at(userEdit::directory), type::PersistDirectoryAtom, "the directory of objects");
        records::within(list, [&] { readDirectory(list); });
        return at(userEdit::editBefore);
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
    std::map<std::size_t, std::size_t> claimed_; ///< ends of the parts that were read, by their starts
    std::map<std::uint32_t, std::uint32_t> places_;
    Record lastEdit_;
    std::uint32_t document_ = 0;
};

/// Reads the objects in the order of their places. No two share bytes: one that begins within another does not exist,
/// nor does one that is no record; whoever needs it will say so.
PersistObjects readAll(const std::string& stream, const std::map<std::uint32_t, std::uint32_t>& places) {
    std::vector<std::pair<std::uint32_t, std::uint32_t>> ordered;
    ordered.reserve(places.size());
    for (const auto& [id, offset] : places) {
        ordered.emplace_back(offset, id);
    }
    std::sort(ordered.begin(), ordered.end());
    PersistObjects objects;
    std::size_t end = 0;
    for (const auto& [offset, id] : ordered) {
        if (offset < end) {
            continue;
        }
        asFarAsSound([&, place = offset, number = id] {
            objects.append(number, records::readRecord(stream, place));
            end = place + records::sizeOfRecord(stream, place);
        });
    }
    return objects;
}

} // namespace

std::shared_ptr<PresentationOrigin> readObjects(std::string_view bytes) {
    auto origin = std::make_shared<PresentationOrigin>();
    origin->file = compound::read(bytes);
    if (compound::Storage* const inner = origin->file.storage(dualStorage)) {
        origin->file = compound::Storage(std::move(*inner));
    }
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
