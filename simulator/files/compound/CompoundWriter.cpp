#include "simulator/files/compound/CompoundWriter.h"

#include "automation/Text.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/compound/Layout.h"

#include <algorithm>
#include <bit>

namespace simulator::compound {

namespace {

using files::ByteWriter;

constexpr std::uint32_t sectorSize = 512;
constexpr std::uint32_t numbersPerSector = sectorSize / 4;
constexpr char16_t capitalOf(char16_t letter) noexcept {
    return letter >= u'a' && letter <= u'z' ? static_cast<char16_t>(letter - u'a' + u'A') : letter;
}

struct NewEntry {
    std::u16string_view name;
    EntryKind kind = EntryKind::Stream;
    bool isRed = false;
    std::uint32_t left = noEntry;
    std::uint32_t right = noEntry;
    std::uint32_t child = noEntry;
    const Storage* storage = nullptr;
    const std::string* bytes = nullptr;
    std::uint32_t first = endOfChain;
    std::uint64_t size = 0;
};

/// Shorter names come first, others by their capitals.
bool isBefore(const NewEntry& left, const NewEntry& right) {
    if (left.name.size() != right.name.size()) {
        return left.name.size() < right.name.size();
    }
    return std::lexicographical_compare(left.name.begin(), left.name.end(), right.name.begin(), right.name.end(),
                                        [](char16_t one, char16_t other) { return capitalOf(one) < capitalOf(other); });
}

/// The entries of a storage and all below it, every storage's members as a search tree.
class NewDirectory {
public:
    explicit NewDirectory(const Storage& root) {
        entries_.push_back({u"Root Entry", EntryKind::Root, false, noEntry, noEntry, noEntry, &root});
        addMembers(0, root);
    }
    [[nodiscard]] std::vector<NewEntry>& entries() noexcept { return entries_; }

private:
    void addMembers(std::size_t owner, const Storage& storage) {
        const std::size_t first = entries_.size();
        for (const Stream& stream : storage.streams) {
            if (stream.damage.empty()) {
                entries_.push_back({stream.name, EntryKind::Stream, false, noEntry, noEntry, noEntry, nullptr,
                                    &stream.bytes, endOfChain, stream.bytes.size()});
            }
        }
        for (const Storage& inner : storage.storages) {
            entries_.push_back({inner.name, EntryKind::Storage, false, noEntry, noEntry, noEntry, &inner});
        }
        const std::size_t end = entries_.size();
        std::sort(entries_.begin() + static_cast<std::ptrdiff_t>(first), entries_.end(), isBefore);
        const auto levels = std::max(static_cast<int>(std::bit_width(end - first)), 2);
        entries_[owner].child = link(first, end, levels);
        for (std::size_t i = first; i < end; ++i) {
            if (entries_[i].kind == EntryKind::Storage) {
                addMembers(i, *entries_[i].storage);
            }
        }
    }

    /// Makes a balanced tree of sorted entries, so many levels deep. Those of the deepest level, the only one that may
    /// have gaps, are red: so every way down passes as many black ones.
    std::uint32_t link(std::size_t first, std::size_t end, int levels) {
        if (first == end) {
            return noEntry;
        }
        const std::size_t middle = first + (end - first) / 2;
        entries_[middle].isRed = levels == 1;
        entries_[middle].left = link(first, middle, levels - 1);
        entries_[middle].right = link(middle + 1, end, levels - 1);
        return static_cast<std::uint32_t>(middle);
    }

    std::vector<NewEntry> entries_;
};

/// Sectors one after the other, with the table that chains them.
class Chains {
public:
    explicit Chains(std::uint32_t size) noexcept : size_(size) {}

    /// Appends a chain; its first sector, or the mark of the end for no bytes.
    std::uint32_t append(std::string_view content) {
        if (content.empty()) {
            return endOfChain;
        }
        const auto first = static_cast<std::uint32_t>(next_.size());
        bytes_.append(content);
        bytes_.fill((size_ - bytes_.size() % size_) % size_);
        const auto end = static_cast<std::uint32_t>(bytes_.size() / size_);
        for (std::uint32_t sector = first; sector < end; ++sector) {
            next_.push_back(sector + 1 < end ? sector + 1 : endOfChain);
        }
        return first;
    }

