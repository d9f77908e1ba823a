#pragma once

#include "ppt/Text.h"

namespace ppt {

class Tags : public Facade<u"Tags"> {
public:
    using Facade::Facade;
    /// Empty where there is no such tag.
    [[nodiscard]] std::u16string Item(std::u16string_view name) const {
        return call<u"Item">(name).to<std::u16string>();
    }
    /// Replaces the value of a tag that exists.
    void Add(std::u16string_view name, std::u16string_view value) const { call<u"Add">(name, value); }
};

class FillFormat : public Facade<u"FillFormat"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Type() const { return get<u"Type">().to<std::int32_t>(); }
    [[nodiscard]] std::int32_t Visible() const { return get<u"Visible">().to<std::int32_t>(); }
    /// 0 opaque to 1 clear.
    [[nodiscard]] float Transparency() const { return get<u"Transparency">().to<float>(); }
    [[nodiscard]] ColorFormat ForeColor() const { return ColorFormat(get<u"ForeColor">()); }
    [[nodiscard]] ColorFormat BackColor() const { return ColorFormat(get<u"BackColor">()); }
};

class ShadowFormat : public Facade<u"ShadowFormat"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Visible() const { return get<u"Visible">().to<std::int32_t>(); }
};

class ThreeDFormat : public Facade<u"ThreeDFormat"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Visible() const { return get<u"Visible">().to<std::int32_t>(); }
    [[nodiscard]] std::int32_t PresetThreeDFormat() const { return get<u"PresetThreeDFormat">().to<std::int32_t>(); }
};

class PlaceholderFormat : public Facade<u"PlaceholderFormat"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Type() const { return get<u"Type">().to<std::int32_t>(); }
};

class GroupShapes;

/// Positions and sizes are single-precision points.
class Shape : public Facade<u"Shape"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Type() const { return get<u"Type">().to<std::int32_t>(); }
    [[nodiscard]] std::int32_t AutoShapeType() const { return get<u"AutoShapeType">().to<std::int32_t>(); }
    [[nodiscard]] float Left() const { return get<u"Left">().to<float>(); }
    [[nodiscard]] float Top() const { return get<u"Top">().to<float>(); }
    [[nodiscard]] float Width() const { return get<u"Width">().to<float>(); }
    [[nodiscard]] float Height() const { return get<u"Height">().to<float>(); }
    [[nodiscard]] std::int32_t HasTextFrame() const { return get<u"HasTextFrame">().to<std::int32_t>(); }
    [[nodiscard]] ppt::Tags Tags() const { return ppt::Tags(get<u"Tags">()); }
    [[nodiscard]] ppt::TextFrame TextFrame() const { return ppt::TextFrame(get<u"TextFrame">()); }
    [[nodiscard]] FillFormat Fill() const { return FillFormat(get<u"Fill">()); }
    [[nodiscard]] ShadowFormat Shadow() const { return ShadowFormat(get<u"Shadow">()); }
    [[nodiscard]] ThreeDFormat ThreeD() const { return ThreeDFormat(get<u"ThreeD">()); }
    [[nodiscard]] ppt::PlaceholderFormat PlaceholderFormat() const {
        return ppt::PlaceholderFormat(get<u"PlaceholderFormat">());
    }
    [[nodiscard]] GroupShapes GroupItems() const;
    void Select(MsoTriState replace) const { call<u"Select">(replace); }
};

class GroupShapes : public Facade<u"GroupShapes"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Count() const { return get<u"Count">().to<std::int32_t>(); }
    [[nodiscard]] Shape Item(const Index& index) const { return Shape(call<u"Item">(index)); }
};

inline GroupShapes Shape::GroupItems() const {
    return GroupShapes(get<u"GroupItems">());
}

class ShapeRange : public Facade<u"ShapeRange"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Count() const { return get<u"Count">().to<std::int32_t>(); }
    [[nodiscard]] Shape Item(const Index& index) const { return Shape(call<u"Item">(index)); }
};

class Shapes : public Facade<u"Shapes"> {
public:
    using Facade::Facade;
    [[nodiscard]] std::int32_t Count() const { return get<u"Count">().to<std::int32_t>(); }
    [[nodiscard]] Shape Item(const Index& index) const { return Shape(call<u"Item">(index)); }
};

} // namespace ppt
