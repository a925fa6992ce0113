"""How the program starts, and when it does not."""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest

import run
from desktop import PATIENCE, Program, start_window_manager, wait_for
from Xlib import X
from house import House

PROGRAMS = ["tarn", "tarn-estimate", "tarn-data"]
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


    def new_display(self, size):
        server, name = run.start_display(size)
        self.addCleanup(server.wait)
        self.addCleanup(server.terminate)
        return name


class Displays(Case):
    def start_on(self, size, scale="1"):
        return self.start(
            "--config-dir",
            self.house.config,
            environment={"DISPLAY": self.new_display(size), "QT_SCALE_FACTOR": scale},
        )

    def test_800_by_600_is_accepted(self):
        program = self.start_on("800x600")
        program.see("push button", "SELECT PROJECT")
        self.assertEqual(program.boxes(), [])

    def test_800_by_600_is_accepted_at_scale_factor_2(self):
        self.start_on("800x600", "2").see("push button", "SELECT PROJECT")

    def test_1600_by_1200_is_accepted_at_scale_factor_2(self):
        self.start_on("1600x1200", "2").see("push button", "SELECT PROJECT")

    def expect_refused(self, size, scale="1"):
        program = self.start_on(size, scale)
        self.assertEqual(program.message(), TOO_SMALL)
        self.assertFalse(program.is_there("push button", "SELECT PROJECT"))
        program.do("OK")
        self.assertEqual(program.wait_for_end(), 1)

    def test_799_wide_is_refused(self):
        self.expect_refused("799x600")

    def test_599_high_is_refused(self):
        self.expect_refused("800x599")

    def test_799_wide_is_refused_at_scale_factor_2(self):
        self.expect_refused("799x600", "2")

    def test_599_high_is_refused_at_scale_factor_2(self):
        self.expect_refused("800x599", "2")

    def test_no_display_is_an_error(self):
        nothing = os.path.join(self.folder, "screens.json")
        with open(nothing, "w", encoding="utf-8") as file:
            file.write('{"screens": []}')
        done = subprocess.run(
            [self.house.program("tarn"), "--config-dir", self.house.config],
            env=dict(os.environ, QT_QPA_PLATFORM="offscreen:configfile=" + nothing),
            capture_output=True,
            text=True,
            timeout=PATIENCE,
            check=False,
        )
        self.assertEqual(done.returncode, 1)
        self.assertIn("tarn: There is no display to show the program on.\n", done.stderr)


class WindowManager(Case):
    """Under a window manager, which draws a frame around the window."""

    def setUp(self):
        if shutil.which("openbox") is None:
            self.skipTest("openbox is not installed")
        super().setUp()

    def manage(self, name):
        """Start a window manager on that display; answers the display, to look at it."""
        return start_window_manager(self, name)

    def open_sample(self):
        """Start the program and open a project."""
        server = self.manage(os.environ["DISPLAY"])
        self.house.bring_in_samples()
        ui = self.start("--config-dir", self.house.config)
        # Until the window has its frame its controls are not where they will be clicked on.
        wait_for(lambda: self.outer_area(server, server.screen().root), "the window's frame")
        ui.press("SELECT PROJECT")
        ui.click_on(ui.item("DIRECTORIES", "SAMPLES"))
        wait_for(lambda: ui.items("PROJECTS"), "the projects")
        ui.click_on(ui.item("PROJECTS", "MAPLE STREET 9"))
        ui.press("DONE")
        return ui

    def test_quick_keys_reach_the_screen_in_their_order(self):
        ui = self.open_sample()
        ui.press("ESTIMATE")
        ui.press("OK")
        ui.see("label", "ESTIMATING FILLS MENU")
        ui.press_with_alt("3", "c")
        wait_for(ui.drawn_text, "the drawing")
        expected = self.house.estimate(
            "MAPLE STREET 9", "--carpet", "1", "--roll-width", "12ft", "--max-pieces", "3"
        )
        self.assertEqual(ui.drawn_text()[-len(expected) :], expected)

    def test_a_box_leaves_the_field_that_it_is_about_to_be_seen(self):
        ui = self.open_sample()
        ui.press("ENTER/EDIT DATA")
        fields = [("ROOM   WIDTH", 0), ("INCHES", 0), ("ROOM LENGTH", 0), ("INCHES", 1)]
        for field in fields:
            ui.fill(field[0], "12'6", field[1])
            ui.press("NEXT ROOM")
            self.expect_clear(ui, ui.see("text", *field))
            self.assertIn(
                "12'6 is not taken: type it like 6.5, 6 1/2\" or 12'6\"", ui.texts_of_box()[1]
            )
            ui.answer("OK")
            ui.fill(field[0], "5", field[1])
        ui.fill("BASE", "")
        ui.type("x")
        self.expect_clear(ui, ui.see("text", "BASE"))
        ui.answer("OK")

    def expect_clear(self, ui, field):
        """The box that stands does not cover the field."""
        box = ui.area_of(ui.box())
        seen = ui.area_of(field)
        beside = box.x >= seen.x + seen.width or seen.x >= box.x + box.width
        above = box.y >= seen.y + seen.height or seen.y >= box.y + box.height
        self.assertTrue(beside or above, "the box covers the field")

    def test_the_frame_fits_the_display_too(self):
        name = self.new_display("1024x768")
        server = self.manage(name)
        root = server.screen().root
        program = self.start("--config-dir", self.house.config, environment={"DISPLAY": name})
        program.see("push button", "SELECT PROJECT")
        wait_for(
            lambda: self.outer_area(server, root) == (0, 0, 1024, 768 - 16),
            "the window to fit the display",
        )

    @staticmethod
    def outer_area(server, root):
        """Where the program's window stands with its frame: left, top, width and height."""
        clients = root.get_full_property(
            server.intern_atom("_NET_CLIENT_LIST"), X.AnyPropertyType
        ).value
        window = server.create_resource_object("window", clients[0])
        left, right, top, bottom = window.get_full_property(
            server.intern_atom("_NET_FRAME_EXTENTS"), X.AnyPropertyType
        ).value
        assert top > 0, "openbox draws a title bar"
        size = window.get_geometry()
        place = root.translate_coords(window, 0, 0)
        return (
            place.x - left,
            place.y - top,
            size.width + left + right,
            size.height + top + bottom,
        )


