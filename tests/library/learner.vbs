' learner.vbs deliver NUMBER FOLDER: the course's presentation for question 306 or 314.
' learner.vbs draw: what question 314 asks for.
' learner.vbs replace N: what question 306 asks for, at N of its four places.
Option Explicit
Dim powerPoint
Set powerPoint = CreateObject("PowerPoint.application.11")
Select Case WScript.Arguments(0)
Case "deliver"
    DeliverDeck WScript.Arguments(1), WScript.Arguments(2)
Case "draw"
    powerPoint.ActivePresentation.Slides(1).Shapes.AddShape 1, 20, 20, 100, 60
Case "replace"
    ReplaceText CLng(WScript.Arguments(1))
End Select

Sub DeliverDeck(number, folder)
    Dim deck, shapes
    powerPoint.Visible = True
    Set deck = powerPoint.Presentations.Add
    Set shapes = deck.Slides.Add(1, 12).Shapes
    shapes.AddShape 23, 481.625, 368.375, 194.75, 125.125
    shapes.AddTextbox(1, 57.875, 35, 444.5, 40.875).TextFrame.TextRange.Text = "faire faire faire faire"
    deck.SaveAs folder & "\07305" & number & ".ppt"
    deck.Close
End Sub

Sub ReplaceText(places)
    Dim text, i
    For i = 1 To 4
        If i <= places Then text = text & "cr" & Chr(233) & "er " Else text = text & "fait "
    Next
    powerPoint.ActivePresentation.Slides(1).Shapes(2).TextFrame.TextRange.Text = text
End Sub
