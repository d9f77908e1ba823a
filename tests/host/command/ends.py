"""Has `exercise-host` end in ways that no scenario can state: by signals, without room on the disk, read by nobody.

ends.py EXERCISE-HOST: ends with a line "N passed, N failed".
"""
import os
import pathlib
import resource
import signal
import subprocess
import sys
import tempfile
import time

PATIENCE = 60  # seconds for the program to come so far
MACHINE = 4
LONG = "question 305\ncourse\n  Presentations.Add\nscenario \"long\"\n  before InitQuestion\n  PowerPoint.Start\n" + (
    "  Presentations.Add.Close\n" * 100000) + "  expect 1 = 1\n"
SHORT = "question 313\ncourse\n  Presentations.Add\nscenario \"short\"\n  before InitQuestion\n  expect 1 = 1\n"

results = []


def check(name, wrong):
    results.append(not wrong)
    if wrong:
        print(f"{name}: {wrong}")


def until(what):
    end = time.monotonic() + PATIENCE
    while not (found := what()) and time.monotonic() < end:
        time.sleep(0.01)
    return found


def interrupted(host, scratch, scenario, number):
    """What is wrong with a run that a signal ends in the middle of a scenario."""
    run = subprocess.Popen([host, "verify", "--file", scenario], env=os.environ | {"TMPDIR": str(scratch)},
                           stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    if not until(lambda: any(scratch.iterdir())):
        return "no temporary folder is made"
    run.send_signal(number)
    run.wait(PATIENCE)
    left = [path.name for path in scratch.iterdir()]
    return "" if run.returncode == -number and not left else f"exit code {run.returncode}, {left} left"


def unread(host, scratch):
    """What is wrong with a run that nobody reads to its end."""
    run = subprocess.Popen([host, "run", "306", "--trace"], env=os.environ | {"TMPDIR": str(scratch)}, stdout=subprocess.PIPE)
    run.stdout.readline()
    run.stdout.close()
    run.wait(PATIENCE)
    left = [path.name for path in scratch.iterdir()]
    return "" if run.returncode == -signal.SIGPIPE and not left else f"exit code {run.returncode}, {left} left"


def watched(host, folder):
    """What is wrong with a verification that goes on whenever its file is saved."""
    scenario = pathlib.Path(folder, "watched.scn")
    scenario.write_text(SHORT)
    printed = open(pathlib.Path(folder, "printed"), "w+")
    run = subprocess.Popen([host, "verify", scenario, "--watch"], stdout=printed, stderr=subprocess.STDOUT)

    def comes(text):
        return "" if until(lambda: text in pathlib.Path(printed.name).read_text()) else f"{text!r} is not printed; "

    wrong = comes("1 passed, 0 failed")
    scenario.write_text(SHORT.replace("= 1", "= 2"))
    wrong += comes("0 passed, 1 failed")
    scenario.write_text(SHORT + "  check what\n")
    wrong += comes("watched.scn:7:9: ")
    run.send_signal(signal.SIGINT)
    run.wait(PATIENCE)
    return wrong


def without_room():
    signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
    resource.setrlimit(resource.RLIMIT_FSIZE, (512, 512))


def fault(host, arguments, said, *, environment=None, limit=None, output=subprocess.PIPE):
    """What is wrong with how a fault of the machine is reported."""
    done = subprocess.run([host, *arguments], env=os.environ | (environment or {}), preexec_fn=limit, stdout=output,
                          stderr=subprocess.PIPE, text=True, timeout=PATIENCE)
    return "" if done.returncode == MACHINE and said in done.stderr else f"exit code {done.returncode}, {done.stderr!r}"


def main(host):
    with tempfile.TemporaryDirectory() as folder:
        scratch = pathlib.Path(folder) / "scratch"
        scratch.mkdir()
        scenario = pathlib.Path(folder) / "long.scn"
        scenario.write_text(LONG)
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP):
            check(f"{number.name} leaves no folder", interrupted(host, scratch, str(scenario), number))
        check("a closed pipe leaves no folder", unread(host, scratch))
        check("--watch goes on", watched(host, folder))
        missing = {"TMPDIR": folder + "/missing"}
        for command in (["verify", "313"], ["run", "313"], ["try", "313"]):
            check("no temporary folder", fault(host, command, "no temporary folder can be made", environment=missing))
        check("no room", fault(host, ["verify", "313"], "is the disk full?", limit=without_room))
        with open("/dev/full", "w") as full:
            for command in (["--help"], ["list"]):
                check("output to a full disk", fault(host, command, "is the disk full?", output=full))
        half = fault(host, ["verify", "313", "--json", folder + "/half.json"], "is the disk full?", limit=without_room)
        check("no half of a report", half or [name for name in os.listdir(folder) if "half" in name])
    print(f"{sum(results)} passed, {len(results) - sum(results)} failed")
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
