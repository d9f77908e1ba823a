"""Types lines at a terminal of `exercise-host try`, as a course author does, in a locale that knows no accents.

terminal.py EXERCISE-HOST: ends with a line "N passed, N failed".
"""
import json
import os
import pathlib
import pty
import re
import select
import signal
import sys
import tempfile
import termios
import time

PATIENCE = 120  # seconds for an answer
PROMPT = "314> "
TAB, UP, LEFT, INTERRUPT, END = "\t", "\x1b[A", "\x1b[D", "\x03", "\x04"
CLOSED = "everything is as it was before."

results = []


def check(name, wrong):
    results.append(not wrong)
    if wrong:
        print(f"{name}: {wrong}")


class Terminal:
    """A terminal with a conversation in it."""

    def __init__(self, host, *arguments, folder=None, prompt=PROMPT, **environment):
        self.seen = ""
        self.prompt = prompt
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.environ.pop("NO_COLOR", None)
            os.environ.update({"LC_ALL": "C", "TERM": "xterm", "COLUMNS": "200", **environment})
            os.chdir(folder or ".")
            os.execv(host, [host, *arguments])

    def type(self, keys):
        """Types, once the program reads keys: it prints its prompt before, and a Ctrl-D between the two would be lost."""
        end = time.monotonic() + PATIENCE
        while termios.tcgetattr(self.terminal)[3] & termios.ICANON and time.monotonic() < end:
            time.sleep(0.001)
        self.seen = ""
        os.write(self.terminal, keys.encode())

    def wait_for(self, text):
        """What is printed up to a text, since something was typed, without what moves the cursor."""
        end = time.monotonic() + PATIENCE
        while text not in self.plain():
            if time.monotonic() > end or not select.select([self.terminal], [], [], PATIENCE)[0]:
                raise TimeoutError(f"no {text!r} in {self.plain()!r}")
            try:
                self.seen += os.read(self.terminal, 65536).decode("utf-8", "replace")
            except OSError:  # the program has ended
                if text not in self.plain():
                    raise
        return self.plain()

    def plain(self):
        return re.sub(r"\x1b\[[0-9;?]*[A-Za-z]|\x1b[=>]", "", self.seen)

    def answer(self, keys):
        """What is printed behind a line that is typed, up to the next prompt."""
        self.type(keys + "\r")
        return self.wait_for("\n" + self.prompt).split("\n", 1)[1]

    def all(self):
        """Everything that the program prints, once it has ended; colours, too."""
        try:
            while read := os.read(self.terminal, 65536):
                self.seen += read.decode("utf-8", "replace")
        except OSError:
            pass
        return self.seen + f"exit code {self.end()}"

    def end(self):
        """The exit code, once the program has ended."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            ended, status = os.waitpid(self.process, os.WNOHANG)
            if ended:
                return os.waitstatus_to_exitcode(status)
            time.sleep(0.05)
        os.kill(self.process, signal.SIGKILL)
        os.waitpid(self.process, 0)
        return "none: the program goes on"


def expect(terminal, name, keys, wanted):
    answered = terminal.answer(keys)
    check(name, "" if wanted in answered else f"{keys!r} is answered {answered!r}")


def walk(host, folder):
    """The guide's way from nothing to a file of one's own on a deck of one's own, and its report, in ten statements."""
    def run(*arguments, wanted):
        said = Terminal(host, *arguments, folder=folder).all()
        check(f"{arguments[0]} of the walk", "" if all(word in said for word in (*wanted, "exit code 0")) else repr(said))

    run("deliver", "311", "deck", wanted=["07305311.ppt"])
    terminal = Terminal(host, "try", "311", "--course", "deck", folder=folder, prompt="311> ")
    terminal.wait_for(terminal.prompt)
    for typed, wanted in {"check": 'the letter "E"', 'save mine.scn "nothing done"': "0 moves and 1 check",
                          "reset": "prepared anew", "ActiveWindow.Selection.ShapeRange.Left = 150": "",
                          "ActiveWindow.Selection.ShapeRange.Top = 200": "", "check ": "a success",
                          'append mine.scn "the right way"': "2 moves and 1 check"}.items():
        expect(terminal, "a line of the walk", typed, wanted)
    terminal.type(END)
    terminal.wait_for(CLOSED)
    terminal.end()
    run("verify", "mine.scn", "--course", "deck", "--report", "page.html", wanted=["2 passed"])
    page = pathlib.Path(folder, "page.html").read_text(encoding="utf-8")
    check("the report has the scenarios", [word for word in ("nothing done", "the right way", "<svg") if word not in page])


