#pragma once

#include "simulator/objects/ShapeMembers.h"

namespace simulator {

/// ShapeRange: some shapes of one slide, handled together.
class ShapeRangeObject final : public ShapeMembers {
public:
    using ShapeMembers::ShapeMembers;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] std::int32_t count() const noexcept { return static_cast<std::int32_t>(nodes().size()); }
    /// By place from 1, or by name.
    [[nodiscard]] std::shared_ptr<ShapeObject> item(const automation::Value& index) const;

    /// Raises an invalid request for fewer than two shapes, for items of groups, for placeholders and tables.
    std::shared_ptr<ShapeObject> group();
    /// Groups again what one group held; raises an invalid request where nothing of it is left to group.
    std::shared_ptr<ShapeObject> regroup();
    /// Relative to the slide, or to the shapes themselves.
    void align(MsoAlignCmd command, MsoTriState relativeToSlide);
    /// Takes three shapes at least, one relative to the slide.
    void distribute(MsoDistributeCmd command, MsoTriState relativeToSlide);

private:
    [[nodiscard]] Frame areaOf(const std::vector<ShapePtr>& shapes, MsoTriState relativeToSlide) const;
    std::shared_ptr<ShapeObject> makeGroup(const SlidePtr& slide, const std::vector<ShapePtr>& shapes,
                                           std::u16string_view member) const;
};

} // namespace simulator
