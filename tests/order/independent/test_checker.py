#!/usr/bin/python3
"""The checker of orders finds what is wrong: documents of the program, each with one fault made by
hand. TARN_ORDER names the program."""

import copy
import json
import os
import random
import tempfile
import unittest
from fractions import Fraction

from check_orders import Checker, less_faults, untold
from projects import Job, Roll, Room
from rules import Row
from shortest import shortest
from verify import label_of, verify
from verify_csv import verify_csv
from verify_text import verify_text


def patterned():
    """Every room in several pieces that have to match; the second roll is refused."""
    return Job(
        rooms=[Room(300, 200, "C1", "101", "Hall"), Room(0, 90, "C1"), Room(200, 100, "C1", "102"),
               Room(50, 60, "T1"), Room(150, 120, "C1", "", "=Bed, north")],
        rolls=[Roll("12ft", 144, Fraction(144), "A", "18.50"),
               Roll("150in", 150, Fraction(150), "B", "19")],
        lay="down", trim_along=3, trim_across=1, max_parts=3, min_part=36, across=18, along=24,
        half_drop=True, drift=Fraction(1), step=3,
        arguments=["--trim", "3in", "--trim-across", "1", "--max-parts", "3", "--pattern", "18x24",
                   "--half-drop", "--roll", "A:12ft=18.50", "--roll", "B:150in=19", "--steps",
                   "40"])


def divided():
    """A strip that is best divided, beside one that may not be."""
    return Job(
        rooms=[Room(10, 400, "C2"), Room(10, 100, "C2"), Room(20, 50, "C2"), Room(5, 5, "C3")],
        rolls=[Roll("20", 20, Fraction(20)), Roll("23", 23, Fraction(23))], lay="both",
        max_parts=3, min_part=5, join=True, step=3,
        arguments=["--max-parts", "3", "--min-part", "5", "--join-rooms", "--roll", "20", "--roll",
                   "23", "--lay", "both", "--steps", "60"])


def leaves(value, path=()):
    """The paths of the values in a document that hold no others."""
    if isinstance(value, dict):
        for key in value:
            yield from leaves(value[key], path + (key,))
    elif isinstance(value, list):
        for number, item in enumerate(value):
            yield from leaves(item, path + (number,))
    else:
        yield path


def changed(value):
    if isinstance(value, bool):
        return not value
    if isinstance(value, (int, float)):
        return value + 1
    return "changed" if value is None else value + "x"


def with_change(document, path, change=changed):
    other = copy.deepcopy(document)
    holder = other
    for key in path[:-1]:
        holder = holder[key]
    holder[path[-1]] = change(holder[path[-1]])
    return other


