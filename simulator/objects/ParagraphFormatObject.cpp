#include "simulator/objects/ParagraphFormatObject.h"

#include "simulator/objects/BulletFormatObject.h"
#include "simulator/objects/TextRangeObject.h"

namespace simulator {

ParagraphFormatObject::ParagraphFormatObject(ProcessPtr process, TextPart part)
    : PowerPointObject(std::move(process)), part_(std::move(part)) {}

const automation::MemberTable& ParagraphFormatObject::members() const {
    using automation::property;
    using This = ParagraphFormatObject;
    using Format = ParagraphFormat;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::alignment, &This::setAlignment>(u"Alignment"),
        property<&This::bullet>(u"Bullet"),
        property<&This::space<&Format::spaceBefore>, &This::setSpace<&Format::spaceBefore>>(u"SpaceBefore"),
        property<&This::space<&Format::spaceAfter>, &This::setSpace<&Format::spaceAfter>>(u"SpaceAfter"),
        property<&This::space<&Format::spaceWithin>, &This::setSpace<&Format::spaceWithin>>(u"SpaceWithin"),
    });
    return table;
}

PpParagraphAlignment ParagraphFormatObject::alignment() const {
    return part_.common(&ParagraphFormat::alignment).value_or(ppAlignmentMixed);
}

void ParagraphFormatObject::setAlignment(PpParagraphAlignment alignment) {
    errors::demandWithin(alignment, ppAlignLeft, ppAlignDistribute, u"ParagraphFormat.Alignment");
    part_.change(&ParagraphFormat::alignment, alignment);
}

std::shared_ptr<BulletFormatObject> ParagraphFormatObject::bullet() const {
    return std::make_shared<BulletFormatObject>(process(), part_);
}

automation::ObjectPtr ParagraphFormatObject::owner() const {
    return std::make_shared<TextRangeObject>(process(), part_);
}

} // namespace simulator
