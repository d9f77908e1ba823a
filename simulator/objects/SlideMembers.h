#pragma once

#include "simulator/objects/NodeSet.h"

#include <optional>

namespace simulator {

class ApplicationObject;
class PresentationObject;
class ShapesObject;
class SlideRangeObject;
class TagsObject;

/// The members that Slide and SlideRange have in common; those that read one thing take a range of one slide. Every
/// member raises `errors::gone` once a slide has been deleted.
class SlideMembers : public NodeSetObject<Slide> {
public:
    using NodeSetObject::NodeSetObject;

    [[nodiscard]] std::shared_ptr<ApplicationObject> application() const;
    /// The presentation.
    [[nodiscard]] std::shared_ptr<PresentationObject> parent() const;
    [[nodiscard]] std::shared_ptr<ShapesObject> shapes() const;
    [[nodiscard]] std::shared_ptr<TagsObject> tags() const;
    /// Place from 1 in the presentation.
    [[nodiscard]] std::int32_t slideIndex() const;
    /// Stays the slide's own wherever it is moved.
    [[nodiscard]] std::int32_t slideId() const;
    [[nodiscard]] std::u16string name() const;
    /// Raises an invalid request for a name that another slide bears.
    void setName(const std::u16string& name);
    [[nodiscard]] PpSlideLayout layout() const;
    /// Raises an invalid request for a layout that is not known.
    void setLayout(PpSlideLayout layout);

    void erase();
    /// Puts copies, tags included, right behind the slides.
    std::shared_ptr<SlideRangeObject> duplicate();
    void copy() const;
    void cut();
    /// Moves a slide to a place from 1; raises out of range.
    void moveTo(std::int32_t toPos);
    /// Writes a picture of a slide as it is shown, the selection marked, so many pixels wide and high. The one filter
    /// that is installed is "SVG"; raises an invalid request for any other.
    void exportTo(const std::u16string& fileName, const std::u16string& filterName,
                  std::optional<std::int32_t> scaleWidth, std::optional<std::int32_t> scaleHeight) const;
    /// Selects the slide in the window that shows its presentation, which then shows the slide; raises an invalid
    /// request where there is none.
    void select() const;

protected:
    [[nodiscard]] static const automation::MemberTable& sharedMembers();

private:
    /// The presentation of the slides.
    [[nodiscard]] PresentationPtr presentation() const;
};

} // namespace simulator