class FirstStart(Case):
    """An empty home."""

    def setUp(self):
        super().setUp()
        if os.path.exists("/etc/tarn/TarnWin.INI"):
            self.skipTest("this system has a configuration")
        self.home = os.path.join(self.folder, "home")
        os.mkdir(self.home)
        self.config = os.path.join(self.home, ".config", "tarn", "TarnWin.INI")
        self.data = os.path.join(self.home, ".local", "share", "tarn")

    def start_at_home(self):
        names = ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME")
        program = self.start(environment={"HOME": self.home, **{name: "" for name in names}})
        program.go_on_from("Couldn't find TarnWin.ini")
        question = program.message()
        self.assertIn(self.data, question)
        self.assertIn(self.config, question)
        return program

    def made(self):
        """The files below the home, and those folders that hold nothing."""
        found = []
        for folder, folders, files in os.walk(self.home):
            found += [os.path.join(folder, file) for file in files]
            if not folders and not files and folder != self.home:
                found.append(folder)
        return sorted(each for each in found if "/.cache" not in each and "fontconfig" not in each)

    def test_yes_makes_the_data_folder_and_goes_on(self):
        program = self.start_at_home()
        program.answer("Yes")
        program.press("SELECT PROJECT")
        program.see("push button", "DONE")
        self.assertEqual(program.boxes(), [])
        database = os.path.join(self.data, "DATA", "Tarn.mdb")
        self.assertEqual(self.made(), [self.config, database])
        for path in (self.config, database):
            self.assertEqual(os.stat(path).st_mode & 0o777, 0o600, path)
            self.assertEqual(os.stat(os.path.dirname(path)).st_mode & 0o777, 0o700, path)
        program.close_by_frame()
        self.assertEqual(program.wait_for_end(), 0)

    def test_no_escape_and_enter_make_nothing(self):
        for refuse in (
            lambda program: program.answer("No"),
            lambda program: program.key("Escape"),
            lambda program: program.key("Return"),
        ):
            with self.start_at_home() as program:
                program.take_focus()
                refuse(program)
                self.assertEqual(program.wait_for_end(), 1)
                self.assertEqual(self.made(), [])

    def test_a_folder_that_cannot_be_made_is_told(self):
        in_the_way = os.path.join(self.home, ".local")
        open(in_the_way, "w", encoding="utf-8").close()
        program = self.start_at_home()
        program.click_on(program.button_of_box("Yes"))
        wait_for(lambda: program.message().startswith("Nothing was made. The folder"), "a message")
        self.assertIn(self.data, program.message())
        program.answer("OK")
        self.assertEqual(program.wait_for_end(), 1)
        self.assertEqual(self.made(), [in_the_way])


class Starts(Case):
    def test_without_a_configuration_file(self):
        empty = os.path.join(self.folder, "nothing")
        os.mkdir(empty)
        program = self.start("--config-dir", empty)
        program.go_on_from("Couldn't find TarnWin.ini")
        self.assertIn(os.path.join(empty, "TarnWin.INI"), program.message())
        program.answer("No")
        self.assertEqual(program.wait_for_end(), 1)
        self.assertEqual(os.listdir(empty), [])

    def settle_default_place(self):
        """Put the configuration where it is looked for without the option."""
        place = os.path.join(self.folder, "default")
        shutil.copytree(self.house.config, os.path.join(place, "tarn"))
        return {"XDG_CONFIG_HOME": place}

    def test_with_the_configuration_in_the_default_place(self):
        program = self.start(environment=self.settle_default_place())
        program.press("SELECT PROJECT")
        program.see("push button", "DONE")
        self.assertEqual(program.boxes(), [])

    def test_with_a_directory_given_no_other_is_used(self):
        default = self.settle_default_place()
        empty = os.path.join(self.folder, "nothing")
        os.mkdir(empty)
        with self.start("--config-dir", empty, environment=default) as program:
            program.go_on_from("Couldn't find TarnWin.ini")
            program.answer("No")
            self.assertEqual(program.wait_for_end(), 1)
        with self.start("--config-dir", "", environment=default) as program:
            self.assertEqual(program.message(), "Couldn't find TarnWin.ini")
            program.answer("OK")  # there is no place to offer
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

    def start_with_a_menu(self):
        program = self.start("--config-dir", self.house.config)
        program.press("SELECT PROJECT")
        program.press("NEW PROJECT")
        program.type("P")
        program.press("DONE")
        program.see("label", "OPERATION MENU")
        return program

    def test_exit_of_the_menu_ends_it(self):
        program = self.start_with_a_menu()
        program.click("menu item", "Exit")
        self.assertEqual(program.wait_for_end(), 0)

    def test_closing_the_menu_by_its_frame_ends_it(self):
        program = self.start_with_a_menu()
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

    def test_every_program_tells_its_version_behind_its_name(self):
        lines = [self.house.run(name, "--version").split() for name in PROGRAMS]
        self.assertEqual([name for name, _ in lines], PROGRAMS)
        self.assertEqual(len({version for _, version in lines}), 1, lines)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[1:], verbosity=2)
