#include "automation/Text.h"
#include "host/world/TemporaryFolder.h"
#include "simulator/document/Grouping.h"
#include "simulator/document/NewShape.h"
#include "simulator/files/Bytes.h"
#include "simulator/files/FilePresentationStore.h"
#include "simulator/files/WholeFile.h"
#include "simulator/files/compound/CompoundReader.h"
#include "simulator/files/compound/CompoundWriter.h"
#include "simulator/files/powerpoint/DocumentReader.h"
#include "simulator/files/powerpoint/DocumentWriter.h"
#include "simulator/files/powerpoint/PersistReader.h"
#include "simulator/files/powerpoint/PersistWriter.h"
#include "simulator/files/records/RecordTypes.h"
#include "tests/support/Chance.h"
#include "tests/support/Errors.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>

namespace simulator::presentation_file_tests {

using records::Record;
namespace type = records::type;

/// Every member of a shape with a value that it does not have by itself.
ShapePtr richRectangle() {
    ShapePtr shape = newShape::autoShape(5, {10.125F, 20.5F, 300, 200});
    shape->name = u"Étiquette \U0001F600";
    shape->rotation = 100.5F;
    shape->horizontalFlip = shape->verticalFlip = shape->lockAspectRatio = true;
    shape->visible = false;
    shape->alternativeText = u"décrite";
    shape->formerGroup = 7;
    shape->tags.add(u"Identite", u"ZOR1");
    shape->tags.add(u"Vide", u"");
    shape->fill = {false, msoFillGradient, Color::direct(1), Color::of(ppAccent3), 0.25F, 0, 3, 4};
    shape->line = {false, 2.25F, Color::direct(0xABCDEF), 4};
    shape->shadow = {true, 6, Color::direct(3), -2.5F, 1.1F, true};
    shape->threeD = {true, 11, 72.3F};
    TextStory& text = *shape->text;
    text.replace({}, u"Un été\và part\r\rFin\r");
    text.format({3, 4},
                [](CharacterFormat& format) { format = {u"Comic Sans MS", 14, true, true, true, Color::direct(9)}; });
    text.formatParagraphs({16, 0}, [](ParagraphFormat& format) {
        format = {ppAlignJustify, 4, ppBulletNumbered, 0x25A0, 0.9F, 0.2F, 0.3F};
    });
    text.layout = {ppAutoSizeShapeToFitText, false, 1.1F, 2.2F, 3.3F, 4.4F, msoTextOrientationUpward, msoAnchorBottom};
    return shape;
}

PresentationPtr richPresentation() {
    auto presentation = std::make_shared<Presentation>();
    presentation->snapToGrid = false;
    presentation->slideWidth = 793.75F;
    presentation->slideHeight = 1122.5F;
    presentation->colors.colors[3] = 0x7F8081;
    presentation->tags.add(u"Cours", std::u16string{u'a', char16_t{0xD83D}, u'b'}); // half of a character
    for (const PpSlideLayout layout : {ppLayoutTitle, ppLayoutBlank}) {
        const auto slide = std::make_shared<Slide>();
        slide->layout = layout;
        slide->tags.add(u"Identite", u"ZOR9");
        presentation->insert(slide, 0);
    }
    Slide& slide = *presentation->slides().front();
    slide.add(richRectangle(), u"Rectangle");
    slide.add(newShape::freeform({{0, 0}, {50, 1.125F, true}, {60, 9, true}, {60, 70}, {0, 0}}), u"Freeform");
    slide.add(newShape::wordArt({u"Bravo\n!", u"Impact", 44.5F, true, true, 12}, 5, 6), u"WordArt");
    slide.add(newShape::placeholder(ppPlaceholderSubtitle, {1, 2, 3, 4}), u"Rectangle");
    slide.add(richRectangle(), u"Rectangle");
    slide.add(newShape::line({9, 9}, {1, 2}), u"Line");
    slide.add(newShape::textBox({400, 300, 20, 20}), u"Text Box");
    const std::vector<ShapePtr> last(slide.shapes().end() - 3, slide.shapes().end());
    group(slide, {group(slide, {last[0], last[1]}), last[2]});
    return presentation;
}

void expectSame(const std::vector<ShapePtr>& left, const std::vector<ShapePtr>& right, const Slide& slide) {
    ASSERT_EQ(left.size(), right.size());
    for (std::size_t i = 0; i < left.size(); ++i) {
        const Shape& a = *left[i];
        const Shape& b = *right[i];
        const auto plain = [](const Shape& shape) {
            return std::tie(shape.id, shape.name, shape.type, shape.autoShapeType, shape.rotation, shape.horizontalFlip,
                            shape.verticalFlip, shape.visible, shape.lockAspectRatio, shape.alternativeText, shape.tags,
                            shape.fill, shape.line, shape.shadow, shape.threeD, shape.text, shape.textEffect,
                            shape.placeholder, shape.nodes, shape.closed, shape.formerGroup);
        };
        EXPECT_TRUE(plain(a) == plain(b)) << automation::toUtf8(a.name);
        EXPECT_EQ(a.frame(), b.frame()) << automation::toUtf8(a.name);
        EXPECT_EQ(b.slide.lock().get(), &slide);
        expectSame(a.items(), b.items(), slide);
    }
}

TEST(PresentationFile, KeepsEverythingOfADocument) {
    const PresentationPtr written = richPresentation();
    const PresentationPtr read = powerpoint::readPresentation(powerpoint::writePresentation(*written));
    EXPECT_EQ(read->snapToGrid, written->snapToGrid);
    EXPECT_EQ(read->slideWidth, written->slideWidth);
    EXPECT_EQ(read->slideHeight, written->slideHeight);
    EXPECT_EQ(read->colors, written->colors);
    EXPECT_EQ(read->tags, written->tags);
    ASSERT_EQ(read->slides().size(), written->slides().size());
    for (std::size_t i = 0; i < read->slides().size(); ++i) {
        const Slide& a = *written->slides()[i];
        const Slide& b = *read->slides()[i];
        EXPECT_TRUE(std::tie(a.id, a.name, a.layout, a.tags) == std::tie(b.id, b.name, b.layout, b.tags));
        EXPECT_EQ(b.presentation.lock(), read);
        expectSame(a.shapes(), b.shapes(), b);
    }
    EXPECT_EQ(powerpoint::writePresentation(*read), powerpoint::writePresentation(*written));
}

/// Every fill, line, anchor, flow and AutoShape that the object model can ask for.
TEST(PresentationFile, KeepsEveryKind) {
    const auto presentation = std::make_shared<Presentation>();
    const auto slide = std::make_shared<Slide>();
    presentation->insert(slide, 0);
    for (std::int32_t type = 1; type <= lastAutoShape; ++type) {
        const ShapePtr shape = newShape::autoShape(type, {10, 10, 50, 51.125F});
        shape->rotation = static_cast<float>(type) * 5;
        shape->line.dashStyle = 1 + type % 8;
        shape->fill.type = msoFillGradient;
        shape->fill.gradientStyle = 1 + type % 7;
        shape->fill.gradientVariant = 1 + type % 4;
        shape->text->layout.orientation = static_cast<MsoTextOrientation>(1 + type % 6);
        shape->text->layout.anchor = static_cast<MsoVerticalAnchor>(1 + type % 5);
        slide->add(shape, u"AutoShape");
    }
    for (std::int32_t pattern = 1; pattern <= 48; ++pattern) {
        const ShapePtr shape = newShape::textBox({-20000, 10, 50000, 50});
        shape->fill.type = msoFillPatterned;
        shape->fill.pattern = pattern;
        slide->add(shape, u"Text Box");
    }
    const auto many = static_cast<std::int32_t>(slide->shapes().size());
    slide->shapes().back()->id = 5000; // beyond the numbers that one cluster has
    slide->insert(slide->shapes().front()->clone(), 0);
    slide->shapes().front()->id = 1024;
    const PresentationPtr read = powerpoint::readPresentation(powerpoint::writePresentation(*presentation));
    ASSERT_EQ(read->slides().front()->shapes().size(), static_cast<std::size_t>(many) + 1);
    expectSame(slide->shapes(), read->slides().front()->shapes(), *read->slides().front());
}

/// What a file says of a presentation survives changes around it.
TEST(PresentationFile, WritesChangesOverWhatWasRead) {
    const PresentationPtr presentation =
        powerpoint::readPresentation(powerpoint::writePresentation(*richPresentation()));
    const SlidePtr first = presentation->slides().front();
    first->shapes().front()->setFrame({1, 2, 3, 4});
    first->shapes().front()->text->replace({0, 2}, u"Trois");
    first->shapes().back()->setFrame({100, 100, 600, 300});
    presentation->insert(first->clone(), 1);
    presentation->slides()[1]->name = u"Copie";
    presentation->slides()[1]->remove(presentation->slides()[1]->shapes()[1]);
    presentation->remove(presentation->slides().back());
    presentation->insert(std::make_shared<Slide>(), 0);
    presentation->colors.colors[0] = 0x123456;
    presentation->snapToGrid = true;
    presentation->tags.add(u"Autre", u"1");
    const PresentationPtr read = powerpoint::readPresentation(powerpoint::writePresentation(*presentation));
    ASSERT_EQ(read->slides().size(), 3U);
    EXPECT_EQ(read->colors, presentation->colors);
    EXPECT_EQ(read->snapToGrid, true);
    EXPECT_EQ(read->tags, presentation->tags);
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(read->slides()[i]->name, presentation->slides()[i]->name);
        expectSame(presentation->slides()[i]->shapes(), read->slides()[i]->shapes(), *read->slides()[i]);
    }
    EXPECT_EQ(powerpoint::writePresentation(*read), powerpoint::writePresentation(*presentation));
}

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

