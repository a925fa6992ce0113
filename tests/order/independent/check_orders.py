#!/usr/bin/python3
"""Make random projects, let the program order for them, and check its documents against the rules
of an order, which are written here a second time.

check_orders.py PROGRAM [PROJECTS [SEED]]

The projects have the seeds SEED, SEED + 1 and on (60 from 1). Prints every disagreement with the
rooms and the command that show it; exit status 1 where there is one.
"""

import json
import os
import random
import shlex
import subprocess
import sys
import tempfile
from collections import Counter

from projects import (known_job, long_job, one_row, random_job, rooms_text, with_less_asked,
                      wrong_options)
from rules import Row
from shortest import shortest
from verify import verify
from verify_csv import verify_csv
from verify_text import verify_text


class Checker:
    def __init__(self, program, folder):
        self.program, self.folder = program, folder
        self.disagreements = 0
        self.tally = Counter()

    def command(self, job, *output):
        path = os.path.join(self.folder, "rooms.csv")
        with open(path, "w", encoding="utf-8", newline="") as file:
            file.write(rooms_text(job))
        return [self.program, "--rooms", path, *job.arguments, *output]

    def run(self, command, *, before=()):
        return subprocess.run([*before, *command], capture_output=True, text=True, timeout=300,
                              encoding="utf-8", check=False)

    def tell(self, job, seed, faults, *output):
        for fault in faults:
            self.disagreements += 1
            print(f"seed {seed}: {fault}")
        if faults:
            command = ["tarn-order", "--rooms", "rooms.csv", *job.arguments, *output]
            print("  " + shlex.join(command))
            print("  " + rooms_text(job).replace("\r\n", "\n  ").rstrip(), flush=True)

    def check_seed(self, seed):
        dice = random.Random(seed)
        way = dice.random()
        job = (known_job(dice) if way < 0.2 else long_job(dice) if way < 0.22
               else random_job(dice, tiny=way < 0.55))
        self.tally["projects"] += 1
        if not job.rolls:
            return
        if dice.random() < 0.04:
            self.check_refusal(job, seed, wrong_options(job, dice))
            return
        document = self.check_job(job, seed, dice)
        if document is None:
            return
        if dice.random() < 0.3:
            self.check_csv(job, seed, document)
        if dice.random() < 0.3:
            self.check_text(job, seed, document)
        if dice.random() < 0.1:
            self.check_one_core(job, seed, document)
        if dice.random() < 0.5:
            self.check_less(job, seed, document, dice)
        if dice.random() < 0.3 and len(job.rows()) > 1:
            self.tally["rows alone"] += 1
            self.check_job(one_row(job, dice.randrange(len(job.rows()))), seed, dice)

    def check_job(self, job, seed, dice):
        """The document, where it is one; what is wrong with it is told."""
        ran = self.run(self.command(job, "--json", "-"))
        if not job.carpets():
            self.tally["projects without carpet"] += 1
            self.tell(job, seed, [] if ran.returncode == 1 and not ran.stdout else
                      [f"no carpet, but exit status {ran.returncode}"])
            return None
        try:
            document = json.loads(ran.stdout)
        except json.JSONDecodeError:
            self.tell(job, seed, [f"no document: exit status {ran.returncode}, {ran.stderr}"],
                      "--json", "-")
            return None
        faults = verify(job, document)
        orders = [order for order in document["carpets"] if order["best"] is not None]
        status = 0 if orders else 1
        if ran.returncode != status:
            faults.append(f"exit status {ran.returncode}, not {status}")
        faults += untold(document, ran.stderr)
        if not faults:
            faults = self.check_bounds(job, document, dice)
        self.count(document)
        self.tell(job, seed, faults, "--json", "-")
        return document

    def check_bounds(self, job, document, dice):
        """What a shorter roll is known to do for is not the least possible."""
        faults = []
        for order in document["carpets"]:
            for number, (roll, lay) in enumerate(job.rows()):
                found = order["candidates"][number]
                if found["refused"] is not None:
                    continue
                lengths = [shortest(Row(job, order["carpet"], roll, lay), dice)]
                if number == 0:
                    lengths.append(job.known.get(order["carpet"]))
                for length in lengths:
                    if length is not None:
                        self.tally["bounds tried"] += 1
                        self.tally["bounds met"] += found["leastLength"] == length
                        if found["leastLength"] > length:
                            faults.append(f"carpet {order['carpet']}, row {number}: leastLength is "
                                          f"{found['leastLength']}, but {length} suffices")
        return faults

    def check_less(self, job, seed, document, dice):
        """Where less is asked for, what was found for more is a length that suffices."""
        less = with_less_asked(job, dice)
        if not set(job.carpets()) <= set(less.carpets()):
            return
        self.tally["less asked"] += 1
        other = self.check_job(less, seed, dice)
        if other is None:
            return
        for order, easier in zip(document["carpets"], other["carpets"]):
            self.tell(less, seed, less_faults(order, easier), "--json", "-")

    def check_csv(self, job, seed, document):
        self.tally["tables"] += 1
        ran = self.run(self.command(job, "--csv", "-"))
        self.tell(job, seed, verify_csv(document, ran.stdout), "--csv", "-")

    def check_text(self, job, seed, document):
        self.tally["lists"] += 1
        ran = self.run(self.command(job, "--text", "-"))
        self.tell(job, seed, verify_text(job, document, ran.stdout), "--text", "-")

    def check_one_core(self, job, seed, document):
        self.tally["on one core"] += 1
        ran = self.run(self.command(job, "--json", "-"), before=("taskset", "-c", "0"))
        self.tell(job, seed, [] if json.loads(ran.stdout) == document else
                  ["the document is another on one core"], "--json", "-")

    def check_refusal(self, job, seed, options):
        self.tally["wrong options"] += 1
        job.arguments += options
        ran = self.run(self.command(job, "--json", "-"))
        self.tell(job, seed, [] if ran.returncode in (1, 2) and not ran.stdout and ran.stderr else
                  [f"not refused: {shlex.join(options)}, exit status {ran.returncode}"])

    def count(self, document):
        for order in document["carpets"]:
            self.tally["carpets"] += 1
            self.tally["pieces"] += len(order["pieces"])
            self.tally["parts"] += sum(piece["parts"] > 1 for piece in order["pieces"])
            for row in order["candidates"]:
                self.tally["rows"] += 1
                self.tally["rows refused"] += row["refused"] is not None


