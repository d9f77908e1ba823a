#include "automation/Text.h"
#include "simulator/files/WholeFile.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/compound/CompoundReader.h"
#include "simulator/files/compound/CompoundWriter.h"
#include "simulator/files/powerpoint/DocumentReader.h"
#include "simulator/files/powerpoint/DocumentWriter.h"
#include "simulator/files/powerpoint/PersistReader.h"
#include "simulator/files/powerpoint/PersistWriter.h"
#include "simulator/files/records/RecordTypes.h"
#include "tests/simulator/files/RichPresentation.h"
#include "tests/support/Chance.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>

namespace simulator::damaged_file_tests {

using file_tests::richPresentation;
using records::Record;
namespace type = records::type;

/// The file of a presentation with its document's stream, or another one, changed.
std::string withStream(const std::string& file, std::u16string_view name,
                       const std::function<void(std::string&)>& change) {
    compound::Storage storage = compound::read(file);
    std::string bytes = storage.stream(name) == nullptr ? std::string() : storage.stream(name)->bytes;
    change(bytes);
    storage.put(name, std::move(bytes));
    return compound::write(storage);
}

/// The file with the first record of a type cut to a length.
std::string withRecord(const std::string& file, std::uint16_t wanted, std::size_t length) {
    const auto origin = powerpoint::readObjects(file);
    powerpoint::PersistObjects objects = origin->objects;
    const std::function<bool(Record&)> cut = [&](Record& record) {
        if (record.is(wanted)) {
            record.data.resize(length);
            return true;
        }
        return std::any_of(record.children.begin(), record.children.end(), cut);
    };
    bool isCut = false;
    objects.forEach([&](std::uint32_t, Record& record) { isCut = isCut || cut(record); });
    EXPECT_TRUE(isCut);
    return powerpoint::writeObjects(objects, origin->userEdit, *origin);
}

TEST(DamagedFile, SaysWhatIsWrongWithADamagedFile) {
    const std::string sound = powerpoint::writePresentation(*richPresentation());
    const auto inDocument = [&](const std::function<void(std::string&)>& change) {
        return withStream(sound, u"PowerPoint Document", change);
    };
    const auto inCurrentUser = [&](std::size_t place, std::uint32_t number) {
        return withStream(sound, u"Current User", [=](std::string& bytes) { files::putNumber(bytes, place, number); });
    };
    const std::uint32_t edit = files::numberAt(compound::read(sound).stream(u"Current User")->bytes, 16);
    const auto inEdit = [&](std::size_t place, std::uint32_t number) {
        return inDocument([=](std::string& bytes) { files::putNumber(bytes, edit + 8 + place, number); });
    };
    compound::Storage withoutUser = compound::read(sound);
    std::erase_if(withoutUser.streams, [](const compound::Stream& each) { return each.name == u"Current User"; });
    const std::vector<std::pair<std::string, std::string>> cases{
        {"{", "not a compound file"},
        {compound::write(withoutUser), "the stream \"Current User\" is missing"},
        {inCurrentUser(0, 0x0FF50000), "holds a record 0xff5"},
        {inCurrentUser(12, 0x12345678), "unknown mark 0x12345678"},
        {inCurrentUser(12, 0xF3D1C4DF), "encrypted"},
        {withStream(sound, u"EncryptionInfo", [](std::string&) {}), "encrypted"},
        {inCurrentUser(16, 0x7FFFFFFF), "offset 0x7fffffff: the stream ends"},
        {inCurrentUser(16, 0), "offset 0x0: record 0x3e8 stands where an edit of the document should"},
        {inEdit(8, edit), "offset " + files::hex(edit) + ": the edits of the document run in a circle"},
        {inEdit(12, 0), "stands where the directory of objects should"},
        {inEdit(16, 99), "object 99, the document, does not exist"},
        {inEdit(16, 2), "object 2, the document, is a record 0x3f8"},
        {inDocument([](std::string& bytes) { files::putNumber(bytes, 4, 0x7FFFFFFF); }),
         "object 1, the document, does not exist"},
        {inDocument([](std::string& bytes) { files::putNumber(bytes, 12, 39); }), "0x3e8 holds no record 0x40b"},
        {inDocument([](std::string& bytes) { bytes.resize(bytes.size() / 2); }), "the stream ends"},
        {withRecord(sound, type::SlidePersistAtom, 8), ": the record of a slide in a list is too short"},
    };
    for (const auto& [bytes, wanted] : cases) {
        try {
            (void)powerpoint::readPresentation(bytes);
            ADD_FAILURE() << "read although: " << wanted;
        } catch (const DamagedPresentation& damage) {
            EXPECT_NE(std::string(damage.what()).find(wanted), std::string::npos) << damage.what() << " / " << wanted;
            EXPECT_TRUE(wanted[0] != ':' || std::string(damage.what()).starts_with("PowerPoint Document, offset 0x"));
        }
    }
}

/// What a presentation can do without is read as far as it is sound, and the rest is saved.
TEST(DamagedFile, ReadsWhatIsSoundInADamagedFile) {
    const PresentationPtr rich = richPresentation();
    const std::string sound = powerpoint::writePresentation(*rich);
    const std::uint32_t edit = files::numberAt(compound::read(sound).stream(u"Current User")->bytes, 16);
    std::vector<std::string> cases{
        withStream(sound, u"PowerPoint Document", // the last record of the document
                   [](std::string& bytes) { files::putNumber(bytes, files::numberAt(bytes, 4) + 4, 0xFFFF); }),
        withStream(sound, u"PowerPoint Document", // where the last object stands, a slide
                   [edit](std::string& bytes) { files::putNumber(bytes, edit - 4, 0x00FFFFF0); }),
    };
    for (const std::uint16_t each :
         {type::ColorSchemeAtom, type::ArtShapeAtom, type::ArtProperties, type::ArtClientAnchor, type::PlaceholderAtom,
          type::StyleTextPropAtom, type::TextMasterStyleAtom}) {
        cases.push_back(withRecord(sound, each, 3));
    }
    for (const std::string& bytes : cases) {
        const PresentationPtr read = powerpoint::readPresentation(bytes);
        EXPECT_GE(read->slides().size() + 1, rich->slides().size());
        EXPECT_EQ(powerpoint::readPresentation(powerpoint::writePresentation(*read))->slides().size(),
                  read->slides().size());
    }
}

/// A slide with thousands of shapes of one number, of tags and of style runs: none is lost, none confused with
/// another, and they are read quickly.
TEST(DamagedFile, ReadsManyShapesOfOneNumber) {
    const auto origin = powerpoint::readObjects(powerpoint::writePresentation(*richPresentation()));
    powerpoint::PersistObjects objects = origin->objects;
    constexpr int many = 5'000;
    objects.forEach([](std::uint32_t, Record& record) {
        if (!record.is(type::Slide)) {
            return;
        }
        std::vector<Record>& shapes =
            record.find(type::Drawing)->find(type::ArtDrawing)->find(type::ArtShapeGroup)->children;
        Record tags = Record::container(type::ProgTags, {});
        files::ByteWriter runs;
        for (int i = 0; i < many; ++i) {
            shapes.push_back(Record::container(type::ArtShape, {shapes.front().demand(type::ArtShapeAtom)}));
            tags.children.push_back(Record::container(
                type::ProgStringTag, {Record::atom(type::CString, files::utf16Bytes(automation::decimal(i)))}));
            runs.write<std::uint32_t>(1)
                .write<std::uint16_t>(static_cast<std::uint16_t>(i % 2))
                .write<std::uint32_t>(0);
        }
        shapes.back().children.push_back(
            Record::container(type::ArtClientTextbox, {Record::atom(type::TextBytesAtom, std::string(many, '\r')),
                                                       Record::atom(type::StyleTextPropAtom, runs.take())}));
        std::erase_if(record.children, [](const Record& child) { return child.is(type::ProgTags); });
        record.children.push_back(std::move(tags));
    });
    const std::string file = powerpoint::writeObjects(objects, origin->userEdit, *origin);
    const auto start = std::chrono::steady_clock::now();
    const PresentationPtr read = powerpoint::readPresentation(file);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(2)); // 20 ms, far more under sanitizers
    EXPECT_EQ(read->slides().front()->tags.all().size(), std::size_t{many});
    EXPECT_GE(read->slides().front()->shapes().size(), std::size_t{many});
}

