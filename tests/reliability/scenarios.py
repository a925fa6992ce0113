"""What is done to the files while the program is killed or its disk fails: each a command, the
folder before it, and the only two contents that may be found in the folder afterwards."""

import os
import shutil
import tempfile

from contents import Broken, contents, difference
from disk import PROGRAMS, run

SAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "samples")
DATABASE = "DATA/Tarn.mdb"
UNSURE = "may be there all the same"  # what a failure says that may have left the new


def tool(name):
    return os.path.join(PROGRAMS, "src", "tools", name)


DATA = tool("tarn-data")
ESTIMATE = tool("tarn-estimate")
STEPS = os.path.join(PROGRAMS, "tests", "reliability", "tarn_store_steps")


class Workshop:
    """A folder for everything that the tests make, and how its paths are written in a command. The
    scenarios begin with a copy of its folder `base`."""

    def __init__(self):
        # In memory where there is such a place: the power is never really taken away, and a disk
        # takes most of the time.
        memory = "/dev/shm"
        place = memory if os.access(memory, os.W_OK) else None
        self.root = os.path.realpath(tempfile.mkdtemp(prefix="tarn-reliability-", dir=place))
        self.home = os.path.join(self.root, "home")
        self.log = os.path.join(self.root, "log")
        os.mkdir(self.home, 0o700)
        self.base = make_base(self)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.root)

    def folder(self, name):
        """A folder of that name, with nothing in it."""
        path = os.path.join(self.root, name)
        shutil.rmtree(path, ignore_errors=True)
        os.mkdir(path)
        return path

    def copy(self, folder, name):
        path = os.path.join(self.root, name)
        shutil.rmtree(path, ignore_errors=True)
        shutil.copytree(folder, path)
        return path

    def fresh_log(self):
        if os.path.exists(self.log):
            os.remove(self.log)
        return self.log

    def run(self, command, folder, **variables):
        """Run a command whose {} stand for the folder."""
        return run([part.format(folder) for part in command], self.home, **variables)

    def must(self, command, folder):
        done = self.run(command, folder)
        if done.status != 0:
            raise Broken(f"{command} fails: {done.errors}")


def data(command, *arguments):
    return [DATA, command, "--database", "{}/" + DATABASE, *arguments]


def step(*arguments):
    return [STEPS, "{}/" + DATABASE, *arguments]


def estimate(*outputs):
    return [ESTIMATE, "--database", "{}/" + DATABASE, "--project", "MINE", "--carpet", "1",
            "--roll-width", "12ft", *outputs]


EVERY_OUTPUT = ("--text", "{}/cuts.txt", "--json", "{}/cuts.json", "--svg", "{}/cuts.svg",
                "--pdf", "{}/cuts.pdf")


class Scenario:
    """One command. `several`: it writes several files, each whole, one after the other. `again`: a
    command that has to get through afterwards, whatever became of the first, and leave nothing
    behind of it; when none is given, the same command. `elsewhere`: the beginning of the name of a
    file that may also be made in another place, and the beginning of its usual one."""

    def __init__(self, name, command, prepare=(), again=None, several=False, elsewhere=None):
        self.name = name
        self.command = command
        self.prepare = prepare
        self.again = again or command
        self.several = several
        self.elsewhere = elsewhere or ("", "")

    def look(self, folder):
        """The contents of a folder after the command."""
        other, usual = self.elsewhere
        return {
            usual + name[len(other):] if name.startswith(other) else name: value
            for name, value in contents(folder).items()
        }

    def set_up(self, workshop):
        """Find out what the command makes of the folder."""
        self.start = workshop.copy(workshop.base, "start of " + self.name)
        for command in self.prepare:
            workshop.must(command, self.start)
        self.before = self.look(self.start)
        after = workshop.copy(self.start, "end of " + self.name)
        workshop.must(self.command, after)
        self.after = self.look(after)
        self.names = set(self.before) | set(self.after)
        if self.before == self.after:
            raise Broken(f"{self.name} changes nothing")
        self.afterwards = []
        for folder in (workshop.copy(self.start, "work"), after):
            workshop.must(self.again, folder)
            self.afterwards.append(self.look(folder))

    def temporaries(self, found):
        return sorted(set(found) - self.names)

    def _is_one_of(self, found, known):
        """Whether it is one of the known contents; with several files, whether each file is."""
        if not self.several:
            return found in known
        names = set(found).union(*known)
        return all(found.get(name) in [each.get(name) for each in known] for name in names)

    def _is_whole(self, found):
        known = {name: value for name, value in found.items() if name in self.names}
        return self._is_one_of(known, (self.before, self.after))

    def require_whole(self, found):
        """Everything is as before or as after, whatever else was left behind."""
        if not self._is_whole(found):
            raise Broken(
                "neither the old nor the new. To the old: " + difference(found, self.before)
                + ". To the new: " + difference(found, self.after)
            )

    def require_done(self, found):
        if {name: value for name, value in found.items() if name in self.names} != self.after:
            raise Broken("reported as done, but differs: " + difference(found, self.after))

    def require_not_done(self, found, errors):
        """A failure leaves the old, unless it says otherwise; of several files those that were
        written before it are new."""
        if self.several or UNSURE in errors:
            self.require_whole(found)
        elif {name: value for name, value in found.items() if name in self.names} != self.before:
            raise Broken("failed, but something changed: " + difference(found, self.before))

    def require_nothing_left(self, found):
        if left := self.temporaries(found):
            raise Broken(f"left behind: {left}")

    def require_repeatable(self, workshop, folder):
        """The command gets through on what was left, and clears up."""
        done = workshop.run(self.again, folder)
        if done.status != 0:
            raise Broken(f"does not get through afterwards: {done.errors}")
        found = self.look(folder)
        if not self._is_one_of(found, self.afterwards):
            raise Broken("the next run leaves: " + difference(found, self.afterwards[-1]))


