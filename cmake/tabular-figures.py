#!/usr/bin/env python3
"""Writes a copy of a font for the program: its digits all of one width, its characters only those
that Latin text needs.

    tabular-figures.py FAMILY INPUT OUTPUT

The toolkit can't switch a font's tabular figures on by itself, so the copy has them in the place
of the others. It takes another family name, lest the system confuse it with the installed font.
"""
import sys

from fontTools import subset
from fontTools.ttLib import TTFont

KEPT_RANGES = (
    (0x0020, 0x007E),  # ASCII
    (0x00A0, 0x024F),  # Latin-1, Latin Extended-A and -B: names of files and folders
    (0x02B0, 0x036F),  # modifiers and combining accents
    (0x1E00, 0x1EFF),  # Latin Extended Additional
    (0x2010, 0x205E),  # punctuation
    (0x2070, 0x209F),  # superscripts and subscripts
    (0x20A0, 0x20BF),  # currencies
    (0x2100, 0x214F),  # letter-like signs
    (0x2190, 0x2199),  # arrows
    (0x2200, 0x2265),  # mathematics
    (0xFB00, 0xFB06),  # ligatures
    (0xFFFD, 0xFFFD),  # stands for what can't be shown
)
KEPT_FEATURES = ["ccmp", "kern", "locl", "mark", "mkmk"]
DIGITS = range(ord("0"), ord("9") + 1)
MOST_UNEVEN = 0.005  # of the em
FAMILY_NAMES = (1, 3, 4, 6, 16)  # the entries of the name table that hold the family


def tabular_alternates(font):
    """Which glyph stands for which under the feature 'tnum'."""
    table = font["GSUB"].table
    alternates = {}
    for record in table.FeatureList.FeatureRecord:
        if record.FeatureTag != "tnum":
            continue
        for index in record.Feature.LookupListIndex:
            for part in table.LookupList.Lookup[index].SubTable:
                alternates.update(getattr(part, "ExtSubTable", part).mapping)
    return alternates


def use_tabular_digits(font):
    alternates = tabular_alternates(font)
    digits = {digit: alternates[font.getBestCmap()[digit]] for digit in DIGITS}
    for table in font["cmap"].tables:
        if table.isUnicode():
            table.cmap.update(digits)
    # Interpolation has left them a few thousandths of an em apart in some weights.
    metrics = font["hmtx"]
    widest = max(metrics[glyph][0] for glyph in digits.values())
    for glyph in digits.values():
        advance, bearing = metrics[glyph]
        if widest - advance > MOST_UNEVEN * font["head"].unitsPerEm:
            sys.exit(f"{glyph} isn't a tabular figure: {advance} of {widest} units wide")
        metrics[glyph] = (widest, bearing)


def rename(font, family):
    for record in font["name"].names:
        if record.nameID in FAMILY_NAMES:
            name = family.replace(" ", "") if record.nameID == 6 else family
            record.string = record.toUnicode().replace("Inter", name, 1)
    cff = font["CFF "].cff
    cff.fontNames[0] = font["name"].getDebugName(6)
    cff.topDictIndex[0].FamilyName = family
    cff.topDictIndex[0].FullName = font["name"].getDebugName(4)


def keep_latin(font):
    options = subset.Options()
    options.layout_features = KEPT_FEATURES
    options.name_IDs = ["*"]
    options.notdef_outline = True
    subsetter = subset.Subsetter(options)
    subsetter.populate(unicodes=[code for first, last in KEPT_RANGES
                                 for code in range(first, last + 1)])
    subsetter.subset(font)


def main():
    family, source, target = sys.argv[1:]
    font = TTFont(source, recalcTimestamp=False)
    use_tabular_digits(font)
    rename(font, family)
    keep_latin(font)
    font.save(target)


if __name__ == "__main__":
    main()
