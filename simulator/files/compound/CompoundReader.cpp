#include "simulator/files/compound/CompoundReader.h"

#include "automation/Text.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/compound/Layout.h"
#include "simulator/files/compound/SectorTable.h"

namespace simulator::compound {

namespace {

using files::ByteReader;
using files::hex;

constexpr int deepestStorage = 32;

struct Header {
    std::size_t sectorSize = 0;
    bool hasLongSizes = false; ///< version 4: sizes of 64 bits
    std::uint32_t fatSectors = 0;
    std::uint32_t directory = 0;
    std::uint32_t miniFat = 0;
    std::uint32_t miniFatSectors = 0;
    std::uint32_t difat = 0;
    std::vector<std::uint32_t> fat; ///< the first sectors of the allocation table
};

Header readHeader(std::string_view file) {
    if (!file.starts_with(signature)) {
        throw DamagedPresentation(file.starts_with("PK") ? "this is a zip package, not a compound file"
                                                         : "this is not a compound file");
    }
    ByteReader in(file, "the header of the compound file");
    in.skip(signature.size() + 16 + 2);
    Header header;
    const auto version = in.read<std::uint16_t>();
    const auto order = in.read<std::uint16_t>();
    const auto shift = in.read<std::uint16_t>();
    const auto miniShift = in.read<std::uint16_t>();
    if (order != littleEndian || miniShift != 6 || !((version == 3 && shift == 9) || (version == 4 && shift == 12))) {
        throw DamagedPresentation("the header of the compound file is of no known version: " + hex(version) +
                                  ", sectors of 2^" + std::to_string(shift) + " bytes");
    }
    header.sectorSize = std::size_t{1} << shift;
    header.hasLongSizes = version == 4;
    in.skip(6 + 4);
    header.fatSectors = in.read<std::uint32_t>();
    header.directory = in.read<std::uint32_t>();
    in.skip(4);
    if (in.read<std::uint32_t>() != miniStreamLimit) {
        throw DamagedPresentation("the header of the compound file has an unknown limit of short streams");
    }
    header.miniFat = in.read<std::uint32_t>();
    header.miniFatSectors = in.read<std::uint32_t>();
    header.difat = in.read<std::uint32_t>();
    in.skip(4);
    for (std::size_t i = 0; i < headerFatSectors; ++i) {
        header.fat.push_back(in.read<std::uint32_t>());
    }
    return header;
}

std::vector<std::uint32_t> numbersOf(std::string_view bytes) {
    std::vector<std::uint32_t> numbers;
    numbers.reserve(bytes.size() / 4);
    for (ByteReader in(bytes, "a table"); in.left() >= 4;) {
        numbers.push_back(in.read<std::uint32_t>());
    }
    return numbers;
}

/// The allocation table: its sectors are listed in the header, and on in a chain of sectors of their own.
std::vector<std::uint32_t> readFat(const Header& header, SectorTable& sectors) {
    if (header.fatSectors > sectors.count()) {
        throw DamagedPresentation("the allocation table is said to have " + std::to_string(header.fatSectors) +
                                  " sectors, the file has " + std::to_string(sectors.count()));
    }
    std::vector<std::uint32_t> places = header.fat;
    for (std::uint32_t next = header.difat; next < highestSector && places.size() < header.fatSectors;) {
        const std::vector<std::uint32_t> more = numbersOf(sectors.claim(next, "the list of the allocation table"));
        places.insert(places.end(), more.begin(), more.end() - 1);
        next = more.back();
    }
    if (places.size() < header.fatSectors) {
        throw DamagedPresentation("the list of the allocation table ends after " + std::to_string(places.size()) +
                                  " of " + std::to_string(header.fatSectors) + " sectors");
    }
    std::string fat;
    for (std::uint32_t i = 0; i < header.fatSectors; ++i) {
        fat += sectors.claim(places[i], "the allocation table");
    }
    return numbersOf(fat);
}

struct Entry {
    std::u16string name;
    EntryKind kind = EntryKind::Unused;
    std::uint32_t left = noEntry;
    std::uint32_t right = noEntry;
    std::uint32_t child = noEntry;
    std::array<char, 16> classId{};
    std::uint32_t state = 0;
    std::uint64_t created = 0;
    std::uint64_t modified = 0;
    std::uint32_t first = 0;
    std::uint64_t size = 0;
};

Entry readEntry(std::string_view bytes, bool hasLongSizes) {
    ByteReader in(bytes, "a directory entry");
    Entry entry;
    const std::string_view name = in.take(nameUnits * 2);
    const auto nameBytes = in.read<std::uint16_t>();
    entry.kind = static_cast<EntryKind>(in.read<std::uint8_t>());
    if (entry.kind == EntryKind::Unused) {
        return entry;
    }
    if (nameBytes >= 2) {
        entry.name = files::utf16Text(name.substr(0, nameBytes - 2U));
    }
    in.skip(1);
    entry.left = in.read<std::uint32_t>();
    entry.right = in.read<std::uint32_t>();
    entry.child = in.read<std::uint32_t>();
    in.take(entry.classId.size()).copy(entry.classId.data(), entry.classId.size());
    entry.state = in.read<std::uint32_t>();
    entry.created = in.read<std::uint64_t>();
    entry.modified = in.read<std::uint64_t>();
    entry.first = in.read<std::uint32_t>();
    entry.size = hasLongSizes ? in.read<std::uint64_t>() : in.read<std::uint32_t>();
    return entry;
}

/// Walks the directory, every entry once; one that is referred to and does not exist, or a second time, is left out.
class Directory {
public:
    Directory(const Header& header, SectorTable& sectors)
        : sectors_(sectors), mini_({}, miniSectorSize, "short sector") {
        const std::string bytes = sectors.chain(header.directory, "the directory");
        for (std::size_t place = 0; place + entrySize <= bytes.size(); place += entrySize) {
            entries_.push_back(readEntry(std::string_view(bytes).substr(place, entrySize), header.hasLongSizes));
        }
        if (entries_.empty() || entries_[0].kind != EntryKind::Root) {
            throw DamagedPresentation("the directory does not begin with its root");
        }
        seen_.resize(entries_.size());
        asFarAsSound([&] {
            miniStream_ = sectors.chain(entries_[0].first, entries_[0].size, "the short streams");
            mini_ = SectorTable(miniStream_, miniSectorSize, "short sector");
            const std::uint64_t size = std::uint64_t{header.miniFatSectors} * header.sectorSize;
            mini_.setNext(numbersOf(sectors.chain(header.miniFat, size, "the table of short sectors")));
        });
    }

