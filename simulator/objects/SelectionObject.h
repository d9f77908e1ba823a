#pragma once

#include "simulator/objects/PowerPointObject.h"

namespace simulator {

class DocumentWindowObject;
class ShapeRangeObject;
class SlideRangeObject;
class TextRangeObject;

/// Selection: what is selected in a document window.
class SelectionObject final : public PowerPointObject {
public:
    SelectionObject(ProcessPtr process, std::weak_ptr<DocumentWindow> window)
        : PowerPointObject(std::move(process)), window_(std::move(window)) {}

    [[nodiscard]] const automation::MemberTable& members() const override;

    [[nodiscard]] PpSelectionType type() const { return simulator::alive(window_)->selection.type(); }
    /// The shapes selected, or the one that holds the text selected; a group for its items. Raises an invalid request
    /// where there is none.
    [[nodiscard]] std::shared_ptr<ShapeRangeObject> shapeRange() const;
    [[nodiscard]] MsoTriState hasChildShapeRange() const;
    /// The items of a group that are selected in it. Raises an invalid request where there is none.
    [[nodiscard]] std::shared_ptr<ShapeRangeObject> childShapeRange() const;
    /// Raises an invalid request where no text is selected.
    [[nodiscard]] std::shared_ptr<TextRangeObject> textRange() const;
    /// The slides selected, or the one shown. Raises an invalid request where the presentation has none.
    [[nodiscard]] std::shared_ptr<SlideRangeObject> slideRange() const;
    [[nodiscard]] automation::ObjectPtr owner() const override;

    void unselect() const { simulator::alive(window_)->selection.selectNothing(); }
    /// These raise an invalid request where nothing is selected.
    void remove() const;
    void copy() const;
    void cut() const;

private:
    /// The range that the type of the selection calls for.
    [[nodiscard]] automation::ObjectPtr selected() const;

    std::weak_ptr<DocumentWindow> window_;
};

} // namespace simulator
