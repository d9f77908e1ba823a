' learner.vbs deliver NUMBER FOLDER: the course's files for question 305, 306 or 314.
' learner.vbs draw: what question 314 asks for.
' learner.vbs replace N: what question 306 asks for, at N of its four places.
' learner.vbs advise: what question 305 asks for.
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
Case "advise"
    AddAdvice
End Select

Sub DeliverDeck(number, folder)
    Dim deck, shapes, i
    powerPoint.Visible = True
    Set deck = powerPoint.Presentations.Add
    Set shapes = deck.Slides.Add(1, 12).Shapes
    shapes.AddShape 23, 481.625, 368.375, 194.75, 125.125
    shapes.AddTextbox(1, 57.875, 35, 444.5, 40.875).TextFrame.TextRange.Text = "faire faire faire faire"
    If CLng(number) = 305 Then
        For i = 2 To 4
            deck.Slides.Add i, 12
        Next
        CreateObject("Scripting.FileSystemObject").CreateTextFile(folder & "\17305305.doc").Close
    End If
    deck.SaveAs folder & "\07305" & number & ".ppt"
    deck.Close
End Sub

Sub ReplaceText(places)
    Dim text, i, slide, shape
    For i = 1 To 4
        If i <= places Then text = text & "cr" & Chr(233) & "er " Else text = text & "fait "
    Next
    For Each slide In powerPoint.ActivePresentation.Slides
        For Each shape In slide.Shapes
            If shape.Type = 17 Then shape.TextFrame.TextRange.Text = text ' a text box
        Next
    Next
End Sub

Sub AddAdvice()
    Dim shapes
    Set shapes = powerPoint.ActivePresentation.Slides.Add(5, 2).Shapes
    shapes(1).TextFrame.TextRange.Text = "Conseils "
    shapes(2).TextFrame.TextRange.Text = "5 " & Chr(224) & " 6 mots par ligne" & vbCr & _
        "5 " & Chr(224) & " 6 lignes par diapositive" & vbCr & _
        "Police et Taille des caract" & Chr(232) & "res parfaitement lisibles" & vbCr & _
        "Fort contraste entre couleur d'arri" & Chr(232) & "re-plan et couleur des caract" & Chr(232) & "res"
End Sub
