#pragma once

#include "simulator/objects/TextPart.h"

namespace simulator {

class BulletFormatObject;

/// ParagraphFormat: how the paragraphs that a range touches stand. A property in which they differ reads as -2. Members
/// raise `errors::gone` where the shape is gone.
class ParagraphFormatObject final : public PowerPointObject {
public:
    ParagraphFormatObject(ProcessPtr process, TextPart part);

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] PpParagraphAlignment alignment() const;
    /// Raises an invalid request for a value that is no alignment.
    void setAlignment(PpParagraphAlignment alignment);
    [[nodiscard]] std::shared_ptr<BulletFormatObject> bullet() const;
    /// In lines.
    template <float ParagraphFormat::*which> [[nodiscard]] float space() const {
        return part_.common(which).value_or(mixedSpace);
    }
    /// Raises an invalid request for a negative space.
    template <float ParagraphFormat::*which> void setSpace(float lines) {
        errors::demandWithin(lines, 0.0F, largestSpace, u"ParagraphFormat.Space");
        part_.change(which, lines);
    }

    /// The text range.
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    static constexpr float mixedSpace = -2;
    static constexpr float largestSpace = 132; ///< lines

    TextPart part_;
};

} // namespace simulator
