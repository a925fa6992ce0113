"""What tests of the installed files share: the build, and a copy of it as it is installed."""

import os
import shutil
import subprocess
import tempfile
import unittest

BUILD = os.environ["TARN_BUILD"]
SOURCE = os.environ["TARN_SOURCE"]


def run(*command, **options):
    """Run a command to its end; what it writes."""
    done = subprocess.run(
        command, capture_output=True, text=True, check=False, timeout=250, **options
    )
    if done.returncode != 0:
        raise AssertionError(f"{command}: status {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


def source(*path):
    with open(os.path.join(SOURCE, *path), encoding="utf-8") as file:
        return file.read()


class Installed(unittest.TestCase):
    """One component, installed into a folder of its own."""

    component = "runtime"

    @classmethod
    def setUpClass(cls):
        cls.prefix = tempfile.mkdtemp(prefix="tarn-installed-")
        cls.addClassCleanup(shutil.rmtree, cls.prefix)
        run("cmake", "--install", BUILD, "--component", cls.component, "--prefix", cls.prefix)

    def path(self, *names):
        return os.path.join(self.prefix, *names)

    def files(self):
        """Every file, by its path below the folder."""
        found = []
        for folder, _, names in os.walk(self.prefix):
            found += [os.path.relpath(os.path.join(folder, name), self.prefix) for name in names]
        return sorted(found)