    [[nodiscard]] const std::string& bytes() const noexcept { return bytes_.bytes(); }
    [[nodiscard]] const std::vector<std::uint32_t>& next() const noexcept { return next_; }

private:
    std::uint32_t size_;
    ByteWriter bytes_;
    std::vector<std::uint32_t> next_;
};

std::string tableBytes(const std::vector<std::uint32_t>& numbers) {
    ByteWriter out;
    for (const std::uint32_t number : numbers) {
        out.write<std::uint32_t>(number);
    }
    while (out.size() % sectorSize != 0) {
        out.write<std::uint32_t>(freeSector);
    }
    return out.take();
}

std::string directoryBytes(const std::vector<NewEntry>& entries) {
    ByteWriter out;
    for (const NewEntry& entry : entries) {
        const std::u16string_view name = entry.name.substr(0, nameUnits - 1);
        out.append(files::utf16Bytes(name)).fill((nameUnits - name.size()) * 2);
        out.write<std::uint16_t>(static_cast<std::uint16_t>((name.size() + 1) * 2));
        out.write<std::uint8_t>(static_cast<std::uint8_t>(entry.kind)).write<std::uint8_t>(entry.isRed ? 0 : 1);
        out.write<std::uint32_t>(entry.left).write<std::uint32_t>(entry.right).write<std::uint32_t>(entry.child);
        const Storage none;
        const Storage& storage = entry.storage != nullptr ? *entry.storage : none;
        out.append({storage.classId.data(), storage.classId.size()}).write<std::uint32_t>(storage.state);
        out.write<std::uint64_t>(storage.created).write<std::uint64_t>(storage.modified);
        out.write<std::uint32_t>(entry.kind == EntryKind::Storage ? 0 : entry.first).write<std::uint64_t>(entry.size);
    }
    while (out.size() % sectorSize != 0) {
        out.fill(nameUnits * 2 + 4).write<std::uint32_t>(noEntry).write<std::uint32_t>(noEntry);
        out.write<std::uint32_t>(noEntry).fill(entrySize - nameUnits * 2 - 16);
    }
    return out.take();
}

std::uint32_t sectorsFor(std::size_t numbers) {
    return static_cast<std::uint32_t>((numbers + numbersPerSector - 1) / numbersPerSector);
}

/// The allocation table at the end of the file, with the sectors that list those of its own which the header cannot.
struct Allocation {
    explicit Allocation(const std::vector<std::uint32_t>& next) : table(next) {
        while (sectorsFor(next.size() + fatSectors + difatSectors) > fatSectors) {
            fatSectors = sectorsFor(next.size() + fatSectors + difatSectors);
            const std::size_t beyond = fatSectors > headerFatSectors ? fatSectors - headerFatSectors : 0;
            difatSectors = static_cast<std::uint32_t>((beyond + numbersPerSector - 2) / (numbersPerSector - 1));
        }
        firstFat = static_cast<std::uint32_t>(next.size());
        firstDifat = firstFat + fatSectors;
        table.insert(table.end(), fatSectors, fatSector);
        table.insert(table.end(), difatSectors, difatSector);
    }

    /// Number of the table's sector at a place; the mark of a free one past the last.
    [[nodiscard]] std::uint32_t fatAt(std::size_t place) const noexcept {
        return place < fatSectors ? firstFat + static_cast<std::uint32_t>(place) : freeSector;
    }

    [[nodiscard]] std::string difatBytes() const {
        ByteWriter out;
        for (std::uint32_t sector = 0; sector < difatSectors; ++sector) {
            for (std::size_t i = 0; i + 1 < numbersPerSector; ++i) {
                out.write<std::uint32_t>(fatAt(headerFatSectors + std::size_t{sector} * (numbersPerSector - 1) + i));
            }
            out.write<std::uint32_t>(sector + 1 < difatSectors ? firstDifat + sector + 1 : endOfChain);
        }
        return out.take();
    }

    std::vector<std::uint32_t> table;
    std::uint32_t fatSectors = 0;
    std::uint32_t difatSectors = 0;
    std::uint32_t firstFat = 0;
    std::uint32_t firstDifat = 0;
};

} // namespace

std::string write(const Storage& root) {
    NewDirectory directory(root);
    Chains sectors(sectorSize);
    Chains mini(miniSectorSize);
    for (NewEntry& entry : directory.entries()) {
        if (entry.bytes != nullptr) {
            entry.first = (entry.size < miniStreamLimit ? mini : sectors).append(*entry.bytes);
        }
    }
    NewEntry& top = directory.entries().front();
    top.first = sectors.append(mini.bytes());
    top.size = mini.bytes().size();
    const std::uint32_t miniFat = mini.next().empty() ? endOfChain : sectors.append(tableBytes(mini.next()));
    const std::uint32_t firstDirectory = sectors.append(directoryBytes(directory.entries()));
    const Allocation allocation(sectors.next());

    ByteWriter out;
    out.append(signature).fill(16).write<std::uint16_t>(0x3E).write<std::uint16_t>(3);
    out.write<std::uint16_t>(littleEndian).write<std::uint16_t>(9).write<std::uint16_t>(6).fill(10);
    out.write<std::uint32_t>(allocation.fatSectors).write<std::uint32_t>(firstDirectory).fill(4);
    out.write<std::uint32_t>(miniStreamLimit).write<std::uint32_t>(miniFat);
    out.write<std::uint32_t>(sectorsFor(mini.next().size()));
    out.write<std::uint32_t>(allocation.difatSectors == 0 ? endOfChain : allocation.firstDifat);
    out.write<std::uint32_t>(allocation.difatSectors);
    for (std::size_t i = 0; i < headerFatSectors; ++i) {
        out.write<std::uint32_t>(allocation.fatAt(i));
    }
    out.append(sectors.bytes()).append(tableBytes(allocation.table)).append(allocation.difatBytes());
    return out.take();
}

} // namespace simulator::compound