def folded(host):
    """Lines fit the terminal, but for statements, which may be copied, and JSON."""
    terminal = Terminal(host, "try", "318", prompt="318> ", COLUMNS="60")
    said = terminal.wait_for(terminal.prompt) + terminal.answer("check") + terminal.answer("x = y")
    terminal.type(END)
    said += terminal.all() + Terminal(host, "run", "306", COLUMNS="60").all()
    wide = [line for line in said.replace(terminal.prompt, "").split("\r\n") if len(line) > 60]
    check("lines fit the terminal", [line for line in wide if not re.match(r" +\d+  deck", line)])
    check("statements stay whole", "" if wide else "none is wide")
    check("what is folded goes on further in", "" if 'False,\r\n  CauseErreur "B"' in said else repr(said))
    json.loads(Terminal(host, "run", "306", "--json", COLUMNS="60").all().split("exit code")[0])


def main(host):
    with tempfile.TemporaryDirectory() as folder:
        walk(host, folder)
    for wanted, environment in (("\x1b[32m7 passed\x1b[0m, 0 failed", {}), ("\n7 passed, 0 failed", {"NO_COLOR": "1"})):
        said = "\n" + Terminal(host, "verify", "313", **environment).all()
        check("colours where they are liked", "" if wanted in said.replace("\r", "\n") else repr(said))
    folded(host)
    terminal = Terminal(host, "try", "314")
    terminal.wait_for(PROMPT)
    expect(terminal, "Tab completes a member", "?ActivePresentation.Wi" + TAB + ".Count", " 1")
    expect(terminal, "Tab completes what stands in parentheses", "?ActivePresentation.Slides(1).Sha" + TAB, "Shapes of 3")
    expect(terminal, "an arrow brings back a line", UP, "Shapes of 3")
    expect(terminal, "and the first one, behind what was typed twice", UP + UP + UP, " 1")
    expect(terminal, "a line is edited", '?"ac"' + LEFT + LEFT + "b", "abc")
    expect(terminal, "accents arrive", '?"créer é"', "créer é")
    terminal.type("?ActivePresentation.Sli")
    terminal.wait_for("Sli")
    terminal.type(INTERRUPT)
    terminal.wait_for("\n" + PROMPT)
    expect(terminal, "Ctrl-C drops a line half typed", "?1 + 1", " 2")
    for leave in (INTERRUPT, END, "quit\r"):
        expect(terminal, "a move is made", "x = 1", "")
        terminal.type(leave)
        said = terminal.wait_for("\n" + PROMPT)
        check("who leaves is warned of moves that are not saved", "" if "1 move not saved: check" in said else repr(said))
        expect(terminal, "and goes on", "reset", "1 move")
    with tempfile.TemporaryDirectory() as folder:
        terminal.answer("x = 1")
        terminal.answer("check")
        expect(terminal, "moves are saved", f"save {folder}/mine.scn", "1 move")
        terminal.type(INTERRUPT)
        check("no warning where all is saved", "" if "not saved" not in terminal.wait_for(CLOSED) else "a warning")
    check("Ctrl-C closes the question", "" if (code := terminal.end()) == 0 else f"exit code {code}")
    for request, move in ((signal.SIGINT, "?1"), (signal.SIGTERM, "x = 1"), (signal.SIGHUP, "x = 1")):
        terminal = Terminal(host, "try", "314")
        terminal.wait_for(PROMPT)
        terminal.answer(move)
        os.kill(terminal.process, request)
        terminal.wait_for(CLOSED)
        check(f"{request.name} closes the question", "" if (code := terminal.end()) == 0 else f"exit code {code}")
    print(f"{sum(results)} passed, {len(results) - sum(results)} failed")
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main(os.path.abspath(sys.argv[1])))
