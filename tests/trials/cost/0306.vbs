' 0306.vbs REPLACED WRITTEN: question 306's check as a script: the accesses that the check makes and no others, in the
' same order, each object reached afresh from the application of the PowerPoint that runs. Prints the letter that it
' comes to and the milliseconds that it took.
Option Explicit
Dim application, begun, passed, letter
Set application = CreateObject("PowerPoint.Application.11")
begun = Timer
letter = Check()
passed = Timer - begun
If passed < 0 Then passed = passed + 86400 ' it began before midnight
WScript.Echo letter & " " & CLng(passed * 1000)

Function Check()
    Dim total
    total = Walk(WScript.Arguments(0))
    If total > 0 Then
        Check = "A"
        Exit Function
    End If
    total = Walk(WScript.Arguments(1))
    If total = 0 Then
        Check = "B"
    ElseIf total <> 4 Then
        Check = "C"
    Else
        Check = "F"
    End If
End Function

' Counts a word in all texts of all slides.
Function Walk(word)
    Dim slides, shapes, s, k, shape, total
    total = 0
    slides = application.ActivePresentation.Slides.Count
    For s = 1 To slides
        shapes = application.ActivePresentation.Slides.Item(s).Shapes.Count
        For k = 1 To shapes
            Set shape = application.ActivePresentation.Slides.Item(s).Shapes.Item(k)
            If shape.HasTextFrame Then total = total + CountWord(shape.TextFrame.TextRange, word)
        Next
    Next
    Walk = total
End Function

Function CountWord(text, word)
    Dim count, i, isBeforeAnother, isLast, found
    found = 0
    count = text.Words.Count
    For i = 1 To count
        isBeforeAnother = (text.Words(i).Text = word & " ")
        isLast = (text.Words(i).Text = word)
        If isBeforeAnother Or isLast Then found = found + 1
    Next
    CountWord = found
End Function
