#include "simulator/files/drawing/ExtrusionCodes.h"

#include "simulator/files/bytes/Tables.h"
#include "simulator/files/drawing/Codes.h"
#include "simulator/files/drawing/PropertyIds.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace simulator::drawing {

namespace {

/// What stands for a number of the object model, from 1.
template <typename Table> const auto& byNumber(const Table& table, std::int32_t number) {
    return table.at(static_cast<std::size_t>(number) - 1);
}

constexpr std::uint32_t solid = 0;
constexpr std::uint32_t wires = 1;

struct Material {
    std::uint32_t gloss;
    std::uint32_t diffuse;
    bool isMetallic;
    std::uint32_t rendering;
};
/// By number, from 1: matte, plastic, metal, wires.
constexpr auto materials = std::to_array<Material>({{0, 0x10000, false, solid},
                                                    {80000, 0x10000, false, solid},
                                                    {80000, 43712, true, solid},
                                                    {0, 0x10000, false, wires}});

struct Lights {
    std::uint32_t ambient;
    std::uint32_t key;
    std::uint32_t fill;
};
/// By number, from 1: dim, normal, bright.
constexpr auto softnesses =
    std::to_array<Lights>({{10000, 44000, 24000}, {20000, 38000, 38000}, {34000, 32000, 32000}});

/// By direction, from 1 (to the top left), row by row; what is cast straight back has no angle.
constexpr std::array<std::int32_t, 9> skewAngles{-45, -90, -135, 0, -135, 180, 45, 90, 135};
constexpr std::int32_t straightBack = 5;
constexpr std::uint32_t usualSkew = 50;

/// How far a light stands aside, by directions from 1 (top left), row by row.
constexpr std::int32_t lightDistance = 50000;
constexpr std::int32_t lightX(std::int32_t direction) {
    return ((direction - 1) % 3 - 1) * lightDistance;
}
constexpr std::int32_t lightY(std::int32_t direction) {
    return ((direction - 1) / 3 - 1) * lightDistance;
}
std::int32_t lightingFrom(std::int32_t x, std::int32_t y) {
    const auto side = [](std::int32_t at) { return at < 0 ? 0 : at == 0 ? 1 : 2; };
    return 1 + side(x) + 3 * side(y);
}

std::int32_t signedNumber(const Looks& looks, std::uint16_t id, std::int32_t otherwise) {
    return static_cast<std::int32_t>(looks.number(id, static_cast<std::uint32_t>(otherwise)));
}

std::uint32_t coded(std::int32_t number) {
    return static_cast<std::uint32_t>(number);
}

/// True for what says more than that there is depth, and how much.
bool isOfView(std::uint16_t id) noexcept {
    return id >= property::extrusionGloss && id <= property::extrusionViewFlags && id != property::extrusionDepth &&
           id != property::extrusionFlags;
}

std::int32_t readDirection(const Looks& looks, std::int32_t otherwise) {
    if (looks.number(property::extrusionSkew, usualSkew) == 0) {
        return straightBack;
    }
    const float angle = looks.fixed(property::extrusionSkewAngle, static_cast<float>(byNumber(skewAngles, otherwise)));
    const auto place = files::placeWhere(skewAngles, [angle](std::int32_t each) {
        return std::abs(angle - static_cast<float>(each)) < 22.5F; // half the way to the next
    });
    return place ? static_cast<std::int32_t>(*place) + 1 : otherwise;
}

std::int32_t readSoftness(const Looks& looks, std::int32_t otherwise) {
    const auto ambient =
        signedNumber(looks, property::ambientLight, static_cast<std::int32_t>(byNumber(softnesses, otherwise).ambient));
    const auto* const nearest =
        std::min_element(softnesses.begin(), softnesses.end(), [&](const auto& a, const auto& b) {
            const auto far = [&](const Lights& each) {
                return std::abs(static_cast<std::int64_t>(each.ambient) - ambient);
            };
            return far(a) < far(b);
        });
    return static_cast<std::int32_t>(nearest - softnesses.begin()) + 1;
}

std::int32_t readMaterial(const Looks& looks, std::int32_t otherwise) {
    const Material& usual = byNumber(materials, otherwise);
    const Material said{looks.number(property::extrusionGloss, usual.gloss),
                        looks.number(property::extrusionDiffuse, usual.diffuse),
                        looks.flag(property::extrusionFlags, flag::extrusionMetallic, usual.isMetallic),
                        looks.number(property::extrusionRendering, usual.rendering)};
    const auto isLike = [&said](const Material& each) {
        return each.isMetallic == said.isMetallic && each.rendering == said.rendering &&
               (each.gloss == 0) == (said.gloss == 0);
    };
    const auto place = files::placeWhere(materials, isLike);
    return place ? static_cast<std::int32_t>(*place) + 1 : otherwise;
}

} // namespace

