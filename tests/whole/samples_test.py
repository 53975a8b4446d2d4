#!/usr/bin/python3
"""Enters every sample auction by hand, as a seller would, in both editions: controls are found by
name and role in the accessibility tree, clicked with the mouse and typed into. The figures that the
tree then tells are compared with the table of docs/sample-auctions.md.

usage: samples_test.py FOLDER_OF_THE_PROGRAMS [SAMPLE...]"""

import os
import pathlib
import re
import sys

if len(sys.argv) > 1:
    os.environ["QUILLET_BIN"] = sys.argv[1]
from desktop import wait_for  # noqa: E402
from seen import Desktop, ReadableScreen  # noqa: E402

SOURCE = pathlib.Path(__file__).resolve().parents[2]
FIGURES = ("Insertion Fee", "Features", "Reserve Fee", "Final Value Fee", "PayPal Fee",
           "Postage & Packing", "Selling Cost", "Profit", "%")
KINDS = ("Standard Auction", "Motor Auction", "Real Estate Auction", "Business & Industrial")
VEHICLES = ("Passenger Vhcl", "Motorcycle", "Powersports", "Pocket Bikes", "Other Vehicle",
            "Parts & Accsr's")
LAND = ("T'share & Land", "All Other")
SALES = ("1-10 Day Auction", "30 Day Auction", "30 Day Ad", "90 Day Ad")
DURATIONS = {"0": "30 Days", "4": "60 Days", "1": "90 Days", "5": "120 Days", "2": "Good T.C."}
FEATURES = {
    1: "Home Page Featured", 2: "Feature Plus", 4: "Highlight", 8: "Item Subtitle", 16: "Bold",
    32: "Gallery", 64: "Featured Gallery", 128: "Buy It Now", 256: "Scheduled Listing",
    512: "List in 2 Categories", 1024: "Slide Show", 2048: "Super Sized Pictures",
    4096: "Picture Pack", 8192: "Listing Designer", 16384: "Featured in Search",
    32768: "10 Day Duration", 65536: "Gift Services", 131072: "Preview Picture", 262144: "Border",
    524288: "Listing Item", 1048576: "CARad"}
ACCOUNTS = ("Personal Account", "Premier Account", "Business Account")
CLASSES = ("First Class", "Second Class", "Parcel Service", "Manual")


def table():
    """The figures worked out by hand, by the sample's name."""
    page = (SOURCE / "docs/sample-auctions.md").read_text(encoding="utf-8")
    rows = (re.split(r"\s*\|\s*", line.strip("| ")) for line in page.splitlines()
            if line.startswith("| `"))
    return {row[0].strip("`"): dict(zip(FIGURES, row[1:] + [""])) for row in rows}


def fields(name):
    """What a seller enters: the values of a sample's file, by section."""
    text = (SOURCE / f"data/samples/{name}.qlt").read_text(encoding="utf-8")
    return {title: values.split("|") for title, values in re.findall(r"\[(\w+)\](.*?)\[\1\]", text)}


