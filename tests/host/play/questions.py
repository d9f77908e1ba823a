"""Every question with checks of its own, solved and got wrong as a learner would, by mouse and keyboard."""
from browser import CONTROL, SHIFT, Keys

ADVICE = ("5 à 6 mots par ligne\n5 à 6 lignes par diapositive\nPolice et Taille des caractères parfaitement lisibles\n"
          "Fort contraste entre couleur d'arrière-plan et couleur des caractères")
RED = "Rouge"


def slide(number):
    return lambda page: (page.one(f"#slide-{number}").click(), page.settle())


def save_as(name, kind):
    return lambda page: (page.menu("Fichier", "Enregistrer sous…"), page.dialog(name=name, type=kind))


def replace(what, by):
    return lambda page: (page.press((CONTROL, "h")), page.dialog(what=what, by=by, matchCase=True, wholeWords=True))


def write(place, text):
    """Opens the text there, which is chosen as a whole by F2, and types over it."""
    return lambda page: (page.click(place), page.press("\ue032"), page.type(text), page.press(Keys.ESCAPE))


def word(selector, text):
    """Double-clicks a word where it is drawn, and types over it."""
    def act(page):
        page.double(page.driver.execute_script(
            "const [node, word] = [...document.querySelectorAll('#slide .picture text, #slide .picture tspan')].flatMap((each) => [...each.childNodes])"
            "  .filter((each) => each.nodeType === 3 && each.data.includes(arguments[0])).map((each) => [each, each.data.indexOf(arguments[0])])[0];"
            "const range = document.createRange(); range.setStart(node, word); range.setEnd(node, word + arguments[0].length);"
            "const [box, slide] = [range.getBoundingClientRect(), document.querySelector('#slide').getBoundingClientRect()];"
            "const scale = document.querySelector('#slide .overlay').viewBox.baseVal.width / slide.width;"
            "return [(box.left + box.width / 2 - slide.left) * scale, (box.top + box.height / 2 - slide.top) * scale]", selector))
        page.type(text)
    return act


def click(place, *keys):
    return lambda page: page.click(place, *keys)


def drag(*places, keys=()):
    return lambda page: page.drag(*places, keys=keys)


def tool(name, *places):
    return lambda page: (page.tool(name), page.drag(*places))


def corners(*places, ends=None):
    return lambda page: (page.tool("freeform"), [page.click(place) for place in places], ends and page.double(ends))


def menu(*way):
    return lambda page: page.menu(*way)


def press(*keys):
    return lambda page: page.press(*keys)


def sized(**lengths):
    return lambda page: (page.menu("Dessin", "Taille et position…"), page.dialog(**lengths))


def grid(snaps):
    return lambda page: (page.menu("Dessin", "Grille et repères…"), page.dialog(snaps=snaps))


def word_art(text):
    return lambda page: (page.tool("wordArt"), page.dialog(text=text))


TITLE, BODY = (360, 90), (360, 250)
BOX = ((20, 20), (200, 60))

