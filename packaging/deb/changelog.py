#!/usr/bin/env python3
"""Writes the dated entries of CHANGELOG.md as a Debian changelog:
changelog.py PACKAGE MAINTAINER INPUT OUTPUT.GZ."""
import datetime
import email.utils
import gzip
import pathlib
import re
import sys
import textwrap


def items(text):
    """The points of an entry, one line each."""
    return [" ".join(point.split()) for point in re.split(r"^- ", text, flags=re.MULTILINE)[1:]]


def entry(package, maintainer, version, date, text, hour):
    time = datetime.datetime.fromisoformat(date).replace(hour=hour, tzinfo=datetime.timezone.utc)
    points = [textwrap.fill(point, 78, initial_indent="  * ", subsequent_indent="    ",
                            break_long_words=False, break_on_hyphens=False)
              for point in items(text)]
    return "\n".join([f"{package} ({version}) stable; urgency=medium", "", *points, "",
                      f" -- {maintainer}  {email.utils.format_datetime(time)}", ""])


def main():
    package, maintainer, source, target = sys.argv[1:]
    sections = re.split(r"^## (.*)$", pathlib.Path(source).read_text(encoding="utf-8"),
                        flags=re.MULTILINE)
    entries = []
    days = []
    for heading, text in reversed(list(zip(sections[1::2], sections[2::2]))):
        if dated := re.fullmatch(r"([0-9.]+) - (\d{4}-\d{2}-\d{2})", heading):
            version, date = dated.groups()
            # Of two entries of one day, Debian wants the later one to have a later time.
            entries.insert(0, entry(package, maintainer, version, date, text, days.count(date)))
            days.append(date)
    if not entries:
        sys.exit(f"{source} has no entry like '## 1.2.3 - 2001-02-03'")
    pathlib.Path(target).write_bytes(gzip.compress("\n".join(entries).encode(), mtime=0))


if __name__ == "__main__":
    main()
