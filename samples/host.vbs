' host.vbs NUMBER FOLDER [COMMAND]
'
' A training host at its shortest. FOLDER holds what the course delivers for question NUMBER (07305314.ppt for 314).
' The learner presses OK when done; or COMMAND, run to its end, does the learner's work.
'
'   cscript //nologo host.vbs 314 C:\Course

Option Explicit
Dim exercise, application, window, number, folder, i

If WScript.Arguments.Count < 2 Then
    WScript.Echo "host.vbs NUMBER FOLDER [COMMAND]"
    WScript.Quit 2
End If
number = CLng(WScript.Arguments(0))
folder = WScript.Arguments(1)
If Right(folder, 1) <> "\" Then folder = folder & "\"

' The module starts PowerPoint, or attaches to the one that runs, and writes it and its window back into these two
' variables. A host keeps them from question to question.
Set application = Nothing
window = CLng(-1)

Set exercise = CreateObject("K73053.Module")
exercise.InitQuestion number, folder, application, window, ""
WScript.Echo "Question " & number & " is open in " & application.Name & " " & application.Version & ", window " & window

If WScript.Arguments.Count > 2 Then
    CreateObject("WScript.Shell").Run WScript.Arguments(2), 0, True
Else
    MsgBox "Do the exercise in PowerPoint, then press OK."
End If

' A passed attempt of question 305 arrives as an error.
On Error Resume Next
exercise.TestePoint
If Err.Number <> 0 Then WScript.Echo "Error " & Hex(Err.Number) & ": " & Err.Source & " " & Err.Description
On Error GoTo 0

If exercise.ErreurGenerale Then
    WScript.Echo "The work could not be checked: " & exercise.CauseErreur
ElseIf exercise.CauseErreur <> "" Then
    WScript.Echo "Not yet: " & exercise.CauseErreur
ElseIf exercise.BravoNuance Then
    WScript.Echo "Passed, with a remark"
Else
    WScript.Echo "Passed"
End If
If Not exercise.ErreurGenerale Then
    For i = 1 To exercise.Complement.count
        WScript.Echo "  " & exercise.Complement.item(i)
    Next
End If

exercise.Fermer
exercise.Quitter application, window
WScript.Echo "Closed: PowerPoint ended is " & (application Is Nothing) & ", window " & window
