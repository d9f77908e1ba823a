#pragma once

#include "simulator/objects/ColorFormatObject.h"
#include "simulator/objects/TextPart.h"
#include "simulator/objects/TriState.h"

namespace simulator {

/// Font: how the characters of a range look. Members raise `errors::gone` where the shape is gone.
class FontObject final : public PowerPointObject {
public:
    static constexpr int raised = 1;
    static constexpr int lowered = -1;

    FontObject(ProcessPtr process, TextPart part);

    [[nodiscard]] const automation::MemberTable& members() const override;

    /// Empty where the characters differ.
    [[nodiscard]] std::u16string name() const;
    void setName(const std::u16string& name);
    /// Points; -2 where the characters differ.
    [[nodiscard]] float size() const;
    /// Raises an invalid request outside 1 to 4000 points.
    void setSize(float points);
    /// How far the characters stand above the line, as a share of their size; -2 where they differ.
    [[nodiscard]] float baselineOffset() const;
    /// Raises an invalid request outside -1 to 1.
    void setBaselineOffset(float share);
    /// Whether the characters stand below the line, or above it; mixed where they differ.
    template <int way> [[nodiscard]] MsoTriState isRaised() const {
        const auto share = part_.common(&CharacterFormat::baselineOffset);
        return triState(share ? std::optional(*share * static_cast<float>(way) > 0) : std::nullopt);
    }
    /// Puts them a quarter of their size below the line, or three tenths above it; msoFalse puts back what stands
    /// there.
    template <int way> void raise(MsoTriState on) {
        constexpr float share = way == raised ? 0.3F : -0.25F;
        if (on != msoFalse || isRaised<way>() != msoFalse) {
            setBaselineOffset(on != msoFalse ? share : 0);
        }
    }
    /// Mixed where the characters differ.
    template <bool CharacterFormat::*property> [[nodiscard]] MsoTriState style() const {
        return triState(part_.common(property));
    }
    /// Any value but msoFalse means yes.
    template <bool CharacterFormat::*property> void setStyle(MsoTriState on) { part_.change(property, on != msoFalse); }
    /// The colour of the range's first character, read at the time of the call; written to the whole range. It follows
    /// its characters while the text changes; once they are gone it answers with their last colour, and writing it
    /// raises an invalid request.
    [[nodiscard]] std::shared_ptr<ColorFormatObject> color() const;

    /// The text range.
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    TextPart part_;
};

} // namespace simulator