class Mutations(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.checker = Checker(os.environ["TARN_ORDER"], folder.name)

    def document(self, job):
        ran = self.checker.run(self.checker.command(job, "--json", "-"))
        document = json.loads(ran.stdout)
        self.assertEqual(verify(job, document), [])
        return document

    def assert_found(self, job, document, word):
        faults = verify(job, document)
        self.assertTrue(any(word in fault for fault in faults), f"{word!r} is not in {faults}")

    def test_every_value_of_a_document(self):
        job = patterned()
        document = self.document(job)
        unseen = {path[-1] for path in leaves(document)
                  if not verify(job, with_change(document, path))}
        # The name and the words are the program's own; a bound is less than something, no more.
        self.assertEqual(unseen, {"project", "refused", "leastLength"})

    def test_a_shifted_piece(self):
        job = patterned()
        document = self.document(job)
        pieces = document["carpets"][0]["pieces"]
        for number in range(len(pieces)):
            for key, shift in (("x", 1), ("x", -1), ("y", 12), ("y", 1)):
                path = ("carpets", 0, "pieces", number, key)
                other = with_change(document, path, lambda value, shift=shift: value + shift)
                self.assert_found(job, other, "do not match")
            # A whole repeat on it matches again.
            path = ("carpets", 0, "pieces", number, "y")
            other = with_change(document, path, lambda value: value + 24)
            self.assertNotIn("do not match", str(verify(job, other)))

    def test_a_piece_off_the_roll(self):
        job = divided()
        document = self.document(job)
        path = ("carpets", 0, "pieces", 0, "x")
        self.assert_found(job, with_change(document, path, lambda _: -1), "not on the roll")
        self.assert_found(job, with_change(document, path, lambda _: 14), "not on the roll")

    def test_pieces_upon_each_other(self):
        job = divided()
        document = self.document(job)
        other = copy.deepcopy(document)
        pieces = other["carpets"][0]["pieces"]
        pieces[1]["x"], pieces[1]["y"] = pieces[0]["x"], pieces[0]["y"]
        self.assert_found(job, other, "overlap")

    def test_a_piece_missing_or_there_twice(self):
        for job in (patterned(), divided()):
            document = self.document(job)
            for number in range(len(document["carpets"][0]["pieces"])):
                other = copy.deepcopy(document)
                del other["carpets"][0]["pieces"][number]
                self.assertTrue(verify(job, other))
                other = copy.deepcopy(document)
                pieces = other["carpets"][0]["pieces"]
                pieces.insert(number, copy.deepcopy(pieces[number]))
                self.assert_found(job, other, "overlap")

    def test_pieces_in_another_order(self):
        job = patterned()
        other = self.document(job)
        pieces = other["carpets"][0]["pieces"]
        pieces[0], pieces[1] = pieces[1], pieces[0]
        pieces[0]["label"], pieces[1]["label"] = "A", "B"
        self.assert_found(job, other, "cutting order")

    def test_parts_that_may_not_be(self):
        job = divided()
        document = self.document(job)
        self.assertTrue(any(piece["parts"] > 1 for piece in document["carpets"][0]["pieces"]),
                        "nothing was divided")
        for key, value, word in (("join", False, "divided"), ("max_parts", 1, "parts"),
                                 ("min_part", 195, "a part of")):
            other = copy.copy(job)
            setattr(other, key, value)
            self.assert_found(other, document, word)

    def test_rows(self):
        job = patterned()
        document = self.document(job)
        order = ("carpets", 0, "candidates")
        for change in (lambda rows: rows[::-1], lambda rows: rows[:1], lambda rows: rows + rows):
            self.assertTrue(verify(job, with_change(document, order, change)))
        self.assert_found(job, with_change(document, order + (0, "refused"), lambda _: "Too wide"),
                          "refused for nothing")
        self.assert_found(job, with_change(document, order + (1, "refused"), lambda _: None),
                          "not refused")
        self.assert_found(job, with_change(document, order + (1, "refused"),
                                           lambda _: "Room 2 cannot match"), "names")
        other = copy.deepcopy(document)
        other["carpets"][0]["best"] = None
        self.assert_found(job, other, "best")

    def test_another_row_than_the_best(self):
        job = divided()
        document = self.document(job)
        for number in range(4):
            if number != document["carpets"][0]["best"]:
                other = with_change(document, ("carpets", 0, "best"), lambda _, n=number: n)
                self.assert_found(job, other, f"best is {number}")

    def test_notes(self):
        job = patterned()
        job.trim_across = job.trim_along = 0
        job.arguments = [text for text in job.arguments if text not in ("--trim", "3in",
                                                                        "--trim-across", "1")]
        document = self.document(job)
        path = ("carpets", 0, "candidates", 0, "notes")
        self.assert_found(job, with_change(document, path, lambda _: []), "note on trimming")
        for note, word in (("Less trim than asked for: room 1 (101).", "less trim"),
                           ("A fill narrower than 0'6\": room 1 (101).", "narrow fills"),
                           ("Order two rolls.", "no rule"),
                           ("The roll of 12ft is a centimetre short of the standard one.", "feet")):
            if word != "feet":
                other = with_change(document, path, lambda notes, note=note: notes + [note])
                self.assert_found(job, other, word)

    def test_what_is_not_told(self):
        document = self.document(divided())
        self.assertTrue(untold(document, ""))
        ran = self.checker.run(self.checker.command(divided(), "--json", "-"))
        self.assertEqual(untold(document, ran.stderr), [])
        self.assertTrue(untold(document, ran.stderr.replace("CARPET-2", "CARPET-3")))
        for order in document["carpets"]:
            order["best"] = None
            for row in order["candidates"]:
                row["refused"] = "Too wide"
        self.assertTrue(untold(document, ran.stderr))

    def test_bounds(self):
        job = divided()
        document = self.document(job)
        for number, (roll, lay) in enumerate(job.rows()):
            path = ("carpets", 0, "candidates", number, "leastLength")
            least = Row(job, 2, roll, lay).least()
            self.assert_found(job, with_change(document, path, lambda _, n=least: n - 1),
                              "needed at least")
            needed = document["carpets"][0]["candidates"][number]["lengthNeeded"]
            self.assert_found(job, with_change(document, path, lambda _, n=needed: n + 1),
                              "beyond lengthNeeded")

    def test_a_bound_beyond_what_suffices(self):
        job = divided()
        document = self.document(job)
        self.assertEqual(self.checker.check_bounds(job, document, random.Random(1)), [])
        found = document["carpets"][1]["candidates"][0]
        found["leastLength"] = found["lengthNeeded"] = 6
        self.assertIn("5 suffices", str(self.checker.check_bounds(job, document,
                                                                  random.Random(1))))
        job.known = {1: 7, 2: 9}
        self.assertIn("9 suffices", str(self.checker.check_bounds(job, document,
                                                                  random.Random(1))))

    def test_a_bound_beyond_what_suffices_for_more(self):
        order = self.document(divided())["carpets"][0]
        self.assertEqual(less_faults(order, order), [])
        easier = copy.deepcopy(order)
        easier["candidates"][2]["leastLength"] = order["candidates"][2]["lengthNeeded"] + 1
        self.assertIn("row 2", str(less_faults(order, easier)))
        easier["candidates"][2]["refused"] = "Too wide"
        self.assertIn("refused where less", str(less_faults(order, easier)))

    def test_tables(self):
        for job in (patterned(), divided()):
            document = self.document(job)
            text = self.checker.run(self.checker.command(job, "--csv", "-")).stdout
            self.assertEqual(verify_csv(document, text), [])
            for path in leaves(document["carpets"]):
                if "request" in path or "notes" in path:
                    continue
                other = with_change(document, ("carpets",) + path)
                if path[-1] != "best":
                    self.assertTrue(verify_csv(other, text), path)
            lines = text.splitlines(keepends=True)
            for number in range(len(lines)):
                self.assertTrue(verify_csv(document, "".join(lines[:number] + lines[number + 1:])))

    def test_lists(self):
        job = patterned()
        document = self.document(job)
        text = self.checker.run(self.checker.command(job, "--text", "-")).stdout
        self.assertEqual(verify_text(job, document, text), [])
        for number, piece in enumerate(document["carpets"][0]["pieces"]):
            for key in ("label", "x", "y", "width", "length", "parts"):
                path = ("carpets", 0, "pieces", number, key)
                self.assertTrue(verify_text(job, with_change(document, path), text), path)
            self.assertEqual(piece["label"], label_of(number))
        text = text.replace("repeats on", "repeats and 1\" on")
        self.assertTrue(verify_text(job, document, text))


class Shortest(unittest.TestCase):
    def length(self, rooms, **options):
        job = Job(rooms=[Room(*sides, "C1") for sides in rooms], rolls=[],
                  **{"min_part": 36, "step": 3, **options})
        return shortest(Row(job, 1, Roll("20", 20, Fraction(20)), "down"), random.Random(1), 100000)

    def test_side_by_side(self):
        self.assertEqual(self.length([(10, 7), (10, 5), (20, 3)]), 10)
        self.assertEqual(self.length([(12, 7), (8, 2), (8, 5)]), 7)
        self.assertEqual(self.length([(11, 7), (10, 5)]), 12)

    def test_nothing_for_more_than_a_few(self):
        self.assertIsNone(self.length([(1, 1)] * 5))

    def test_divided(self):
        self.assertEqual(self.length([(10, 40)], max_parts=2, min_part=5, join=True), 20)
        self.assertEqual(self.length([(10, 40)], max_parts=2, min_part=21, join=True), 40)
        self.assertEqual(self.length([(10, 40)], max_parts=2, min_part=5), 40)
        self.assertEqual(self.length([(5, 40)], max_parts=4, min_part=5, join=True), 10)

    def test_matching(self):
        # Two drops, the second a whole number of repeats on; the half of one with a half drop.
        self.assertEqual(self.length([(40, 7)], along=5), 17)
        self.assertEqual(self.length([(40, 7)], along=8), 15)
        self.assertEqual(self.length([(40, 7)], along=8, across=20, half_drop=True), 19)
        self.assertEqual(self.length([(40, 7)], along=8, across=10, half_drop=True), 15)
        # The fill stands beside the other room where it matches its drop.
        self.assertEqual(self.length([(25, 6), (13, 6)], across=10), 12)
        self.assertEqual(self.length([(25, 6), (16, 6)], across=10), 18)
        self.assertEqual(self.length([(25, 6), (14, 6)], across=10), 12)


class Labels(unittest.TestCase):
    def test_go_on_after_z(self):
        self.assertEqual([label_of(number) for number in (0, 25, 26, 27, 701, 702)],
                         ["A", "Z", "AA", "AB", "ZZ", "AAA"])


if __name__ == "__main__":
    unittest.main()
