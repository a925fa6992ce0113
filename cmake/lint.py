"""clang-tidy over those of the named sources that it has not yet found clean as they stand.

usage: lint.py TOOL BUILD JOBS [--most N] SOURCE...

BUILD has the commands by which the sources are compiled. What was found clean is kept in
BUILD/seen.txt, by what the source, every header of ours that it reads, the settings and the tool
were then; so that a run that was stopped goes on where it was, and one without any change has
nothing to do. With --most only the first N of those to be looked through are.

Most of the time goes into what the system's headers declare, so that the sources of a folder are
looked through several at a time, as one; those of a batch in which anything was found (which may be
no more than two things of one name), and all with --most, one by one.
"""

import concurrent.futures
import hashlib
import itertools
import json
import pathlib
import re
import subprocess
import sys

BATCH = 8
INCLUDE = re.compile(rb'^\s*#\s*include\s+"([^"]+)"', re.MULTILINE)


class Reader:
    """The files that a source reads, and their contents, each file read once."""

    def __init__(self, roots):
        self.roots = roots
        self.texts = {}
        self.directly = {}

    def text(self, path):
        if path not in self.texts:
            self.texts[path] = path.read_bytes()
        return self.texts[path]

    def includes(self, path):
        if path not in self.directly:
            found = []
            for name in INCLUDE.findall(self.text(path)):
                places = [path.parent, *self.roots]
                files = [place / name.decode() for place in places]
                found += [file.resolve() for file in files if file.is_file()][:1]
            self.directly[path] = found
        return self.directly[path]

    def all_read_by(self, source):
        read, waiting = set(), [source.resolve()]
        while waiting:
            path = waiting.pop()
            if path not in read:
                read.add(path)
                waiting += self.includes(path)
        return sorted(read)

    def key(self, source, common):
        digest = hashlib.sha256(common)
        for path in self.all_read_by(source):
            digest.update(hashlib.sha256(self.text(path)).digest())
        return f"{digest.hexdigest()} {source}"


class Tidy:
    """The tool, with the commands of a build."""

    def __init__(self, tool, build):
        self.tool = tool
        self.build = pathlib.Path(build)
        commands = json.loads((self.build / "compile_commands.json").read_text())
        self.commands = {command["file"]: command for command in commands}

    def run(self, build, source, *options):
        return subprocess.run(
            [self.tool, "-quiet", f"-p={build}", "-extra-arg=-Wno-unknown-warning-option",
             *options, source],
            capture_output=True, text=True, check=False)

    def together(self, name, sources):
        """Whether nothing is found in the sources as one."""
        paths = [str(pathlib.Path(source).resolve()) for source in sources]
        command = self.commands.get(paths[0])
        if command is None:
            return False
        folder = self.build / "batches" / name
        folder.mkdir(parents=True, exist_ok=True)
        batch = folder.resolve() / "batch.cpp"
        batch.write_text("".join(f'#include "{path}"\n' for path in paths))
        command = dict(command, file=str(batch),
                       command=command["command"].replace(paths[0], str(batch)))
        (folder / "compile_commands.json").write_text(json.dumps([command]))
        return self.run(folder, str(batch), "-checks=-bugprone-suspicious-include").returncode == 0

    def look_through(self, name, sources):
        """What is found, by source."""
        if len(sources) > 1 and self.together(name, sources):
            return {source: "" for source in sources}
        found = {}
        for source in sources:
            result = self.run(self.build, source)
            found[source] = result.stdout + result.stderr if result.returncode else ""
        return found


def batches(sources, size):
    folder = lambda source: str(pathlib.Path(source).parent)
    for name, group in itertools.groupby(sorted(sources, key=folder), folder):
        group = list(group)
        for number, first in enumerate(range(0, len(group), size)):
            yield f"{name}/{number}", group[first:first + size]


def main():
    arguments = sys.argv[1:]
    most = None
    if "--most" in arguments:
        at = arguments.index("--most")
        most = int(arguments[at + 1])
        del arguments[at:at + 2]
    tool, build, jobs, *sources = arguments
    version = subprocess.run([tool, "--version"], capture_output=True, check=True).stdout
    common = pathlib.Path(".clang-tidy").read_bytes() + version
    here = pathlib.Path.cwd()
    # The headers that the build makes are of the version's numbers alone.
    reader = Reader([here / "src", here / "tests", here / "bench", here])
    kept = pathlib.Path(build, "seen.txt")
    seen = set(kept.read_text().splitlines()) if kept.exists() else set()
    keys = {source: reader.key(pathlib.Path(source), common) for source in sources}
    wanted = [source for source in sources if keys[source] not in seen]
    print(f"{len(sources) - len(wanted)} of {len(sources)} were found clean before", flush=True)
    if most is not None and len(wanted) > most:
        print(f"{len(wanted)} are to be looked through: now the first {most}, all by ./dev lint")
        wanted = wanted[:most]
    bad = done = 0
    tidy = Tidy(tool, build)
    groups = batches(wanted, BATCH if most is None else 1)
    with concurrent.futures.ThreadPoolExecutor(int(jobs)) as pool, kept.open("a") as list_of_clean:
        running = [pool.submit(tidy.look_through, *group) for group in groups]
        for future in concurrent.futures.as_completed(running):
            for source, found in future.result().items():
                done += 1
                print(f"[{done}/{len(wanted)}] {source}", flush=True)
                if found:
                    bad += 1
                    print(found, flush=True)
                else:
                    print(keys[source], file=list_of_clean, flush=True)
    if bad:
        print(f"{bad} sources are not clean")
    return 1 if bad else 0


sys.exit(main())
