"""Plays all questions in Chromium, and tries to get at the page as others than its author would.

play.py EXERCISE-HOST: ends with a line "N passed, N failed".
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import time

from browser import SHIFT, Page, Player, chromium
from questions import GESTURES, QUESTIONS, Keys
import safety

results = []


def check(name, wrong):
    results.append(not wrong)
    if wrong:
        print(f"{name}: {wrong}", flush=True)


def attempt(page, name, gestures, expected):
    """Makes gestures, reads the verdict from the page and saves the whole as a scenario."""
    try:
        for gesture in gestures:
            gesture(page)
        found = page.verdict()
        said = page.one("#said.wrong").text if page.all("#said.wrong") else ""
        check(name, "" if found == expected else f"{found} instead of {expected}; {page.statements()} {said}")
        page.do("save")
        page.dialog(file="played.scn", title=name)
    except Exception as error:  # the others are to be played all the same
        check(name, f"{type(error).__name__}: {str(error)[:300]} {page.statements()}")
        page.driver.refresh()
        page.__init__(page.driver, page.driver.current_url)


def all_questions(driver, host, folder, chosen):
    for number in chosen:
        right, letter, mistake, wrong_letter = QUESTIONS[number]
        with Player(host, folder, str(number)) as player:
            page = Page(driver, player.address)
            attempt(page, f"{number} solved", right, (True, letter))
            page.do("reset")
            attempt(page, f"{number} got wrong", mistake, (False, wrong_letter))
            scenarios = folder / "played.scn"
            ran = subprocess.run([host, "verify", "--file", scenarios], capture_output=True, text=True, check=False)
            check(f"{number}: the scenarios left pass", "" if "2 passed, 0 failed" in ran.stdout else ran.stdout + ran.stderr)
            scenarios.unlink(missing_ok=True)
            driver.get("about:blank")
    check("the browser has nothing to say", [entry["message"] for entry in driver.get_log("browser")])


LOOK = (pathlib.Path(__file__).parents[1] / "report/look.js").read_text(encoding="utf-8")
SIZES = {"a desk": (1280, 820, 1), "200 %": (640, 410, 2), "a phone": (390, 844, 1)}
SCROLLING = "#strip, #statements, #desk, #slide, .menu"


def look(driver, host, folder):
    """A verdict with its reason, a menu and a dialog, on every size and in both schemes: nothing overlaps or is cut."""
    with Player(host, folder, "318") as player:
        page = Page(driver, player.address)
        page.click("ZOR4")
        page.verdict()
        check("the reason is told", "" if "Width is 80" in page.one("#verdict .why").text else page.one("#verdict").text)
        lit = page.all("#slide .lit")
        check("the shape that decided is lit up", "" if len(lit) == 1 else len(lit))
        for size, (width, height, factor) in SIZES.items():
            driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {"width": width, "height": height, "deviceScaleFactor": factor, "mobile": False})
            for scheme in ("light", "dark"):
                driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": [{"name": "prefers-color-scheme", "value": scheme}]})
                for shown, opener in (("body", None), (".menu", "#menus button"), ("dialog", "#do-save")):
                    if opener:
                        page.one(opener).click()
                    found = driver.execute_script(LOOK, 4.5, SCROLLING, shown)
                    check(f"{shown} on {size}, {scheme}", found["wrong"] or ("" if found["texts"] > 3 else "no texts"))
                    page.press(*([Keys.ESCAPE] if opener else []))
        driver.execute_cdp_cmd("Emulation.clearDeviceMetricsOverride", {})
        driver.execute_cdp_cmd("Emulation.setEmulatedMedia", {"features": []})


def gestures(driver, host, folder):
    """What each gesture is told as, that each is taken back alone, and that the question is left for the next one."""
    with Player(host, folder, "307") as player:
        page = Page(driver, player.address)
        made = []
        for gesture, statements in GESTURES:
            gesture(page)
            found = page.statements()[len(made):]
            check(f"{statements}", "" if found == statements else found)
            made += found
        check("a presentation that is closed is told", "" if page.one("#closed").is_displayed() else "a slide is shown")
        for place in (-1, -2):
            page.do("undo")
            check("undo takes back one", "" if page.statements() == made[:place] else page.statements())
        page.do("next")
        check("the next question", "" if "308" in page.one("#number").text and not page.statements() else page.one("#number").text)


def keyboard(driver, host, folder):
    """A question solved and judged without the mouse; whatever has the focus on the way shows it."""
    with Player(host, folder, "318") as player:
        page = Page(driver, player.address)
        page.press(*[Keys.TAB] * 4, "\ue03a", *[Keys.ARROW_RIGHT] * 4, Keys.ARROW_DOWN)
        item = next(place for place, each in enumerate(page.all("[role=menuitem]:enabled:is(.menu *)")) if each.text.startswith("Taille"))
        page.press(*[Keys.ARROW_DOWN] * item, Keys.ENTER)
        page.press("2", Keys.TAB, "2", Keys.ENTER)
        unseen = []
        for _ in range(60):
            focused, outline = driver.execute_script(
                "const one = document.activeElement; return [one.id || one.textContent, getComputedStyle(one).outlineStyle]")
            if focused == "do-check":
                break
            unseen += [focused] if outline == "none" else []
            page.press((SHIFT, Keys.TAB))
        page.press(Keys.ENTER)
        check("solved by the keyboard alone", "" if page.all("#verdict.passed") else (focused, page.statements()))
        check("the focus is seen", unseen)


WATCH = """
window.times = [];
let begun = 0;
addEventListener("keydown", (event) => (begun = event.timeStamp), true);
new MutationObserver(() => {
  const since = begun;
  const { port1, port2 } = new MessageChannel();
  port1.onmessage = () => times.push(performance.now() - since);
  requestAnimationFrame(() => port2.postMessage(0)); // which comes when the frame has been drawn
}).observe(document.querySelector("#statements"), { childList: true });
"""


def speed(driver, host, folder):
    """From a key to the frame that shows what it has done: said, not judged, since it is the machine's as well."""
    with Player(host, folder, "306") as player:
        page = Page(driver, player.address)
        page.click((360, 220))
        driver.execute_script(WATCH)
        for step in range(100):
            page.press(Keys.ARROW_RIGHT if step % 2 else Keys.ARROW_LEFT)
        end = time.monotonic() + 10  # the last frame comes in its own time
        while len(times := sorted(driver.execute_script("return times"))) < 100 and time.monotonic() < end:
            time.sleep(0.02)
        check("a hundred gestures are seen", "" if len(times) == 100 else len(times))
        print(f"A gesture is on the screen after {times[50]:.0f} ms (median of 100), {times[95]:.0f} ms (95 of 100)")


def main():
    host = os.path.abspath(sys.argv[1])
    chosen = [int(each) for each in sys.argv[2:] if each.isdigit()] or (QUESTIONS if not sys.argv[2:] else [])
    with tempfile.TemporaryDirectory() as folder:
        driver = chromium()
        try:
            if not sys.argv[2:] or "safety" in sys.argv:
                safety.run(check, host, folder, driver)
                look(driver, host, folder)
                gestures(driver, host, folder)
                keyboard(driver, host, folder)
                speed(driver, host, folder)
            all_questions(driver, host, pathlib.Path(folder), chosen)
        finally:
            driver.quit()
    print(f"{results.count(True)} passed, {results.count(False)} failed")
    return 0 if all(results) else 1


sys.exit(main())
