#pragma once

#include "simulator/objects/ColorFormatObject.h"
#include "simulator/objects/NodeSet.h"

#include <type_traits>

namespace simulator {

template <typename Format> [[nodiscard]] Format& formatOf(Shape& shape, Format Shape::*part) {
    return shape.*part;
}

/// A format that not every shape has; raises an invalid request for a shape without it.
[[nodiscard]] inline TextEffect& formatOf(Shape& shape, std::optional<TextEffect> Shape::*part) {
    if (!(shape.*part)) {
        errors::invalidRequest(u"TextEffectFormat (membre inconnu)", u"La forme n'est pas un objet WordArt.");
    }
    return *(shape.*part);
}

/// The type of what a pointer to a member points to.
template <typename Class, typename Value> Value valueOf(Value Class::*);

/// The object that stands for a shape, or for a range of shapes.
[[nodiscard]] automation::ObjectPtr objectOf(const ProcessPtr& process, const ShapeSet& shapes);

/// A format of some shapes: what `part` is in each. Its plain properties are read and written by the members of that.
template <auto part> class ShapeFormatObject : public NodeSetObject<Shape> {
public:
    /// The format of shapes; the items of groups may stand for those in `shapes`.
    ShapeFormatObject(ProcessPtr process, ShapeSet shapes, ShapeSet bearers)
        : NodeSetObject(std::move(process), std::move(shapes)), bearers_(std::move(bearers)) {}
    ShapeFormatObject(ProcessPtr process, const ShapeSet& shapes)
        : ShapeFormatObject(std::move(process), shapes, shapes) {}

    /// The shape, or the range of shapes.
    [[nodiscard]] automation::ObjectPtr owner() const override { return objectOf(process(), bearers_); }

    /// The value of a property that all shapes share, or what stands for different ones: -2, `mixedLength`, no text.
    template <auto property> [[nodiscard]] auto get() const {
        using Value = decltype(valueOf(property));
        const auto read = [](Shape& shape) { return formatOf(shape, part).*property; };
        if constexpr (std::is_same_v<Value, bool>) {
            return nodes().common(msoTriStateMixed, [&](Shape& shape) { return triState(read(shape)); });
        } else if constexpr (std::is_same_v<Value, float>) {
            return nodes().common(mixedLength, read);
        } else if constexpr (std::is_class_v<Value>) {
            return nodes().common(Value(), read);
        } else {
            return nodes().common(static_cast<Value>(-2), read);
        }
    }

    /// Gives a property of all shapes a value.
    template <auto property> void set(const decltype(valueOf(property))& value) {
        nodes().change([&value](Shape& shape) { formatOf(shape, part).*property = value; });
    }
    /// The same for yes and no: any value but msoFalse means yes.
    template <auto property> void turn(MsoTriState on) { set<property>(on != msoFalse); }

    /// A colour: it reads that of the first shape and writes that of all.
    template <auto property> [[nodiscard]] std::shared_ptr<ColorFormatObject> color() const {
        return std::make_shared<ColorFormatObject>(
            process(), self(), [shapes = nodes()] { return formatOf(*shapes.first(), part).*property; },
            [shapes = nodes()](Color color) {
                shapes.change([&color](Shape& shape) { formatOf(shape, part).*property = color; });
            },
            [shapes = nodes()] { return schemeOf(*shapes.first()); });
    }

private:
    ShapeSet bearers_;
};

} // namespace simulator
