#!/usr/bin/env python3
"""mutations.py FOLDER-OF-A-BUILD [WORD...]: do the tests catch the faults of faults.txt? Puts each
fault into the sources, builds, runs the test that should fail, and takes the fault out again. With
words, tries only the lines that hold one of them. Not part of CI: a full run takes half an hour."""
import os
import subprocess
import sys
from pathlib import Path

TESTS = Path(__file__).resolve().parents[1]
SOURCES = TESTS.parent / "src"
LONGEST = 300  # seconds that a test may take before it counts as failed

# Tests that aren't GoogleTest programs: their build targets, and the words that run them.
DRIVEN = {"calc": (["quillet-calc", "quillet-calc-uk"], ["app/calc_test.py", ""]),
          "internet": (["internet_probe"], ["online/internet_test.py", "internet_probe"])}


def faults(words):
    """For each fault: the test that catches it, the file, the old text and the new."""
    catcher = ""
    for line in (TESTS / "mutations/faults.txt").read_text(encoding="utf-8").splitlines():
        if not line.startswith((" ", "#")):
            catcher = line
        elif line.startswith(" ") and any(word in catcher + line for word in words or [""]):
            file, _, change = line[2:].partition(": ")
            old, _, new = change.replace("¶", "\n").partition(" =>")
            yield catcher, SOURCES / file, old, new[1:]


def outcome(folder, catcher):
    """The outcome of a test: "passes", "fails", or the output of a failed build."""
    program, _, test = catcher.partition(" ")
    targets, (first, last) = DRIVEN.get(program, ([program], ("", "")))
    built = subprocess.run(["ninja", "-C", folder, *targets], capture_output=True, text=True,
                           check=False)
    if built.returncode != 0:
        return built.stdout
    command = [sys.executable, TESTS / first, folder / "bin" / last] if first else [
        folder / "bin" / program, f"--gtest_filter={test}"]
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen", "LANG": "C.UTF-8"}
    try:
        done = subprocess.run(command, env=environment, capture_output=True, timeout=LONGEST,
                              check=False)
    except subprocess.TimeoutExpired:
        return "fails"
    return "passes" if done.returncode == 0 else "fails"


def with_fault(folder, catcher, path, old, new):
    text = path.read_text(encoding="utf-8")
    try:
        path.write_text(text.replace(old, new), encoding="utf-8")
        return outcome(folder, catcher)
    finally:
        path.write_text(text, encoding="utf-8")


def main(folder, words):
    rows = list(faults(words))
    gone = [f"{path}: {old!r}" for _, path, old, _ in rows
            if path.read_text(encoding="utf-8").count(old) != 1]
    failing = [catcher for catcher in sorted({row[0] for row in rows} if not gone else {})
               if outcome(folder, catcher) != "passes"]
    if gone or failing or not rows:  # no fault may be skipped silently
        sys.exit("\n".join(["not once in the sources, or failing as it is:", *gone, *failing]))
    caught = 0
    for catcher, path, old, new in rows:
        result = with_fault(folder, catcher, path, old, new)
        caught += result == "fails"
        print({"fails": "caught", "passes": "NOT CAUGHT"}.get(result, "DOESN'T BUILD\n" + result),
              f"{path.relative_to(SOURCES)}: {old!r} => {new!r}", flush=True)
    print(f"{caught} of {len(rows)} caught")
    return 0 if caught == len(rows) else 1


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    sys.exit(main(Path(sys.argv[1]).resolve(), sys.argv[2:]))
