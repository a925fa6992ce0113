#!/usr/bin/env python3
"""Write the expectations of stored jobs anew, from what the built programs answer now.

refresh.py BUILD [JOB...]    (BUILD: a build directory, such as build/release; without JOB: all)
"""

import os
import shlex
import shutil
import sqlite3
import subprocess
import sys
import tempfile

JOBS = os.path.join(os.path.dirname(os.path.abspath(__file__)), "jobs")
PROGRAMS = ("tarn-data", "tarn-estimate")
FOREIGN = ("DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "QT_QPA_PLATFORM", "LPDEST", "PRINTER")


def find(build, program):
    for folder, _, files in os.walk(os.path.join(build, "src")):
        path = os.path.join(folder, program)
        if program in files and os.access(path, os.X_OK):
            return path
    sys.exit(f"refresh.py: there is no {program} in {build}; build it first")


def files_in(folder):
    """Name -> content of what is compared."""
    found = {}
    for parent, folders, files in os.walk(folder):
        if parent == folder and "data" in folders:
            folders.remove("data")
        for name in files:
            path = os.path.join(parent, name)
            with open(path, "rb") as file:
                found[os.path.relpath(path, folder)] = file.read()
    return found


def words_of(line):
    """Words with blanks between them; double quotes keep one together."""
    words = shlex.shlex(line, posix=True)
    words.whitespace_split, words.quotes, words.escape, words.commenters = True, '"', "", ""
    return list(words)


def answer(line, here, programs, environment):
    """What a line of `commands` prints."""
    if line.startswith("change "):
        _, file, statement = line.split(" ", 2)
        with sqlite3.connect(os.path.join(here, file)) as database:
            database.execute(statement)
        return b""
    program, *arguments = words_of(line)
    done = subprocess.run(
        [programs[program], *arguments], cwd=here, env=environment, capture_output=True, check=False
    )
    errors = b"[standard error]\n" + done.stderr if done.stderr else b""
    return done.stdout + errors + b"[status %d]\n" % done.returncode


def run(job, programs):
    """Name -> content of all that the job's commands answer and make."""
    with tempfile.TemporaryDirectory() as here:
        given = {name: content for name, content in files_in(job).items() if not name.startswith("expected/")}
        lines = given.pop("commands").decode().splitlines()
        for name, content in given.items():
            with open(os.path.join(here, name), "wb") as file:
                file.write(content)
        environment = {name: value for name, value in os.environ.items() if name not in FOREIGN}
        environment.update(
            HOME=here, XDG_CONFIG_HOME=here + "/config", LC_ALL="C.UTF-8", CUPS_SERVER="/no/such/print/server"
        )
        printed = b""
        for line in lines:
            printed += b"$ " + line.encode() + b"\n" + answer(line, here, programs, environment)
        made = {name: content for name, content in files_in(here).items() if given.get(name) != content}
        made["printed.txt"] = printed.replace(here.encode(), b"HERE")
        return made


def refresh(job, programs):
    """Whether the expectations changed."""
    made = run(job, programs)
    expected = os.path.join(job, "expected")
    if os.path.isdir(expected):
        if files_in(expected) == made:
            return False
        shutil.rmtree(expected)
    os.makedirs(expected)
    for name, content in made.items():
        with open(os.path.join(expected, name), "wb") as file:
            file.write(content)
    return True


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__.strip())
    build, *names = sys.argv[1:]
    programs = {program: os.path.abspath(find(build, program)) for program in PROGRAMS}
    names = names or sorted(os.listdir(JOBS))
    changed = [name for name in names if refresh(os.path.join(JOBS, name), programs)]
    print("\n".join(changed + [f"{len(names)} jobs, {len(changed)} changed"]))


if __name__ == "__main__":
    main()