def untold(document, said):
    """What standard error should have said and did not."""
    faults = []
    for order in document["carpets"]:
        lines = [line for line in said.splitlines() if f"CARPET-{order['carpet']}," in line]
        best = order["best"]
        wanted = ([row["refused"] for row in order["candidates"]] if best is None
                  else order["candidates"][best]["notes"])
        faults += [f"carpet {order['carpet']}: standard error does not tell {text!r}"
                   for text in wanted if not any(text in line for line in lines)]
    return faults


def less_faults(order, easier):
    """Bounds of an order for which less is asked beyond what was found where more is."""
    faults = []
    for number, (row, other) in enumerate(zip(order["candidates"], easier["candidates"])):
        if row["refused"] is None and other["refused"] is not None:
            faults.append(f"carpet {order['carpet']}, row {number}: refused where less is asked")
        elif row["refused"] is None and other["leastLength"] > row["lengthNeeded"]:
            faults.append(f"carpet {order['carpet']}, row {number}: leastLength is "
                          f"{other['leastLength']}, but {row['lengthNeeded']} suffices where more "
                          "is asked")
    return faults


def main(program, projects=60, seed=1):
    with tempfile.TemporaryDirectory() as folder:
        checker = Checker(os.path.abspath(program), folder)
        for number in range(projects):
            checker.check_seed(seed + number)
    print(", ".join(f"{name} {count}" for name, count in checker.tally.items()))
    print(f"{checker.disagreements} disagreements")
    return 1 if checker.disagreements else 0


if __name__ == "__main__":
    if not 2 <= len(sys.argv) <= 4:
        sys.exit(__doc__)
    sys.exit(main(sys.argv[1], *map(int, sys.argv[2:])))
