#include "simulator/objects/FontObject.h"

#include "simulator/objects/TextRangeObject.h"

namespace simulator {

namespace {

constexpr float mixedSize = -2;
constexpr float largestSize = 4000;

} // namespace

FontObject::FontObject(ProcessPtr process, TextPart part)
    : PowerPointObject(std::move(process)), part_(std::move(part)) {}

const automation::MemberTable& FontObject::members() const {
    using automation::property;
    using This = FontObject;
    using Format = CharacterFormat;
    static const automation::MemberTable table = commonMembers().with({
        property<&This::color>(u"Color"),
        property<&This::style<&Format::bold>, &This::setStyle<&Format::bold>>(u"Bold"),
        property<&This::style<&Format::italic>, &This::setStyle<&Format::italic>>(u"Italic"),
        property<&This::style<&Format::underline>, &This::setStyle<&Format::underline>>(u"Underline"),
        property<&This::style<&Format::shadow>, &This::setStyle<&Format::shadow>>(u"Shadow"),
        property<&This::style<&Format::emboss>, &This::setStyle<&Format::emboss>>(u"Emboss"),
        property<&This::style<&Format::autoRotateNumbers>, &This::setStyle<&Format::autoRotateNumbers>>(
            u"AutoRotateNumbers"),
        property<&This::baselineOffset, &This::setBaselineOffset>(u"BaselineOffset"),
        property<&This::isRaised<lowered>, &This::raise<lowered>>(u"Subscript"),
        property<&This::isRaised<raised>, &This::raise<raised>>(u"Superscript"),
        property<&This::size, &This::setSize>(u"Size"),
        property<&This::name, &This::setName>(u"Name"),
    });
    return table;
}

std::u16string FontObject::name() const {
    return part_.common(&CharacterFormat::fontName).value_or(std::u16string());
}

void FontObject::setName(const std::u16string& name) {
    if (name.empty()) {
        errors::invalidValue(u"Font.Name");
    }
    part_.change(&CharacterFormat::fontName, name);
}

float FontObject::size() const {
    return part_.common(&CharacterFormat::size).value_or(mixedSize);
}

void FontObject::setSize(float points) {
    errors::demandWithin(points, 1.0F, largestSize, u"Font.Size");
    part_.change(&CharacterFormat::size, points);
}

float FontObject::baselineOffset() const {
    return part_.common(&CharacterFormat::baselineOffset).value_or(mixedSize);
}

void FontObject::setBaselineOffset(float share) {
    errors::demandWithin(share, -1.0F, 1.0F, u"Font.BaselineOffset");
    part_.change(&CharacterFormat::baselineOffset, share);
}

std::shared_ptr<ColorFormatObject> FontObject::color() const {
    const TextPart part = part_;
    const auto anchor = part_.anchored();
    // Between two characters there is nothing to follow: the colour is that of the text to come there.
    const auto gone = [anchor, isBetween = anchor->span.length == 0] { return anchor->span.length == 0 && !isBetween; };
    return std::make_shared<ColorFormatObject>(
        process(), self(),
        [part, anchor, gone] {
            return part.read([&](const TextStory& story, Span) {
                return (gone() ? anchor->format : story.formatAt(anchor->span.start)).color;
            });
        },
        [part, anchor, gone](Color color) {
            if (gone()) {
                errors::invalidRequest(u"ColorFormat", u"Le texte qui portait cette couleur n'existe plus.");
            }
            part.at(anchor->span).change(&CharacterFormat::color, color);
        },
        [part] { return schemeOf(*part.shape()); },
        [part, anchor] { return !part.at(anchor->span).common(&CharacterFormat::color); });
}

automation::ObjectPtr FontObject::owner() const {
    return std::make_shared<TextRangeObject>(process(), part_);
}

} // namespace simulator
