#include "simulator/objects/ParagraphFormatObject.h"

#include "simulator/objects/BulletFormatObject.h"
#include "simulator/objects/TextRangeObject.h"

namespace simulator {

namespace {

constexpr float mixedSpace = -2;
constexpr float largestSpace = 132; ///< lines

} // namespace

ParagraphFormatObject::ParagraphFormatObject(SessionPtr session, TextPart part) noexcept
    : PowerPointObject(std::move(session)), part_(std::move(part)) {}

const automation::MemberTable& ParagraphFormatObject::members() const {
    using automation::property;
    using This = ParagraphFormatObject;
    using Format = ParagraphFormat;
    static const automation::MemberTable table{
        property<&This::parent>(u"Parent"),
        property<&This::alignment, &This::setAlignment>(u"Alignment"),
        property<&This::bullet>(u"Bullet"),
        property<&This::space<&Format::spaceBefore>, &This::setSpace<&Format::spaceBefore>>(u"SpaceBefore"),
        property<&This::space<&Format::spaceAfter>, &This::setSpace<&Format::spaceAfter>>(u"SpaceAfter"),
        property<&This::space<&Format::spaceWithin>, &This::setSpace<&Format::spaceWithin>>(u"SpaceWithin"),
    };
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
    return std::make_shared<BulletFormatObject>(session(), part_);
}

float ParagraphFormatObject::spaceOf(float ParagraphFormat::*space) const {
    return part_.common(space).value_or(mixedSpace);
}

void ParagraphFormatObject::changeSpace(float ParagraphFormat::*space, float lines) {
    errors::demandWithin(lines, 0.0F, largestSpace, u"ParagraphFormat.Space");
    part_.change(space, lines);
}

automation::ObjectPtr ParagraphFormatObject::parent() const {
    return std::make_shared<TextRangeObject>(session(), part_.reference(), part_.span);
}

} // namespace simulator
