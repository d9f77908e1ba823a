#pragma once

#include "simulator/objects/ColorFormatObject.h"
#include "simulator/objects/TextPart.h"
#include "simulator/objects/TriState.h"

namespace simulator {

/// Font: how the characters of a range look. Members raise `errors::gone` where the shape is gone.
class FontObject final : public PowerPointObject {
public:
    FontObject(SessionPtr session, TextPart part);

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
