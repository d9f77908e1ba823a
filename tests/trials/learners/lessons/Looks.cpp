#include "tests/trials/learners/Lesson.h"

namespace trials::learners::lessons {

const std::string_view looks = R"(lesson 316 slide 1: success A B C D G Z

@(1).Fill.ForeColor.RGB = RGB(255, 0, 0)
@(1).Fill.ForeColor.SchemeColor = ppAccent1
@(1).Fill.ForeColor.RGB = RGB(128, 128, 128)
@(1).Fill.ForeColor.RGB = RGB(255, 255, 255)

nothing x2
@(1).Fill.Transparency = 0.5
@(1).Fill.TwoColorGradient msoGradientHorizontal, 1
@(1).Fill.Patterned msoPattern10Percent
@(1).Fill.Visible = msoFalse
@(1).Fill.BackColor.RGB = RGB(255, 0, 0)
@(1).Fill.Solid
@(1).Delete
@.Range(Array(1, 2)).Group

lesson 317 slide 1: success A B C D E F

@.AddShape msoShapeRectangle, 20, 20, 100, 60
@.AddShape msoShapeRoundedRectangle, 20, 20, 100, 60
@.AddShape msoShapeFlowchartProcess, 20, 20, 100, 60
@.AddShape msoShapeFlowchartInternalStorage, 20, 20, 100, 60
@.AddShape msoShapeOval, 20, 20, 100, 60
@.AddTextbox msoTextOrientationHorizontal, 20, 20, 100, 60

nothing x2
@.AddShape msoShapeOval, 20, 20, 100, 60
@.Range(Array(1, 2)).Group
@(3).Ungroup
@(4).Delete
@(4).Duplicate

lesson 318 slide 1: success A B C Z

@(4).Width = 56.625
@(4).Width = 56.5
@(4).Width = 56.75
@(4).Width = 56.69
@(4).Width = 56.375
@(4).Width = 56.875

@(4).Height = 56.625
@(4).Height = 56.5
@(4).Height = 56.75
@(4).Height = 56.375
@(4).Height = 56.875

nothing x2
@(4).Delete
@(4).ZOrder msoSendToBack
@.Range(Array(3, 4)).Group

lesson 319 slide 1: success A B C D E F Z

@(4).Width = 56.625
@(4).Width = 56.69
@(4).Width = 56.5

@(4).Height = 56.625
@(4).Height = 56.75

@(4).Top = 311.625
@(4).Top = 311.65
@(4).Top = 311.5

@(4).Left = 311.625
@(4).Left = 311.75

nothing x2
@(2).IncrementLeft 0.125
@(2).Delete
@(4).Delete
@.Range(Array(1, 2)).Group
@.Range(Array(3, 4)).Group

lesson 320 slide 1: success A

ActivePresentation.SnapToGrid = msoFalse
ActivePresentation.SnapToGrid = msoTrue
nothing

lesson 321 slide 1: success A B C D E Z

@(4).ThreeD.SetThreeDFormat msoThreeD1
@(4).ThreeD.SetThreeDFormat msoThreeD2
@(4).ThreeD.Visible = msoTrue
@(4).Shadow.Visible = msoFalse

nothing x2
@(4).Shadow.Visible = msoTrue
@(4).ThreeD.Depth = 20
@(4).ThreeD.Visible = msoFalse
@(4).Delete
@.Range(Array(3, 4)).Group

lesson 322 slide 1: success A B C D E F H

nothing x3
@(4).Delete
@(2).Delete

@.Range(Array(2, 4)).Group
@.Range(Array(1, 2)).Group
@.Range(Array(3, 4)).Group
@.Range(Array(2, 3, 4)).Group
@.Range(Array(1, 2, 4)).Group

nothing x2
@(1).Duplicate
@(1).Ungroup
@(3).Ungroup
@(3).GroupItems(1).Delete
@.Range(Array(1, 2)).Group

lesson 323 slide 5: success B C D E F

@(1).Delete
@(2).Delete
@.Range(Array(1, 2)).Delete

@.AddTextEffect msoTextEffect1, "Conseils", "Arial", 36, msoFalse, msoFalse, 100, 40
@.AddTextbox msoTextOrientationHorizontal, 20, 20, 100, 60

nothing x2
@.AddTitle
@.AddTextEffect msoTextEffect9, "Conseils", "Arial", 36, msoFalse, msoFalse, 100, 40
@(1).Duplicate
@(2).Delete
@.Range(Array(1, 2)).Group
)";

} // namespace trials::learners::lessons
