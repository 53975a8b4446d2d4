#!/usr/bin/env python3
"""mutations.py FOLDER-OF-A-BUILD [WORD...]: do the tests catch the faults of table.py? Puts each into
the sources in its turn, builds, runs the test that is to fail, and takes it out again. With words,
only the rows that hold one of them. Not part of CI: all rows take some quarter of an hour."""
import os
import subprocess
import sys
from pathlib import Path

from table import MUTATIONS

TESTS = Path(__file__).resolve().parents[1]
SOURCES = TESTS.parent / "src"
LONGEST = 300  # seconds that a test may take before it counts as failed

# By the first word of what catches a fault: what is built, and what is run. The second word goes
# in place of {test}.
PROGRAMS = {
    "core": (["core_tests_us"], ["{bin}/core_tests_us", "--gtest_filter={test}"]),
    "core_uk": (["core_tests_uk"], ["{bin}/core_tests_uk", "--gtest_filter={test}"]),
    "widget": (["widget_tests_us"], ["{bin}/widget_tests_us", "--gtest_filter={test}"]),
    "widget_uk": (["widget_tests_uk"], ["{bin}/widget_tests_uk", "--gtest_filter={test}"]),
    "calc": (["quillet-calc", "quillet-calc-uk"],
             [sys.executable, f"{TESTS}/app/calc_test.py", "{bin}"]),
    "internet": (["internet_probe"],
                 [sys.executable, f"{TESTS}/online/internet_test.py", "{bin}/internet_probe"]),
}


def build(folder, targets):
    """What the build has to say if it fails, and nothing else."""
    done = subprocess.run(["ninja", "-C", folder, *targets], capture_output=True, text=True,
                          check=False)
    return done.stdout if done.returncode != 0 else ""


def passes(folder, command, test):
    words = [word.format(bin=folder / "bin", test=test) for word in command]
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "LANG": "C.UTF-8"}
    try:
        done = subprocess.run(words, env=environment, capture_output=True, timeout=LONGEST,
                              check=False)
    except subprocess.TimeoutExpired:
        return False
    return done.returncode == 0


def require_whole(rows):
    """Ends with all that is amiss with the table: no fault may be left out in silence."""
    faults = []
    for file, old, new, catcher in rows:
        if catcher.split()[0] not in PROGRAMS:
            faults.append(f"{file}: nothing is known of {catcher!r}")
        times = (SOURCES / file).read_text().count(old) if (SOURCES / file).exists() else 0
        if times != 1 or old == new:
            faults.append(f"{file}: stands {times} times in it: {old!r}")
    if faults or not rows:
        sys.exit("\n".join(faults) or "no such row")


def require_passing(folder, rows):
    """A test that fails without any fault catches nothing."""
    for catcher in sorted({row[3] for row in rows}):
        program, _, test = catcher.partition(" ")
        targets, command = PROGRAMS[program]
        output = build(folder, targets)
        if output or not passes(folder, command, test):
            sys.exit(f"{catcher} fails as it is\n{output}")


def outcome(folder, file, old, new, catcher):
    """"caught" or what became of the fault instead."""
    program, _, test = catcher.partition(" ")
    targets, command = PROGRAMS[program]
    path = SOURCES / file
    text = path.read_text()
    try:
        path.write_text(text.replace(old, new))
        if output := build(folder, targets):
            return "DOESN'T BUILD\n" + output
        return "NOT CAUGHT" if passes(folder, command, test) else "caught"
    finally:
        path.write_text(text)


def main(folder, words):
    rows = [row for row in MUTATIONS if not words or any(w in " ".join(row) for w in words)]
    require_whole(rows)
    require_passing(folder, rows)
    caught = 0
    for file, old, new, catcher in rows:
        print(f"{file}: {old!r} -> {new!r} ({catcher}): ", end="", flush=True)
        result = outcome(folder, file, old, new, catcher)
        print(result, flush=True)
        caught += result == "caught"
    print(f"{caught} of {len(rows)} caught")
    return 0 if caught == len(rows) else 1


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    sys.exit(main(Path(sys.argv[1]).resolve(), sys.argv[2:]))
