' learner.vbs deliver FOLDER: the course's presentation for question 314.
' learner.vbs draw: what question 314 asks for.
Option Explicit
Dim powerPoint, deck, shapes
Set powerPoint = CreateObject("PowerPoint.application.11")
Select Case WScript.Arguments(0)
Case "deliver"
    powerPoint.Visible = True
    Set deck = powerPoint.Presentations.Add
    Set shapes = deck.Slides.Add(1, 12).Shapes
    shapes.AddShape 23, 481.625, 368.375, 194.75, 125.125
    shapes.AddTextbox 1, 57.875, 35, 444.5, 40.875
    deck.SaveAs WScript.Arguments(1) & "\07305314.ppt"
    deck.Close
Case "draw"
    powerPoint.ActivePresentation.Slides(1).Shapes.AddShape 1, 20, 20, 100, 60
End Select
