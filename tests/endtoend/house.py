"""A data folder of the test's own, and what the command-line programs and the database file say."""

import os
import sqlite3
import subprocess

SAMPLES = os.path.join(os.path.dirname(__file__), "..", "..", "samples")


class House:
    """Made with `tarn-data create`, below `folder`; `programs` holds the built programs."""

    def __init__(self, programs, folder):
        self.programs = programs
        self.config = os.path.join(folder, "config-dir")
        self.data = os.path.join(folder, "estimates")
        self.run("tarn-data", "create", self.data, "--config-dir", self.config)

    def bring_in(self, project, file, *options):
        """Import a project from CSV, into the directory SAMPLES."""
        self.run(
            "tarn-data", "import", "--database", self.database, "--directory", "SAMPLES",
            "--project", project, *options, file,
        )

    def bring_in_samples(self):
        """MAPLE STREET 9, in feet and inches, and KANAALHUIS, in centimetres."""
        self.bring_in("MAPLE STREET 9", os.path.join(SAMPLES, "maple-street-9.csv"))
        self.bring_in("KANAALHUIS", os.path.join(SAMPLES, "kanaalhuis-metric.csv"), "--metric")

    @property
    def database(self):
        return os.path.join(self.data, "DATA", "Tarn.mdb")

    def program(self, name):
        return os.path.join(self.programs, "src", "tools", name)

    def run(self, name, *arguments):
        """The standard output of a command-line program that must succeed."""
        done = subprocess.run(
            [self.program(name), *arguments], check=True, capture_output=True, text=True
        )
        return done.stdout

    def rows(self, query, *values):
        with sqlite3.connect(f"file:{self.database}?mode=ro", uri=True) as database:
            return database.execute(query, values).fetchall()

    def estimate(self, project, *arguments):
        """The lines of the cut list of the command line."""
        return self.run(
            "tarn-estimate", "--database", self.database, "--project", project, *arguments,
            "--text", "-",
        ).splitlines()
