#include "tests/trials/learners/Lesson.h"

namespace trials::learners::lessons {

const std::string_view drawings = R"(lesson 309 slide 1: success A B C D E F G Z

Set t = @.AddTextbox(msoTextOrientationHorizontal, 20, 20, 100, 30)
Set t = @.AddTextbox(msoTextOrientationHorizontal, 149.875, 149.875, 100, 30)
Set t = @.AddTextbox(msoTextOrientationHorizontal, 150, 20, 100, 30)
Set t = @.AddShape(msoShapeRectangle, 20, 20, 100, 30)

t~.Text = "Le public"
t~.Text = "x"
t~.Text = "   "
t~.Text = vbCr

nothing x2
t.Top = 150
t.Duplicate
t.Delete
t.ZOrder msoSendToBack
@(1).Left = 480.625
@(1).Delete
@.Range(Array(1, 2)).Group

lesson 310 slide 1: success A B C Z

@(2).Select
@(3).Select
@.SelectAll
@(2)~.Select
ActivePresentation.Slides(1).Select
@.Range(Array(2, 3)).Select

nothing x2
@(2).Delete
@(2).ZOrder msoBringToFront
@(3).Select msoFalse
@.Range(Array(2, 3)).Group
ActiveWindow.Selection.Unselect

lesson 311 slide 1: success A B C D E F Z

@(2).Top = 200
@(2).Top = 128
@(2).Top = 260
@(2).Top = 127.875
@(2).Top = 260.125

@(2).Left = 150
@(2).Left = 105
@(2).Left = 195
@(2).Left = 195.125
@(2).Left = 104.875

nothing x2
@(2).Width = 444
@(2).ScaleHeight 2, msoFalse
@(1).IncrementLeft 1
@(1).Delete
@(2).Delete
@.Range(Array(1, 2)).Group

lesson 312 slide 1: success A B C Z refused

@.AddPolyline Array(Array(100, 100), Array(150, 50), Array(200, 100), Array(100, 100))
@.AddCurve Array(Array(100, 100), Array(150, 50), Array(200, 50), Array(200, 100), Array(200, 150), Array(100, 150), Array(100, 100))
@.AddPolyline Array(Array(100, 100), Array(150, 50), Array(200, 100))
@.AddShape msoShapeRectangle, 0, 0, 20, 20

nothing x2
@.AddPolyline Array(Array(300, 100), Array(350, 50), Array(400, 100))
@(4).Nodes.Insert 1, msoSegmentLine, msoEditingAuto, 20, 20
@(4).Nodes.Delete 1
@(4).Duplicate
@(4).Select | CommandBars("Curve").Controls(7).Execute
@.Range(Array(1, 2)).Group
ActiveWindow.View.GotoSlide 2
ActiveWindow.ViewType = ppViewSlideSorter

lesson 313 slide 1: success A B

@(3).Delete
@(3).Cut
@(2).Delete

nothing x2
@(1).Delete
@(1).Duplicate
@.Range(Array(1, 2)).Group
@.Paste

lesson 314 slide 1: success A B C Z

@.AddShape msoShapeRectangle, 20, 20, 100, 60
@.AddShape msoShapeRightBrace, 20, 20, 100, 60
@.AddShape msoShapeRightArrow, 20, 20, 100, 60
@.AddTextbox msoTextOrientationHorizontal, 20, 20, 100, 60
@(1).Duplicate

nothing x2
@(1).Delete
@(3).Ungroup
@(4).AutoShapeType = msoShapeCube
@.AddLine 20, 20, 100, 60
@.Range(Array(1, 2)).Group

lesson 315 slide 1: success A B C D E Z

@(2).ZOrder msoBringToFront
@(3).ZOrder msoSendToBack
@(3).ZOrder msoSendBackward
@(2).ZOrder msoSendToBack

nothing x2
@(2).IncrementLeft 0.125
@(3).IncrementLeft 0.125
@(3).IncrementTop -1
@(3).Width = 500
@(2).Width = 300
@(2).Delete
@(3).Delete
@(3).Duplicate
@.Range(Array(1, 2)).Group
@.Range(Array(1, 3)).Group
)";

} // namespace trials::learners::lessons
