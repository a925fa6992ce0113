"""clang-tidy over those of the named sources that it has not yet found clean as they stand.

usage: lint.py TOOL BUILD JOBS [--most N] SOURCE...

BUILD has the commands by which the sources are compiled. What was found clean is kept in
BUILD/seen.txt, by what the source, every header of ours that it reads, the settings and the tool
were then; so that a run that was stopped goes on where it was, and one without any change has
nothing to do. With --most only the first N of those to be looked through are.
"""

import concurrent.futures
import hashlib
import pathlib
import re
import subprocess
import sys

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


def look_through(tool, build, source):
    return subprocess.run(
        [tool, "-quiet", f"-p={build}", "-extra-arg=-Wno-unknown-warning-option", source],
        capture_output=True, text=True, check=False)


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
    bad = 0
    with concurrent.futures.ThreadPoolExecutor(int(jobs)) as pool, kept.open("a") as list_of_clean:
        running = {pool.submit(look_through, tool, build, source): source for source in wanted}
        for done, future in enumerate(concurrent.futures.as_completed(running), 1):
            source, result = running[future], future.result()
            print(f"[{done}/{len(wanted)}] {source}", flush=True)
            if result.returncode == 0:
                print(keys[source], file=list_of_clean, flush=True)
            else:
                bad += 1
                print(result.stdout + result.stderr, flush=True)
    if bad:
        print(f"{bad} sources are not clean")
    return 1 if bad else 0


sys.exit(main())
