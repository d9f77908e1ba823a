#include "simulator/objects/ShapeGeometry.h"

#include "simulator/document/TextFit.h"
#include "simulator/objects/TriState.h"

#include <cmath>

namespace simulator {

namespace {

float Frame::*otherSide(float Frame::*side) noexcept {
    return side == &Frame::width ? &Frame::height : &Frame::width;
}

float Frame::*edgeBefore(float Frame::*side) noexcept {
    return side == &Frame::width ? &Frame::left : &Frame::top;
}

/// Gives a side of a shape a length; its top left corner stays.
Frame resized(const Shape& shape, float Frame::*side, float points) noexcept {
    Frame frame = shape.frame();
    if (shape.lockAspectRatio && frame.*side != 0) {
        frame.*otherSide(side) *= points / frame.*side;
    }
    frame.*side = points;
    return frame;
}

/// Degrees from 0, and less than 360.
float turned(float degrees) noexcept {
    const float rest = std::fmod(degrees, 360.0F);
    return rest < 0 ? rest + 360.0F : rest + 0.0F;
}

} // namespace

const automation::MemberTable& ShapeGeometry::geometryMembers() {
    using automation::method;
    using automation::property;
    using This = ShapeGeometry;
    constexpr auto left = &Frame::left;
    constexpr auto top = &Frame::top;
    constexpr auto width = &Frame::width;
    constexpr auto height = &Frame::height;
    static const automation::MemberTable table = officeMembers().with({
        method<&This::flip>(u"Flip", u"FlipCmd"),
        method<&This::moveBy<left>>(u"IncrementLeft", u"Increment"),
        method<&This::incrementRotation>(u"IncrementRotation", u"Increment"),
        method<&This::moveBy<top>>(u"IncrementTop", u"Increment"),
        method<&This::scale<height>>(u"ScaleHeight", u"Factor RelativeToOriginalSize fScale"),
        method<&This::scale<width>>(u"ScaleWidth", u"Factor RelativeToOriginalSize fScale"),
        property<&This::length<height>, &This::resizeTo<height>>(u"Height"),
        property<&This::horizontalFlip>(u"HorizontalFlip"),
        property<&This::length<left>, &This::moveTo<left>>(u"Left"),
        property<&This::lockAspectRatio, &This::setLockAspectRatio>(u"LockAspectRatio"),
        property<&This::rotation, &This::setRotation>(u"Rotation"),
        property<&This::length<top>, &This::moveTo<top>>(u"Top"),
        property<&This::verticalFlip>(u"VerticalFlip"),
        property<&This::length<width>, &This::resizeTo<width>>(u"Width"),
    });
    return table;
}

float ShapeGeometry::rotation() const {
    return read(mixedLength, &Shape::rotation);
}

void ShapeGeometry::setRotation(float degrees) {
    turn([degrees](Shape& shape) { shape.turnTo(turned(degrees)); });
}

MsoTriState ShapeGeometry::lockAspectRatio() const {
    return readState(&Shape::lockAspectRatio);
}

void ShapeGeometry::setLockAspectRatio(MsoTriState locked) {
    nodes().change([locked](Shape& shape) { shape.lockAspectRatio = locked != msoFalse; });
}

MsoTriState ShapeGeometry::horizontalFlip() const {
    return readState(&Shape::horizontalFlip);
}

MsoTriState ShapeGeometry::verticalFlip() const {
    return readState(&Shape::verticalFlip);
}

void ShapeGeometry::incrementRotation(float degrees) {
    turn([degrees](Shape& shape) { shape.turnTo(turned(shape.rotation + degrees)); });
}

void ShapeGeometry::flip(MsoFlipCmd command) {
    errors::demandWithin(command, msoFlipHorizontal, msoFlipVertical, u"Shape.Flip");
    bool Shape::*const flag = command == msoFlipHorizontal ? &Shape::horizontalFlip : &Shape::verticalFlip;
    turn([flag](Shape& shape) { shape.*flag = !(shape.*flag); });
}

void ShapeGeometry::place(const std::function<void(Shape&)>& change) {
    refuse(u"Shape (membre inconnu)", u"La place d'une cellule est celle de sa ligne et de sa colonne.",
           [](const Shape& shape) { return shape.isInTable(); });
    nodes().change(change);
}

void ShapeGeometry::turn(const std::function<void(Shape&)>& change) {
    refuse(u"Shape (membre inconnu)", u"Un tableau ne peut pas être tourné.",
           [](const Shape& shape) { return shape.type == msoTable; });
    place(change);
}

MsoTriState ShapeGeometry::readState(bool Shape::*part) const {
    return nodes().common(msoTriStateMixed, [part](const Shape& shape) { return triState(shape.*part); });
}

float ShapeGeometry::readLength(float Frame::*part) const {
    return nodes().common(mixedLength, [part](const Shape& shape) { return shape.frame().*part; });
}

void ShapeGeometry::writeEdge(float Frame::*edge, float points) {
    place([edge, points](Shape& shape) {
        Frame frame = shape.frame();
        frame.*edge = points;
        shape.setFrame(frame);
    });
}

void ShapeGeometry::writeSide(float Frame::*side, float points) {
    if (points < 0) {
        errors::invalidValue(u"Shape (membre inconnu)");
    }
    place([side, points](Shape& shape) { resize(shape, resized(shape, side, points)); });
}

void ShapeGeometry::shiftEdge(float Frame::*edge, float points) {
    place([edge, points](Shape& shape) {
        Frame frame = shape.frame();
        frame.*edge += points;
        shape.setFrame(frame);
    });
}

void ShapeGeometry::scaleSide(float Frame::*side, float factor, MsoTriState relativeToOriginalSize,
                              std::optional<MsoScaleFrom> from) {
    const MsoScaleFrom fixed = from.value_or(msoScaleFromTopLeft);
    errors::demandWithin(fixed, msoScaleFromTopLeft, msoScaleFromBottomRight, u"Shape (membre inconnu)");
    if (relativeToOriginalSize != msoFalse || factor < 0) {
        errors::invalidValue(u"Shape (membre inconnu)");
    }
    place([side, factor, fixed](Shape& shape) {
        const float before = shape.frame().*side;
        Frame frame = resized(shape, side, before * factor);
        frame.*edgeBefore(side) -= (frame.*side - before) * static_cast<float>(fixed) / 2;
        resize(shape, frame);
    });
}

} // namespace simulator