def make_base(workshop):
    """A data folder with a few projects, and files of an older estimate."""
    base = workshop.folder("base")
    workshop.must([DATA, "create", "{}", "--config-dir", workshop.home], base)
    for project, directory, file in (
        ("MAPLE", "OLD", "maple-street-9.csv"), ("MINE", "OLD", "maple-street-9.csv"),
        ("HOUSE", "NEW", "maple-street-9.csv"),
    ):
        workshop.must(
            data("import", "--project", project, "--directory", directory,
                 os.path.join(SAMPLES, file)),
            base,
        )
    workshop.must(step("add-directory", "EMPTY"), base)
    workshop.must(step("save", "MAPLE", "7", "7"), base)
    return base


def older(*names):
    """Commands that put something older in the place of the files."""
    return [["/bin/sh", "-c", f"echo old > '{{}}/{name}'"] for name in names]


# What a user does after "create" was cut off: again, or the missing settings by hand; and
# the first thing that is written beside the database.
MAKE_UNLESS_THERE = """
    file=$0/more/folder/DATA/Tarn.mdb
    [ -e "$file" ] || tarn-data create "$0/more/folder" --config-dir "$0/settings" &&
    tarn-data backup --database "$file" "$0/more/folder/DATA/copy.mdb" &&
    rm -rf "$0/settings"
"""

STORING = [
    Scenario("save", step("save", "MINE", "5", "5")),
    Scenario("first save", step("save", "FRESH", "8", "8"), [step("add-project", "OLD", "FRESH")]),
    Scenario("new directory", step("add-directory", "MORE"), again=step("add-directory", "OTHER")),
    Scenario("new project", step("add-project", "EMPTY", "MORE"),
             again=step("add-project", "EMPTY", "OTHER")),
    Scenario("rename of a project", step("rename-project", "MINE", "YOURS")),
    Scenario("rename of a directory", step("rename-directory", "OLD", "ELSE")),
    Scenario("deletion of a project", step("delete-project", "MINE")),
    Scenario("deletion of a directory", step("delete-directory", "OLD")),
    Scenario("import", data("import", "--project", "MINE", "--replace", "--metric",
                            os.path.join(SAMPLES, "kanaalhuis-metric.csv"))),
    Scenario("import of a new project",
             data("import", "--project", "HAUS", "--directory", "MORE", "--replace", "--metric",
                  os.path.join(SAMPLES, "kanaalhuis-metric.csv"))),
]

WRITING = [
    Scenario("export", data("export", "--project", "MINE", "--output", "{}/rooms.csv")),
    Scenario("export over an older file",
             data("export", "--project", "MINE", "--output", "{}/rooms.csv"), older("rooms.csv")),
    Scenario("estimate over older files", estimate(*EVERY_OUTPUT),
             older("cuts.txt", "cuts.json", "cuts.svg", "cuts.pdf"), several=True),
    Scenario("new data folder", [DATA, "create", "{}/more/folder", "--config-dir", "{}/settings"],
             again=["/bin/sh", "-c", MAKE_UNLESS_THERE.replace("tarn-data", DATA), "{}"], several=True),
    Scenario("backup", data("backup", "{}/copy.mdb"), again=data("backup", "{}/other.mdb")),
    Scenario("backup before the first change", step("make-backup", "2"),
             [step("make-backup", "1"), step("save", "MINE", "5", "5")],
             again=step("make-backup", "3")),
    Scenario("restoring", step("restore", "{}/BACKUP/Tarn 2026-03-14 09-01-00.mdb", "2"),
             [step("make-backup", "1"), step("save", "MINE", "5", "5")],
             again=step("restore", "{}/BACKUP/Tarn 2026-03-14 09-01-00.mdb", "3"), several=True,
             elsewhere=("DATA/Tarn before", "BACKUP/Tarn before")),
    Scenario("repair", data("repair", "--to", "{}/clean.mdb"),
             again=data("repair", "--to", "{}/other.mdb")),
    Scenario("draft over an older one", step("draft", "{}/state", "one.json", "MINE", "9"),
             [step("draft", "{}/state", "one.json", "MINE", "8")]),
    Scenario("first draft", step("draft", "{}/state/tarn", "one.json", "MINE", "9"),
             several=True),
]

# What failed once is tried again, as whoever is told of it does.
AGAIN = Scenario("save again after a failure", step("save-read", "MINE", "5"))

EVERYTHING = STORING + WRITING
