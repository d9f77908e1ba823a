' pass-on.vbs FOLDER: a host whose procedure hands its own by-reference parameters on to the module.
Option Explicit
Dim exercise, application, window
Set exercise = CreateObject("K73053.Module")
Set application = Nothing
window = CLng(-1)
Prepare application, window
WScript.Echo "Passed on: " & application.Name & ", window " & window
Finish application, window
WScript.Echo "Passed on: " & (application Is Nothing) & ", window " & window

Sub Prepare(ByRef itsApplication, ByRef itsWindow)
    Hand itsApplication, itsWindow
End Sub

Sub Hand(ByRef theirApplication, ByRef theirWindow)
    exercise.InitQuestion 314, WScript.Arguments(0) & "\", theirApplication, theirWindow, ""
End Sub

Sub Finish(ByRef itsApplication, ByRef itsWindow)
    exercise.Fermer
    exercise.Quitter itsApplication, itsWindow
End Sub
