"""How the program starts, and when it does not."""

import os
import subprocess
import sys
import tempfile
import unittest

import run
from desktop import Program, wait_for
from house import House

TOO_SMALL = (
    "Sorry, the program must run under display resolution 800 X 600 or higher\n"
    "Please change the display resolution!"
)


class Case(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.house = House(os.environ["TARN_PROGRAMS"], self.folder)

    def start(self, *arguments, environment=None):
        program = Program(
            self.house.program("tarn"), *arguments, environment=environment
        )
        self.addCleanup(program.__exit__)
        return program


class Displays(Case):
    def start_on(self, size):
        server, display = run.start_display(size)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        return self.start("--config-dir", self.house.config, environment={"DISPLAY": display})

    def test_800_by_600_is_accepted(self):
        program = self.start_on("800x600")
        program.see("push button", "SELECT PROJECT")
        self.assertEqual(program.boxes(), [])

    def expect_refused(self, size):
        program = self.start_on(size)
        self.assertEqual(program.message(), TOO_SMALL)
        self.assertFalse(program.is_there("push button", "SELECT PROJECT"))
        program.do("OK")
        self.assertEqual(program.wait_for_end(), 1)

    def test_799_wide_is_refused(self):
        self.expect_refused("799x600")

    def test_599_high_is_refused(self):
        self.expect_refused("800x599")


class Starts(Case):
    def test_without_a_configuration_file(self):
        empty = os.path.join(self.folder, "nothing")
        os.mkdir(empty)
        program = self.start("--config-dir", empty)
        self.assertEqual(program.message(), "Couldn't find TarnWin.ini")
        program.answer("OK")
        self.assertEqual(program.wait_for_end(), 1)

    def test_without_a_database_it_says_so_when_it_is_needed(self):
        os.remove(self.house.database)
        program = self.start("--config-dir", self.house.config)
        program.press("SELECT PROJECT")
        self.assertIn(self.house.database, program.message())
        program.answer("OK")
        program.press("EXIT")
        self.assertEqual(program.wait_for_end(), 0)
        self.assertFalse(os.path.exists(self.house.database))

    def test_closing_the_window_by_its_frame_ends_it(self):
        program = self.start("--config-dir", self.house.config)
        program.see("push button", "SELECT PROJECT")
        program.close_by_frame()
        self.assertEqual(program.wait_for_end(), 0)

    def test_wrong_usage_needs_no_display(self):
        for arguments, status in ((["--help"], 0), (["--version"], 0), (["--nonsense"], 2)):
            done = subprocess.run(
                [self.house.program("tarn"), *arguments],
                env={"PATH": os.environ["PATH"]},
                capture_output=True,
                check=False,
            )
            self.assertEqual(done.returncode, status, arguments)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[1:], verbosity=2)