ThreeD readThreeD(const Looks& looks) {
    ThreeD threeD;
    threeD.visible = looks.flag(property::extrusionFlags, flag::extruded, false);
    threeD.depth = looks.points(property::extrusionDepth, threeD.depth);
    if (!looks.hasAny(isOfView)) {
        return threeD;
    }
    threeD.direction = readDirection(looks, threeD.direction);
    threeD.lighting = lightingFrom(signedNumber(looks, property::keyLightX, lightX(threeD.lighting)),
                                   signedNumber(looks, property::keyLightY, lightY(threeD.lighting)));
    threeD.softness = readSoftness(looks, threeD.softness);
    threeD.material = readMaterial(looks, threeD.material);
    threeD.perspective = !looks.flag(property::extrusionViewFlags, flag::extrusionParallel, true);
    threeD.rotationX = looks.fixed(property::extrusionTurnX, 0);
    threeD.rotationY = looks.fixed(property::extrusionTurnY, 0);
    threeD.hasOwnColor = looks.flag(property::extrusionFlags, flag::extrusionColored, false);
    threeD.color = colorOf(looks.number(property::extrusionColor, codeOf(threeD.color)), threeD.color);
    return threeD;
}

void writeThreeD(PropertyTable& properties, const ThreeD& threeD) {
    properties.setFlag(property::extrusionFlags, flag::extruded, threeD.visible);
    properties.set(property::extrusionDepth, emu(threeD.depth));
    ThreeD plain;
    plain.visible = threeD.visible;
    plain.preset = threeD.preset;
    plain.depth = threeD.depth;
    if (threeD == plain) {
        return;
    }
    const Material& material = byNumber(materials, threeD.material);
    const Lights& lights = byNumber(softnesses, threeD.softness);
    properties.set(property::extrusionGloss, material.gloss);
    properties.set(property::extrusionDiffuse, material.diffuse);
    properties.set(property::extrusionColor, codeOf(threeD.color));
    properties.setFlag(property::extrusionFlags, flag::extrusionColored, threeD.hasOwnColor);
    properties.setFlag(property::extrusionFlags, flag::extrusionMetallic, material.isMetallic);
    properties.set(property::extrusionTurnX, code(double{threeD.rotationX} * fixedPoint));
    properties.set(property::extrusionTurnY, code(double{threeD.rotationY} * fixedPoint));
    properties.set(property::extrusionRendering, material.rendering);
    properties.set(property::extrusionSkewAngle, code(byNumber(skewAngles, threeD.direction) * fixedPoint));
    properties.set(property::extrusionSkew, threeD.direction == straightBack ? 0 : usualSkew);
    properties.set(property::ambientLight, lights.ambient);
    properties.set(property::keyLightX, coded(lightX(threeD.lighting)));
    properties.set(property::keyLightY, coded(lightY(threeD.lighting)));
    properties.set(property::keyLight, lights.key);
    properties.set(property::fillLightX, coded(-lightX(threeD.lighting)));
    properties.set(property::fillLightY, coded(-lightY(threeD.lighting)));
    properties.set(property::fillLight, lights.fill);
    properties.setFlag(property::extrusionViewFlags, flag::extrusionParallel, !threeD.perspective);
}

} // namespace simulator::drawing
