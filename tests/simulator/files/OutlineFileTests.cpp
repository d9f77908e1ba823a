#include "simulator/document/SlideLayout.h"
#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/compound/CompoundReader.h"
#include "simulator/files/compound/CompoundWriter.h"
#include "simulator/files/powerpoint/DocumentReader.h"
#include "simulator/files/powerpoint/DocumentWriter.h"
#include "simulator/files/powerpoint/PersistReader.h"
#include "simulator/files/powerpoint/Streams.h"
#include "simulator/files/records/RecordTypes.h"
#include "simulator/files/text/TextRecords.h"
#include "simulator/files/text/TextStyles.h"

#include <gtest/gtest.h>

namespace simulator::powerpoint::outline_file_tests {

using records::Record;
namespace type = records::type;

std::string number(std::uint32_t value) {
    return files::ByteWriter().write<std::uint32_t>(value).take();
}

/// Appends objects to a file's stream as a further edit, in the way of a quick save.
std::string edited(const std::string& file, const std::vector<PersistObject>& changed) {
    compound::Storage storage = compound::read(file);
    std::string stream = storage.stream(documentStream)->bytes;
    std::string currentUser = storage.stream(currentUserStream)->bytes;
    const std::uint32_t before = files::numberAt(currentUser, lastEditPlace);
    files::ByteWriter directory;
    for (const PersistObject& each : changed) {
        directory.write<std::uint32_t>(each.id | (1U << persistIdBits));
        directory.write<std::uint32_t>(static_cast<std::uint32_t>(stream.size()));
        records::append(stream, each.record);
    }
    Record edit = readObjects(file)->userEdit;
    files::putNumber(edit.data, userEdit::editBefore, before);
    files::putNumber(edit.data, userEdit::directory, static_cast<std::uint32_t>(stream.size()));
    records::append(stream, Record::atom(type::PersistDirectoryAtom, directory.take()));
    files::putNumber(currentUser, lastEditPlace, static_cast<std::uint32_t>(stream.size()));
    records::append(stream, edit);
    storage.put(documentStream, stream);
    storage.put(currentUserStream, currentUser);
    return compound::write(storage);
}

Record& titleIn(Record& slide) {
    return slide.find(type::Drawing)->find(type::ArtDrawing)->find(type::ArtShapeGroup)->children.at(1);
}

/// A file in which PowerPoint itself would have put the title of its slide: into the outline.
std::string withTitleInOutline() {
    const auto presentation = std::make_shared<Presentation>();
    const auto slide = std::make_shared<Slide>();
    presentation->insert(slide, 0);
    layOut(*slide, *findLayout(ppLayoutText));
    slide->shapes()[0]->text->replace({}, u"Faire le plan");
    slide->shapes()[0]->text->format({0, 5}, [](CharacterFormat& format) { format.size = 60; });
    const std::string file = writePresentation(*presentation);

    const auto origin = readObjects(file);
    PersistObject document = origin->objects.all().front();
    PersistObject last = origin->objects.all().back();
    Record& box = *titleIn(last.record).find(type::ArtClientTextbox);
    Record& list = *document.record.find(type::SlideListWithText, slideList::slides);
    list.children.insert(list.children.end(), box.children.begin(), box.children.end());
    files::putNumber(list.children.front().data, SlideEntry::textCountPlace, 1);
    list.find(type::TextHeaderAtom)->data = number(text::kind::CenterTitle);
    list.children.push_back(Record::atom(type::TextRulerAtom, number(0)));
    box.children = {Record::atom(type::OutlineTextRefAtom, number(0)), Record::atom(0x2BAD, "unknown")};
    return edited(file, {document, last});
}

TEST(OutlineFile, TextsOfTheOutlineAreReadAndGoBackThere) {
    const std::string file = withTitleInOutline();
    const PresentationPtr presentation = readPresentation(file);
    TextStory& title = *presentation->slides().front()->shapes()[0]->text;
    EXPECT_EQ(title.text(), u"Faire le plan");
    EXPECT_EQ(title.formatAt(0).size, 60);
    EXPECT_EQ(title.formatAt(6).size, 44);

    const std::string saved = writePresentation(*presentation);
    EXPECT_EQ(writePresentation(*readPresentation(saved)), saved);
    title.replace({0, 5}, u"Créer");
    const std::string changed = writePresentation(*presentation);
    const auto origin = readObjects(changed);
    Record slide = origin->objects.all().back().record;
    const std::vector<Record>& box = titleIn(slide).find(type::ArtClientTextbox)->children;
    ASSERT_EQ(box.size(), 2U);
    EXPECT_TRUE(box[0].is(type::OutlineTextRefAtom) && box[1].is(0x2BAD));
    const Record& list = *origin->objects.find(origin->document)->find(type::SlideListWithText, slideList::slides);
    EXPECT_EQ(files::utf16Text(list.demand(type::TextCharsAtom).data), u"Créer le plan");
    EXPECT_TRUE(list.children.back().is(type::TextRulerAtom));
    EXPECT_EQ(text::kindOf(list.children), std::uint32_t{text::kind::CenterTitle});
    const PresentationPtr again = readPresentation(changed);
    EXPECT_EQ(*again->slides().front()->shapes()[0]->text, title);
}

/// Copies share what they were read from, and yet each has a text of its own.
TEST(OutlineFile, CopiesAndDeletedShapesKeepTheOutlineInOrder) {
    const PresentationPtr presentation = readPresentation(withTitleInOutline());
    const SlidePtr slide = presentation->slides().front();
    presentation->insert(slide->clone(), 1);
    slide->add(slide->shapes()[0]->clone());
    slide->shapes().back()->text->replace({0, 5}, u"Deux");
    presentation->slides()[1]->remove(presentation->slides()[1]->shapes()[0]);
    const PresentationPtr read = readPresentation(writePresentation(*presentation));
    const auto textsOf = [](const Slide& of) {
        std::vector<std::u16string> texts;
        for (const ShapePtr& shape : of.shapes()) {
            texts.push_back(shape->text->text());
        }
        return texts;
    };
    ASSERT_EQ(read->slides().size(), 2U);
    EXPECT_EQ(textsOf(*read->slides()[0]), (std::vector<std::u16string>{u"Faire le plan", u"", u"Deux le plan"}));
    EXPECT_EQ(textsOf(*read->slides()[1]), (std::vector<std::u16string>{u""}));
}

} // namespace simulator::powerpoint::outline_file_tests
