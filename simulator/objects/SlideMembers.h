#pragma once

#include "simulator/objects/NodeSet.h"

#include <optional>

namespace simulator {

class HeadersFootersObject;
class MasterObject;
class PresentationObject;
class ShapeRangeObject;
class ShapesObject;
class SlideRangeObject;
class SlideShowTransitionObject;
class TagsObject;

/// The members that Slide and SlideRange have in common; those that read one thing take a range of one slide. Every
/// member raises `errors::gone` once a slide has been deleted. A notes page is a slide, too, but cannot be copied,
/// deleted, moved, selected, shown or laid out: that raises an invalid request.
class SlideMembers : public NodeSetObject<Slide> {
public:
    using NodeSetObject::NodeSetObject;

    /// The presentation.
    [[nodiscard]] automation::ObjectPtr owner() const override;
    [[nodiscard]] std::shared_ptr<ShapesObject> shapes() const;
    [[nodiscard]] std::shared_ptr<TagsObject> tags() const;
    /// The title master of a title slide, where there is one, or the slide master; the notes master of a notes page.
    [[nodiscard]] std::shared_ptr<MasterObject> master() const;
    [[nodiscard]] MsoTriState followMasterBackground() const;
    /// A slide that no longer follows keeps the background that it showed.
    void setFollowMasterBackground(MsoTriState follows);
    [[nodiscard]] MsoTriState displayMasterShapes() const;
    void setDisplayMasterShapes(MsoTriState displayed);
    /// The background that is shown: the master's, unless the slide has one of its own.
    [[nodiscard]] std::shared_ptr<ShapeRangeObject> background() const;
    [[nodiscard]] std::shared_ptr<HeadersFootersObject> headersFooters() const;
    [[nodiscard]] std::shared_ptr<SlideShowTransitionObject> slideShowTransition() const;
    /// The notes pages of the slides.
    [[nodiscard]] std::shared_ptr<SlideRangeObject> notesPage() const;
    /// Place from 1 in the presentation; of a notes page, its slide's, as below.
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
    /// The one slide, or the one whose notes page it is.
    [[nodiscard]] SlidePtr slideItself() const;
    /// Raises an invalid request where there is a notes page among the slides.
    void demandSlides(std::u16string_view member) const;
};

} // namespace simulator
