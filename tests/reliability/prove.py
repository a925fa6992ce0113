#!/usr/bin/python3
"""Kill the programs, let their disk fail and take the power away, for a number of minutes.

prove.py MINUTES [PART OF]

First every step of every scenario with every trouble, however long that takes; then random kills
until the time is up. As part PART of so many processes, from 1, it takes its share of the
scenarios. TARN_PROGRAMS names the build folder. Every case that broke a promise is printed.
"""

import random
import sys
import time

import checks
import screens
from contents import Broken
from scenarios import EVERYTHING, Workshop


def try_everything(workshop, scenarios, dice, tally):
    for scenario in scenarios:
        try:
            scenario.set_up(workshop)
            checks.kill_at_steps(workshop, scenario, tally, checks.every_way)
            checks.fail_at_steps(workshop, scenario, tally, checks.every_way)
            checks.pull_plug(workshop, scenario, tally, dice, tries=10, share=0.02)
        except Broken as error:
            tally.broken.append(f"{scenario.name}: {error}")
        print(f"{scenario.name}: every step tried, {len(tally.broken)} broken so far", flush=True)


def kill_until(end, workshop, scenarios, dice, tally):
    while time.monotonic() < end and not tally.broken:
        checks.kill_while_saving(workshop, tally, dice, 100)
        for scenario in scenarios:
            checks.kill_at_random(workshop, scenario, tally, dice, 5)
        screens.kill_while_working(workshop, tally, dice, 10)


def main(minutes, part=1, of=1):
    end = time.monotonic() + 60 * minutes
    seed = random.SystemRandom().randrange(1 << 32)
    print(f"seed {seed}", flush=True)
    dice = random.Random(seed)
    tally = checks.Tally()
    scenarios = EVERYTHING[part - 1::of]
    with Workshop() as workshop:
        try_everything(workshop, scenarios, dice, tally)
        kill_until(end, workshop, scenarios, dice, tally)
    print(tally)
    return 1 if tally.broken else 0


if __name__ == "__main__":
    sys.exit(main(*map(float, sys.argv[1:2]), *map(int, sys.argv[2:4])))
