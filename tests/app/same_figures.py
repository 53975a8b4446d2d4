#!/usr/bin/env python3
"""same_figures.py FOLDER FOLDER...: do the terminal programs of several builds give the same
figures, bit for bit? Compares their JSON, whose figures are exact, for the sample auctions and
many random ones. The first folder is the reference."""
import random
import subprocess
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
RANDOM_AUCTIONS = 2000


def price(dice):
    """Prices at and near tier limits, round ones, and some that no price list has."""
    return dice.choice((
        "0", "0.01", "0.99", "1", "9.99", "10", "24.99", "25", "199.99", "200", "1000", "1000.01",
        f"{dice.uniform(0, 50):.2f}", f"{dice.uniform(0, 5000):.2f}", f"{dice.uniform(0, 9):.6g}",
        f"{dice.uniform(0, 1e6):.0f}", f"{10 ** dice.uniform(-6, 20):.7g}".upper(),
        f"-{dice.uniform(0, 90):.2f}"))


def auction(dice):
    def flag():
        return dice.choice(("True", "False"))

    def code(*usual):
        return str(dice.choice(usual) if dice.random() < 0.98 else dice.randrange(256))
    sections = (
        ("[TYPE]", (code(0, 0, 1, 2, 3), flag(), flag(), code(*range(6)), code(*range(6)),
                    code(0, 1), code(*range(4)), flag())),
        ("[OUTLAY]", (price(dice), price(dice), price(dice), price(dice),
                      dice.choice(("0", "1", "1", "2", "3", "17", "1000", "-4")), flag())),
        ("[FEATURES]", (str(dice.getrandbits(21) & dice.getrandbits(21)),
                        str(dice.choice((0, 1, 6, 7, 12, 13, 40))))),
        ("[PAYPAL]", (flag(), code(0, 1, 2), code(0, 1, 2, 3, 4, 5), flag())),
        ("[POSTAGE]", (flag(), f"{dice.uniform(0, 12):.3f}", code(*range(4)), price(dice),
                       code(*range(4)), flag(), flag(), flag(), price(dice), flag())))
    return "".join(marker + "|".join(values) + marker for marker, values in sections)


def figures(program, auctions):
    return subprocess.run([program, "--format", "json", "-"], input=auctions.encode(),
                          stdout=subprocess.PIPE, check=False).stdout.decode().splitlines()


def main(folders):
    dice = random.Random(2007)
    auctions = [path.read_text().strip() for path in sorted((ROOT / "data/samples").glob("*.qlt"))]
    auctions += [auction(dice) for _ in range(RANDOM_AUCTIONS)]
    text = "".join(line + "\n" for line in auctions)
    differences = 0
    for name in ("quillet-calc", "quillet-calc-uk"):
        expected = figures(Path(folders[0], name), text)
        if len(expected) != len(auctions) or sum('"error":null' in line for line in expected) < 500:
            sys.exit(f"{folders[0]}/{name} doesn't calculate the auctions")
        for folder in folders[1:]:
            found = figures(Path(folder, name), text)
            for line, (a, b) in enumerate(zip(expected, found)):
                if a != b:
                    differences += 1
                    print(f"{auctions[line]}\n  {folders[0]}/{name}: {a}\n  {folder}/{name}: {b}")
            if len(found) != len(expected):
                differences += 1
                print(f"{folder}/{name}: {len(found)} results for {len(auctions)} auctions")
    print(f"{len(auctions)} auctions, {len(folders)} builds, {differences} differences")
    return 1 if differences else 0


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1:]))
