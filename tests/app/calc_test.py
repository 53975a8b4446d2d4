#!/usr/bin/env python3
"""Drives the built terminal programs: calc_test.py FOLDER-OF-THE-PROGRAMS."""
import csv
import io
import json
import os
import pty
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

PROGRAMS = Path(sys.argv[1] if len(sys.argv) > 1 else "build/release/bin").resolve()
ROOT = Path(__file__).resolve().parents[2]
SAMPLES = ROOT / "data" / "samples"
COLUMNS = ("file message error profit profit_percent selling_cost postage_cost postage_profit "
           "listing_fee features_fee reserve_fee final_value_fee paypal_fee auction").split()
CAMERA = (SAMPLES / "used-camera.qlt").read_text().rstrip("\n")
LATHE = (SAMPLES / "lathe-unsold.qlt").read_text().rstrip("\n")
NO_RATE = CAMERA.replace("[PAYPAL]True|1|1", "[PAYPAL]True|1|9")
NO_PAYPAL = CAMERA[:CAMERA.index("[PAYPAL]")]


def calc(*arguments, stdin=b"", program="quillet-calc", **options):
    if isinstance(stdin, str):
        stdin = stdin.encode()
    done = subprocess.run([PROGRAMS / program, *map(str, arguments)], input=stdin,
                          capture_output=True, timeout=60, **options)
    return done.returncode, done.stdout.decode(), done.stderr.decode()


