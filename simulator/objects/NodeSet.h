#pragma once

#include "simulator/objects/CollectionLookup.h"
#include "simulator/objects/TriState.h"

#include <typeinfo>

namespace simulator {

/// What PowerPoint answers for a length that is not the same for all shapes of a range.
inline constexpr float mixedLength = -2147483648.0F;

/// The nodes of a document that an automation object stands for: one, or those of a range.
template <typename Node> class NodeSet {
public:
    using Pointer = std::shared_ptr<Node>;

    NodeSet(std::weak_ptr<Node> node) { nodes_.push_back(std::move(node)); }
    NodeSet(const Pointer& node) : NodeSet(std::weak_ptr<Node>(node)) {}
    NodeSet(const std::vector<Pointer>& nodes) : nodes_(nodes.begin(), nodes.end()) {}
    NodeSet(std::vector<std::weak_ptr<Node>> nodes) noexcept : nodes_(std::move(nodes)) {}

    [[nodiscard]] std::size_t size() const noexcept { return nodes_.size(); }

    /// The node at a place from 0; raises `errors::gone` where it has been deleted.
    [[nodiscard]] Pointer at(std::size_t place) const { return alive(nodes_[place]); }

    /// The first node; raises an invalid request for an empty set.
    [[nodiscard]] Pointer first() const {
        if (nodes_.empty()) {
            errors::invalidRequest(u"Requête incorrecte. La plage est vide.");
        }
        return at(0);
    }

    [[nodiscard]] std::vector<Pointer> all() const {
        std::vector<Pointer> nodes;
        nodes.reserve(nodes_.size());
        for (const std::weak_ptr<Node>& node : nodes_) {
            nodes.push_back(alive(node));
        }
        return nodes;
    }

    /// The one node of the set; raises an invalid request where there are several, or none.
    [[nodiscard]] Pointer only() const {
        if (nodes_.size() != 1) {
            errors::invalidRequest(u"Requête incorrecte. Ce membre vaut pour une plage d'un seul élément.");
        }
        return at(0);
    }

    /// What `read` answers for all nodes alike, or `mixed`.
    template <typename Value, typename Read> [[nodiscard]] Value common(Value mixed, const Read& read) const {
        Value answer = read(*first());
        for (std::size_t place = 1; place < nodes_.size(); ++place) {
            if (!(read(*at(place)) == answer)) {
                return mixed;
            }
        }
        return answer;
    }

    /// Changes every node, and the state of the presentation with them.
    template <typename Change> void change(const Change& change) const {
        for (const std::weak_ptr<Node>& reference : nodes_) {
            const Pointer node = alive(reference);
            change(*node);
            markChanged(*node);
        }
    }

    friend bool operator==(const NodeSet& left, const NodeSet& right) noexcept {
        return std::equal(left.nodes_.begin(), left.nodes_.end(), right.nodes_.begin(), right.nodes_.end(),
                          isSameReference<Node>);
    }

private:
    std::vector<std::weak_ptr<Node>> nodes_;
};

using ShapeSet = NodeSet<Shape>;
using SlideSet = NodeSet<Slide>;

/// The shapes of a set, with the items of groups in the place of the groups.
[[nodiscard]] ShapeSet leavesOf(const ShapeSet& shapes);
/// The same, with the borders of tables, where they have any, in the place of their cells.
[[nodiscard]] ShapeSet outlinesOf(const ShapeSet& shapes);

/// An object of the object model that stands for nodes of a document: two of a class that stand for the same nodes are
/// the same object.
template <typename Node> class NodeSetObject : public PowerPointObject {
public:
    NodeSetObject(ProcessPtr process, NodeSet<Node> nodes)
        : PowerPointObject(std::move(process)), nodes_(std::move(nodes)) {}

    [[nodiscard]] bool isSame(const automation::Object& other) const noexcept final {
        const auto* const peer = dynamic_cast<const NodeSetObject*>(&other);
        return peer != nullptr && typeid(*this) == typeid(other) && nodes_ == peer->nodes_;
    }

protected:
    [[nodiscard]] const NodeSet<Node>& nodes() const noexcept { return nodes_; }
    /// The node, for an object that stands for one.
    [[nodiscard]] std::shared_ptr<Node> node() const { return nodes_.at(0); }

private:
    NodeSet<Node> nodes_;
};

} // namespace simulator