# Question: the gestures that solve it and the letter then, a mistake and its letter.
QUESTIONS = {
    304: ([save_as("Plan exo 3", "rtf")], "", [save_as("Plan exo 3", "ppt")], "B"),
    305: ([slide(4), press((CONTROL, "m")), write(TITLE, "Conseils "), write(BODY, ADVICE)], "",
          [slide(4), press((CONTROL, "m")), write(TITLE, "Conseils ")], "C"),
    306: ([replace("faire", "créer")], "F", [replace("faire", "creer")], "B"),
    307: ([replace("Régles", "Règles")], "C", [slide(3), word("Régles", "Règles")], "A"),
    308: ([slide(5), word("parfaitement", "tout à fait")], "",
          [slide(5), word("parfaitement", Keys.DELETE)], "D"),
    309: ([tool("textBox", *BOX), lambda page: page.type("Plan"), press(Keys.ESCAPE)], "", [tool("textBox", *BOX), press(Keys.ESCAPE)], "G"),
    310: ([click("ZOR2")], "", [click("ZOR2"), click("ZOR3", SHIFT)], "C"),
    311: ([drag((200, 50), (280, 220))], "", [click("ZOR2"), press(Keys.ARROW_RIGHT, Keys.ARROW_RIGHT)], "F"),
    312: ([corners((100, 300), (200, 300), (200, 400), (101, 301))], "", [corners((100, 300), (200, 300), ends=(200, 400))], "C"),
    313: ([click("ZOR3"), press(Keys.DELETE)], "", [click("ZOR1"), press(Keys.DELETE)], "A"),
    314: ([tool("rectangle", *BOX)], "", [tool("textBox", *BOX)], "A"),
    315: ([press(Keys.TAB, Keys.TAB), menu("Dessin", "Mettre au premier plan")], "",
          [press(Keys.TAB, Keys.TAB), menu("Dessin", "Mettre en arrière-plan")], "E"),
    316: ([click("ZOR1"), menu("Couleur de remplissage", RED)], "", [click("ZOR1"), menu("Couleur de remplissage", "À moitié transparent")], "B"),
    317: ([tool("rectangle", *BOX)], "", [menu("Formes automatiques", "Rectangle à coins arrondis"), drag(*BOX)], "C"),
    318: ([click("ZOR4"), sized(width="2 cm", height="2 cm")], "", [click("ZOR4"), sized(width="3", height="2,0")], "B"),
    319: ([click("ZOR4"), sized(width="2", height="2", left="311,625 pt", top="311,625 pt")], "",
          [click("ZOR4"), sized(width="2 cm", height="20 mm")], "F"),
    320: ([grid(False)], "", [grid(False), grid(True)], "A"),
    321: ([click("ZOR4"), menu("Style 3D", "Style 3D 1")], "", [click("ZOR4"), menu("Style 3D", "Style 3D 2")], "C"),
    322: ([click("ZOR4"), click("ZOR2", SHIFT), press((CONTROL, "g"))], "", [drag((5, 100), (715, 500)), press((CONTROL, "g"))], "H"),
    323: ([slide(5), click(TITLE), press(Keys.DELETE), word_art("Conseils")], "", [slide(5), click(TITLE), press(Keys.DELETE)], "D"),
}

# On question 307's slide 3: gestures one after the other, and the statements that each makes.
S = "ActiveWindow.Selection.ShapeRange"
SHAPES = "ActivePresentation.Slides(3).Shapes"
GESTURES = [
    (slide(3), ["ActivePresentation.Slides(3).Select"]),
    (tool("oval", (400, 400), (460, 460)), [f"{SHAPES}.AddShape(msoShapeOval, 402, 402, 60, 60).Select"]),
    (drag((462, 462), (486, 475)), [f"{S}.Width = 84", f"{S}.Height = 72"]),
    (drag((440, 440), (440, 481)), [f"{S}.Top = 444"]),
    (press(Keys.ARROW_LEFT), [f"{S}.Left = 396"]),
    (press((CONTROL, Keys.ARROW_UP)), [f"{S}.Top = 442.5"]),
    (press((CONTROL, "d")), [f"{S}.Duplicate.Select"]),
    (press((CONTROL, "x")), ["ActiveWindow.Selection.Cut"]),
    (press((CONTROL, "v")), ["ActiveWindow.View.Paste"]),
    (menu("Style ombre", "Style ombre 6"), []),
    (press((CONTROL, "a")), [f"{SHAPES}.SelectAll"]),
    (press(Keys.ESCAPE), ["ActiveWindow.Selection.Unselect"]),
    (drag((10, 380), (710, 535)), [f"{SHAPES}.Range(Array(3, 4)).Select"]),
    (menu("Dessin", "Grouper"), [f"{S}.Group.Select"]),
    (press((CONTROL, SHIFT, "g")), [f"{S}.Ungroup.Select"]),
    (word("idée", "règle"), [f"{SHAPES}(2).Select", f"{SHAPES}(2).TextFrame.TextRange.Characters(5, 4).Select"]),
    (press((CONTROL, "b")), []),
    (press((SHIFT, CONTROL, Keys.ARROW_LEFT), (CONTROL, "b")), [f"{SHAPES}(2).TextFrame.TextRange.Characters(5, 4).Text = \"règle\"",
                                                                f"{SHAPES}(2).TextFrame.TextRange.Characters(5, 5).Font.Bold = msoTrue"]),
    (press(Keys.END, Keys.ENTER, "a", Keys.ESCAPE), [f"{SHAPES}(2).TextFrame.TextRange.Characters(25, 1).InsertAfter vbCr & \"a\"", f"{SHAPES}(2).Select"]),
    (menu("Edition", "Supprimer la diapositive"), ["ActivePresentation.Slides(3).Delete"]),
    (menu("Fichier", "Fermer la présentation"), ["ActivePresentation.Close"]),
]
