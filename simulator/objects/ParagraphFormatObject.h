#pragma once

#include "simulator/objects/TextPart.h"

namespace simulator {

class BulletFormatObject;

/// ParagraphFormat: how the paragraphs that a range touches stand. A property in which they differ reads as -2. Members
/// raise `errors::gone` where the shape is gone.
class ParagraphFormatObject final : public PowerPointObject {
public:
    ParagraphFormatObject(SessionPtr session, TextPart part) noexcept;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] PpParagraphAlignment alignment() const;
    /// Raises an invalid request for a value that is no alignment.
    void setAlignment(PpParagraphAlignment alignment);
    [[nodiscard]] std::shared_ptr<BulletFormatObject> bullet() const;
    /// In lines.
    template <float ParagraphFormat::*which> [[nodiscard]] float space() const { return spaceOf(which); }
    /// Raises an invalid request for a negative space.
    template <float ParagraphFormat::*which> void setSpace(float lines) { changeSpace(which, lines); }

    /// The text range.
    [[nodiscard]] automation::ObjectPtr parent() const;

private:
    [[nodiscard]] float spaceOf(float ParagraphFormat::*space) const;
    void changeSpace(float ParagraphFormat::*space, float lines);

    TextPart part_;
};

} // namespace simulator
