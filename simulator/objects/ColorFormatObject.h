#pragma once

#include "simulator/document/Color.h"
#include "simulator/objects/PowerPointObject.h"

#include <functional>

namespace simulator {

/// ColorFormat: a colour of whatever it was asked from, read and written where it stands.
class ColorFormatObject final : public PowerPointObject {
public:
    using Getter = std::function<Color()>;
    using Setter = std::function<void(Color)>;
    using Scheme = std::function<ColorScheme()>;
    using Mixture = std::function<bool()>;

    /// The functions raise `errors::gone` where what bears the colour is gone. `mixture` says whether there are several
    /// colours, of which the getter gives the first.
    ColorFormatObject(
        ProcessPtr process, automation::ObjectPtr owner, Getter getter, Setter setter, Scheme scheme,
        Mixture mixture = [] { return false; });

    [[nodiscard]] const automation::MemberTable& members() const override;

    /// What has the colour.
    [[nodiscard]] automation::ObjectPtr owner() const override { return owner_; }
    /// Red in the low byte; a colour of the scheme reads as the scheme has it.
    [[nodiscard]] std::int32_t rgb() const;
    /// Raises an invalid request for a value outside 0 to 0xFFFFFF.
    void setRgb(std::int32_t rgb);
    /// 0 for a colour that is not of the scheme, -2 for several colours.
    [[nodiscard]] PpColorSchemeIndex schemeColor() const;
    /// Raises an invalid request for a place outside 1 to 8.
    void setSchemeColor(PpColorSchemeIndex place);
    /// -2 for several colours.
    [[nodiscard]] MsoColorType type() const;

private:
    automation::ObjectPtr owner_;
    Getter getter_;
    Setter setter_;
    Scheme scheme_;
    Mixture mixture_;
};

/// The scheme that the colours of a shape are of.
[[nodiscard]] ColorScheme schemeOf(const Shape& shape);

} // namespace simulator
