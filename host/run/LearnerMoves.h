#pragma once

#include "automation/LateBound.h"
#include "automation/MemberTable.h"
#include "host/world/PowerPoint.h"

namespace host {

/// `Learner`: what a learner does with mouse, keys and dialogs and no macro states in one line. Each is built on the
/// object model, so that it is the same in every world.
///
///     Learner.PressDelete                       the Delete key: a placeholder that is filled leaves an empty one
///     s.Width = Learner.Centimetres(2)          what a field stores when 2 cm are typed: 56.625 points
///     Learner.Drag s, 100, -20                  the mouse: the place snaps to the grid where that is turned on
///     Set f = Learner.DrawLine(20, 20, 90, 50)  the tool Line, from point to point on the slide shown
///     Set f = Learner.DrawFreeform(Array(Array(10, 10), Array(90, 10), Array(50, 80), Array(10, 10)))
///                                               the tool Freeform, click by click: near the first it closes
///     Learner.DrawCurve, Learner.Scribble       the same, smooth
///     Learner.DragPoint f, 2, 30, -10           Edit Points: the second point, to the right and down
///     Learner.DeletePoint f, 2                  and without it
///     Learner.Type "l'art"                      typed at the cursor, or in the shape selected, with AutoCorrect
///     Learner.CorrectSpelling "Régles", "Règles"      in the spelling dialog: everywhere in the presentation
///     Learner.ChooseSynonym "tout à fait"       from the menu of the word selected
///     Learner.PaintFormat a, b                  the brush, from one text or shape to another
///     Learner.SaveAs "Plan exo 3", "Plan/RTF"   in the dialog, with an entry of its list of types
///     Learner.InsertOutline "Titre" & vbCr & vbTab & "Ligne"   Insert, Slides from Outline: a tab is a level
class LearnerMoves final : public automation::Published {
public:
    /// `powerPoint` must outlive this object.
    explicit LearnerMoves(PowerPoint& powerPoint) noexcept : powerPoint_(powerPoint) {}

    void pressDelete() const;
    [[nodiscard]] float centimetres(float length) const;
    void drag(const automation::ObjectPtr& shape, float right, float down) const;
    [[nodiscard]] automation::ObjectPtr drawLine(float beginX, float beginY, float endX, float endY) const;
    [[nodiscard]] automation::ObjectPtr drawFreeform(const automation::Array& points) const;
    [[nodiscard]] automation::ObjectPtr drawCurve(const automation::Array& points) const;
    void dragPoint(const automation::ObjectPtr& freeform, std::int32_t place, float right, float down) const;
    void deletePoint(const automation::ObjectPtr& freeform, std::int32_t place) const;
    void type(const std::u16string& text) const;
    void correctSpelling(const std::u16string& wrong, const std::u16string& right) const;
    void chooseSynonym(const std::u16string& synonym) const;
    void paintFormat(const automation::ObjectPtr& from, const automation::ObjectPtr& to) const;
    void saveAs(const std::u16string& name, const std::u16string& type) const;
    void insertOutline(const std::u16string& outline) const;

    [[nodiscard]] std::u16string className() const override { return u"Learner"; }
    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    /// A place of the mouse, on the grid where places snap to it.
    struct Point {
        float x = 0;
        float y = 0;

        friend bool operator==(const Point&, const Point&) = default;
    };
    [[nodiscard]] Point placed(Point point) const;
    [[nodiscard]] static Point pointOf(const automation::Value& coordinates);
    [[nodiscard]] automation::ObjectPtr draw(const automation::Array& points, std::int32_t segmentType) const;
    [[nodiscard]] automation::LateBound shapes() const;
    [[nodiscard]] static Point pointAt(const automation::LateBound& nodes, std::int32_t place);
    [[nodiscard]] static bool isNear(Point one, Point other);

    [[nodiscard]] automation::LateBound application() const;
    [[nodiscard]] automation::LateBound presentation() const;
    [[nodiscard]] automation::LateBound selection() const;

    PowerPoint& powerPoint_;
};

} // namespace host
