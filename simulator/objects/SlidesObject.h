#pragma once

#include "simulator/objects/NodeSet.h"

namespace simulator {

class PresentationObject;
class SlideObject;
class SlideRangeObject;

/// Slides: the slides of a presentation, in order.
class SlidesObject final : public NodeSetObject<Presentation> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] automation::ObjectPtr owner() const override;
    [[nodiscard]] std::int32_t count() const { return static_cast<std::int32_t>(node()->slides().size()); }
    /// By place from 1, or by name.
    [[nodiscard]] std::shared_ptr<SlideObject> item(const automation::Value& index) const;
    /// The slide that an index or a name stands for, those of an array of them, or all slides.
    [[nodiscard]] std::shared_ptr<SlideRangeObject> range(const std::optional<automation::Value>& index) const;
    /// Raises an invalid request where no slide has this id.
    [[nodiscard]] std::shared_ptr<SlideObject> findBySlideId(std::int32_t slideId) const;
    /// Adds a slide with the placeholders of its layout at a place from 1 to one behind the last; raises out of range,
    /// or an invalid request for a layout that is not known.
    std::shared_ptr<SlideObject> add(std::int32_t index, PpSlideLayout layout);
    /// Adds copies of the slides of a file behind the slide `index` (0 to put them first): those from `slideStart` to
    /// `slideEnd`, counted from 1, or to the last one. Answers with their number.
    std::int32_t insertFromFile(const std::u16string& fileName, std::int32_t index,
                                std::optional<std::int32_t> slideStart, std::optional<std::int32_t> slideEnd);
    /// Puts the slides of the clipboard before a slide, or at the end; raises an invalid request where it holds none.
    std::shared_ptr<SlideRangeObject> paste(std::optional<std::int32_t> index);

private:
    std::vector<SlidePtr> insertCopies(const std::vector<SlidePtr>& slides, std::size_t place);
};

} // namespace simulator
