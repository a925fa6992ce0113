"""What has to hold whenever a program is killed, its disk fails or the power goes. Each function
raises Broken with the case that broke it, and counts the cases that it tried."""

import collections
import os
import random
import signal
import subprocess
import time

from contents import Broken
from disk import (
    DYING, FAILING, FOLDER, Disk, environment, lay_out, read_log, steps_in, trouble_in, troubled,
)
from scenarios import DATABASE, step
from versions import version_in


class Tally(collections.Counter):
    """How many cases of each kind were tried, and those that broke a promise."""

    def __init__(self):
        super().__init__()
        self.broken = []

    def attempt(self, kind, case, check):
        self[kind] += 1
        try:
            check()
        except Broken as error:
            self.broken.append(f"{case}: {error}")

    def add(self, other):
        self.update(other)
        self.broken += other.broken

    def __str__(self):
        counts = ", ".join(f"{count} {kind}" for kind, count in sorted(self.items()))
        return "\n".join([counts + f"; broken: {len(self.broken)}", *self.broken])


def record_steps(workshop, scenario, data=False):
    """The log of a run without trouble, and the folder that it leaves."""
    folder = workshop.copy(scenario.start, "work")
    log = workshop.fresh_log()
    done = workshop.run(scenario.command, folder, **troubled(folder, log, data=data))
    if done.status != 0:
        raise Broken(f"{scenario.name} fails: {done.errors}")
    return read_log(log), folder


def kill_at_steps(workshop, scenario, tally, choose):
    """Kill the program at its steps: choose(step) names the ways to try with each."""
    records, _ = record_steps(workshop, scenario)
    for step in range(1, steps_in(records) + 1):
        for way in set(choose(step)).intersection(DYING):
            tally.attempt(
                "kills at a step", f"{scenario.name}, {way} {step}",
                lambda way=way, step=step: _kill_at_step(workshop, scenario, way, step),
            )


def _kill_at_step(workshop, scenario, way, step):
    folder = workshop.copy(scenario.start, "work")
    done = workshop.run(
        scenario.command, folder, **troubled(folder, workshop.fresh_log(), way, step)
    )
    if done.status != -signal.SIGKILL:
        raise Broken(f"was not killed but ended with {done.status}: {done.errors}")
    _require_whole_and_repeatable(workshop, scenario, folder)


def _require_whole_and_repeatable(workshop, scenario, folder):
    # The next run is on what the kill left: the look at the database takes a cut-off change back.
    left = workshop.copy(folder, "left")
    scenario.require_whole(scenario.look(folder))
    scenario.require_repeatable(workshop, left)


def kill_at_random(workshop, scenario, tally, dice, times):
    """Kill the program at random moments of its run."""
    start = time.monotonic()
    record_steps(workshop, scenario)
    usual = time.monotonic() - start
    for _ in range(times):
        moment = dice.uniform(0, usual * 1.2)
        tally.attempt(
            "kills at random", f"{scenario.name}, killed after {moment:.4f} s",
            lambda moment=moment: _kill_after(workshop, scenario, moment),
        )


def _kill_after(workshop, scenario, moment):
    folder = workshop.copy(scenario.start, "work")
    process = subprocess.Popen(
        [part.format(folder) for part in scenario.command], env=environment(workshop.home),
        stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
    )
    time.sleep(moment)
    process.kill()
    errors = process.communicate()[1].decode()
    if process.returncode == 0:
        scenario.require_done(scenario.look(folder))
    elif process.returncode != -signal.SIGKILL:
        raise Broken(f"ended with {process.returncode}: {errors}")
    _require_whole_and_repeatable(workshop, scenario, folder)


def fail_at_steps(workshop, scenario, tally, choose, ways=FAILING):
    """Let the steps fail, one run for each, until the program meets no trouble any more:
    choose(step) names those of the ways to try with each."""
    waiting = set(ways)
    step = 0
    while waiting:
        step += 1
        for way in waiting.intersection(choose(step)):
            if not _fail_at_step(workshop, scenario, tally, way, step):
                waiting.discard(way)


def _fail_at_step(workshop, scenario, tally, way, step):
    """Whether the program came to that step."""
    folder = workshop.copy(scenario.start, "work")
    disk = Disk(folder)
    log = workshop.fresh_log()
    done = workshop.run(scenario.command, folder, **troubled(folder, log, way, step, data=True))
    records = read_log(log)
    kind = trouble_in(records)
    tally.attempt(
        "failures of the disk", f"{scenario.name}, {way} {step} ({kind})",
        lambda: _require_old_or_new(workshop, scenario, way, done, disk, records),
    )
    return kind is not None


def _require_old_or_new(workshop, scenario, way, done, disk, records):
    found = scenario.look(disk.folder)
    if done.status == 0:
        scenario.require_done(found)
        _require_on_disk(workshop, scenario, disk, records)
    else:
        _require_message(done)
        scenario.require_not_done(found, done.errors)
    # What cannot be removed stays.
    if trouble_in(records) not in ("unlink", "rmdir") and way != "gone":
        scenario.require_nothing_left(found)


