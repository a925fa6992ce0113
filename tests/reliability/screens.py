"""The program on its screens, killed while it works (ScreenSteps.cpp)."""

import collections
import csv
import glob
import json
import os

from checks import run_and_kill
from contents import Broken
from disk import PROGRAMS
from scenarios import DATABASE, data
from versions import TYPED, typed_rooms_of_version, version_in

STEPS = os.path.join(PROGRAMS, "tests", "reliability", "tarn_screen_steps")
PROJECT = "WORK"
# A run makes two at a time at most, and one may be killed before it writes where another was.
MOST_TEMPORARIES = 4


def set_up(workshop):
    """A data folder with the project into which the screens type, version 0 of it."""
    folder = workshop.copy(workshop.base, "screens")
    settings = workshop.folder("settings")
    with open(os.path.join(settings, "TarnWin.INI"), "w", encoding="utf-8") as file:
        file.write(f"[TarnWin Directory]\n{folder}\n")
    rooms = os.path.join(workshop.root, "rooms.csv")
    with open(rooms, "w", encoding="utf-8", newline="") as file:
        lines = csv.writer(file)
        lines.writerow(("width", "length", "covering", "base", "room", "remark"))
        for feet, length, number in TYPED:
            size = f"{length // 12}'{length % 12}\""
            lines.writerow((f"{feet}'0\"", size, "C1", "", number, "version 0"))
    workshop.must(
        data("import", "--project", PROJECT, "--directory", "MARCH", "--replace", rooms), folder
    )
    return folder, settings


def kill_while_working(workshop, tally, dice, times):
    """Kill the program again and again, on the same files: what it said was saved is there, and
    nothing but whole versions, in the database and in its backups."""
    folder, settings = set_up(workshop)
    last = 0
    for _ in range(times):
        lines = run_and_kill(
            [STEPS, settings, str(last + 1)], workshop.home, dice, longest=0.3
        )
        told = [line.split() for line in lines]
        saved = max((int(version) for word, version in told if word == "saved"), default=last)
        typed = max((int(version) for _, version in told), default=0)
        found = []
        tally.attempt(
            "kills of the screens", f"screens, killed after version {saved} was told to be saved",
            lambda saved=saved, typed=typed, found=found: found.append(
                _require(workshop, folder, saved, typed)
            ),
        )
        if not found:
            return
        last = found[0]


def _require(workshop, folder, saved, typed):
    left = workshop.copy(folder, "left")
    version = version_in(os.path.join(left, DATABASE), PROJECT, typed_rooms_of_version)
    if version not in (saved, saved + 1):
        raise Broken(f"version {version} is there")
    _require_whole_backups(left, version)
    _require_draft(workshop, typed, version)
    _require_few_temporaries(workshop.home, left)
    return version


def _drafts(home):
    for path in glob.glob(os.path.join(home, ".local", "state", "tarn", "draft-*")):
        with open(path, encoding="utf-8") as file:
            try:
                yield json.load(file)
            except ValueError as error:
                raise Broken(f"the draft {path} is not whole: {error}") from error


def _require_draft(workshop, typed, version):
    """What was typed when the room screen was left is stored or in a draft; and every draft is
    whole."""
    kept = [
        {room["remark"] for room in draft.get("rooms") or ()} for draft in _drafts(workshop.home)
    ]
    if typed > version and {f"version {typed}"} not in kept:
        raise Broken(f"version {typed} was typed and left, and is in no draft")


def _require_few_temporaries(*folders):
    """What one killed run leaves, the next one removes: they do not pile up."""
    found = collections.Counter(
        parent
        for folder in folders
        for parent, inside, files in os.walk(folder)
        for name in inside + files if name.startswith(".tarn-")
    )
    if any(count > MOST_TEMPORARIES for count in found.values()):
        raise Broken(f"temporary files pile up: {found}")


def _require_whole_backups(folder, newest):
    for path in glob.glob(os.path.join(folder, "BACKUP", "*.mdb")):
        version = version_in(path, PROJECT, typed_rooms_of_version)
        if version > newest:
            raise Broken(f"{path} holds version {version}, which was never stored")
