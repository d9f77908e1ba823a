#pragma once

#include "simulator/document/Format.h"
#include "simulator/document/Origin.h"
#include "simulator/document/TagList.h"
#include "simulator/document/TextStory.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace simulator {

/// True for the placeholders that hold a slide's title.
[[nodiscard]] constexpr bool isTitle(PpPlaceholderType type) noexcept {
    return type == ppPlaceholderTitle || type == ppPlaceholderCenterTitle || type == ppPlaceholderVerticalTitle;
}
/// True for the placeholders that are there for text.
[[nodiscard]] constexpr bool isText(PpPlaceholderType type) noexcept {
    return type == ppPlaceholderBody || type == ppPlaceholderSubtitle || type == ppPlaceholderVerticalBody;
}
/// Which way text runs in a placeholder.
[[nodiscard]] constexpr MsoTextOrientation orientationOf(PpPlaceholderType type) noexcept {
    const bool isUpright = type == ppPlaceholderVerticalTitle || type == ppPlaceholderVerticalBody;
    return isUpright ? msoTextOrientationVerticalFarEast : msoTextOrientationHorizontal;
}

class Slide;
class Shape;
using ShapePtr = std::shared_ptr<Shape>;

/// Place and size of a shape on its slide, in points.
struct Frame {
    float left = 0;
    float top = 0;
    float width = 0;
    float height = 0;

    friend bool operator==(const Frame&, const Frame&) = default;
};

/// A length in points as a document keeps it: to the nearest eighth of a point.
[[nodiscard]] float toMasterUnits(float points) noexcept;

/// True where a turn by so many degrees is nearer to lying than to standing: where such a shape has its place, width
/// and height have changed parts.
[[nodiscard]] bool liesOnItsSide(float rotation) noexcept;
/// A frame turned by a quarter about its middle. Halves of a master unit fall the same way there and back.
[[nodiscard]] Frame onItsSide(const Frame& frame) noexcept;

/// One corner of a freeform, in points on the slide.
struct Node {
    float x = 0;
    float y = 0;
    bool curve = false; ///< a control point of a curve rather than the end of a straight segment

    friend bool operator==(const Node&, const Node&) = default;
};

/// One end of a connector: the shape that it holds on to, by its id on the slide (0 for none), and the connection site
/// there, from 1.
struct ConnectorEnd {
    std::int32_t shape = 0;
    std::int32_t site = 0;

    friend bool operator==(const ConnectorEnd&, const ConnectorEnd&) = default;
};

/// What makes a shape a connector.
struct Connector {
    MsoConnectorType type = msoConnectorStraight;
    ConnectorEnd begin;
    ConnectorEnd end;

    friend bool operator==(const Connector&, const Connector&) = default;
};

/// What makes a shape a table: its items are cells, which hold text, and lines, the borders of cells. Rows and columns
/// are where the cells lie (`TableGrid`).
struct Table {
    std::vector<float> leastHeights; ///< of its rows, in points; their text may need more
    bool isRightToLeft = false;      ///< the first column is the rightmost

    friend bool operator==(const Table&, const Table&) = default;
};

/// A shape of a slide, an item of a group, or a cell or border of a table. It lives as long as its slide or group holds
/// it; those who look at it hold it weakly, and find it gone when it has been deleted.
class Shape {
public:
    std::int32_t id = 0; ///< unique on the slide
    std::u16string name;
    MsoShapeType type = msoAutoShape;
    std::int32_t autoShapeType = msoShapeMixed; ///< so for what is no AutoShape
    float rotation = 0;                         ///< degrees
    bool horizontalFlip = false;
    bool verticalFlip = false;
    bool visible = true;
    bool lockAspectRatio = false;
    std::u16string alternativeText;
    TagList tags;
    Fill fill;
    Line line;
    Shadow shadow;
    ThreeD threeD;
    std::optional<TextStory> text; ///< nothing for a shape that cannot hold text
    std::optional<TextEffect> textEffect;
    std::optional<Connector> connector;
    std::optional<Table> table;
    std::optional<PpPlaceholderType> placeholder;
    std::vector<Node> nodes;      ///< of a freeform
    bool closed = false;          ///< a freeform whose last corner joins its first
    std::int32_t formerGroup = 0; ///< id of the group that it was taken out of last, 0 where there is none
    OriginPtr origin;

    [[nodiscard]] const Frame& frame() const noexcept { return frame_; }
    /// Moves and resizes; the items of a group, the corners of a freeform and the connectors that hold on to it follow.
    /// Lengths are kept in master units.
    void setFrame(const Frame& frame);
    /// Turns it to an angle in degrees; its frame stays what it is without the turn.
    void turnTo(float degrees);
    /// Gives a freeform its corners, in master units, and takes its frame from them. A curve whose ends meet is
    /// closed; one that was closed without them staying so is left closed.
    void setNodes(std::vector<Node> corners);

    /// Items of a group, cells and borders of a table, from back to front; empty for any other shape.
    [[nodiscard]] const std::vector<ShapePtr>& items() const noexcept { return items_; }
    /// True for a shape that is made of items.
    [[nodiscard]] bool isComposed() const noexcept { return type == msoGroup || type == msoTable; }
    /// True for the cells and borders of a table.
    [[nodiscard]] bool isInTable() const noexcept { return group() != nullptr && group()->type == msoTable; }
    /// Gives a group its items and takes its frame from them, or gives it the frame that it is known to have with them.
    static void adopt(const ShapePtr& group, std::vector<ShapePtr> items);
    static void adopt(const ShapePtr& group, std::vector<ShapePtr> items, const Frame& frame);
    /// Takes the items out of a group.
    [[nodiscard]] std::vector<ShapePtr> release();
    /// Takes one item out of a group, whose frame shrinks to the others.
    void release(const ShapePtr& item);
    /// Puts another shape in the place of an item.
    void replace(const ShapePtr& item, const ShapePtr& successor);

    /// Shows or hides the shadow; a shadow takes the third dimension away.
    void showShadow(bool shown) noexcept;
    /// Shows or hides the third dimension, which takes the shadow away.
    void showThreeD(bool shown) noexcept;

    /// Tells a shape and everything in it on which slide they stand; on none for a reference to nothing.
    void settle(const std::weak_ptr<Slide>& ground) noexcept;

    /// The group or table that holds this shape; null when it stands directly on its slide.
    [[nodiscard]] ShapePtr group() const noexcept { return group_.lock(); }

    /// A copy with everything but its place in a slide or group; items are copied too.
    [[nodiscard]] ShapePtr clone() const;

    std::weak_ptr<Slide> slide; ///< of the shape, or of the outermost group that holds it

private:
    /// Moves and resizes without telling the groups around.
    void place(const Frame& frame);
    /// Fits the frames of the groups around to their items.
    void refitGroups() const;

    Frame frame_;
    std::vector<ShapePtr> items_;
    std::weak_ptr<Shape> group_;
};

/// The smallest frame around some shapes as they lie there, turned; or around the corners of a freeform.
[[nodiscard]] Frame boundsOf(const std::vector<ShapePtr>& shapes) noexcept;
[[nodiscard]] Frame boundsOf(const std::vector<Node>& nodes) noexcept;

/// Visits a shape that is made of no items, or every such shape inside a group, at any depth, and the cells of tables.
template <typename Visit> void forEachLeaf(const ShapePtr& shape, const Visit& visit) {
    if (!shape->isComposed()) {
        visit(shape);
        return;
    }
    for (const ShapePtr& item : shape->items()) {
        if (!(shape->type == msoTable && item->type == msoLine)) {
            forEachLeaf(item, visit);
        }
    }
}

} // namespace simulator
