#!/usr/bin/env python3
"""Runs clang-tidy over all sources of this platform. Its argument is the folder of a build without
precompiled headers, whose compile commands it needs: clang can't read another compiler's.

Most of its time goes into the headers of the toolkit and the standard library, which every check
walks again for each file. So files are read in units of several, except those that use the same name
in their unnamed namespaces. The files of a unit with a finding are then run one by one, and only what
that finds is told.
"""

import json
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

UNIT = 45_000  # characters; a longer file is a unit by itself
UNNAMED = re.compile(r"^namespace \{\n(.*?)^\}  // namespace$", re.MULTILINE | re.DOTALL)
NAME = re.compile(r"\bk[A-Z]\w*|^(?:struct|class|enum|enum class|using) (\w+)|[ &*](\w+)\(",
                  re.MULTILINE)
FLAG = re.compile(r"-isystem \S+|\S+")
NOT_FOR_UNITS = "-bugprone-suspicious-include"


def names(text):
    """What a source's unnamed namespaces declare, and some names that they only use."""
    return {name for block in UNNAMED.findall(text) for match in NAME.finditer(block)
            for name in match.groups(match[0])}


def units(files):
    """Lists of files, the largest first."""
    made = []
    for file in sorted(files, key=os.path.getsize, reverse=True):
        text = file.read_text(encoding="utf-8")
        used = names(text)
        for unit in made:
            if unit["size"] + len(text) <= UNIT and not unit["names"] & used:
                break
        else:
            made.append(unit := {"files": [], "names": set(), "size": 0})
        unit["files"].append(file)
        unit["names"] |= used
        unit["size"] += len(text)
    return [unit["files"] for unit in made]


def tidy(*arguments):
    return subprocess.run(["clang-tidy", "--quiet", "--extra-arg=-Wno-unknown-warning-option",
                           *arguments], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                          text=True, check=False)


class Tidy:
    def __init__(self, build, folder):
        self.build = build
        self.folder = pathlib.Path(folder)
        commands = json.loads((build / "compile_commands.json").read_text())
        self.flags = {pathlib.Path(c["file"]): FLAG.findall(c["command"].partition(" -o ")[0])[1:]
                      for c in commands}

    def clean(self, number, files):
        """Whether a unit of files has no findings."""
        unit = self.folder / f"{number}.cpp"
        unit.write_text("".join(f'#include "{file}"\n' for file in files))
        flags = dict.fromkeys(flag for file in files for flag in self.flags[file])
        return tidy(f"--checks={NOT_FOR_UNITS}", "--extra-arg=-Wno-shadow", str(unit), "--",
                    *shlex.split(" ".join(flags))).returncode == 0

    def findings(self, number, files):
        if self.clean(number, files):
            return ""
        runs = [(file, tidy("-p", str(self.build), str(file))) for file in files]
        return "".join(run.stdout or f"{file}: clang-tidy ended with {run.returncode}\n"
                       for file, run in runs if run.returncode)


def main():
    build = pathlib.Path(sys.argv[1])
    sources = subprocess.run(["git", "ls-files", "src/*.cpp", ":!src/platform/windows/*"],
                             capture_output=True, text=True, check=True).stdout.split()
    files = units([pathlib.Path(source).resolve() for source in sources])
    with (tempfile.TemporaryDirectory(dir=build) as folder,
          ThreadPoolExecutor(os.cpu_count()) as threads):
        found = "".join(threads.map(Tidy(build, folder).findings, range(len(files)), files))
    print(found, end="")
    sys.exit(found != "")


if __name__ == "__main__":
    main()
