#!/usr/bin/env python3
"""Checks that includes stay in their room or point to a lower floor of docs/architecture.md, and
never form a circle."""

import pathlib
import re
import sys

FLOORS = {
    "platform": 1,
    "base": 2,
    "prices": 3,
    "engine": 4,
    "online": 4,
    "look": 4,
    "documents": 5,
    "answers": 5,
    "controls": 5,
    "sections": 6,
    "shell": 7,
    "app": 8,
}


def includes(source, text):
    """The project's own files that a source names."""
    for name in re.findall(r'^\s*#\s*include\s+"([^"]+)"', text, re.M):
        if (source / name).exists():
            yield name


def find_circle(graph):
    """A list of files that include each other in a circle, or None."""
    done, path = set(), []

    def visit(name):
        if name in path:
            return path[path.index(name):] + [name]
        if name in done:
            return None
        path.append(name)
        for other in graph.get(name, ()):
            if circle := visit(other):
                return circle
        path.pop()
        done.add(name)
        return None

    for name in graph:
        if circle := visit(name):
            return circle
    return None


def main():
    source = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "src")
    graph, faults = {}, []
    for path in sorted(source.rglob("*")):
        if path.suffix not in (".h", ".cpp"):
            continue
        name = path.relative_to(source).as_posix()
        graph[name] = sorted(includes(source, path.read_text(encoding="utf-8")))
        for other in graph[name]:
            here, there = name.split("/")[0], other.split("/")[0]
            if here != there and FLOORS[there] >= FLOORS[here]:
                faults.append(f"{name} (floor {FLOORS[here]}) includes {other} "
                              f"(floor {FLOORS[there]})")
    page = source.parent / "docs/architecture.md"
    rows = re.findall(r"^\| (\d+) \| `src/(\w+)/`", page.read_text(encoding="utf-8"), re.M)
    if {room: int(floor) for floor, room in rows} != FLOORS:
        faults.append(f"{page} has other floors than this script")
    if not graph:
        faults.append(f"no sources below {source}")
    if circle := find_circle(graph):
        faults.append("circle: " + " -> ".join(circle))
    print("\n".join(faults) or f"{len(graph)} files include only what stands below them")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
