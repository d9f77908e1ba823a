' host.vbs NUMBER FOLDER [COMMAND...]
'
' A training host at its shortest. FOLDER holds what the course delivers for question NUMBER (07305314.ppt for 314).
' The learner presses OK when done; or COMMAND, run to its end, does the learner's work. Each further one is another attempt,
' which only questions 301 and 305 can be checked for without being opened anew.
'
'   cscript //nologo host.vbs 314 C:\Course

Option Explicit
Dim exercise, application, window, number, folder, attempt, isGood

If WScript.Arguments.Count < 2 Then
    WScript.Echo "host.vbs NUMBER FOLDER [COMMAND...]"
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

' Any step may raise: this host says so, judges nothing then, and closes all the same.
On Error Resume Next
exercise.InitQuestion number, folder, application, window, ""
isGood = HasSucceeded()
attempt = 2
Do While isGood
    Work
    isGood = HasSucceeded()
    If isGood Then exercise.TestePoint
    If number = 305 And IsPassOf305() Then
        Err.Clear
        WScript.Echo "Passed" ' that is the verdict: a letter would be an earlier attempt's
    Else
        If isGood Then isGood = HasSucceeded()
        If isGood Then Tell
        If isGood Then isGood = HasSucceeded()
    End If
    attempt = attempt + 1
    If attempt >= WScript.Arguments.Count Then Exit Do
Loop
exercise.Fermer
If isGood Then isGood = HasSucceeded()
Err.Clear
exercise.Quitter application, window
If Not HasSucceeded() Then isGood = False
WScript.Echo "Closed: PowerPoint ended is " & (application Is Nothing) & ", window " & window
If Not isGood Then WScript.Quit 1

' Says what the last step has raised, if anything.
Function HasSucceeded()
    HasSucceeded = (Err.Number = 0)
    If Err.Number <> 0 Then WScript.Echo "Error " & Hex(Err.Number) & ": " & Err.Source & " " & Err.Description
    Err.Clear
End Function

' A passed attempt of question 305 arrives as an error, which VBScript numbers 5. A genuine one names its cause at the end of
' the source. (The description is no help here: VBScript has one of its own for what comes without.)
Function IsPassOf305()
    Const place = "DLL K61027 - CLASSE Question0305"
    IsPassOf305 = (Err.Number = 5 Or Err.Number = &H800A0005) And _
        Err.Source = place & vbLf & vbCr & " - SERVICE TestePoint - OBJET "
End Function

Sub Work()
    WScript.Echo "Question " & number & " is open in " & application.Name & " " & application.Version & ", window " & window
    If WScript.Arguments.Count > 2 Then
        CreateObject("WScript.Shell").Run WScript.Arguments(attempt), 0, True
    Else
        MsgBox "Do the exercise in PowerPoint, then press OK."
    End If
End Sub

Sub Tell()
    Dim i
    If exercise.ErreurGenerale Then
        WScript.Echo "The work could not be checked: " & exercise.CauseErreur
        Exit Sub
    ElseIf exercise.BravoNuance Then
        WScript.Echo "Passed, with the remark " & exercise.CauseErreur
    ElseIf exercise.CauseErreur <> "" Then
        WScript.Echo "Not yet: " & exercise.CauseErreur
    Else
        WScript.Echo "Passed"
    End If
    For i = 1 To exercise.Complement.count
        WScript.Echo "  " & exercise.Complement.item(i)
    Next
End Sub
