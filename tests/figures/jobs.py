"""Jobs for tarn-figures: those stored in tests/stored, and so many at random, a line each.

jobs.py COUNT SEED
"""

import csv
import pathlib
import random
import re
import shlex
import sys

STORED = pathlib.Path(__file__).parent.parent / "stored" / "jobs"


def size_of(text, metric):
    """Whole units of a size as a room file has it; nothing for a text that is none."""
    text = text.strip()
    if re.fullmatch(r"[0-9]+", text):
        return int(text)
    found = None if metric else re.fullmatch(r"([0-9]+)'(?:([0-9]+)\"?)?", text)
    return 12 * int(found[1]) + int(found[2] or 0) if found else None


def covering_of(text):
    found = re.fullmatch(r"\s*(CARPET-|TILE-|C|T)\s*([0-9]+)\s*", text.upper())
    return int(found[2]) - 1 + (8 if found[1][0] == "T" else 0) if found else None


def base_of(text):
    """How many widths and lengths, as their codes."""
    text = text.upper().replace(" ", "")
    sides = {side: 0 for side in "WL"}
    for side, count in re.findall(r"([WL])([12]*)", text):
        sides[side] = min(2, max(1, int(count[:1] or 1)))
    return 3 * sides["L"] + sides["W"]


def rooms_of(path, metric):
    """The rooms of a file; nothing for one with a mistake in it."""
    if not path.is_file():
        return None
    with open(path, encoding="utf-8-sig", errors="replace", newline="") as file:
        rows = [row for row in csv.reader(file) if row]
    heads = [head.strip().lower() for head in rows[0]] if rows else []
    if not {"width", "length", "covering"} <= set(heads):
        return None
    rooms = []
    for row in rows[1:]:
        cells = dict(zip(heads, row))
        room = (
            size_of(cells.get("width", ""), metric),
            size_of(cells.get("length", ""), metric),
            covering_of(cells.get("covering", "")),
            base_of(cells.get("base", "")),
        )
        if None in room:
            return None
        rooms.append(room)
    return rooms


def room_words(rooms):
    return " ".join([str(len(rooms))] + [" ".join(map(str, room)) for room in rooms])


def stored_jobs():
    for commands in sorted(STORED.glob("*/commands")):
        for line in commands.read_text().splitlines():
            words = shlex.split(line)
            if words[:2] != ["tarn-estimate", "--rooms"]:
                continue
            metric = "--metric" in words
            options = {words[i]: words[i + 1] for i in range(1, len(words) - 1)}
            rooms = rooms_of(commands.parent / words[2], metric)
            across, along = re.split("[xX]", options.get("--match", "-x-"))
            wanted = {"--carpet", "--roll-width"} <= set(options)
            if rooms and wanted and "--improve" not in options and "--threads" not in options:
                yield " ".join(
                    ["estimate", "cm" if metric else "in", options["--carpet"], options["--roll-width"]]
                    + [options.get("--lay", "down"), options.get("--min-cut", "0")]
                    + [options.get("--max-pieces", "1"), across, along]
                    + [options.get("--improve-steps", "0"), options.get("--seed", "1"), room_words(rooms)]
                )


def random_rooms(random, metric, most):
    sizes = (10, 900) if metric else (4, 360)
    return [
        (random.randint(*sizes), random.randint(*sizes), random.choice((0, 0, 0, 1, 8)), random.randint(0, 8))
        for _ in range(random.randint(1, most))
    ]


def random_estimate(random):
    metric = random.random() < 0.5
    match = f"{random.randint(0, 30)} {random.randint(0, 90)}" if random.random() < 0.3 else "- -"
    words = ["estimate", "cm" if metric else "in", 1, random.choice(("366cm", "411cm", "12ft", "13.5ft", "150in"))]
    words += [random.choice(("down", "cross")), random.randint(0, 2), random.randint(1, 6), match]
    words += [random.choice((0, 0, 300)), random.randint(1, 99), room_words(random_rooms(random, metric, 20))]
    return " ".join(map(str, words))


def random_order(random):
    metric = random.random() < 0.5
    rolls = random.sample(("366cm", "400cm", "457cm") if metric else ("6ft", "12ft", "13.5ft", "15ft"), 2)
    across, along = random.choice(((0, 0), (0, 0), (18, 24), (0, 25), (9, 36)))
    words = ["order", "cm" if metric else "in", 1, ",".join(rolls), random.choice((0, 1)), random.choice((0, 3))]
    words += [random.choice((0, 1)), random.randint(1, 4), random.randint(12, 60), random.randint(0, 1)]
    words += [across, along, int(along % 2 == 0 and along > 0 and random.random() < 0.5), 3, 150]
    words += [random.randint(1, 99), room_words(random_rooms(random, metric, 12))]
    return " ".join(map(str, words))


count, seed = int(sys.argv[1]), int(sys.argv[2])
for job in stored_jobs():
    print(job)
generator = random.Random(seed)
for number in range(count):
    print(random_order(generator) if number % 3 == 2 else random_estimate(generator))
