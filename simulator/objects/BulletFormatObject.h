#pragma once

#include "simulator/objects/TextPart.h"

namespace simulator {

/// BulletFormat: the bullets of the paragraphs that a range touches. A property in which they differ reads as -2.
/// Members raise `errors::gone` where the shape is gone.
class BulletFormatObject final : public PowerPointObject {
public:
    BulletFormatObject(ProcessPtr process, TextPart part);

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] MsoTriState visible() const;
    void setVisible(MsoTriState visible);
    [[nodiscard]] PpBulletType type() const;
    /// Raises an invalid request for a value that is no type of bullet.
    void setType(PpBulletType type);
    /// The character's code.
    [[nodiscard]] std::int32_t character() const;
    void setCharacter(std::int32_t character);

    /// The paragraph format.
    [[nodiscard]] automation::ObjectPtr owner() const override;

private:
    TextPart part_;
};

} // namespace simulator
