"""Plays all questions in Chromium, and tries to get at the page as others than its author would.

play.py EXERCISE-HOST: ends with a line "N passed, N failed".
"""
import pathlib
import subprocess
import sys
import tempfile

from browser import Page, Player, chromium
from questions import QUESTIONS

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


def main():
    host = str(pathlib.Path(sys.argv[1]).resolve())
    chosen = [int(each) for each in sys.argv[2:]] or QUESTIONS
    with tempfile.TemporaryDirectory() as folder:
        driver = chromium()
        try:
            all_questions(driver, host, pathlib.Path(folder), chosen)
        finally:
            driver.quit()
    print(f"{results.count(True)} passed, {results.count(False)} failed")
    return 0 if all(results) else 1


sys.exit(main())
