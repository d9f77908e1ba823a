#include "simulator/files/bytes/DamagedPresentation.h"
#include "simulator/files/records/RecordReader.h"
#include "simulator/files/records/RecordTypes.h"

#include <gtest/gtest.h>

namespace simulator::records::record_tests {

constexpr std::uint16_t unknown = 0x2BAD;

TEST(Records, KeepWhatTheyDoNotUnderstand) {
    const Record document = Record::container(
        type::Document, {Record::atom(type::DocumentAtom, "abc", 5, 1),
                         Record::container(type::ProgTags, {Record::container(unknown, {Record::atom(1, "x")})}, 0xFFF),
                         {unknown, 0, Record::containerVersion, "no record at all", {}, {}}});
    const std::string stream = "before" + bytesOf(document) + "after";
    EXPECT_EQ(readRecord(stream, 6), document);
    EXPECT_EQ(sizeOfRecord(stream, 6), stream.size() - 11);
    EXPECT_EQ(document.find(type::DocumentAtom, 5)->data, "abc");
    EXPECT_EQ(document.find(type::DocumentAtom, 6), nullptr);
}

TEST(Records, NameTheDamagedOneAndItsPlace) {
    Record deep = Record::atom(1, "");
    for (int i = 0; i < 1000; ++i) {
        deep = Record::container(type::ArtShapeGroup, {std::move(deep)});
    }
    const std::string list = bytesOf(Record::container(type::ProgTags, {Record::atom(unknown, "12345678")}));
    const std::vector<std::tuple<std::string, std::size_t, std::string>> cases{
        {list, 99, "offset 0x63: the stream ends at 0x18"},
        {list.substr(0, 5), 0, "offset 0x0: only 5 bytes are left"},
        {list.substr(0, 23), 0, "offset 0x0: record 0x1388 says 16 bytes, 15 are left"},
        {bytesOf(deep), 0, "nested too deeply"},
    };
    for (const auto& [stream, offset, wanted] : cases) {
        try {
            (void)readRecord(stream, offset);
            ADD_FAILURE() << "read although: " << wanted;
        } catch (const DamagedPresentation& damage) {
            EXPECT_NE(std::string(damage.what()).find(wanted), std::string::npos) << damage.what() << " / " << wanted;
        }
    }
}

} // namespace simulator::records::record_tests
