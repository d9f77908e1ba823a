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
    void type(const std::u16string& text) const;
    void correctSpelling(const std::u16string& wrong, const std::u16string& right) const;
    void chooseSynonym(const std::u16string& synonym) const;
    void paintFormat(const automation::ObjectPtr& from, const automation::ObjectPtr& to) const;
    void saveAs(const std::u16string& name, const std::u16string& type) const;
    void insertOutline(const std::u16string& outline) const;

    [[nodiscard]] std::u16string className() const override { return u"Learner"; }
    [[nodiscard]] const automation::MemberTable& members() const override;

private:
    [[nodiscard]] automation::LateBound application() const;
    [[nodiscard]] automation::LateBound presentation() const;
    [[nodiscard]] automation::LateBound selection() const;

    PowerPoint& powerPoint_;
};

} // namespace host
