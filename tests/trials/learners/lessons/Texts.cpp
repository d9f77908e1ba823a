#include "tests/trials/learners/Lesson.h"

namespace trials::learners::lessons {

const std::string_view texts = R"(lesson 301 slide 1: success

nothing
ActivePresentation.Slides(2).Delete
ActivePresentation.Slides.Add 1, ppLayoutBlank

lesson 302 slide 1: success

nothing
@(1)~.Text = "Contenu"

lesson 303 slide 1: success

nothing
@(1)~.Text = "Contenu"

lesson 304 slide 1: success A B

ActivePresentation.SaveAs Host.Folder & "Plan exo 3.rtf", ppSaveAsRTF
ActivePresentation.SaveAs Host.Folder & "Plan exo 3", ppSaveAsRTF
Files.Create "PLAN EXO 3.RTF"
ActivePresentation.SaveAs Host.Folder & "Plan exo 3.ppt"
ActivePresentation.SaveCopyAs Host.Folder & "Plan exo 3"
Files.Create "Plan exo 3"
Files.Create "plan exo 3.txt"
Files.Create "Plan exo 3.rt"
Files.Create "Plan exo 3.rtfx"
Files.Create "Plan exo 3 bis.rtf"
Files.Create "Plan exo 31.rtf"
Files.Create Host.Folder & "Plan exo 3.rtf\Notes.txt"

nothing
Files.MakeHidden "Plan exo 3.rtf"
Files.Delete "Plan exo 3.rtf"
Files.Create "Plan exo 3.doc"
Presentations.Add

lesson 305 slide 5: error_0 A B C

ActivePresentation.Slides.Add 5, ppLayoutText
ActivePresentation.Slides.Add 5, ppLayoutBlank
ActivePresentation.Slides.Add 3, ppLayoutText
ActivePresentation.Slides(4).Duplicate

@(1)~.Text = "Conseils "
@(1)~.Text = "Conseils"
@(1)~.Text = "conseils "

@(2)~.Text = "5 à 6 mots par ligne" & vbCr & "5 à 6 lignes par diapositive" & vbCr & "Police et Taille des caractères parfaitement lisibles" & vbCr & "Fort contraste entre couleur d'arrière-plan et couleur des caractères"
@(2)~.Text = "5 à 6 lignes par diapositive" & vbCr & "5 à 6 mots par ligne" & vbCr & "Police et Taille des caractères parfaitement lisibles" & vbCr & "Fort contraste entre couleur d'arrière-plan et couleur des caractères"
@(2)~.Text = "5 à 6 mots par ligne" & vbCr & "5 à 6 lignes par diapositive" & vbCr & "Police et Taille des caractères parfaitement lisibles"

nothing x2
@(2)~.Replace "mots par", "Mots par"
@(2)~.Replace "Fort", "Fors"
@(2)~.Paragraphs(4).InsertAfter " "
@(2)~.Paragraphs(2).InsertBefore vbCr
@(2)~.Paragraphs(3).Words(2).Delete
@.AddLine 0, 0, 10, 10
ActivePresentation.Slides.Add 6, ppLayoutText
@(1).Delete | @.AddLine 0, 0, 10, 10 | @(2).ZOrder msoSendToBack

lesson 306 slide 2: F A B C

for @1(2)~ @2(2)~ @3(2)~ @4(1)~
^.Replace "faire", "créer"
^.Replace "faire", "creer"
^.Replace "faire", "créer faire"
^.Replace "faire", "créer "
^.Replace "faire", "Créer"
^.Replace "faire", "créer,"
^.Replace "faire", "créer créer"
^.Find("faire").Delete

nothing
@(1)~.Text = "créer simple"
@(1)~.ChangeCase ppCaseLower

lesson 307 slide 3: C A B

for @3(1)~ @4(1)~
^.Replace "Régles", "Règles"
^.Replace "Régles", "Régles"
^.Replace "Régles", "Regles"
^.Replace "Régles", "Règles Règles"
^.Replace "Régles", "Règles,"
^.Replace "Régles", "Régles,"
^.Find("Régles").Delete

lesson 308 slide 5: success C D E F G H

@(2)~.Replace "parfaitement", "tout à fait"
@(2)~.Find("parfaitement ").Select | ActiveWindow.Selection.TextRange.Text = "tout à fait "
@(2)~.Paragraphs(3).InsertAfter " tout à fait"
@(2)~.Find("parfaitement").Delete
@(2)~.Replace "parfaitement", "tout fait"
@(2)~.Replace "parfaitement lisibles", "lisibles parfaitement"
@(2)~.Replace "parfaitement", "Parfaitement"

nothing x2
@(2)~.Find("tout à fait").Font.Color.RGB = RGB(255, 0, 0)
@(2)~.Find("tout à fait").Font.Color.RGB = RGB(0, 0, 255)
@(2)~.Find("à fait").Font.Color.RGB = RGB(0, 0, 255)
@(2)~.Paragraphs(3).Words(6).Font.Color.RGB = RGB(0, 0, 255)
@(2)~.Paragraphs(3).Font.Color.RGB = RGB(0, 0, 255)
@(2)~.Paragraphs(3).Font.Color.RGB = RGB(255, 0, 0)
@(2)~.Replace "lisibles", "visibles"
@(2)~.Replace "parfaitement ", ""
@(2)~.Paragraphs(3).Delete
@(2)~.InsertAfter vbCr & "Encore"
@(1)~.InsertAfter vbCr & "utiles"
@(2).Cut | @.Paste
)";

} // namespace trials::learners::lessons
