#!/usr/bin/env python3
"""printed_figures.py OUTPUT: does the output of ./run without a display show every sample auction
with its profit from docs/sample-auctions.md, which was worked out by hand?"""
import pathlib
import re
import sys

page = (pathlib.Path(__file__).resolve().parents[2] / "docs/sample-auctions.md").read_text("utf-8")
printed = pathlib.Path(sys.argv[1]).read_text("utf-8")
samples = re.findall(r"^\| `(?!uk-)(.+)` \|.* (-?[\d.]+) \| ?(\d*) \|$", page, re.M)
missing = [name for name, profit, percent in samples
           if not re.search(rf"\b{name}\.qlt\n(?:.+\n)*Profit +\${profit}" +
                            (rf" \({percent}%\)" if percent else "") + "$", printed, re.M)]
print(f"{len(samples)} samples on the page, not printed like that: {missing}")
sys.exit(1 if missing or len(samples) < 10 else 0)
