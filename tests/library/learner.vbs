' learner.vbs deliver FOLDER: the course's presentation for question 314.
' learner.vbs draw: what question 314 asks for.
Option Explicit
Dim powerPoint, deck
Set powerPoint = CreateObject("PowerPoint.application.11")
Select Case WScript.Arguments(0)
Case "deliver"
    powerPoint.Visible = True
    Set deck = powerPoint.Presentations.Add
    deck.Slides.Add 1, 12
    deck.SaveAs WScript.Arguments(1) & "\07305314.ppt"
    deck.Close
Case "draw"
    powerPoint.ActivePresentation.Slides(1).Shapes.AddShape 1, 20, 20, 100, 60
End Select