def _require_message(done):
    if done.status != 1:
        raise Broken(f"ended with {done.status}: {done.errors}")
    if not done.errors.strip():
        raise Broken("failed without a word")


def _require_on_disk(workshop, scenario, disk, records):
    """What was reported as done outlasts the power."""
    for record in records:
        disk.play(record)
    scenario.require_done(_contents_of(workshop, scenario, disk.after_loss()))


def _contents_of(workshop, scenario, files):
    folder = workshop.folder("lost")
    lay_out(files, folder)
    return scenario.look(folder)


def _require_whole_after_loss(workshop, scenario, left, repeats):
    scenario.require_whole(_contents_of(workshop, scenario, left))
    if repeats:
        folder = workshop.folder("lost")
        lay_out(left, folder)
        scenario.require_repeatable(workshop, folder)


def pull_plug(workshop, scenario, tally, dice, tries, share):
    """Take the power away after each step: of what was not synchronised all is lost, or, so many
    times, some. On that share of what is left the program has to go on."""
    start = workshop.copy(scenario.start, "work")
    disk = Disk(start)
    log = workshop.fresh_log()
    done = workshop.run(scenario.command, start, **troubled(start, log, data=True))
    if done.status != 0:
        raise Broken(f"{scenario.name} fails: {done.errors}")
    records = read_log(log)
    for record in records:
        disk.play(record)
        for attempt in range(1 + tries):
            left = disk.after_some_loss(dice) if attempt else disk.after_loss()
            tally.attempt(
                "pulled plugs",
                f"{scenario.name}, power lost after step {record.step} ({record.what})"
                + (", of the rest some is written" if attempt else ""),
                lambda left=left: _require_whole_after_loss(
                    workshop, scenario, left, dice.random() < share
                ),
            )
    require_whole_log(disk, start)
    tally.attempt(
        "pulled plugs", f"{scenario.name}, power lost after the end",
        lambda: scenario.require_done(_contents_of(workshop, scenario, disk.after_loss())),
    )


def require_whole_log(disk, folder):
    """The log tells everything that was done: else the tests look at half of it."""
    played = disk.as_it_is()
    real = {}
    for parent, folders, files in os.walk(folder):
        for name in folders:
            real[os.path.relpath(os.path.join(parent, name), folder)] = FOLDER
        for name in files:
            path = os.path.join(parent, name)
            with open(path, "rb") as file:
                real[os.path.relpath(path, folder)] = file.read()
    if played != real:
        names = sorted(name for name in set(played) | set(real) if played.get(name) != real.get(name))
        raise AssertionError(f"the log does not tell what became of {names}")


def kill_while_saving(workshop, tally, dice, times):
    """Kill a program that saves one version after the other, again and again on the same file: what
    was told to be saved is there, and nothing but whole versions."""
    folder = workshop.copy(workshop.base, "saved")
    database = os.path.join(folder, DATABASE)
    workshop.must(step("save", "MINE", "1", "1"), folder)
    last = 1
    for _ in range(times):
        command = [part.format(folder) for part in step("save", "MINE", str(last + 1), "1000000")]
        lines = run_and_kill(command, workshop.home, dice)
        told = int(lines[-1]) if lines else last
        found = []
        tally.attempt(
            "kills while saving", f"killed after version {told} was told to be saved",
            lambda told=told, found=found: found.append(_require_version(workshop, folder, told)),
        )
        if not found:
            return
        last = found[0]


def run_and_kill(command, home, dice, longest=0.02):
    """Run a program until a moment after its first line, at most that many seconds, or before it;
    then kill it. Answers its lines."""
    process = subprocess.Popen(
        command, env=environment(home), stdin=subprocess.DEVNULL,
        stdout=subprocess.PIPE, stderr=subprocess.PIPE, bufsize=0,
    )
    if dice.random() < 0.8:
        first = process.stdout.readline()
        time.sleep(dice.uniform(0, longest))
    else:
        first = b""
        time.sleep(dice.uniform(0, 0.05 + longest))
    process.kill()
    rest, errors = process.communicate()
    if process.returncode != -signal.SIGKILL:
        raise Broken(f"{command} ended with {process.returncode}: {errors.decode()}")
    # A line that the kill cut off was not told.
    return (first + rest).decode().split("\n")[:-1]


def _require_version(workshop, folder, told):
    # On a copy, so that the program meets what the kill left.
    left = workshop.copy(folder, "left")
    version = version_in(os.path.join(left, DATABASE), "MINE")
    if version not in (told, told + 1):
        raise Broken(f"version {version} is there")
    return version


def every_way(_):
    return DYING + FAILING


def some_ways(dice, share):
    """For that share of the steps, and the first three, one way of dying and one of failing."""

    def choose(step):
        return [
            dice.choice(ways) for ways in (DYING, FAILING) if step <= 3 or dice.random() < share
        ]

    return choose
