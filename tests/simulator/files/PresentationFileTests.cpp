#include "automation/Text.h"
#include "host/world/TemporaryFolder.h"
#include "simulator/document/LayoutTable.h"
#include "simulator/document/NewShape.h"
#include "simulator/document/SlideLayout.h"
#include "simulator/files/FilePresentationStore.h"
#include "simulator/files/WholeFile.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/drawing/Anchor.h"
#include "simulator/files/powerpoint/DocumentReader.h"
#include "simulator/files/powerpoint/DocumentWriter.h"
#include "tests/simulator/files/RichPresentation.h"
#include "tests/support/Errors.h"

#include <gtest/gtest.h>

#include <fstream>

namespace simulator::presentation_file_tests {

using file_tests::richPresentation;
using file_tests::richRectangle;

void expectSame(const std::vector<ShapePtr>& left, const std::vector<ShapePtr>& right, const Slide& slide) {
    ASSERT_EQ(left.size(), right.size());
    for (std::size_t i = 0; i < left.size(); ++i) {
        const Shape& a = *left[i];
        const Shape& b = *right[i];
        const auto plain = [](const Shape& shape) {
            return std::tie(shape.id, shape.name, shape.type, shape.autoShapeType, shape.rotation, shape.horizontalFlip,
                            shape.verticalFlip, shape.visible, shape.lockAspectRatio, shape.alternativeText, shape.tags,
                            shape.fill, shape.line, shape.shadow, shape.threeD, shape.text, shape.textEffect,
                            shape.connector, shape.table, shape.placeholder, shape.nodes, shape.closed,
                            shape.formerGroup);
        };
        EXPECT_TRUE(plain(a) == plain(b)) << automation::toUtf8(a.name);
        EXPECT_EQ(a.frame(), b.frame()) << automation::toUtf8(a.name);
        EXPECT_EQ(b.slide.lock().get(), &slide);
        expectSame(a.items(), b.items(), slide);
    }
}

TEST(PresentationFile, CarriesTheCoordinatesOfAGroupToItsSlide) {
    const drawing::Mapping mapping({10, 20, 110, 220}, {50, 60, 250, 160});
    const drawing::Edges edges = mapping.onSlide({30, 60, 60, 120});
    EXPECT_EQ((std::array{edges.left, edges.top, edges.right, edges.bottom}), (std::array{90.0, 80.0, 150.0, 110.0}));
}

TEST(PresentationFile, KeepsEverythingOfADocument) {
    const PresentationPtr written = richPresentation();
    const PresentationPtr read = powerpoint::readPresentation(powerpoint::writePresentation(*written));
    EXPECT_EQ(read->snapToGrid, written->snapToGrid);
    EXPECT_EQ(read->gridDistance, written->gridDistance);
    EXPECT_EQ(read->slideWidth, written->slideWidth);
    EXPECT_EQ(read->slideHeight, written->slideHeight);
    EXPECT_EQ(std::pair(read->notesWidth, read->notesHeight), std::pair(540.0F, 720.0F));
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

/// What a presentation says of itself and of its slides, beside their shapes.
void expectSame(const Presentation& left, const Presentation& right) {
    const auto plain = [](const Presentation& each) {
        return std::tie(each.slideWidth, each.slideHeight, each.onSlides, each.onPages, each.areOnTitleSlides,
                        each.slideShow, each.colors, each.tags, each.snapToGrid, each.gridDistance);
    };
    EXPECT_TRUE(plain(left) == plain(right));
    ASSERT_EQ(left.slides().size(), right.slides().size());
    for (std::size_t i = 0; i < left.slides().size(); ++i) {
        const Slide& a = *left.slides()[i];
        const Slide& b = *right.slides()[i];
        const auto ofSlide = [](const Slide& each) {
            return std::tie(each.id, each.name, each.layout, each.tags, each.transition, each.headersFooters,
                            each.followsMasterBackground, each.displaysMasterShapes);
        };
        EXPECT_TRUE(ofSlide(a) == ofSlide(b)) << i;
        expectSame(a.shapes(), b.shapes(), b);
    }
}

TEST(PresentationFile, KeepsEveryKind) {
    const PresentationPtr presentation = file_tests::everyKind();
    expectSame(*presentation, *powerpoint::readPresentation(powerpoint::writePresentation(*presentation)));
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

/// Each shape of a file takes over what another one looks like.
TEST(PresentationFile, WritesEveryChangeOverWhatWasRead) {
    const PresentationPtr presentation =
        powerpoint::readPresentation(powerpoint::writePresentation(*file_tests::everyKind()));
    Slide& slide = *presentation->slides().front();
    std::int32_t number = 0;
    for (const ShapePtr& shape : slide.shapes()) {
        shape->text->replace({0, shape->text->text().size()}, {});
        file_tests::formatByNumber(*shape, 3 * ++number % 137);
        shape->setFrame(file_tests::placeOnGrid(number));
    }
    presentation->slideShow = {};
    presentation->onSlides = presentation->onPages = {};
    presentation->areOnTitleSlides = true;
    presentation->slides()[1]->displaysMasterShapes = false;
    for (std::size_t i = 0; i + 1 < presentation->slides().size(); i += 2) {
        std::swap(presentation->slides()[i]->transition, presentation->slides()[i + 1]->transition);
        std::swap(presentation->slides()[i]->name, presentation->slides()[i + 1]->name);
    }
    expectSame(*presentation, *powerpoint::readPresentation(powerpoint::writePresentation(*presentation)));
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
        slide->add(shape);
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
