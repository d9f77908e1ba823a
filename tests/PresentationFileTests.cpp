#include "automation/Text.h"
#include "simulator/document/NewShape.h"
#include "simulator/files/FilePresentationStore.h"
#include "simulator/files/JsonPresentationFormat.h"
#include "tests/Errors.h"
#include "tests/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace simulator {
namespace {

constexpr auto requestRefused = static_cast<std::int32_t>(0x80048240U);

/// Every member of a shape with a value that it does not have by itself.
ShapePtr richRectangle() {
    ShapePtr shape = newShape::autoShape(5, {10.125F, 20.5F, 300, 200});
    shape->name = u"Étiquette \U0001F600";
    shape->rotation = 0.1F;
    shape->horizontalFlip = shape->verticalFlip = shape->lockAspectRatio = true;
    shape->visible = false;
    shape->alternativeText = u"décrite";
    shape->formerGroup = 7;
    shape->tags.add(u"Identite", u"ZOR1");
    shape->tags.add(u"Vide", u"");
    shape->fill = {false, msoFillGradient, Color::direct(1), Color::of(ppAccent3), 1.0F / 3, 2, 3, 4};
    shape->line = {false, 2.25F, Color::direct(0xABCDEF), 4};
    shape->shadow = {true, 6, Color::direct(3), -2.5F, 1.1F, true};
    shape->threeD = {true, 11, 72.3F};
    TextStory& text = *shape->text;
    text.replace({}, u"Un été\và part\r\rFin\r");
    text.format({3, 4}, [](CharacterFormat& format) {
        format = {u"Comic Sans MS", 13.7F, true, true, true, Color::direct(9)};
    });
    text.formatParagraphs({16, 0}, [](ParagraphFormat& format) {
        format = {ppAlignJustify, 4, ppBulletNumbered, 0x25A0, 0.9F, 0.2F, 0.3F};
    });
    text.layout = {ppAutoSizeShapeToFitText, false, 1.1F, 2.2F, 3.3F, 4.4F, msoTextOrientationUpward, msoAnchorBottom};
    return shape;
}

PresentationPtr richPresentation() {
    auto presentation = std::make_shared<Presentation>();
    presentation->snapToGrid = false;
    presentation->slideWidth = 793.7F;
    presentation->slideHeight = 1122.5F;
    presentation->colors.colors[3] = 0x7F8081;
    presentation->tags.add(u"Cours", u"Méthodologie");
    for (const PpSlideLayout layout : {ppLayoutTitle, ppLayoutBlank}) {
        const auto slide = std::make_shared<Slide>();
        slide->layout = layout;
        slide->tags.add(u"Identite", u"ZOR9");
        presentation->insert(slide, 0);
    }
    Slide& slide = *presentation->slides().front();
    slide.add(richRectangle(), u"Rectangle");
    slide.add(newShape::freeform({{0, 0}, {50, 1.125F, true}, {60, 70}, {0, 0}}), u"Freeform");
    slide.add(newShape::wordArt({u"Bravo\n!", u"Impact", 44.5F, true, true, 12}, 5, 6), u"WordArt");
    slide.add(newShape::placeholder(ppPlaceholderSubtitle, {1, 2, 3, 4}), u"Rectangle");
    const auto inner = std::make_shared<Shape>();
    const auto outer = std::make_shared<Shape>();
    inner->type = outer->type = msoGroup;
    Shape::adopt(inner, {richRectangle(), newShape::line({9, 9}, {1, 2})});
    Shape::adopt(outer, {inner, newShape::textBox({400, 300, 20, 20})});
    slide.add(outer, u"Group");
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

TEST(PresentationFormat, KeepsEverythingOfADocument) {
    const JsonPresentationFormat format;
    const PresentationPtr written = richPresentation();
    const PresentationPtr read = format.load(format.save(*written));
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
    EXPECT_EQ(format.save(*read), format.save(*written));
}

TEST(PresentationFormat, KeepsHalvesOfCharacters) {
    const JsonPresentationFormat format;
    Presentation presentation;
    const std::u16string torn{u'a', char16_t{0xD83D}, u'b'};
    presentation.tags.add(u"Moitié", torn);
    EXPECT_EQ(format.load(format.save(presentation))->tags.value(u"Moitié"), torn);
}

TEST(PresentationFormat, RefusesDamagedFiles) {
    const JsonPresentationFormat format;
    const std::string sound = format.save(*richPresentation());
    const std::vector<std::string> wholes{"", "PK", "null", "[]", "{}", sound.substr(0, sound.size() / 2), sound + "}"};
    for (const std::string& bytes : wholes) {
        EXPECT_THROW((void)format.load(bytes), DamagedPresentation) << bytes.substr(0, 20);
    }
    const std::vector<std::pair<std::string, std::string>> changes{
        {"\"slideWidth\": 7", "\"slideWidth\": \"7"},
        {"\"slideHeight\"", "\"hauteur\""},
        {"\"snapToGrid\": false", "\"snapToGrid\": 0"},
        {"\"scheme\": 8", "\"scheme\": 9"},
        {"\"length\": 3", "\"length\": 4"},
        {"\"length\": 3", "\"length\": -3"},
        {"\"length\": 3", "\"length\": 1e300"},
        {"\"id\": 257", "\"id\": 4294967297"},
        {"\"id\": 257", "\"id\": 18446744073709551615"},
        {"8355969,", ""},
        {"\"type\": 6,", "\"type\": 1,"},
        {"\\r\\rFin", "\\rFin"},
    };
    for (const auto& [from, to] : changes) {
        std::string bytes = sound;
        const std::size_t place = bytes.rfind(from);
        ASSERT_NE(place, std::string::npos) << from;
        bytes.replace(place, from.size(), to);
        EXPECT_THROW((void)format.load(bytes), DamagedPresentation) << from << " -> " << to;
    }
}

/// A store over a folder of its own.
class PresentationStoreTest : public testing::Test {
protected:
    std::string contents(const std::string& name) const {
        std::ifstream stream(folder / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
    }
    /// Demands PowerPoint's own error, and that it names the file.
    template <typename Act> static void expectError(const Act& act, std::u16string_view path) {
        const auto error = errorOf(act);
        ASSERT_TRUE(error) << automation::toUtf8(path);
        EXPECT_EQ(error->number(), requestRefused);
        EXPECT_NE(error->description().find(path), std::u16string::npos) << error->what();
    }

    tests::TemporaryFolder temporary;
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
        const ShapePtr shape = newShape::placeholder(type, {});
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

} // namespace
} // namespace simulator
