"""Does in a bare Debian what a user does with the package: installs it, starts it from its menu
entry, makes a first project and an order, prints to PDF, upgrades, removes it.

try_package.py WORK NEW.deb OLD.deb SOURCE

Runs as root, below WORK, in which the bare system and what apt fetched are kept for the next time.
What is mounted belongs to a mount namespace of its own and goes with it.
"""

import configparser
import glob
import hashlib
import os
import re
import shlex
import shutil
import subprocess
import sys
import time

from Xlib import X, XK, display
from Xlib.ext import xtest

SUITE = "bookworm"
MIRROR = "http://deb.debian.org/debian"
USER = "kim"
PATIENCE = 300  # seconds
SETTLING = 0.5  # seconds, for a program to see that it has the focus
HERE = os.path.dirname(os.path.abspath(__file__))


def run(*command, **options):
    """Run a command to its end; what it writes on standard output."""
    done = subprocess.run(
        [str(each) for each in command],
        stdout=subprocess.PIPE,
        stderr=subprocess.STDOUT,
        text=True,
        check=False,
        **options,
    )
    if done.returncode != 0:
        raise SystemExit(f"{command}: status {done.returncode}\n{done.stdout}")
    return done.stdout


def expect(condition, what):
    if not condition:
        raise SystemExit("FAILED: " + what)
    print("  ok:", what, flush=True)


def wait_for(condition, what):
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        found = condition()
        if found:
            return found
        time.sleep(0.05)
    raise SystemExit("FAILED: waited in vain for " + what)


class BareSystem:
    """A folder with the least Debian there is, and a user."""

    def __init__(self, work):
        self.root = os.path.join(work, "root")
        self.fetched = os.path.join(work, "fetched")
        image = os.path.join(work, f"{SUITE}.tar")
        if not os.path.exists(image):
            print("Bootstrapping", SUITE, flush=True)
            first = os.path.join(work, "bootstrap")
            shutil.rmtree(first, ignore_errors=True)
            run("debootstrap", "--variant=minbase", SUITE, first, MIRROR)
            run("tar", "--numeric-owner", "-C", first, "-cf", image + ".new", ".")
            os.rename(image + ".new", image)
            shutil.rmtree(first)
        shutil.rmtree(self.root, ignore_errors=True)
        os.makedirs(self.root)
        run("tar", "--numeric-owner", "-C", self.root, "-xf", image)
        self.prepare()

    def prepare(self):
        os.makedirs(self.fetched, exist_ok=True)
        run("mount", "-t", "proc", "proc", self.path("proc"))
        run("mount", "--bind", self.fetched, self.path("var/cache/apt/archives"))
        shutil.copy("/etc/resolv.conf", self.path("etc/resolv.conf"))
        with open(self.path("etc/apt/apt.conf.d/99keep"), "w", encoding="utf-8") as file:
            file.write('APT::Keep-Downloaded-Packages "true";\n'
                       'Binary::apt::APT::Keep-Downloaded-Packages "true";\n'
                       'APT::Sandbox::User "root";\n')
        self.run("apt-get", "-q", "update")
        self.run("useradd", "--create-home", "--shell", "/bin/sh", USER)

    def path(self, name):
        return os.path.join(self.root, name.lstrip("/"))

    def run(self, *command):
        return run("chroot", self.root, "env", "-i", "PATH=/usr/sbin:/usr/bin:/sbin:/bin",
                   "LC_ALL=C.UTF-8", "DEBIAN_FRONTEND=noninteractive", "HOME=/root", *command)

    def user_command(self, command, environment=()):
        """The command by which the user runs something: an ordinary login, and no more."""
        return ["chroot", f"--userspec={USER}:{USER}", self.root, "env", "-i",
                f"HOME=/home/{USER}", f"USER={USER}", "PATH=/usr/local/bin:/usr/bin:/bin",
                "LANG=C.UTF-8", *environment, "/bin/sh", "-c", "cd && " + command]

    def as_user(self, command):
        return run(*self.user_command(command))

    def install(self, package):
        """Install a package's file with what it depends on, and nothing that it only recommends."""
        shutil.copy(package, self.path("root"))
        name = "/root/" + os.path.basename(package)
        return self.run("apt-get", "-q", "-y", "--no-install-recommends", "install", name)

    def packages(self):
        told = self.run("dpkg-query", "-W", "-f=${binary:Package} ${db:Status-Status}\n")
        return {line.split()[0].split(":")[0] for line in told.splitlines() if line.endswith(" installed")}

    def home(self):
        """What is in the user's home, by path: a digest of each file."""
        found = {}
        for folder, _, names in os.walk(self.path("home")):
            for name in names:
                path = os.path.join(folder, name)
                with open(path, "rb") as file:
                    found[os.path.relpath(path, self.root)] = hashlib.sha256(file.read()).hexdigest()
        return found


