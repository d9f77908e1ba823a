#pragma once

#include "simulator/document/Shape.h"

namespace simulator {

/// The number of a shape's connection sites, counted counterclockwise from its top: eight of an oval, four of others,
/// none of what cannot be connected.
[[nodiscard]] std::int32_t connectionSites(const Shape& shape) noexcept;

/// The shape that an end of a connector holds on to; null where it holds on to none, or that is gone.
[[nodiscard]] ShapePtr connectedShape(const Shape& connector, const ConnectorEnd& end) noexcept;

/// Has an end of a connector hold on to a site of a shape of its slide, or to none for null: then it stays where it is.
void connect(Shape& connector, ConnectorEnd Connector::*end, const ShapePtr& shape, std::int32_t site);
/// Takes the sites that make the way between the connected shapes the shortest.
void reroute(Shape& connector);
/// Moves the connectors that hold on to a shape, or to something in it, to where it stands.
void followConnections(const Shape& shape);

} // namespace simulator
