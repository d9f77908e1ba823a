#include "simulator/objects/BulletFormatObject.h"

#include "simulator/objects/ParagraphFormatObject.h"
#include "simulator/objects/TriState.h"

namespace simulator {

namespace {

constexpr std::int32_t mixedCharacter = -2;

} // namespace

BulletFormatObject::BulletFormatObject(ProcessPtr process, TextPart part)
    : PowerPointObject(std::move(process)), part_(std::move(part)) {}

const automation::MemberTable& BulletFormatObject::members() const {
    using automation::property;
    using This = BulletFormatObject;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::visible, &This::setVisible>(u"Visible"),
        property<&This::type, &This::setType>(u"Type"),
        property<&This::character, &This::setCharacter>(u"Character"),
    });
    return table;
}

MsoTriState BulletFormatObject::visible() const {
    return part_.read([](const TextStory& story, Span span) {
        const auto paragraphs = story.paragraphFormats(span);
        const auto isShown = [](const ParagraphFormat& paragraph) { return paragraph.bullet != ppBulletNone; };
        const bool all = std::all_of(paragraphs.begin(), paragraphs.end(), isShown);
        const bool some = std::any_of(paragraphs.begin(), paragraphs.end(), isShown);
        return triState(all == some ? std::optional(all) : std::nullopt);
    });
}

void BulletFormatObject::setVisible(MsoTriState visible) {
    part_.edit([visible](TextStory& story, Span span) {
        story.formatParagraphs(span, [visible](ParagraphFormat& paragraph) {
            if (visible == msoFalse) {
                paragraph.bullet = ppBulletNone;
            } else if (paragraph.bullet == ppBulletNone) {
                paragraph.bullet = ppBulletUnnumbered;
            }
        });
    });
}

PpBulletType BulletFormatObject::type() const {
    return part_.common(&ParagraphFormat::bullet).value_or(ppBulletMixed);
}

void BulletFormatObject::setType(PpBulletType type) {
    errors::demandWithin(type, ppBulletNone, ppBulletNumbered, u"BulletFormat.Type");
    part_.change(&ParagraphFormat::bullet, type);
}

std::int32_t BulletFormatObject::character() const {
    return part_.common(&ParagraphFormat::bulletCharacter).value_or(mixedCharacter);
}

void BulletFormatObject::setCharacter(std::int32_t character) {
    errors::demandWithin(character, 0, 0xFFFF, u"BulletFormat.Character");
    part_.change(&ParagraphFormat::bulletCharacter, character);
}

automation::ObjectPtr BulletFormatObject::owner() const {
    return std::make_shared<ParagraphFormatObject>(process(), part_);
}

} // namespace simulator