class Display:
    """An X server of the host, seen and used from outside as by somebody who sits before it."""

    def __init__(self):
        reader, writer = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writer), "-screen", "0", "1366x768x24", "-nolisten", "tcp"],
            pass_fds=[writer], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
        )
        os.close(writer)
        with os.fdopen(reader) as numbers:
            self.name = ":" + numbers.readline().strip()
        self.x = display.Display(self.name)

    def windows(self):
        """The windows that are in sight, the last one in front."""
        return [
            each for each in self.x.screen().root.query_tree().children
            if each.get_attributes().map_state == X.IsViewable and each.get_geometry().width > 50
        ]

    def wait_for_window(self, others=()):
        known = {each.id for each in others}
        window = wait_for(
            lambda: [each for each in self.windows() if each.id not in known], "a window"
        )[-1]
        return window

    def answer(self, window, *strokes):
        """Press those keys, one after the other, and wait until the window is gone. There is no
        window manager: until the program knows of its focus, it hears nothing."""
        wait_for(lambda: self.try_to_answer(window, strokes), "a window to go")

    def try_to_answer(self, window, strokes):
        if window.id in [each.id for each in self.windows()]:
            window.set_input_focus(X.RevertToParent, X.CurrentTime)
            self.x.sync()
            time.sleep(SETTLING)
            for stroke in strokes:
                self.press(*stroke)
            end = time.monotonic() + 10 * SETTLING
            while time.monotonic() < end:
                if window.id not in [each.id for each in self.windows()]:
                    return True
                time.sleep(0.05)
            return False
        return True

    def press(self, *keys):
        """Press keys together, such as Alt_L and y."""
        codes = [self.x.keysym_to_keycode(XK.string_to_keysym(key)) for key in keys]
        for code in codes:
            xtest.fake_input(self.x, X.KeyPress, code)
        for code in reversed(codes):
            xtest.fake_input(self.x, X.KeyRelease, code)
        self.x.sync()

    def picture(self, file):
        run("import", "-display", self.name, "-window", "root", file)

    def end(self):
        self.x.close()
        self.server.terminate()
        self.server.wait()


def exec_line(system, *files):
    """What the menu runs, for those files or none."""
    entry = configparser.ConfigParser(interpolation=None)
    entry.read(system.path("usr/share/applications/tarn.desktop"))
    words = []
    for word in shlex.split(entry["Desktop Entry"]["Exec"]):
        words += files if word == "%f" else [word]
    return " ".join(shlex.quote(word) for word in words)


def expect_only_depends(system, before):
    with open(os.path.join(HERE, "depends.txt"), encoding="utf-8") as file:
        stated = {line.strip() for line in file if line.strip() and not line.startswith("#")}
    came = system.packages() - before
    print("Came with the package:", " ".join(sorted(came)))
    more, less = sorted(came - stated), sorted(stated - came)
    expect(not more and not less, f"only what depends.txt states came (more: {more}, less: {less})")


def first_start(system, work):
    """From the menu entry, in an empty home: Enter on the message, Yes to the offer."""
    face = system.as_user("fc-match 'Sans Serif'")
    expect("Mono" not in face, f"the screens have a face to read: {face.strip()}")
    screen = Display()
    program = subprocess.Popen(
        system.user_command(exec_line(system), [f"DISPLAY={screen.name}"]), start_new_session=True
    )
    try:
        screen.answer(screen.wait_for_window(), ["Return"])
        offered = screen.wait_for_window()
        database = system.path(f"home/{USER}/.local/share/tarn/DATA/Tarn.mdb")
        expect(not os.path.exists(database), "nothing is made before it is agreed to")
        screen.picture(os.path.join(work, "first-start.png"))
        screen.answer(offered, ["Alt_L", "y"])
        screen.wait_for_window()
        expect(os.path.exists(database), "the first start made the data folder that it offered")
        expect(os.path.exists(system.path(f"home/{USER}/.config/tarn/TarnWin.INI")),
               "and the configuration that names it")
        screen.picture(os.path.join(work, "first-screen.png"))
        expect(program.poll() is None, "the program runs from its menu entry")
    finally:
        os.killpg(program.pid, 15)
        program.wait()
        screen.end()


def first_project(system, work):
    """The sample, its estimate and its order, on paper as PDF; all by the programs installed."""
    rooms = "/usr/share/doc/tarn/examples/maple-street-9.csv"
    database = "--database .local/share/tarn/DATA/Tarn.mdb"
    system.as_user(f"tarn-data import {database} --project MAPLE {rooms}")
    listed = system.as_user(f"tarn-data list {database}")
    expect("MAPLE (" in listed, "a first project with rooms")
    estimate = system.as_user(f"tarn-estimate {database} --project MAPLE --carpet 1 "
                              "--roll-width 12ft --text - --pdf estimate.pdf")
    expect("Total Length:" in estimate, "its estimate")
    system.as_user(f"tarn-order {database} --project MAPLE --roll 12ft --steps 200 --pdf order.pdf")
    for name, words in (("estimate.pdf", ["MAPLE"]), ("order.pdf", ["MAPLE", "CARPET-1"])):
        path = system.path(f"home/{USER}/{name}")
        text = run("pdftotext", "-layout", path, "-")
        expect(all(word in text for word in words), f"{name} says what it is of")
        fonts = run("pdffonts", path)
        expect("Liberation" in fonts, f"{name} is written in a font with the right widths")
        run("pdftoppm", "-r", "60", "-png", "-f", "1", "-l", "1", path, os.path.join(work, name))


