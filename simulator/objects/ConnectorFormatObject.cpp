#include "simulator/objects/ConnectorFormatObject.h"

#include "simulator/document/Connecting.h"
#include "simulator/objects/HandedShape.h"
#include "simulator/objects/ShapeObject.h"

#include <algorithm>

namespace simulator {

const automation::MemberTable& ConnectorFormatObject::members() const {
    using automation::method;
    using automation::property;
    using This = ConnectorFormatObject;
    constexpr auto begin = &Connector::begin;
    constexpr auto end = &Connector::end;
    static const automation::MemberTable table = officeMembers().with({
        method<&This::connect<begin>>(u"BeginConnect", u"ConnectedShape ConnectionSite"),
        method<&This::disconnect<begin>>(u"BeginDisconnect"),
        method<&This::connect<end>>(u"EndConnect", u"ConnectedShape ConnectionSite"),
        method<&This::disconnect<end>>(u"EndDisconnect"),
        property<&This::isConnected<begin>>(u"BeginConnected"),
        property<&This::shape<begin>>(u"BeginConnectedShape"),
        property<&This::site<begin>>(u"BeginConnectionSite"),
        property<&This::isConnected<end>>(u"EndConnected"),
        property<&This::shape<end>>(u"EndConnectedShape"),
        property<&This::site<end>>(u"EndConnectionSite"),
        property<&This::type, &This::setType>(u"Type"),
    });
    return table;
}

MsoConnectorType ConnectorFormatObject::type() const {
    return connector().type;
}

void ConnectorFormatObject::setType(MsoConnectorType type) {
    errors::demandWithin(type, msoConnectorStraight, msoConnectorCurve, u"ConnectorFormat.Type");
    nodes().change([type](Shape& shape) { shape.connector->type = type; });
}

const Connector& ConnectorFormatObject::connector() const {
    return *node()->connector;
}

ShapePtr ConnectorFormatObject::shapeAt(ConnectorEnd Connector::*end) const {
    return connectedShape(*node(), connector().*end);
}

std::shared_ptr<ShapeObject> ConnectorFormatObject::objectAt(ConnectorEnd Connector::*end) const {
    const ShapePtr shape = shapeAt(end);
    if (!shape) {
        errors::invalidRequest(u"ConnectorFormat", u"Cette extrémité du connecteur n'est pas reliée.");
    }
    return std::make_shared<ShapeObject>(process(), shape);
}

std::int32_t ConnectorFormatObject::siteAt(ConnectorEnd Connector::*end) const {
    (void)objectAt(end);
    return (connector().*end).site;
}

void ConnectorFormatObject::connectTo(ConnectorEnd Connector::*end, const automation::ObjectPtr& shape,
                                      std::int32_t site) {
    const ShapePtr wanted = connectedShape(*node(), {idBeside(*node(), shape), site});
    if (!wanted) {
        errors::invalidRequest(u"ConnectorFormat", u"La forme n'est pas sur la diapositive du connecteur.");
    }
    errors::demandWithin(site, 1, connectionSites(*wanted), u"ConnectorFormat");
    nodes().change([&](Shape& connected) { simulator::connect(connected, end, wanted, site); });
}

void ConnectorFormatObject::release(ConnectorEnd Connector::*end) {
    nodes().change([end](Shape& connected) { simulator::connect(connected, end, nullptr, 0); });
}

automation::ObjectPtr ConnectorFormatObject::owner() const {
    return std::make_shared<ShapeObject>(process(), node());
}

} // namespace simulator
