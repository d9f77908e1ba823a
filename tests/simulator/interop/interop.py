"""interop.py DECK-TOOL: decks of LibreOffice Impress in the embedded PowerPoint, and its decks in LibreOffice.

Ends with a line "N passed, N failed"."""
import glob
import os
import subprocess
import sys
import tempfile

from PIL import Image

from office import Office, Point, PropertyValue, place, points, shapes_of
from records import records, streams

TOLERANCE = 0.15  # points: an eighth, and the hundredth of a millimetre that LibreOffice rounds to

# LibreOffice's names of shapes, and the AutoShapes that they are.
KINDS = {"rectangle": 1, "parallelogram": 2, "trapezoid": 3, "diamond": 4, "round-rectangle": 5, "octagon": 6,
         "isosceles-triangle": 7, "right-triangle": 8, "ellipse": 9, "hexagon": 10, "cross": 11, "can": 13, "cube": 14,
         "paper": 16, "smiley": 17, "heart": 21, "lightning": 22, "sun": 23, "moon": 24, "right-arrow": 33,
         "left-arrow": 34, "up-arrow": 35, "down-arrow": 36, "left-right-arrow": 37, "star5": 92, "star8": 93,
         "star24": 95, "flowchart-process": 61, "flowchart-decision": 63, "cloud-callout": 108}

PLACEHOLDER, AUTO_SHAPE, FREEFORM, GROUP, LINE, WORD_ART, TEXT_BOX, TABLE = 14, 1, 5, 6, 9, 15, 17, 19

passed = failed = 0


def check(name, seen, wanted):
    global passed, failed
    if seen == wanted:
        passed += 1
    else:
        failed += 1
        print(f"FAILED {name}: {seen!r} instead of {wanted!r}")


def check_near(name, seen, wanted, tolerance=TOLERANCE):
    near = len(seen) == len(wanted) and all(abs(one - other) <= tolerance for one, other in zip(seen, wanted))
    check(name, list(wanted) if near else list(seen), list(wanted))


def bgr(color):
    return (color & 0xFF) << 16 | color & 0xFF00 | color >> 16


class Line:
    """A line of what the embedded PowerPoint sees."""

    def __init__(self, text):
        parts = text.split("\t")
        self.kind = parts[0]
        if self.kind == "shape":
            self.depth, self.type, self.auto_type = map(int, parts[1:4])
            self.frame = [float(part) for part in parts[4:8]]
            self.fill, self.line, self.nodes, self.closed, self.placeholder = map(int, parts[8:13])
            self.text = parts[13]
            self.runs = parts[14:]
        else:
            self.values = [float(part) for part in parts[1:]]