class Seller(Desktop):
    """Enters auctions into the calculator."""

    def __init__(self, screen, program):
        screen.start(program)
        screen.keys("ctrl+1")
        super().__init__(screen)
        self.look("Postage", "Manual", "text")

    def figures(self):
        """What is on view of the table's row."""
        read = {name: self.control("Selling Costs", name, "figure").get_name() for name in FIGURES
                if name not in ("Features", "%")}
        total = self.control("Selling Features", "Section Total", "figure").get_name()
        read["Features"] = total.removeprefix("Section Total ")
        profit, _, percent = read["Profit"].partition(" (")
        read["Profit"], read["%"] = profit, percent.rstrip("%)")
        return {name: re.sub("[$£]", "", figure) for name, figure in read.items()}

    def start_anew(self):
        self.screen.keys("ctrl+n")
        # An auction that has changed is asked about, in a window titled by the edition alone.
        wait_for("a new auction", lambda: len(self.screen.titles()) == 2 or self.is_clean())
        if not self.is_clean():
            self.screen.keys("alt+n")
        wait_for("a new auction", self.is_clean)

    def is_clean(self):
        titles = self.screen.titles()
        return len(titles) == 1 and not titles[0].endswith("*")

    def enter(self, sample):
        self.enter_outlay(*sample["OUTLAY"])
        self.enter_kind(*sample["TYPE"])
        self.enter_features(*map(int, sample["FEATURES"]))
        self.enter_paypal(*sample["PAYPAL"])
        self.enter_postage(*sample["POSTAGE"])

    def enter_outlay(self, outlay, start, reserve, end, quantity, tax):
        for name, text in (("Outlay", outlay), ("Starting Price", start), ("Reserve Price", reserve),
                           ("Estimated End Price", end), ("Quantity", quantity)):
            self.type("Outlay", name, text)
        self.tick("Outlay", "Add Tax", tax == "True")

    def enter_kind(self, kind, fixed, shop, duration, vehicle, land, sale, binding):
        self.choose("Auction Type", KINDS[int(kind)])
        self.tick("Auction Type", "Buy it Now Only", fixed == "True")
        self.tick("Auction Type", "Shop Inventory", shop == "True")
        if shop == "True":
            self.choose("Shop Duration", DURATIONS[duration])
        if int(kind) == 1 and ("Vehicle", VEHICLES[0], "radio button") in self.controls:
            self.choose("Vehicle", VEHICLES[int(vehicle)])
        if int(kind) == 2:
            self.choose("Real Estate Type", LAND[int(land)])
            self.choose("Real Estate Sale", SALES[int(sale)])
            self.tick("Real Estate", "Binding", binding == "True")

    def enter_features(self, bits, pictures):
        for bit, name in FEATURES.items():
            self.tick("Selling Features", name, bool(bits & bit))
        self.type("Selling Features", "Extra Pictures", str(pictures))

    def enter_paypal(self, used, account, band, singly):
        self.tick("PayPal", "Use PayPal", used == "True")
        self.choose("PayPal", ACCOUNTS[int(account)])
        self.choose_nth("Business Rate", int(band) - 1)
        if singly == "True":
            self.tick("PayPal", "Pay Individually", True)

    def enter_postage(self, used, weight, service, manual, band, recorded, proof, profits, profit,
                      singly):
        title = next(name for section, name, role in self.controls
                     if section == "Postage" and role == "check box" and name.startswith("Use"))
        self.tick("Postage", title, used == "True")
        if ("Postage", "Weight (kg)", "text") in self.controls:
            self.type("Postage", "Weight (kg)", weight)
        self.choose("Postage", CLASSES[int(service)])
        self.type("Postage", "Manual", manual)
        if int(band):
            self.choose_nth("Parcel Insurance", int(band))
        self.tick("Postage", "Recorded Signed For", recorded == "True")
        self.tick("Postage", "Proof of Delivery", proof == "True")
        self.tick("Postage", "Make Profit", profits == "True")
        if profits == "True":
            self.type("Postage", "Make Profit", profit)
        if singly == "True":
            self.tick("Postage", "Send Individually", True)


def check(desktop, name, expected):
    """Enters one sample; what is on view must settle on the table's figures."""
    desktop.start_anew()
    desktop.enter(fields(name))
    read = {}

    def settled():
        read.update(desktop.figures())
        return read == expected

    try:
        wait_for("the figures", settled)
    except AssertionError as error:
        wrong = {k: f"{read.get(k)} for {v}" for k, v in expected.items() if read.get(k) != v}
        raise AssertionError(f"{name}: {wrong}") from error
    print("ok", name, flush=True)


def run(screen, chosen):
    for program, region in (("quillet", False), ("quillet-uk", True)):
        names = [name for name in chosen if name.startswith("uk-") == region]
        if not names:
            continue
        desktop = Seller(screen, program)
        for name in names:
            check(desktop, name, table()[name])
        screen.program.kill()
        screen.program.wait()


def main():
    chosen = sys.argv[2:] or list(table())
    assert chosen, "the page has no table"
    with ReadableScreen("samples") as screen:
        run(screen, chosen)


if __name__ == "__main__":
    main()
