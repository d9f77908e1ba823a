"""Looks at the page of `exercise-host verify --report` in Chromium, and reads what is written for build servers.

pages.py EXERCISE-HOST: ends with a line "N passed, N failed".
"""
import json
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as xml

from selenium import webdriver
from selenium.webdriver.chrome.service import Service
from selenium.webdriver.common.by import By

SIZES = {"phone": (390, 844, True), "desk": (1280, 800, False)}
LEAST_CONTRAST = 4.5
LOOK = pathlib.Path(__file__).with_name("look.js").read_text(encoding="utf-8")
PICTURES = pathlib.Path(__file__).resolve().parents[3] / "docs/pictures"
MOST_BYTES = 8_000_000
# A scenario that falls short, with all that could break a page or XML in its title, its moves and its slide.
TROUBLE = """# Trouble <b>&amp; "quotes"</b>
question 314
course
  Presentations.Add
  ActivePresentation.Slides.Add 1, ppLayoutBlank
  ActivePresentation.Slides(1).Shapes.AddShape msoShapeSun, 481.625, 368.375, 194.75, 125.125
scenario "a title with <i>& a very long word: {word}"
  Set t = ActivePresentation.Slides(1).Shapes.AddTextbox(1, 0, 0, 300, 50)
  t.TextFrame.TextRange.Text = "</svg><script>alert(1)</script> & \x07 ]]>"
  t.Name = "{word}"
  check "Q"
""".format(word="x" * 300)

results = []


def check(name, wrong):
    results.append(not wrong)
    if wrong:
        print(f"{name}: {wrong}")


def browser():
    options = webdriver.ChromeOptions()
    for option in ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage"):
        options.add_argument(option)
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
    return webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)


def emulate(driver, size, scheme):
    width, height, mobile = SIZES[size]
    driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                           {"width": width, "height": height, "deviceScaleFactor": 1, "mobile": mobile})
    driver.execute_cdp_cmd("Emulation.setEmulatedMedia",
                           {"features": [{"name": "prefers-color-scheme", "value": scheme}]})


def look(driver, page, name):
    """Folded up, and with everything unfolded, on every size and in both schemes."""
    for size in SIZES:
        for scheme in ("light", "dark"):
            emulate(driver, size, scheme)
            driver.get(page.as_uri())
            paper = driver.execute_script("return getComputedStyle(document.body).backgroundColor")
            brightness = sum(map(int, re.findall(r"\d+", paper)[:3]))
            check(f"{name}, {size}, {scheme}: colours of the scheme", "" if (brightness > 384) == (scheme == "light") else paper)
            for fold in ("folded", "unfolded"):
                if fold == "unfolded":
                    driver.execute_script("document.querySelectorAll('details').forEach((one) => (one.open = true))")
                found = driver.execute_script(LOOK, LEAST_CONTRAST, ".gallery")
                check(f"{name}, {size}, {scheme}, {fold}", found["wrong"] or ("" if found["texts"] > 5 else "no texts"))
    messages = [entry["message"] for entry in driver.get_log("browser")]
    check(f"{name}: the browser has nothing to say", messages)


def listen(driver, name, files, scenarios):
    """What a screen reader finds on a page with everything unfolded: a heading for each row, and no two pictures of one name."""
    nodes = driver.execute_cdp_cmd("Accessibility.getFullAXTree", {})["nodes"]
    found = [(node["role"]["value"], node.get("name", {}).get("value", ""),
              next((each["value"]["value"] for each in node["properties"] if each["name"] == "level"), None))
             for node in nodes if not node["ignored"]]
    levels = [level for role, _, level in found if role == "heading"]
    check(f"{name}: headings of questions and scenarios",
          "" if (levels.count(2), levels.count(3)) == (files, scenarios) else (levels.count(2), levels.count(3)))
    pictures = [words for role, words, _ in found if role in ("image", "img")]
    check(f"{name}: every picture has a name of its own", [words for words in set(pictures) if pictures.count(words) > 1][:5])
    check(f"{name}: there are pictures", "" if len(pictures) >= scenarios else len(pictures))


def verify(host, folder, *arguments, good=True):
    names = {"--report": folder / "page.html", "--junit": folder / "junit.xml", "--json": folder / "report.json"}
    asked = [str(part) for pair in names.items() for part in pair]
    ran = subprocess.run([host, "verify", *asked, *arguments], capture_output=True, text=True, check=False)
    check("exit code", "" if ran.returncode == (0 if good else 1) else ran.stdout[-500:] + ran.stderr[-500:])
    return list(names.values()), ran.stdout


