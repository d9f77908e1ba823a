#include "simulator/files/drawing/ConnectionRules.h"

#include "simulator/files/bytes/Bytes.h"
#include "simulator/files/records/RecordTypes.h"

#include <algorithm>
#include <array>

namespace simulator::drawing {

namespace {

using records::Record;
namespace type = records::type;

constexpr std::uint32_t noSite = 0xFFFFFFFF;

/// A rule by the numbers that the drawing gives its shapes: what begins, what ends, the connector, and two sites from
/// 0.
using Rule = std::array<std::uint32_t, 5>;

std::vector<Rule> rulesIn(const Record& art) {
    std::vector<Rule> rules;
    if (const Record* const solver = art.find(type::ArtSolver)) {
        for (const Record& child : solver->children) {
            asFarAsSound([&] {
                if (child.is(type::ArtConnectorRule)) {
                    files::ByteReader in(child.data, "the rule of a connector");
                    in.skip(4); // its number
                    Rule rule{};
                    for (std::uint32_t& part : rule) {
                        part = in.read<std::uint32_t>();
                    }
                    rules.push_back(rule);
                }
            });
        }
    }
    return rules;
}

template <typename Visit> void forEachConnector(const Slide& slide, const Visit& visit) {
    for (const ShapePtr& shape : slide.shapes()) {
        forEachLeaf(shape, [&visit](const ShapePtr& leaf) {
            if (leaf->connector) {
                visit(*leaf);
            }
        });
    }
}

std::vector<Rule> rulesOf(const Slide& slide, const DrawingIds& ids) {
    std::vector<Rule> rules;
    forEachConnector(slide, [&](const Shape& shape) {
        const auto numberOf = [&ids](const ConnectorEnd& end) { return end.shape == 0 ? 0 : ids.shapeOf(end.shape); };
        const auto siteOf = [](const ConnectorEnd& end) {
            return end.shape == 0 ? noSite : static_cast<std::uint32_t>(end.site - 1);
        };
        const Connector& connector = *shape.connector;
        if (connector.begin.shape != 0 || connector.end.shape != 0) {
            rules.push_back({numberOf(connector.begin), numberOf(connector.end), ids.shapeOf(shape.id),
                             siteOf(connector.begin), siteOf(connector.end)});
        }
    });
    return rules;
}

} // namespace

void readConnections(const Record& art, const DrawingIds& ids, Slide& slide) {
    const std::vector<Rule> rules = rulesIn(art);
    if (rules.empty()) {
        return;
    }
    forEachConnector(slide, [&](Shape& shape) {
        for (const Rule& rule : rules) {
            if (ids.idOf(rule[2]) == shape.id) {
                const auto endOf = [&ids](std::uint32_t number, std::uint32_t site) {
                    const bool isThere = number != 0 && site < 1000;
                    return isThere ? ConnectorEnd{ids.idOf(number).value_or(0), static_cast<std::int32_t>(site) + 1}
                                   : ConnectorEnd();
                };
                shape.connector->begin = endOf(rule[0], rule[3]);
                shape.connector->end = endOf(rule[1], rule[4]);
            }
        }
    });
}

void writeConnections(Record& art, const DrawingIds& ids, const Slide& slide) {
    std::vector<Rule> rules = rulesOf(slide, ids);
    std::vector<Rule> there = rulesIn(art);
    std::sort(rules.begin(), rules.end());
    std::sort(there.begin(), there.end());
    if (rules == there) {
        return;
    }
    if (art.find(type::ArtSolver) == nullptr) {
        art.children.push_back(Record::container(type::ArtSolver, {}));
    }
    std::vector<Record>& all = art.find(type::ArtSolver)->children;
    std::erase_if(all, [](const Record& child) { return child.is(type::ArtConnectorRule); });
    std::uint32_t number = 0;
    for (const Rule& rule : rules) {
        files::ByteWriter out;
        out.write<std::uint32_t>(number += 2);
        for (const std::uint32_t part : rule) {
            out.write<std::uint32_t>(part);
        }
        all.push_back(Record::atom(type::ArtConnectorRule, out.take(), 0, 1));
    }
    art.find(type::ArtSolver)->instance = static_cast<std::uint16_t>(all.size());
    std::erase_if(art.children,
                  [](const Record& child) { return child.is(type::ArtSolver) && child.children.empty(); });
}

} // namespace simulator::drawing