TEST(PresentationFile, SaysWhatIsWrongWithADamagedFile) {
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
TEST(PresentationFile, ReadsWhatIsSoundInADamagedFile) {
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
TEST(PresentationFile, ReadsManyShapesOfOneNumber) {
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

/// Hundreds of files with a few wrong bytes: each is read or refused, and one that is read can be saved.
TEST(PresentationFile, WithstandsWrongBytes) {
    const std::string sound = powerpoint::writePresentation(*richPresentation());
    const std::string document = compound::read(sound).stream(u"PowerPoint Document")->bytes;
    tests::Chance chance;
    const auto number = [&chance](std::size_t below) { return chance.below(below); };
    constexpr std::array<std::uint8_t, 8> favourites{0x00, 0x01, 0x0F, 0x7F, 0x80, 0xFE, 0xFF, 0x10};
    std::size_t refused = 0;
    constexpr std::size_t rounds = 600;
    for (std::size_t round = 0; round < rounds; ++round) {
        const bool inContainer = round % 8 == 0;
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
    EXPECT_GT(refused, rounds / 40);
    EXPECT_LT(refused, rounds);
}

/// A store over a folder of its own.
class PresentationStoreTest : public testing::Test {
protected:
    std::string contents(const std::string& name) const { return files::wholeFile(folder / name).value(); }
    /// Demands PowerPoint's own error, and that it names the file.
    template <typename Act> static void expectError(const Act& act, std::u16string_view path) {
        const auto error = errorOf(act);
        ASSERT_TRUE(error) << automation::toUtf8(path);
        EXPECT_EQ(error->number(), requestRefused);
        EXPECT_NE(error->description().find(path), std::u16string::npos) << error->what();
    }

    host::TemporaryFolder temporary;
    std::filesystem::path folder = temporary.path();
    FilePresentationStore store{[this](std::u16string_view path) {
        return folder / std::filesystem::path(std::u16string(path.substr(path.rfind(u'\\') + 1)));
    }};
};

TEST_F(PresentationStoreTest, SavesLoadsAndReplacesFiles) {
    const PresentationPtr presentation = richPresentation();
    EXPECT_FALSE(store.isReadOnly(u"C:\\Cours\\été.ppt"));
    store.save(Presentation(), u"C:\\Cours\\été.ppt");
    store.save(*presentation, u"C:\\Cours\\été.ppt");
    EXPECT_EQ(store.load(u"C:\\Cours\\été.ppt")->slides().size(), 2U);
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 1);
}

TEST_F(PresentationStoreTest, NamesTheFileThatItCannotReadOrWrite) {
    expectError([this] { (void)store.load(u"C:\\Cours\\absent.ppt"); }, u"C:\\Cours\\absent.ppt");
    std::ofstream(folder / "abime.ppt") << "{";
    expectError([this] { (void)store.load(u"C:\\Cours\\abime.ppt"); }, u"C:\\Cours\\abime.ppt");

    store.save(Presentation(), u"C:\\fixe.ppt");
    const std::string before = contents("fixe.ppt");
    std::filesystem::permissions(folder / "fixe.ppt", std::filesystem::perms::owner_read);
    EXPECT_TRUE(store.isReadOnly(u"C:\\fixe.ppt"));
    expectError([this] { store.save(*richPresentation(), u"C:\\fixe.ppt"); }, u"C:\\fixe.ppt");
    EXPECT_EQ(contents("fixe.ppt"), before);

    std::filesystem::create_directories(folder / "pris.ppt" / "dedans");
    expectError([this] { store.save(Presentation(), u"C:\\pris.ppt"); }, u"C:\\pris.ppt");
    EXPECT_FALSE(std::filesystem::exists(folder / "pris.ppt.new"));
}

TEST_F(PresentationStoreTest, WritesTheOutlineAsRichText) {
    Presentation presentation;
    const auto slide = std::make_shared<Slide>();
    presentation.insert(slide, 0);
    const auto add = [&slide](PpPlaceholderType type, std::u16string_view text) {
        ShapePtr shape = newShape::placeholder(type, {});
        shape->text->replace({}, text);
        slide->add(shape, u"Rectangle");
        return shape;
    };
    const ShapePtr body = add(ppPlaceholderBody, u"Première\v{suite}\rSecond\\");
    body->text->formatParagraphs({20, 1}, [](ParagraphFormat& format) { format.indentLevel = 2; });
    add(ppPlaceholderTitle, u"Méthode – 1");
    store.saveOutline(presentation, u"C:\\plan.rtf");
    EXPECT_EQ(contents("plan.rtf"), "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0 Arial;}}\n"
                                    "\\pard\\li0\\b M\\u233?thode \\u8211? 1\\par\n"
                                    "\\pard\\li360\\b0 Premi\\u232?re\\line \\{suite\\}\\par\n"
                                    "\\pard\\li720\\b0 Second\\\\\\par\n"
                                    "}\n");
}

} // namespace simulator::presentation_file_tests
