#include "simulator/files/compound/SectorTable.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/compound/Layout.h"

#include <algorithm>
#include <limits>

namespace simulator::compound {

void SectorTable::fail(std::uint32_t sector, std::string_view purpose, std::string_view why) const {
    throw DamagedPresentation(std::string(what_) + " " + files::hex(sector) + " of " + std::string(purpose) + " " +
                              std::string(why));
}

std::string_view SectorTable::claim(std::uint32_t sector, std::string_view purpose) {
    if (sector >= count()) {
        fail(sector, purpose, "lies past the end of the file");
    }
    if (claimed_[sector]) {
        fail(sector, purpose, "is used twice");
    }
    claimed_[sector] = true;
    return sectors_.substr(sector * sectorSize_, sectorSize_);
}

std::string SectorTable::chain(std::uint32_t first, std::string_view purpose) {
    return chainUpTo(first, std::numeric_limits<std::uint64_t>::max(), purpose);
}

std::string SectorTable::chainUpTo(std::uint32_t first, std::uint64_t size, std::string_view purpose) {
    std::string bytes;
    bytes.reserve(static_cast<std::size_t>(std::min<std::uint64_t>(size, sectors_.size())) + sectorSize_);
    for (std::uint32_t sector = first; sector != endOfChain && bytes.size() < size;) {
        bytes += claim(sector, purpose);
        if (sector >= next_.size()) {
            fail(sector, purpose, "is not in the allocation table");
        }
        sector = next_[sector];
    }
    return bytes;
}

std::string SectorTable::chain(std::uint32_t first, std::uint64_t size, std::string_view purpose) {
    std::string bytes = chainUpTo(first, size, purpose);
    if (bytes.size() < size) {
        throw DamagedPresentation("the chain of " + std::string(purpose) + " has " + std::to_string(bytes.size()) +
                                  " bytes, " + std::to_string(size) + " are said to be there");
    }
    bytes.resize(static_cast<std::size_t>(size));
    return bytes;
}

} // namespace simulator::compound
