#pragma once

#include "simulator/objects/PowerPointObject.h"

#include <variant>

namespace simulator {

/// Tags: the tags of a presentation, slide or shape, in the order in which they were added.
class TagsObject final : public PowerPointObject {
public:
    TagsObject(ProcessPtr process, const PresentationPtr& presentation);
    TagsObject(ProcessPtr process, const SlidePtr& slide);
    TagsObject(ProcessPtr process, const ShapePtr& shape);

    [[nodiscard]] const automation::MemberTable& members() const override;
    /// The presentation, the slide or the shape.
    [[nodiscard]] automation::ObjectPtr owner() const override;
    /// True for the tags of the same presentation, slide or shape.
    [[nodiscard]] bool isSame(const Object& other) const noexcept override;

    [[nodiscard]] std::int32_t count() const;
    /// The values.
    [[nodiscard]] std::shared_ptr<automation::Elements> elements() { return elementsBy(u"Value"); }
    /// Value of a tag; empty where there is none of this name.
    [[nodiscard]] std::u16string item(const std::u16string& name) const;
    /// Name and value of a tag by its place from 1.
    [[nodiscard]] std::u16string name(std::int32_t index) const;
    [[nodiscard]] std::u16string value(std::int32_t index) const;
    /// Adds a tag, or replaces the value of the one that has this name.
    void add(const std::u16string& name, const std::u16string& value);
    /// Nothing happens where there is no tag of this name.
    void remove(const std::u16string& name);

private:
    template <typename Change> void change(const Change& change);

    std::weak_ptr<TagList> tags_; ///< lives as long as what bears the tags
    std::weak_ptr<Slide> slide_;  ///< that bears them or the shape that does
    std::weak_ptr<Presentation> presentation_;
    std::variant<std::weak_ptr<Presentation>, std::weak_ptr<Slide>, std::weak_ptr<Shape>> bearer_;
};

} // namespace simulator