class Tests:
    def __init__(self, tool, office):
        self.tool = tool
        self.office = office
        self.folder = office.folder

    def path(self, name):
        return os.path.join(self.folder, name)

    def run(self, *words):
        return subprocess.run([self.tool, *words], check=True, capture_output=True, text=True).stdout

    def seen(self, path):
        return [Line(line) for line in self.run("dump", path).splitlines()]

    def new_shape(self, document, page, kind, frame, color=None, text=""):
        shape = document.createInstance("com.sun.star.drawing." + kind)
        place(shape, *frame)
        page.add(shape)
        if color is not None:
            shape.FillColor = color
        if text:
            shape.String = text
        return shape

    def kinds_deck(self):
        """Shapes of many kinds, each in a colour and a place of its own."""
        document = self.office.new()
        page = document.DrawPages.getByIndex(0)
        page.Layout = 20
        wanted = []
        for number, kind in enumerate(KINDS):
            frame = (500 + 2500 * (number % 8), 500 + 2500 * (number // 8), 2000, 1500 + 10 * number)
            color = 0x102030 * (number + 1) & 0xFFFFFF
            shape = self.new_shape(document, page, "CustomShape", frame)
            shape.CustomShapeGeometry = (PropertyValue("Type", 0, kind, 0),)
            shape.FillColor = color
            shape.TextAutoGrowHeight = False
            shape.String = f"forme {number} é"
            wanted.append((KINDS[kind], frame, color, shape.String))
        self.office.save(document, self.path("kinds.ppt"))
        document.close(True)
        seen = [line for line in self.seen(self.path("kinds.ppt")) if line.kind == "shape"]
        check("number of shapes", len(seen), len(wanted))
        for (kind, frame, color, text), line in zip(wanted, seen):
            check(f"type of AutoShape {kind}", (line.type, line.auto_type), (AUTO_SHAPE, kind))
            check_near(f"frame of AutoShape {kind}", line.frame, [points(length) for length in frame])
            check(f"colour and text of AutoShape {kind}", (line.fill, line.text), (bgr(color), text))

    def text_deck(self):
        """Two slides: placeholders with runs of colours and sizes; text box, line, freeforms, nested groups."""
        document = self.office.new()
        first = document.DrawPages.getByIndex(0)
        first.Layout = 1
        title, body = shapes_of(first)
        title.String = "Méthodologie"
        body.String = "Premier\nSecond"
        cursor = body.createTextCursor()
        cursor.gotoStart(False)
        cursor.goRight(3, True)
        cursor.CharColor = 0xFF0000
        cursor.CharHeight = 40.0
        second = document.DrawPages.insertNewByIndex(1)
        second.Layout = 20
        box = self.new_shape(document, second, "TextShape", (1000, 1000, 6000, 1200), None, "zone de texte")
        self.new_shape(document, second, "LineShape", (8000, 1000, 3000, 2000))
        for kind, left in (("PolyPolygonShape", 1000), ("PolyLineShape", 6000)):
            corners = [Point(left + x, 5000 + y) for x, y in ((0, 0), (3000, 0), (1500, 2000))]
            self.new_shape(document, second, kind, (left, 5000, 3000, 2000)).PolyPolygon = (tuple(corners),)
        items = [self.new_shape(document, second, "EllipseShape", (12000 + 3000 * i, 5000 + 1000 * i, 2000, 1500),
                                0x00FF00 >> i) for i in range(3)]
        inner = self.group(second, items[:2])
        self.group(second, [inner, items[2]])
        box_frame = [points(each) for each in (box.Position.X, box.Position.Y, box.Size.Width, box.Size.Height)]
        self.office.save(document, self.path("text.ppt"))
        document.close(True)

        lines = self.seen(self.path("text.ppt"))
        check("order of slides and shapes", [line.kind for line in lines],
              ["presentation", "slide", "shape", "shape", "slide"] + ["shape"] * 9)
        check("layouts", [lines[1].values, lines[4].values], [[2], [12]])
        seen_title, seen_body = lines[2:4]
        check("title", (seen_title.type, seen_title.placeholder, seen_title.text), (PLACEHOLDER, 1, "Méthodologie"))
        check("body", (seen_body.type, seen_body.placeholder, seen_body.text), (PLACEHOLDER, 2, "Premier|Second"))
        check("runs of the body", seen_body.runs, ["3:40:255", "11:32:0"])
        shapes = lines[5:]
        check("types", [(line.depth, line.type) for line in shapes],
              [(0, TEXT_BOX), (0, LINE), (0, FREEFORM), (0, FREEFORM), (0, GROUP), (1, GROUP), (2, AUTO_SHAPE),
               (2, AUTO_SHAPE), (1, AUTO_SHAPE)])
        check("text of the box", shapes[0].text, "zone de texte")
        check_near("frame of the box", shapes[0].frame, box_frame)
        check_near("frame of the line", shapes[1].frame, [points(each) for each in (8000, 1000, 3000, 2000)])
        check("closed freeform", (shapes[2].closed, shapes[2].nodes), (1, 4))
        check("open freeform", (shapes[3].closed, shapes[3].nodes), (0, 3))
        check_near("frame of a freeform", shapes[2].frame, [points(each) for each in (1000, 5000, 3000, 2000)])
        for number, line in enumerate((shapes[6], shapes[7], shapes[8])):
            frame = (12000 + 3000 * number, 5000 + 1000 * number, 2000, 1500)
            check_near(f"frame of item {number}", line.frame, [points(each) for each in frame])
            check(f"colour of item {number}", line.fill, bgr(0x00FF00 >> number))

    def group(self, page, shapes):
        collection = self.office.context.ServiceManager.createInstanceWithContext(
            "com.sun.star.drawing.ShapeCollection", self.office.context)
        for shape in shapes:
            collection.add(shape)
        return page.group(collection)

    def unchanged_and_moved(self, name):
        """Opening and saving changes nothing; moving a shape changes where it stands."""
        original = streams(self.path(name))
        self.run("copy", self.path(name), self.path("copy.ppt"))
        check(f"{name} opened and saved", streams(self.path("copy.ppt")), original)
        self.run("copy", self.path("copy.ppt"), self.path("again.ppt"))
        with open(self.path("copy.ppt"), "rb") as one, open(self.path("again.ppt"), "rb") as other:
            check(f"{name} saved again", one.read() == other.read(), True)
        self.run("move", self.path(name), self.path("moved.ppt"))
        moved = streams(self.path("moved.ppt"))
        check(f"{name}: streams that differ once a shape is moved",
              [each for each in original if original[each] != moved[each]], ["PowerPoint Document"])
        pairs = zip(records(original["PowerPoint Document"]), records(moved["PowerPoint Document"]))
        check(f"{name}: records that differ", [hex(one[0][-1]) for one, other in pairs if one != other], ["0xf010"])

    def office_view(self, path):
        """Every shape of a deck as LibreOffice sees it, with its page and its depth."""
        document = self.office.open(path)
        seen = []

        def collect(page, container, depth):
            for shape in shapes_of(container):
                is_group = shape.ShapeType.endswith("GroupShape")
                color = shape.FillColor if hasattr(shape, "FillColor") else None
                text = shape.String if hasattr(shape, "String") else ""
                seen.append((page, depth, shape.ShapeType.split(".")[-1], text, color, shape.Position.X,
                             shape.Position.Y, shape.Size.Width, shape.Size.Height))
                if is_group:
                    collect(page, shape, depth + 1)

        for number in range(document.DrawPages.Count):
            collect(number, document.DrawPages.getByIndex(number), 0)
        document.close(True)
        return seen

    def edited(self, name):
        """An edit changes what it is about, and LibreOffice sees all else as before."""
        before = self.office_view(self.path(name))
        first = [each for each in before if each[0] == 0]
        last = [each for each in before if each[0] == 1]
        title = first[0][:3] + (first[0][3].replace("Mét", "Retitr", 1),) + first[0][4:]
        second = [each for each in last if each[1] == 0][1]
        wanted = {"retitle": [title] + first[1:] + last,
                  "delete": first + [each for each in last if each != second],
                  "delete-slide": [(0,) + each[1:] for each in last]}
        for edit in ("retitle", "delete", "delete-slide", "add", "add-to-group"):
            self.run(edit, self.path(name), self.path("edited.ppt"))
            seen = self.office_view(self.path("edited.ppt"))
            if edit in wanted:
                check(f"{name} after {edit}", seen, wanted[edit])
                continue
            new = [each for each in seen if each[3] == "nouvelle"]
            depth = 1 if edit == "add-to-group" else 0
            check(f"{name} after {edit}: the new shape", [each[:2] + each[4:5] for each in new], [(1, depth, 0x563412)])
            others = [self.without_outer_groups(view) for view in ([each for each in seen if each not in new], before)]
            check(f"{name} after {edit}: all others", *([each[:5] for each in view] for view in others))
            # The items of the new group stand in eighths of a point, those of the old one stood in finer units.
            check_near(f"{name} after {edit}: their places",
                       *([points(length) for each in view for length in each[5:]] for view in others), 0.25)

    @staticmethod
    def without_outer_groups(view):
        return [each for each in view if (each[1], each[2]) != (0, "GroupShape")]

    def our_deck(self):
        """A deck of the embedded PowerPoint as LibreOffice sees it."""
        path = self.path("ours.ppt")
        self.run("make", path)
        lines = self.seen(path)
        document = self.office.open(path)
        check("slides of ours", document.DrawPages.Count, 3)
        for number, start in enumerate([place for place, line in enumerate(lines) if line.kind == "slide"][:2]):
            rest = lines[start + 1:]
            end = next((place for place, line in enumerate(rest) if line.kind == "slide"), len(rest))
            self.compare(document.DrawPages.getByIndex(number), rest[:end])
        self.compare_table(shapes_of(document.DrawPages.getByIndex(2)), lines[-1 - 5 - 16:])
        title, body = shapes_of(document.DrawPages.getByIndex(0))
        check("title of ours", (title.ShapeType.endswith("TitleTextShape"), body.ShapeType.endswith("OutlinerShape")),
              (True, True))
        cursor = body.createTextCursor()
        cursor.gotoStart(False)
        cursor.goRight(3, True)
        check("first run of ours", (cursor.CharColor, cursor.CharHeight), (0xFF0000, 40.0))
        self.office.picture(document.DrawPages.getByIndex(1), self.path("ours.png"))
        document.close(True)
        with Image.open(self.path("ours.png")) as picture:
            check("size of the picture", picture.size, (720, 540))
            pixels = [picture.convert("RGB").getpixel(place) for place in ((30, 70), (190, 55), (700, 500))]
        check("pixels of the picture", pixels,
              [(255, 0, 0), (0, 255, 0), (255, 255, 255)])
        tags = [data.decode("utf-16le") for path, data in records(streams(path)["PowerPoint Document"])
                if path[-3:] == (0x1388, 0x1389, 0x0FBA)]
        check("names of tags", (tags.count("IDENTITE"), len([tag for tag in tags if tag.startswith("ZOR")])), (10, 10))

    def compare_table(self, shapes, lines):
        """A table of three rows and two columns, the first two cells merged, with its borders: one a side."""
        check("the table of ours", [line.type for line in lines], [TABLE] + 5 * [AUTO_SHAPE] + 16 * [LINE])
        check("the table of ours, seen", [shape.ShapeType.split(".")[-1] for shape in shapes], ["TableShape"])
        frame = (shapes[0].Position.X, shapes[0].Position.Y, shapes[0].Size.Width, shapes[0].Size.Height)
        check_near("frame of the table", [points(each) for each in frame], lines[0].frame)
        table = shapes[0].Model
        check("rows and columns", (table.Rows.Count, table.Columns.Count), (3, 2))
        merged, cell = table.getCellByPosition(0, 0), table.getCellByPosition(1, 1)
        check("merged cell", (merged.String, merged.ColumnSpan), ("fusionnée", 2))
        check("cell", (cell.String, bgr(cell.FillColor)), ("case", 255))

    def compare(self, page, lines):
        flat = []

        def collect(container, depth):
            for shape in shapes_of(container):
                flat.append((depth, shape))
                if shape.ShapeType.endswith("GroupShape"):
                    collect(shape, depth + 1)

        collect(page, 0)
        check("shapes of ours, with their depths", [depth for depth, _ in flat], [line.depth for line in lines])
        for (_, shape), line in zip(flat, lines):
            if line.type not in (GROUP, LINE):
                text = shape.String.replace("\n", "|")
                check(f"text of ours: {line.text!r}", text, line.text)
            if line.fill >= 0 and line.type not in (GROUP, LINE):
                check(f"colour of ours: {line.frame}", bgr(shape.FillColor), line.fill)
            if line.type not in (TEXT_BOX, WORD_ART):  # LibreOffice fits these to their text
                frame = (shape.Position.X, shape.Position.Y, shape.Size.Width, shape.Size.Height)
                check_near(f"frame of ours: {line.type} {line.text!r}", [points(each) for each in frame], line.frame)


    def others(self):
        """Presentations that others have made, where K73053_DECKS names their folder: saved, LibreOffice opens them all."""
        if "K73053_DECKS" not in os.environ:
            print("skipped: presentations of others; K73053_DECKS names no folder of them")
            return
        for path in sorted(glob.glob(os.path.join(os.environ["K73053_DECKS"], "*.ppt"))):
            if subprocess.run([self.tool, "copy", path, self.path("saved.ppt")], capture_output=True).returncode == 0:
                slides = len([line for line in self.seen(path) if line.kind == "slide"])
                document = self.office.open(self.path("saved.ppt"))
                check(f"slides of {os.path.basename(path)}, saved", document and document.DrawPages.Count, max(slides, 1))
                document.close(True)


def main(tool):
    with tempfile.TemporaryDirectory() as folder, Office(folder) as office:
        tests = Tests(tool, office)
        tests.kinds_deck()
        tests.text_deck()
        tests.unchanged_and_moved("kinds.ppt")
        tests.unchanged_and_moved("text.ppt")
        tests.edited("text.ppt")
        tests.our_deck()
        tests.others()
    print(f"{passed} passed, {failed} failed")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(os.path.abspath(sys.argv[1])))
