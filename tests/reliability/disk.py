"""A program run on a disk in trouble (TroubledDisk.cpp), and the disk made again from its log."""

import collections
import os
import subprocess

PROGRAMS = os.path.abspath(os.environ["TARN_PROGRAMS"])
TROUBLED_DISK = os.path.join(PROGRAMS, "tests", "reliability", "tarn_troubled_disk.so")

DYING = ("die-before", "die-amid", "die-after")
FAILING = ("error", "no-space", "short", "full", "gone")

FOLDER = "a folder"  # stands where the bytes of a file would
SECTOR = 512  # what a disk writes whole or not at all

PATIENCE = 60  # seconds; a program that takes longer hangs

Outcome = collections.namedtuple("Outcome", "status said errors")
Record = collections.namedtuple("Record", "what step file place size path other data")


def environment(home, **more):
    """That of a user who has nothing but a home, and no display."""
    return dict(
        {name: value for name, value in os.environ.items() if not name.startswith(("XDG_", "TARN_"))},
        HOME=home, XDG_RUNTIME_DIR=home, LC_ALL="C.UTF-8", TZ="UTC", QT_QPA_PLATFORM="offscreen",
        CUPS_SERVER="127.0.0.1:1", **more,
    )


def troubled(folder, log, trouble=None, at=0, data=False):
    """The variables that put trouble on the files below a folder."""
    return dict(
        LD_PRELOAD=TROUBLED_DISK, TROUBLED_FOLDER=folder, TROUBLED_LOG=log,
        TROUBLED_DATA="1" if data else "", TROUBLE=trouble or "", TROUBLE_AT=str(at),
    )


def run(command, home, **variables):
    """Run a program to its end, however it comes."""
    done = subprocess.run(
        command, env=environment(home, **variables), stdin=subprocess.DEVNULL,
        capture_output=True, timeout=PATIENCE, check=False,
    )
    return Outcome(done.returncode, done.stdout.decode(), done.stderr.decode())


def read_log(path):
    """The records of a log, in their order."""
    records = []
    with open(path, "rb") as log:
        while line := log.readline():
            fields = line.decode().rstrip("\n").split("\t")
            what, (step, file, place, size, with_data), (path, other) = (
                fields[0], map(int, fields[1:6]), fields[6:8],
            )
            data = log.read(size) if with_data else b""
            records.append(Record(what, step, file, place, size, path, other, data))
    return records


def steps_in(records):
    return max((record.step for record in records), default=0)


def trouble_in(records):
    """The kind of the step with which the trouble began; None when there were fewer steps."""
    return next((record.path for record in records if record.what == "trouble"), None)


class File:
    """What was written to a file, and what of it is sure to be on the disk."""

    def __init__(self, content=b""):
        self.durable = bytes(content)
        self.now = bytearray(content)
        self.pending = []  # (place, bytes) written or (size, None) cut, since it was synchronised

    @staticmethod
    def _change(content, place, data):
        if data is None:
            del content[place:]
            content.extend(bytes(place - len(content)))
        else:
            content.extend(bytes(max(0, place - len(content))))
            content[place:place + len(data)] = data

    def change(self, place, data):
        self._change(self.now, place, data)
        self.pending.append((place, data))

    def synchronise(self):
        self.durable = bytes(self.now)
        self.pending = []

    def after_loss(self, keeps):
        """The content after the power went: keeps() tells of each sector whether it was written."""
        content = bytearray(self.durable)
        for place, data in self.pending:
            if data is None:
                if keeps():
                    self._change(content, place, None)
                continue
            for start in range(0, len(data), SECTOR):
                if keeps():
                    self._change(content, place + start, data[start:start + SECTOR])
        return bytes(content)


class Disk:
    """The files below a folder while a log is played back."""

    def __init__(self, folder):
        self.folder = folder
        self.files = {}  # inode: File
        self.names = {}  # path: File or FOLDER, as a running program sees them
        self.durable = {}  # the same, as they are sure to be on the disk
        self.changes = []  # of names, not sure yet: {path: File, FOLDER or None}
        for parent, folders, files in os.walk(folder):
            for name in folders:
                self.names[os.path.join(parent, name)] = FOLDER
            for name in files:
                path = os.path.join(parent, name)
                with open(path, "rb") as stream:
                    file = File(stream.read())
                self.files[os.stat(path).st_ino] = file
                self.names[path] = file
        self.durable = dict(self.names)

    @staticmethod
    def _rename(names, change):
        for path, there in change.items():
            if there is None:
                names.pop(path, None)
            else:
                names[path] = there

    def _change(self, change):
        self._rename(self.names, change)
        self.changes.append(change)

    def _moved(self, path, other):
        """The change of names by which what stands at `path`, and below it, stands at `other`."""
        change = {}
        for name, there in self.names.items():
            if name == path or name.startswith(path + "/"):
                change[name] = None
                change[other + name[len(path):]] = there
        return change

    def play(self, record):
        """Let the disk take a step."""
        what = record.what
        if what == "create":
            self.files[record.file] = File()
            if record.path:
                self._change({record.path: self.files[record.file]})
        elif what == "write":
            self.files[record.file].change(record.place, record.data)
        elif what == "truncate":
            self.files[record.file].change(record.place, None)
        elif what == "sync":
            self.files[record.file].synchronise()
        elif what == "sync-folder":
            self._synchronise_names(record.path)
        elif what == "rename":
            self._change(self._moved(record.path, record.other))
        elif what == "link":
            self._change({record.other: self.files[record.file]})
        elif what == "mkdir":
            self._change({record.path: FOLDER})
        elif what in ("unlink", "rmdir"):
            self._change({record.path: None})
        elif what not in ("said", "trouble"):
            raise ValueError("the log tells of " + what)

    def _synchronise_names(self, folder):
        waiting = []
        for change in self.changes:
            if any(os.path.dirname(path) == folder for path in change):
                self._rename(self.durable, change)
            else:
                waiting.append(change)
        self.changes = waiting

    def _reachable(self, names, content_of):
        """{path below the folder: bytes or FOLDER}, without what stands in folders that are gone."""
        found = {}
        for path in sorted(names):
            parent = os.path.dirname(path)
            if parent == self.folder or found.get(os.path.relpath(parent, self.folder)) is FOLDER:
                there = names[path]
                found[os.path.relpath(path, self.folder)] = (
                    FOLDER if there is FOLDER else content_of(there)
                )
        return found

    def as_it_is(self):
        """What a program finds: nothing is lost."""
        return self._reachable(self.names, lambda file: bytes(file.now))

    def after_loss(self):
        """What is left when the power goes and only what was synchronised is on the disk."""
        return self._reachable(self.durable, lambda file: file.durable)

    def after_some_loss(self, random):
        """As after_loss, but some of what was not synchronised is there too: of the names what
        changed first, of what was written any sectors."""
        names = dict(self.durable)
        for change in self.changes[:random.choice((0, len(self.changes),
                                                   random.randint(0, len(self.changes))))]:
            self._rename(names, change)
        share = random.choice((0.0, 0.5, 0.9, 1.0))
        return self._reachable(
            names, lambda file: file.after_loss(lambda: random.random() < share)
        )


def lay_out(contents, folder):
    """Make the files of {path: bytes or FOLDER} below a folder."""
    for path, content in sorted(contents.items()):
        whole = os.path.join(folder, path)
        if content is FOLDER:
            os.mkdir(whole)
        else:
            with open(whole, "wb") as file:
                file.write(content)
