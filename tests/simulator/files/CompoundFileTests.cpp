#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/compound/CompoundReader.h"
#include "simulator/files/compound/CompoundWriter.h"

#include <gtest/gtest.h>

#include <set>

namespace simulator::compound::compound_file_tests {

std::string patterned(std::size_t size, unsigned step) {
    std::string bytes(size, '\0');
    for (std::size_t i = 0; i < size; ++i) {
        bytes[i] = static_cast<char>(i * step + i / 512);
    }
    return bytes;
}

/// Streams of all kinds of length, and storages within storages.
Storage richStorage() {
    Storage root;
    root.classId[3] = 0x10;
    root.modified = 0x01C6012345678901;
    const std::array<std::size_t, 8> sizes{0, 1, 63, 64, 65, 4095, 4096, 100'000};
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        root.put(u"Stream " + std::u16string(i + 1, u'x'), patterned(sizes.at(i), static_cast<unsigned>(i) + 3));
    }
    Storage inner;
    inner.name = u"Dossier é";
    inner.state = 7;
    inner.put(u"A", "short");
    inner.storages.push_back(inner);
    root.storages.push_back(inner);
    return root;
}

std::map<std::u16string, std::string> contentsOf(const Storage& storage, const std::u16string& path = u"") {
    std::map<std::u16string, std::string> contents;
    contents[path] = std::string(storage.classId.data(), 16) + std::to_string(storage.state) + "/" +
                     std::to_string(storage.modified);
    for (const Stream& stream : storage.streams) {
        contents[path + u"/" + stream.name] = stream.bytes;
    }
    for (const Storage& inner : storage.storages) {
        contents.merge(contentsOf(inner, path + u"/" + inner.name));
    }
    return contents;
}

TEST(CompoundFile, GivesBackWhatWasWritten) {
    const Storage written = richStorage();
    const std::string file = write(written);
    EXPECT_EQ(contentsOf(read(file)), contentsOf(written));
    EXPECT_EQ(write(read(file)), file);

    Storage large;
    large.put(u"Large", patterned(std::size_t{16} << 20U, 7)); // its table needs sectors beyond those of the header
    for (int i = 0; i < 1000; ++i) {
        large.put(u"S" + std::u16string(1, static_cast<char16_t>(0x4E00 + i)), patterned(70, static_cast<unsigned>(i)));
    }
    EXPECT_EQ(contentsOf(read(write(large))), contentsOf(large));
}

/// Bytes of a file with a 32-bit number put at a place.
std::string patched(std::string file, std::size_t place, std::uint32_t number) {
    files::putNumber(file, place, number);
    return file;
}

TEST(CompoundFile, SaysWhatIsWrongWithADamagedFile) {
    const std::string sound = write(richStorage());
    const std::size_t fat = 512 + 512 * files::numberAt(sound, 76);
    const std::size_t directory = 512 + 512 * files::numberAt(sound, 48);
    const std::vector<std::pair<std::string, std::string>> cases{
        {"", "not a compound file"},
        {"PK\3\4 and so on", "zip package"},
        {sound.substr(0, 300), "header of the compound file ends"},
        {sound.substr(0, sound.size() - 512), "past the end of the file"},
        {patched(sound, 30, 0x00060014), "no known version"},
        {patched(sound, 44, 0x7FFFFFFF), "allocation table is said to have"},
        {patched(sound, 44, 110), "allocation table"},
        {patched(sound, 48, 0x00FFFFFF), "of the directory lies past the end"},
        {patched(sound, directory + 0x42, 0x01000102), "does not begin with its root"},
    };
    for (const auto& [bytes, wanted] : cases) {
        try {
            (void)read(bytes);
            ADD_FAILURE() << "read although: " << wanted;
        } catch (const DamagedPresentation& damage) {
            EXPECT_NE(std::string(damage.what()).find(wanted), std::string::npos) << damage.what() << " / " << wanted;
        }
    }
    // Only who needs a stream minds that it is damaged; what is referred to in vain, or twice, is left out.
    for (const auto& [bytes, wanted] : std::vector<std::pair<std::string, std::string>>{
             {patched(sound, fat, 0), "is used twice"},
             {patched(sound, directory + 0x78, 0x7FFFFFFF), "lies past the end"},
             {patched(sound, directory + 0x4C, 0), ""},
             {patched(sound, directory + 0x4C, 0x12345), ""},
         }) {
        const Storage damaged = read(bytes);
        const bool isTold =
            std::any_of(damaged.streams.begin(), damaged.streams.end(), [&message = wanted](const Stream& each) {
                return !each.damage.empty() && each.damage.find(message) != std::string::npos;
            });
        EXPECT_EQ(isTold, !wanted.empty()) << wanted;
        EXPECT_LT(contentsOf(read(write(damaged))).size(), contentsOf(read(sound)).size()) << wanted;
    }
}

} // namespace simulator::compound::compound_file_tests
