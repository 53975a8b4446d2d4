#!/usr/bin/env python3
"""printed_figures.py OUTPUT: does what ./run has printed without a display show every sample auction
with the figures of docs/sample-auctions.md, which were worked out by hand?"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[2]
# The page's columns, as the program calls them; the listing fee's sum isn't on the page.
COLUMNS = ("Insertion Fee", None, "Reserve Fee", "Final Value Fee", "PayPal Fee",
           "Postage & Packing", "Selling Cost", "Profit")


def page():
    """Of each sample, the set of lines that must be printed."""
    samples = {}
    for row in (ROOT / "docs/sample-auctions.md").read_text(encoding="utf-8").splitlines():
        name, *figures, percent = [cell.strip() for cell in row.split("|")[1:-1]] or [""] * 2
        if re.match("`(?!uk-)", name):
            figures[-1] += f" ({percent}%)" if percent else ""
            samples[name.strip("`")] = {f"{title} ${figure}"
                                        for title, figure in zip(COLUMNS, figures) if title}
    return samples


def printed(text):
    samples = {}
    for block in text.split("\n\n"):
        head, *lines = block.strip().splitlines()
        samples[pathlib.Path(head).stem] = {" ".join(line.split()) for line in lines}
    return samples


def main():
    expected, found = page(), printed(pathlib.Path(sys.argv[1]).read_text(encoding="utf-8"))
    missing = [f"{name}: {line}" for name, lines in expected.items()
               for line in sorted(lines - found.get(name, set()))]
    print(*missing, f"{len(expected)} samples on the page, {len(missing)} lines missing", sep="\n")
    return 1 if missing or len(expected) < 10 else 0


if __name__ == "__main__":
    sys.exit(main())