    [[nodiscard]] Storage root() {
        seen_[0] = true;
        return storage(entries_[0], 0);
    }

private:
    Storage storage(const Entry& entry, int depth) {
        if (depth > deepestStorage) {
            throw DamagedPresentation("the directory is nested too deeply");
        }
        Storage storage{entry.name, entry.classId, entry.state, entry.created, entry.modified, {}, {}};
        std::vector<std::uint32_t> pending{entry.child};
        while (!pending.empty()) {
            const std::uint32_t number = pending.back();
            pending.pop_back();
            if (number >= entries_.size() || seen_[number]) {
                continue;
            }
            seen_[number] = true;
            const Entry& member = entries_[number];
            add(member, storage, depth);
            pending.push_back(member.left);
            pending.push_back(member.right);
        }
        return storage;
    }

    void add(const Entry& member, Storage& storage, int depth) {
        if (member.kind == EntryKind::Storage) {
            storage.storages.push_back(this->storage(member, depth + 1));
        } else if (member.kind == EntryKind::Stream) {
            const std::string what = "the stream \"" + automation::toUtf8(member.name) + "\"";
            SectorTable& table = member.size < miniStreamLimit ? mini_ : sectors_;
            storage.streams.push_back({member.name, {}, {}});
            try {
                storage.streams.back().bytes = table.chain(member.first, member.size, what);
            } catch (const DamagedPresentation& damage) { // only who needs this stream minds
                storage.streams.back().damage = damage.what();
            }
        }
    }

    SectorTable& sectors_;
    std::vector<Entry> entries_;
    std::vector<bool> seen_;
    std::string miniStream_;
    SectorTable mini_;
};

} // namespace

Storage read(std::string_view file) {
    const Header header = readHeader(file);
    const std::string_view body = file.substr(std::min(header.sectorSize, file.size()));
    SectorTable sectors(body, header.sectorSize, "sector");
    sectors.setNext(readFat(header, sectors));
    return Directory(header, sectors).root();
}

} // namespace simulator::compound