def on_the_screen(system, source, work):
    """The same with mouse and keys on the screens: the tests of the program in a real window, run
    with what is installed. What they look through it with is installed only now."""
    system.run("apt-get", "-q", "-y", "--no-install-recommends", "install", "xvfb", "openbox", "dbus",
               "at-spi2-core", "python3-pyatspi", "gir1.2-atspi-2.0", "python3-xlib", "poppler-utils",
               "cups-daemon", "cups-filters", "xauth")
    tests = system.path("opt/tarn")
    for name in ("tests/endtoend", "samples"):
        shutil.copytree(os.path.join(source, name), os.path.join(tests, name))
    tools = os.path.join(tests, "programs/src/tools")
    os.makedirs(tools)
    for program in glob.glob(system.path("usr/bin/tarn*")):
        os.symlink("/usr/bin/" + os.path.basename(program), os.path.join(tools, os.path.basename(program)))
    for file, case in (("test_start.py", "FirstStart"), ("test_road.py", "WholeRoad"),
                       ("test_order.py", "OrderingByKeysAlone"),
                       ("test_save_as.py", "PrintingToFiles.test_a_report_as_pdf_and_svg")):
        told = system.as_user(
            "TARN_PROGRAMS=/opt/tarn/programs PYTHONDONTWRITEBYTECODE=1 python3 "
            f"/opt/tarn/tests/endtoend/run.py 1366x768 /opt/tarn/tests/endtoend/{file} {case}")
        ran = re.search(r"^Ran ([1-9][0-9]*) tests?", told, re.MULTILINE)
        expect(ran and re.search(r"^OK$", told, re.MULTILINE) and "skipped" not in told,
               f"on the screen: {case}, tests run: {ran and ran.group(1)}")


def open_with(system):
    """Rooms opened with the program by the file manager."""
    # Numbers that can be inches or centimetres.
    system.as_user("cp /usr/share/doc/tarn/examples/kanaalhuis-metric.csv 'my rooms.csv'")
    screen = Display()
    program = subprocess.Popen(
        system.user_command(exec_line(system, f"/home/{USER}/my rooms.csv"),
                            [f"DISPLAY={screen.name}"]), start_new_session=True)
    try:
        first = wait_for(screen.windows, "a window")[0]  # the box may be before it by now
        # From Cancel to the first of the units.
        screen.answer(screen.wait_for_window([first]), ["Tab"], ["space"])
        screen.answer(screen.wait_for_window([first]), ["Return"])
        database = "--database .local/share/tarn/DATA/Tarn.mdb"
        wait_for(lambda: "MY ROOMS (" in system.as_user(f"tarn-data list {database}"),
                 "the project of the file")
        expect(True, "rooms opened with the program become a project")
    finally:
        os.killpg(program.pid, 15)
        program.wait()
        screen.end()


def upgrade(system, new):
    before = system.home()
    listed = system.as_user("tarn-data list --database .local/share/tarn/DATA/Tarn.mdb")
    version = ["dpkg-query", "-W", "-f=${Version}", "tarn"]
    old_version = system.run(*version)
    system.install(new)
    expect(system.run(*version) != old_version, f"the upgrade replaced {old_version}")
    expect(system.home() == before, "and leaves every file of the user as it was")
    expect(system.as_user("tarn-data list --database .local/share/tarn/DATA/Tarn.mdb") == listed,
           "the projects are read by the new version")
    system.as_user("tarn-data check --database .local/share/tarn/DATA/Tarn.mdb")


def remove(system):
    before = system.home()
    files = system.run("dpkg", "-L", "tarn").splitlines()
    system.run("apt-get", "-q", "-y", "purge", "tarn")
    expect(system.home() == before and before, "removing leaves the user's data")
    left = [name for name in files if os.path.isfile(system.path(name)) or os.path.islink(system.path(name))]
    expect(not left, f"no file of the package is left: {left}")
    traces = run("find", system.path("usr"), system.path("etc"), system.path("var/lib"), "-name", "*tarn*",
                 "-not", "-path", "*/var/lib/apt/*")
    expect(not traces, f"nothing of ours is left in the system: {traces}")


def main(work, new, old, source):
    system = BareSystem(work)
    before = system.packages()
    print("== Install", os.path.basename(old), flush=True)
    system.install(old)
    expect_only_depends(system, before)
    print("== First start", flush=True)
    first_start(system, work)
    print("== First project, estimate, order", flush=True)
    first_project(system, work)
    print("== Upgrade to", os.path.basename(new), flush=True)
    upgrade(system, new)
    print("== Open with", flush=True)
    open_with(system)
    print("== On the screen", flush=True)
    on_the_screen(system, source, work)
    print("== Remove", flush=True)
    remove(system)


if __name__ == "__main__":
    main(*sys.argv[1:])
