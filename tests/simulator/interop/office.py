"""LibreOffice, started headless with a profile of its own, and what it sees in a deck."""
import os
import subprocess
import time

import uno
from com.sun.star.awt import Point, Size
from com.sun.star.beans import PropertyValue

PPT = "MS PowerPoint 97"
PIPE = f"pipe,name=interop{os.getpid()}"


def arguments(**named):
    return tuple(PropertyValue(name, 0, value, 0) for name, value in named.items())


class Office:
    """Ends with the block that it is used in."""

    def __init__(self, folder):
        self.folder = folder
        self.process = subprocess.Popen(
            ["soffice", "--headless", "--norestore", "--nologo", f"-env:UserInstallation=file://{folder}/profile",
             f"--accept={PIPE};urp;"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def __enter__(self):
        context = uno.getComponentContext()
        resolver = context.ServiceManager.createInstanceWithContext("com.sun.star.bridge.UnoUrlResolver", context)
        for attempt in range(240):
            try:
                remote = resolver.resolve(f"uno:{PIPE};urp;StarOffice.ComponentContext")
                break
            except Exception:  # until it listens
                if attempt == 239 or self.process.poll() is not None:
                    self.process.kill()
                    raise
                time.sleep(0.5)
        self.context = remote
        self.desktop = remote.ServiceManager.createInstanceWithContext("com.sun.star.frame.Desktop", remote)
        return self

    def __exit__(self, *_):
        try:
            self.desktop.terminate()
            self.process.wait(20)
        except Exception:
            self.process.kill()
            self.process.wait()

    def new(self):
        return self.desktop.loadComponentFromURL("private:factory/simpress", "_blank", 0, arguments(Hidden=True))

    def open(self, path):
        return self.desktop.loadComponentFromURL("file://" + path, "_blank", 0, arguments(Hidden=True))

    def save(self, document, path):
        document.storeToURL("file://" + path, arguments(FilterName=PPT))

    def picture(self, page, path):
        """A picture of a page, 720 pixels wide."""
        export = self.context.ServiceManager.createInstanceWithContext(
            "com.sun.star.drawing.GraphicExportFilter", self.context)
        export.setSourceDocument(page)
        data = uno.Any("[]com.sun.star.beans.PropertyValue", arguments(PixelWidth=720, PixelHeight=540))
        export.filter((PropertyValue("URL", 0, "file://" + path, 0), PropertyValue("MediaType", 0, "image/png", 0),
                       PropertyValue("FilterData", 0, data, 0)))


def place(shape, left, top, width, height):
    """In hundredths of a millimetre."""
    shape.Position = Point(left, top)
    shape.Size = Size(width, height)


def points(length):
    return length * 72 / 2540


def shapes_of(container):
    return [container.getByIndex(place) for place in range(container.Count)]
