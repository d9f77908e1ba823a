"""Runs the suites that CMakeLists.txt beside this registers, side by side, and adds up what they say.

The last line is "N passed, N failed", with ", N skipped" behind it where a test or suite says "skipped: " and why, or GoogleTest
counts such; the exit code is 1 where anything failed. A suite that could not begin, since what it needs
failed, counts as failed. What each suite has printed stands in build/suites/log/."""
import argparse
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import threading
import time

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parents[1]
BUILD = ROOT / "build/suites"
LOG = BUILD / "log"
TIERS = ("quick", "all", "long")
TOTALS = re.compile(r"(\d+) passed, (\d+) failed")
SKIPPED = re.compile(r"skipped: |\[  SKIPPED \] (\d+) tests?, listed")
STARTED = re.compile(r" *Start +(\d+): ")
SAID = re.compile(r"(\d+): (.*)")
ENDED = re.compile(r" *\d+/\d+ Test +#(\d+): .*?(Passed|\*\*\*[\w ]*?) +([\d.]+) sec")


def listed(selection):
    """The suites of a selection: by name their group, their tiers and the seconds that they are said to take."""
    asked = subprocess.run(["ctest", "--test-dir", BUILD, "--show-only=json-v1", *selection],
                           check=True, capture_output=True, encoding="utf-8")
    suites = {}
    for test in json.loads(asked.stdout)["tests"]:
        properties = {each["name"]: each["value"] for each in test["properties"]}
        labels = [label.split(":") for label in properties["LABELS"]]
        group = next(word for kind, word in labels if kind == "suite")
        suites[test["name"]] = (group, [word for kind, word in labels if kind == "tier"], properties["COST"])
    return suites


class Screen:
    """What runs, and about how long is left, in the last line of a terminal; nothing elsewhere."""

    def __init__(self, seconds, at_once):
        self.left = dict(seconds)
        self.at_once = at_once
        self.running = {}
        self.lock = threading.Lock()
        self.is_terminal = sys.stdout.isatty()
        if self.is_terminal:
            threading.Thread(target=self.tick, daemon=True).start()

    def start(self, name):
        with self.lock:
            self.running[name] = time.monotonic()

    def end(self, name):
        with self.lock:
            self.left.pop(name, None)
            self.running.pop(name, None)

    def say(self, line):
        with self.lock:
            print(("\r\033[K" if self.is_terminal else "") + line, flush=True)

    def tick(self):
        while True:
            with self.lock:
                now = time.monotonic()
                left = sum(max(each - (now - self.running.get(name, now)), 1) for name, each in self.left.items()) / self.at_once
                about = f"{left / 60:.0f} min" if left >= 60 else f"{left:.0f} s"
                line = f"{', '.join(self.running)} ... about {about} left"
                width = shutil.get_terminal_size().columns - 1
                print("\r\033[K" + line[:width], end="", flush=True)
            time.sleep(1)


def run(selection, jobs):
    """Runs suites; how many tests passed, failed and were skipped."""
    suites = listed(selection)
    shutil.rmtree(LOG, ignore_errors=True)
    LOG.mkdir(parents=True)
    names, said, passed, failed, left_out = {}, {}, 0, 0, 0
    screen = Screen({name: seconds for name, (_, _, seconds) in suites.items()}, jobs)
    ctest = subprocess.Popen(["ctest", "--test-dir", BUILD, "-V", "-j", str(jobs), *selection],
                             stdout=subprocess.PIPE, stderr=subprocess.STDOUT, encoding="utf-8", errors="replace")
    for line in ctest.stdout:
        line = line.rstrip("\n")
        if start := STARTED.match(line):
            name = names[start[1]] = line[start.end():]
            said[start[1]] = []
            screen.start(name)
        elif (words := SAID.match(line)) and words[1] in said:
            said[words[1]].append(words[2])
        elif end := ENDED.match(line):
            name = names.get(end[1]) or re.search(r"#\d+: (.*?) \.*", line)[1]
            lines = said.get(end[1], [])
            seconds = float(end[3])
            screen.end(name)
            totals = next((found for found in map(TOTALS.fullmatch, reversed(lines)) if found), None)
            good, bad = (int(totals[1]), int(totals[2])) if totals else (0, 0)
            if end[2] != "Passed" and not bad:
                bad = 1
            (LOG / (re.sub(r"\W+", "-", name) + ".txt")).write_text("\n".join(lines) + "\n", encoding="utf-8")
            if bad:
                for each in [each for each in lines if not re.match(r"\[ +(OK|RUN) +\]", each)][-60:]:
                    screen.say("    " + each)
            skipped = [int(found[1] or 1) for found in map(SKIPPED.match, lines) if found]
            outcome = f"{good:5d} passed, {bad} failed" + (f", {sum(skipped)} skipped" if skipped else "")
            if not lines and bad:
                outcome = "did not run: what it needs failed"
            elif skipped and not good + bad:
                outcome = next(each for each in lines if SKIPPED.match(each))
            else:
                outcome += "".join(f": {why}" for each, why in zip(lines, lines[1:]) if each.endswith(": Skipped"))
            if suites[name][0] != "setup" or bad:
                screen.say(f"{name:52s}{outcome}  ({seconds:.0f} s)")
                passed, failed, left_out = passed + good, failed + bad, left_out + sum(skipped)
            else:
                screen.say(f"{name:52s}      ready  ({seconds:.0f} s)")
    ctest.wait()
    return passed, failed, left_out


def selection_of(asked, groups):
    """What CTest is to run, in its words."""
    if asked.failed:
        return ["--rerun-failed"]
    names = asked.suites or ["quick"]
    if len(names) == 1 and names[0] in TIERS:
        return ["-L", f"^tier:{names[0]}$"]
    for name in names:
        if name not in groups:
            sys.exit(f"There is no suite '{name}': {', '.join(groups)}, or a tier: {', '.join(TIERS)}")
    return ["-L", "^tier:all$", "-L", f"^suite:({'|'.join(names)})$"]


def main():
    parser = argparse.ArgumentParser(prog="./test", description="Sets up what is needed and runs tests. Without a word: what finds most "
                                     "faults, in minutes; 'all': everything that a build server sees; 'long': what a release may take "
                                     "hours for; or suites by name.")
    parser.add_argument("suites", nargs="*", metavar="all | long | SUITE")
    parser.add_argument("--failed", action="store_true", help="run again what failed last")
    parser.add_argument("--list", action="store_true", help="list the suites with their tiers, and run nothing")
    asked = parser.parse_args()
    subprocess.run(["cmake", "-S", HERE, "-B", BUILD], check=True, stdout=subprocess.DEVNULL)
    known = listed([])
    groups = list(dict.fromkeys(group for group, _, _ in known.values() if group != "setup"))
    if asked.list:
        for name, (group, tiers, _) in known.items():
            if group != "setup":
                print(f"{group:12s}{name:52s}{' '.join(sorted(tiers, key=TIERS.index))}")
        return 0
    begun = time.monotonic()
    passed, failed, skipped = run(selection_of(asked, groups), len(os.sched_getaffinity(0)))
    if passed + failed + skipped == 0:
        print("nothing ran" + (": nothing failed last" if asked.failed else ""))
        return 0 if asked.failed else 1
    print(f"in {(time.monotonic() - begun) / 60:.1f} minutes, on {len(os.sched_getaffinity(0))} processors")
    print(f"{passed} passed, {failed} failed" + (f", {skipped} skipped" if skipped else ""))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