class Temporary(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def file(self, name, content):
        path = self.folder / name
        path.write_bytes(content if isinstance(content, bytes) else content.encode())
        return path


class Formats(Temporary):
    def test_one_auction_is_a_table_with_the_labels_of_the_summary(self):
        path = self.file("camera.qlt", CAMERA + "\r\n")
        self.assertEqual(calc(path), (0, f"""{path}
Insertion Fee       $0.40
Total Listing Fee   $2.05
Reserve Fee         $0.00
Final Value Fee     $5.34
Selling Cost       $52.26
Postage & Packing   $8.50
PayPal Fee          $4.87
Profit             $96.74 (185%)
""", ""))
        status, loss, _ = calc(SAMPLES / "lathe-unsold.qlt")
        self.assertEqual((status, loss.splitlines()[-1]), (0, "Profit             $-27.35"))

    def test_json_has_its_keys_in_order_and_null_where_nothing_is(self):
        status, out, _ = calc("--format", "json", "-", stdin=f"{CAMERA}\n{NO_RATE}\n{NO_PAYPAL}\n")
        lines = [json.loads(line, object_pairs_hook=list) for line in out.splitlines()]
        self.assertEqual(status, 1)
        for line in lines:
            self.assertEqual([key for key, _ in line], COLUMNS)
        good, failed, partial = map(dict, lines)
        self.assertEqual([good["file"], failed["file"], partial["file"]], [1, 2, 3])
        self.assertEqual((good["message"], good["error"], good["auction"]), (None, None, CAMERA))
        self.assertEqual([good[key] for key in COLUMNS[3:13]],
                         [96.7375, 185, 52.2625, 8.5, 0, 0.4, 1.6500001, 0, 5.3425, 4.87])
        self.assertIn("band 9", failed["error"])
        self.assertEqual([failed[key] for key in COLUMNS[3:13]], [None] * 10)
        self.assertEqual(failed["auction"], NO_RATE)
        self.assertEqual(partial["message"], "Failure loading section [PAYPAL]")
        self.assertEqual((partial["error"], partial["paypal_fee"]), (None, 0))
        self.assertIn("[PAYPAL]False|0|1|False[PAYPAL]", partial["auction"])

    def test_prices_asked_for_stand_behind_the_rest_and_none_is_said_as_such(self):
        two = CAMERA + "\n" + LATHE + "\n"
        for goal, price in (("20", "67.24"), ("25%", "58.36"), ("15%price", "54.66"), ("-5", "40.59")):
            _, out, _ = calc("--break-even", "--goal", goal, "-", stdin=two)
            self.assertEqual([row[14:] for row in csv.reader(io.StringIO(out))],
                             [["break_even", "goal_price"], ["45.93", price], ["none", "none"]])
        status, out, _ = calc("--format", "json", "--goal=20", "-", stdin=two)
        prices = [list(json.loads(line).items())[14:] for line in out.splitlines()]
        self.assertEqual((status, prices), (0, [[("goal_price", 67.24)], [("goal_price", None)]]))
        _, out, _ = calc("--break-even", "--goal", "1e9", SAMPLES / "used-camera.qlt")
        self.assertEqual(out.splitlines()[-2:],
                         ["Break-even Price   $45.93", "Goal Price           none"])

    def test_csv_has_a_header_and_quotes_what_needs_it(self):
        path = self.file('a "b", c.qlt', CAMERA)
        status, out, _ = calc(path, SAMPLES / "lathe-unsold.qlt")
        rows = list(csv.reader(io.StringIO(out)))
        self.assertEqual((status, rows[0], rows[1][0]), (0, COLUMNS, str(path)))
        self.assertEqual(rows[1][3:6], ["96.7375", "185", "52.2625"])
        self.assertEqual(rows[2][3:5], ["-27.35", ""])

    def test_the_other_program_follows_the_other_rules(self):
        status, out, _ = calc(SAMPLES / "uk-tea-set.qlt", program="quillet-calc-uk")
        self.assertEqual((status, out.splitlines()[-1]), (0, "Profit             £14.78 (160%)"))
        for program, edition in ("quillet-calc", "US"), ("quillet-calc-uk", "UK"):
            self.assertRegex(calc("--version", program=program)[1],
                             rf"^{program} \d+\.\d+\.\d+ \(Quillet {edition}\)\n$")

    def test_colour_is_for_terminals_that_want_it(self):
        def on_terminal(**environment):
            ours, theirs = pty.openpty()
            subprocess.run([PROGRAMS / "quillet-calc", SAMPLES / "used-camera.qlt"], stdout=theirs,
                           env={"TERM": "xterm", **environment}, check=True, timeout=60)
            os.close(theirs)
            return os.read(ours, 65536).decode()
        self.assertIn("\033[1;32m$96.74 (185%)\033[0m", on_terminal())
        self.assertIn("\033[", on_terminal(NO_COLOR=""))
        self.assertNotIn("\033[", on_terminal(NO_COLOR="1"))
        self.assertNotIn("\033[", on_terminal(TERM="dumb"))


class Streams(Temporary):
    def test_one_line_is_a_table_and_two_are_csv(self):
        self.assertTrue(calc(stdin=CAMERA)[1].startswith("line 1\nInsertion Fee"))
        rows = list(csv.DictReader(io.StringIO(calc(stdin=f"{CAMERA}\r\n{LATHE}")[1])))
        self.assertEqual([(row["file"], row["profit"]) for row in rows],
                         [("1", "96.7375"), ("2", "-27.35")])

    def test_a_line_without_end_is_refused_in_constant_memory_and_the_next_is_read(self):
        long_line = b"[" * (64 << 20)
        status, out, _ = calc("--format", "csv", stdin=long_line + b"\n\n" + CAMERA.encode())
        rows = list(csv.DictReader(io.StringIO(out)))
        self.assertEqual(status, 1)
        self.assertEqual([row["error"] for row in rows],
                         ["The line is too long for an auction.",
                          "It is empty.", ""])
        self.assertEqual((rows[2]["file"], rows[2]["profit"]), ("3", "96.7375"))
        grown = self.peak(self.file("long", long_line)) - self.peak(self.file("short", CAMERA))
        self.assertLess(grown, 16 << 10)

    @staticmethod
    def peak(path):
        """The program's peak memory for a stream, in kilobytes."""
        with path.open() as stdin, open(os.devnull, "w") as null:
            program = subprocess.Popen([PROGRAMS / "quillet-calc", "--format", "csv"], stdin=stdin,
                                       stdout=null)
            _, _, used = os.wait4(program.pid, 0)
        program.returncode = 0
        return used.ru_maxrss

    def test_any_number_of_jobs_gives_the_same_in_the_same_order(self):
        lines = f"{CAMERA}\n\n{LATHE}\n{NO_RATE}\n{NO_PAYPAL}\n" * 300
        names = [SAMPLES / "used-camera.qlt", "gone"] * 20 + ["-", SAMPLES / "lathe.qlt", "gone"]
        for form in "csv", "json", "table":
            one, *others = (calc("--format", form, "--goal", "20", "--jobs", jobs, *names,
                                 stdin=lines) for jobs in (1, 2, 8))
            self.assertIn("\nquillet-calc: gone: It can't be read", one[2])
            self.assertEqual(others, [one] * 2)

    def test_results_come_before_the_next_line_is_awaited(self):
        with subprocess.Popen([PROGRAMS / "quillet-calc", "--format", "json"],
                              stdin=subprocess.PIPE, stdout=subprocess.PIPE) as program:
            program.stdin.write(CAMERA.encode() + b"\n")
            program.stdin.flush()
            self.assertEqual(json.loads(program.stdout.readline())["profit"], 96.7375)
            program.stdin.close()
            self.assertEqual(program.wait(60), 0)

    def test_a_reader_that_leaves_ends_it_quietly(self):
        lines = self.file("lines", f"{CAMERA}\n" * 20000)
        with lines.open() as stdin, subprocess.Popen(
                [PROGRAMS / "quillet-calc"], stdin=stdin, stdout=subprocess.PIPE,
                stderr=subprocess.PIPE) as program:
            program.stdout.readline()
            program.stdout.close()
            self.assertEqual((program.stderr.read(), program.wait(60)), (b"", 0))


class BadInput(Temporary):
    def test_what_cannot_be_used_is_named_and_ends_with_its_status(self):
        good = SAMPLES / "used-camera.qlt"
        shown = self.file("red\x1b[31m", "no auction\n")
        empty = self.file("empty", "")
        words = self.file("words", "no auction\n")
        utf16 = self.file("utf16.dat", "\ufeffFeatureBold,1\n".encode("utf-16-le"))
        twice = self.file("twice.dat", "Final,1\nFINAL,2\n")
        for status, complaint, *arguments in (
                (1, f"{self.folder}: It can't be read: Is a directory", self.folder),
                (1, "gone: It can't be read: No such file or directory", "gone"),
                (1, "/dev/zero: It can't be read: File too large", "/dev/zero"),
                (1, f"{empty}: It is empty.", empty),
                (1, f"{self.folder}/red\\x1b[31m: Failure loading section [OUTLAY]", shown),
                (1, f"{words}: Failure loading section [OUTLAY]", words),
                (2, f"{self.folder}: Is a directory", "--prices", self.folder, good),
                (2, "gone.dat: No such file or directory", "--prices", "gone.dat", good),
                (2, f"{utf16}: It has no prices for Quillet US.", "--prices", utf16, good),
                (2, f"{utf16}: It has no prices for Quillet US.", "--check", utf16),
                (2, f'{twice}: It has the key "FINAL" twice.', "--prices", twice, good),
                (2, "--format: xml not in", "--format", "xml", good),
                *((2, f'15%price), not "{bad}"', "--goal", bad, good)
                  for bad in ("", "20x", "-5%", "100%price", "$5", "nan")),
                (2, "--jobs: Value 0 not in range", "--jobs", "0", good),
                (2, "not expected: --nonsense", "--nonsense"),
                (2, "excludes", "--check", empty, good),
                (2, "gone: No such file or directory", "--check", "gone"),
                (2, f"{self.folder}: Is a directory", "--check", self.folder)):
            with self.subTest(arguments=arguments):
                done = calc(*arguments)
                self.assertEqual(done[0], status, done)
                self.assertIn(complaint, done[2])
                self.assertEqual(len(done[2].splitlines()), 1, done)
                self.assertTrue(done[2].startswith("quillet-calc: "))

    def test_results_that_cannot_be_written_are_a_failure(self):
        with open("/dev/full", "wb") as full:
            done = subprocess.run([PROGRAMS / "quillet-calc", SAMPLES / "used-camera.qlt"],
                                  stdout=full, stderr=subprocess.PIPE, check=False, timeout=60)
        self.assertEqual(done.returncode, 1)
        self.assertIn(b"the results can't be written: No space left on device", done.stderr)


class Schedules(Temporary):
    def setUp(self):
        super().setUp()
        self.program = self.folder / "quillet-calc"
        shutil.copy(PROGRAMS / "quillet-calc", self.program)
        self.shipped = (ROOT / "data/UpdateUS_v0101.dat").read_text(encoding="utf-8")

    def calc(self, *arguments):
        return calc(*arguments, program=self.program, cwd=self.folder)

    def test_those_beside_the_program_are_listed_and_found_by_name_or_path(self):
        self.assertEqual(self.calc("--schedules"),
                         (2, "", f"quillet-calc: there is no fee schedule in {self.folder}\n"))
        default = self.file("UpdateUS_v0101.dat", self.shipped)
        today = self.file("UpdateUS_2026-10.dat",
                          self.shipped.replace("Early 2007", "Böden 2026")
                          .replace("early 2007", "May 2026").replace("FeatureBold,1.00", "FeatureBold,3"))
        bad = self.file("UpdateUS_bad.dat", "Final,1\nFINAL,2\n")
        self.assertEqual(self.calc("--schedules"), (0, f"""\
  Böden 2026        {today}
* Early 2007        {default}
  UpdateUS_bad.dat  {bad}: It has the key "FINAL" twice.
""", ""))
        camera = self.file("camera.qlt", CAMERA)
        for name, fee in (("early 2007", "$2.05"), ("BöDEN 2026", "$4.05"), (today.name, "$4.05")):
            self.assertRegex(self.calc("--prices", name, camera)[1],
                             rf"Total Listing Fee +{re.escape(fee)}\n")
        shutil.copy(default, self.folder / "Böden 2026")  # a file of that name wins
        self.assertIn("$2.05", self.calc("--prices", "Böden 2026", camera)[1])
        self.assertEqual(self.calc("--prices", "late", camera),
                         (2, "", "quillet-calc: late: No such file or directory, and no fee schedule has "
                          'that name; available are "Böden 2026", "Early 2007", "UpdateUS_bad.dat"\n'))


US, UK = "quillet-calc", "quillet-calc-uk"
SCHEDULES = {US: "UpdateUS_v0101.dat", UK: "UpdateUK_v0101.dat"}
TODAY = {US: "UpdateUS_2026-10.dat", UK: "UpdateUK_2026-10.dat"}

# Edits to the shipped schedule and what the check then finds: program, pairs of (shipped line, new
# lines), findings. "@Key" stands for the line number of that key, "$" for that of the last line.
FINDINGS = (
    (US, [("FeatureBold,1.00", "FeatureBold,1.00\nFEATUREBOLD,2")],
     ['@FEATUREBOLD: "FEATUREBOLD" is already on line @FeatureBold; loading stops here']),
    (US, [("FeatureBold,1.00", "FeatureBold,1.00,extra")],
     ["@FeatureBold: the line is ignored: it has 3 fields, not a key and a value",
      '$: "FeatureBold" is missing']),
    (US, [("LocalTax,0", "LocalTax,0\n,,\n# a heading, with, commas\nLocalTax is 0")],
     ["#2: the line is ignored: it holds nothing but commas",
      '#4: the line is ignored: there is no comma between "LocalTax" and a value']),
    (US, [("LocalTax,0", "LocalTax,0\n" + "x" * 32767)],
     ["#2: the line is longer than 32766 characters; loading stops here"]),
    (US, [("LocalTax,0", "LocalTax,0\n# as of 2007, by hand")],
     ['#2: Quillet US has no use for "# as of 2007"']),
    (US, [("LocalTax,0", "LocalTax ,0")],
     ['@LocalTax: Quillet US has no use for "LocalTax "; its blanks are part of the key',
      '$: "LocalTax" is missing']),
    (US, [("ReserveMax,100.00", "ReserveMax,$100")],
     ['@ReserveMax: "ReserveMax" isn\'t a number: "$100"']),
    (US, [("OpeningRanges,7", "OpeningRanges,seven")],
     ['@OpeningRanges: "OpeningRanges" isn\'t a number of tiers: "seven"']),
    (US, [("OpeningRanges,7", "")], ['$: "OpeningRanges" is missing']),
    (US, [("OpeningRanges,7", "OpeningRanges,32767")],
     ['@OpeningRanges: "Opening": tiers 8 to 32767 are missing']),
    (US, [("OpeningRanges,7", "OpeningRanges,6")],
     [f'@OpeningRange{part}7: "OpeningRange{part}7" is beyond the 6 tiers counted on line '
      "@OpeningRanges" for part in ("Start", "End", "Value")]),
    (US, [("OpeningRangeValue3,0.60", "")],
     ['@OpeningRanges: "OpeningRangeValue3" is missing']),
    (US, [("OpeningRangeEnd3,24.995", "OpeningRangeEnd3,24.99")],
     ['@OpeningRangeStart4: "Opening": gap between tier 3 to 24.99 and tier 4 from 25.00: '
      "21 x 1.19 falls into it"]),
    (UK, [("OpeningRangeEnd5,99.995", "OpeningRangeEnd5,99.99"),
          ("OpeningRangeEnd1,0.995", "OpeningRangeEnd1,0.99")],  # no price falls in between
     ['@OpeningRangeStart6: "Opening": gap between tier 5 to 99.99 and tier 6 from 100.00: '
      "3 x 33.33 falls into it"]),
    (US, [("ReserveRangeStart2,50.00", "ReserveRangeStart2,50.01")],
     ['@ReserveRangeStart2: "Reserve": gap between tier 1 to 49.99 and tier 2 from 50.01']),
    (US, [("OpeningRangeStart3,10.00", "OpeningRangeStart3,9.995")], []),  # the lower tier wins
    (US, [("ReserveRangeEnd2,199.99", "ReserveRangeEnd2,9")],
     ['@ReserveRangeEnd2: "Reserve": tier 2 ends at 9, before it starts at 50.00',
      '@ReserveRangeStart3: "Reserve": gap between tier 2 to 9 and tier 3 from 200.00']),
    (US, [("OpeningRangeEnd3,24.995", "OpeningRangeEnd3,-1")],
     ['@OpeningRangeStart4: "Opening": tier 4 overlaps tier 3, which has no upper limit']),
    (US, [("FinalRangeEnd1,25", "FinalRangeEnd1,25.01")],
     ['@FinalRangeStart2: "Final": overlap between tier 1 to 25.01 and tier 2 from 25']),
    (UK, [("SecondClassRangeStart2,0.1", "SecondClassRangeStart2,0.101")], []),  # a gram
    (UK, [("SecondClassRangeStart2,0.1", "SecondClassRangeStart2,0.102")],
     ['@SecondClassRangeStart2: "SecondClass": gap between tier 1 to 0.1 and tier 2 from 0.102']),
    (US, [("FirstClassRanges,0", "FirstClassRanges,1\nFirstClassRangeStart1,0\n"
           "FirstClassRangeEnd1,1\nFirstClassRangeValue1,4\nFirstClassOverWeightStep,0.5")],
     ['$: "FirstClassOverWeightStepValue" is missing']),
    (US, [("FinalRangeValue1,5.25", "FinalRangeValue1,-5.25"),
          ("ReserveRangeValue2,2.00", "ReserveRangeValue2,-2"),  # an amount
          ("ReserveRangeValue3,1", "ReserveRangeValue3,-1")],
     ['@ReserveRangeValue3: "ReserveRangeValue3" is a percentage below 0: -1',
      '@FinalRangeValue1: "FinalRangeValue1" is a percentage below 0: -5.25']),
    (US, [("BusinessRateBand5Value,2000000", "BusinessRateBand5Value,-5")],
     [f'@BusinessRateBand5Value: "BusinessRatePounds{part}": no tier covers the '
      '-5 of "BusinessRateBand5Value"' for part in ("%", "Fixed")]),
)

FINDINGS_TODAY = (
    (US, [("CategoryCount,12", "CategoryCount,13")],
     ['$: "Category13Name" is missing', '$: "Category13Tiers" is missing']),
    (US, [("CategoryCount,12", "CategoryCount,11")],
     ['@Category12Name: Quillet US has no use for "Category12Name"',
      '@Category12Tiers: Quillet US has no use for "Category12Tiers"', *(
          f'@{shop}FinalParts{word}: Quillet US has no use for "{shop}FinalParts{word}"'
          for shop in ("", "Shop") for word in ("Ranges", *(
              f"Range{part}{tier}" for tier in (1, 2) for part in ("Start", "End", "Value"))))]),
    (US, [("Category2Name,Books films and music", "Category2Name,Books, films and music")],
     ["@Category2Name: the line is ignored: it has 3 fields, not a key and a value",
      '$: "Category2Name" is missing']),
    (UK, [("Category17Tiers,FinalTrainers", "Category17Tiers,FinalTrainer")],
     [*(f'@FinalTrainers{word}: Quillet UK has no use for "FinalTrainers{word}"'
        for word in ("Ranges", *(f"Range{part}{tier}" for tier in (1, 2)
                                 for part in ("Start", "End", "Value")))),
      '$: "FinalTrainerRanges" is missing']),
    (US, [("ShopFinalMostRangeStart2,2500", "ShopFinalMostRangeStart2,2501"),
          ("ShopOpeningRangeValue1,0.25", "ShopOpeningRangeValue1,little")],
     ['@ShopFinalMostRangeStart2: "ShopFinalMost": gap between tier 1 to 2500 and tier 2 from 2501',
      '@ShopOpeningRangeValue1: "ShopOpeningRangeValue1" isn\'t a number: "little"']),
    (US, [("FinalBase,3", "FinalBase,4"), ("Category6Whole,True", "Category6Whole,Perhaps"),
          ("Category10FreeFrom,150", "Category10FreeFrom,$150"), ("FixedFeatureBold,4.00", ""),
          ("ExtraPercent3Name,Many returns", ""), ("FeeTaxName,Tax", "")],
     ['@FinalBase: "FinalBase" isn\'t a number from 1 to 3: "4"',
      '@Category6Whole: "Category6Whole" is neither True nor False: "Perhaps"',
      '@Category10FreeFrom: "Category10FreeFrom" isn\'t a number: "$150"',
      '$: "FeeTaxName" is missing', '$: "ExtraPercent3Name" is missing']),
    (US, [("FeatureBold,2.00", "FeatureBold30,2.00")],
     ['@FeatureBold30: Quillet US has no use for "FeatureBold30"',
      '$: "FeatureBold" is missing']),
)


class Check(Temporary):
    def test_the_shipped_schedules_have_no_findings(self):
        for program, name in (*SCHEDULES.items(), *TODAY.items(),
                              (UK, "UpdateUK_2026-10-private.dat")):
            self.assertEqual(calc("--check", ROOT / "data" / name, program=program), (0, "", ""))

    def test_each_fault_is_found_and_nothing_else(self):
        for files, (program, edits, findings) in (*((SCHEDULES, row) for row in FINDINGS),
                                                  *((TODAY, row) for row in FINDINGS_TODAY)):
            with self.subTest(program=program, edits=[new[:60] for _, new in edits]):
                lines = (ROOT / "data" / files[program]).read_text().splitlines()
                for old, new in edits:
                    at = lines.index(old)
                    lines[at:at + 1] = new.split("\n")
                path = self.file("edited.dat", "\n".join(lines) + "\n")
                expected = "".join(f"{path}:{self.numbered(finding, lines, at)}\n"
                                   for finding in findings)
                status, out, _ = calc("--check", path, program=program)
                self.assertEqual(out, expected)
                self.assertEqual(status, 1 if findings else 0)

    @staticmethod
    def numbered(finding, lines, at):
        """The finding with line numbers for @Key, for $, and for # with an offset from the edit."""
        def line_of(match):
            return str(next(i for i, line in enumerate(lines, 1)
                            if re.match(re.escape(match[1]) + r"\b", line)))
        finding = re.sub(r"^#(\d)", lambda match: str(at + int(match[1])), finding)
        finding = re.sub(r"^\$", str(len(lines)), finding)
        return re.sub(r"@(\w+)", line_of, finding)

    def test_the_schedule_of_the_other_edition_is_said_first(self):
        for program, edition in ((UK, "UK"), (US, "US")):
            path = ROOT / "data" / SCHEDULES[US if program == UK else UK]
            status, out, _ = calc("--check", path, program=program)
            self.assertEqual((status, out.splitlines()[0]), (
                1, f"{path}:1: this is the schedule of the other edition, not of Quillet {edition}"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