/// Those of others that can be read.
std::vector<std::string> soundFilesIn(const std::filesystem::path& folder) {
    std::vector<std::string> files;
    constexpr std::uintmax_t longest = 200'000; // for the time that it takes
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        std::string bytes = entry.file_size() < longest ? files::wholeFile(entry.path()).value_or("") : std::string();
        try {
            (void)powerpoint::readPresentation(bytes);
            files.push_back(std::move(bytes));
        } catch (const DamagedPresentation&) { // no presentation, or one that is encrypted or damaged
        }
    }
    return files;
}

/// Hundreds of files with a few wrong bytes: each is read or refused, and one that is read can be saved.
void damage(const std::vector<std::string>& files) {
    ASSERT_FALSE(files.empty());
    tests::Chance chance;
    const auto number = [&chance](std::size_t below) { return chance.below(below); };
    constexpr std::array<std::uint8_t, 8> favourites{0x00, 0x01, 0x0F, 0x7F, 0x80, 0xFE, 0xFF, 0x10};
    std::size_t refused = 0;
    constexpr std::size_t rounds = 600;
    for (std::size_t round = 0; round < rounds; ++round) {
        const std::string& sound = files.at(round % files.size());
        const std::string document = compound::read(sound).stream(u"PowerPoint Document")->bytes;
        const bool inContainer = number(8) == 0;
        std::string bytes = inContainer ? sound : document;
        for (std::size_t i = 0; i <= number(3); ++i) {
            bytes[number(bytes.size())] = static_cast<char>(favourites.at(number(favourites.size())));
        }
        try {
            const PresentationPtr read = powerpoint::readPresentation(
                inContainer ? bytes : withStream(sound, u"PowerPoint Document", [&](std::string& b) { b = bytes; }));
            for (const SlidePtr& slide : read->slides()) {
                for (const ShapePtr& shape : slide->shapes()) {
                    shape->name += u"!";
                    if (shape->text) {
                        shape->text->replace({1, 1}, u"?");
                    }
                }
            }
            EXPECT_NO_THROW((void)powerpoint::readPresentation(powerpoint::writePresentation(*read)))
                << "round " << round;
        } catch (const DamagedPresentation&) {
            ++refused;
        }
    }
    EXPECT_GT(refused, 0U);
    EXPECT_LT(refused, rounds);
}

TEST(DamagedFile, WithstandsWrongBytes) {
    damage({powerpoint::writePresentation(*richPresentation())});
}

TEST(DamagedFile, OfOthersWithstandsWrongBytes) {
    const char* const folder = std::getenv("K73053_DECKS");
    if (folder == nullptr) {
        GTEST_SKIP() << "presentations of others; K73053_DECKS names no folder of them";
    }
    damage(soundFilesIn(folder));
}

} // namespace simulator::damaged_file_tests
