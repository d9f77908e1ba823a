#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

/// TextEffectFormat: the text of a WordArt object. Every member raises an invalid request for any other shape.
class TextEffectFormatObject final : public NodeSetObject<Shape> {
public:
    TextEffectFormatObject(SessionPtr session, ShapeSet shapes) noexcept
        : NodeSetObject(std::move(session), std::move(shapes)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::u16string text() const;
    void setText(const std::u16string& text);
    [[nodiscard]] std::u16string fontName() const;
    void setFontName(const std::u16string& fontName);
    /// Points.
    [[nodiscard]] float fontSize() const;
    void setFontSize(float points);
    [[nodiscard]] MsoTriState fontBold() const;
    void setFontBold(MsoTriState bold);
    [[nodiscard]] MsoTriState fontItalic() const;
    void setFontItalic(MsoTriState italic);
    /// 0 (msoTextEffect1) to 29.
    [[nodiscard]] std::int32_t presetTextEffect() const;
    void setPresetTextEffect(std::int32_t preset);

private:
    template <typename T, typename Part> [[nodiscard]] T read(T mixed, const Part& part) const;
    template <typename Change> void write(const Change& change) const;
};

} // namespace simulator