def all_questions(driver, host, folder):
    (page, junit, report), said = verify(host, folder)
    passed = int(re.search(r"(\d+) passed, 0 failed", said)[1])
    data = json.loads(report.read_text(encoding="utf-8"))
    suites = xml.parse(junit).getroot()
    text = page.read_text(encoding="utf-8")
    check("the page is small enough", "" if len(text) < MOST_BYTES else len(text))
    check("the page asks for nothing", re.findall(r'(?:src|href)="(?!#)[^"]*"|@import|url\((?!#)[^)]*\)|<script', text))
    scenarios = sum(len(file["scenarios"]) for file in data["files"])
    cases = suites.findall("testsuite/testcase")
    check("the same scenarios everywhere",
          "" if passed == scenarios == len(cases) == int(suites.get("tests")) else (passed, scenarios, len(cases)))
    look(driver, page, "all questions")
    listen(driver, "all questions", len(data["files"]), scenarios)
    rows = driver.find_elements(By.CSS_SELECTOR, "details.file > summary")
    numbers = [row.find_element(By.CSS_SELECTOR, ".number").text for row in rows]
    check("a row for every question", sorted({str(file["question"]) for file in data["files"]} - set(numbers)))
    shown = driver.execute_script("return document.querySelectorAll('details.scenario').length")
    check("every scenario is on the page", "" if shown == passed else shown)
    check("every row shows whether it is folded", driver.execute_script(
        "const marks = (open) => [...document.querySelectorAll('details')].map((one) => ((one.open = open),"
        "  getComputedStyle(one.querySelector(':scope > summary .number, :scope > summary h3'), '::before').content));"
        "const unfolded = marks(true); const folded = marks(false);"
        "return folded.filter((mark, at) => mark === unfolded[at] || mark === 'none')"))
    check("a link unfolds what it leads to", driver.execute_script(
        "document.querySelectorAll('details').forEach((one) => (one.open = false));"
        "const link = document.querySelector('#q0315 dd a'); location.hash = link.getAttribute('href');"
        "return document.querySelector('#q0315').open ? '' : 'folded'"))


def trouble(driver, host, folder):
    scenario = folder / "trouble.scn"
    scenario.write_text(TROUBLE, encoding="utf-8")
    (page, junit, report), _ = verify(host, folder, "--file", str(scenario), good=False)
    look(driver, page, "a scenario that falls short")
    failure = xml.parse(junit).find("testsuite/testcase/failure")
    check("the failure is in JUnit's file", "" if failure is not None and "expected the letter" in failure.get("message") else "missing")
    check("the failure is in JSON", "" if json.loads(report.read_text(encoding="utf-8"))["failed"] == 1 else "missing")
    body = driver.find_element(By.TAG_NAME, "body").text
    check("the failure is on the page, and unfolded", "" if "read the letter" in body and "These fell short" in body else body[:200])
    check("nothing got out of its quotation marks",
          driver.execute_script("return document.querySelectorAll('script, b > i, summary b, summary i').length || ''"))
    refused = subprocess.run([host, "verify", "315", "--report", str(folder / "no" / "page.html")], capture_output=True, text=True,
                             check=False)
    check("a page that cannot be written is refused",
          "" if refused.returncode == 2 and "cannot be written" in refused.stderr else (refused.returncode, refused.stderr))


def pictures(host, folder):
    for question in ("308", "315", "321", "323"):
        ran = subprocess.run([host, "run", question, "--picture", str(folder / question)], capture_output=True, text=True, check=False)
        before, after = (xml.parse(folder / question / name).getroot() for name in ("before.svg", "after.svg"))
        same = xml.tostring(before) == xml.tostring(after)
        check(f"pictures of {question}", ran.stderr or ("nothing has changed" if same else ""))
    for name in ("before", "after"):
        shown = (PICTURES / f"308-{name}.svg").read_bytes()
        check(f"308 {name} in the README", "" if shown == (folder / f"308/{name}.svg").read_bytes() else "another picture")


def main(host):
    with tempfile.TemporaryDirectory() as name:
        driver = browser()
        try:
            all_questions(driver, host, pathlib.Path(name))
            trouble(driver, host, pathlib.Path(name))
            pictures(host, pathlib.Path(name))
        finally:
            driver.quit()
    print(f"{sum(results)} passed, {len(results) - sum(results)} failed")
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
