#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class ShapeObject;

/// ConnectorFormat: the ends of a connector, and the shapes that they hold on to. What is read of an end that holds on
/// to no shape raises an invalid request.
class ConnectorFormatObject final : public NodeSetObject<Shape> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;
    [[nodiscard]] automation::ObjectPtr owner() const override;

    /// Takes a shape of the slide, and a connection site of it from 1.
    template <ConnectorEnd Connector::*end> void connect(const automation::ObjectPtr& shape, std::int32_t site) {
        connectTo(end, shape, site);
    }
    template <ConnectorEnd Connector::*end> void disconnect() { release(end); }
    template <ConnectorEnd Connector::*end> [[nodiscard]] MsoTriState isConnected() const {
        return triState(shapeAt(end) != nullptr);
    }
    template <ConnectorEnd Connector::*end> [[nodiscard]] std::shared_ptr<ShapeObject> shape() const {
        return objectAt(end);
    }
    template <ConnectorEnd Connector::*end> [[nodiscard]] std::int32_t site() const { return siteAt(end); }
    [[nodiscard]] MsoConnectorType type() const;
    /// 1 (msoConnectorStraight) to 3.
    void setType(MsoConnectorType type);

private:
    [[nodiscard]] const Connector& connector() const;
    [[nodiscard]] ShapePtr shapeAt(ConnectorEnd Connector::*end) const;
    [[nodiscard]] std::shared_ptr<ShapeObject> objectAt(ConnectorEnd Connector::*end) const;
    [[nodiscard]] std::int32_t siteAt(ConnectorEnd Connector::*end) const;
    void connectTo(ConnectorEnd Connector::*end, const automation::ObjectPtr& shape, std::int32_t site);
    void release(ConnectorEnd Connector::*end);
};

} // namespace simulator
