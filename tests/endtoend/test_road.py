"""The whole road, from an empty data folder to a deleted project, as an installer walks it."""

import os
import sqlite3
import sys
import tempfile
import unittest

from desktop import Program, wait_for
from house import House

# width and length in feet and inches, covering, base, room number, remark
ROOMS = [
    ("12", "6", "14", "", "CARPET-1", "W2L1", "101", "hall"),
    ("10", "", "13", "4", "CARPET-1", "", "102", ""),
    ("25", "3", "11", "", "CARPET-1", "L2", "103", "two widths"),
    ("9", "11", "9", "2", "CARPET-3", "W1L1", "", ""),
    ("3", "4", "20", "", "CARPET-1", "", "105", "corridor"),
    ("15", "", "16", "", "CARPET-3", "W2L2", "106", ""),
    ("8", "", "8", "", "TILE-2", "W2L2", "bath", "tiles"),
    ("7", "10", "12", "1", "CARPET-1", "", "108", ""),
    ("5", "", "6", "", "CARPET-1", "", "", "closet"),
    ("11", "11", "30", "", "CARPET-1", "L1", "110", "long"),
]

WIDTHS = [
    ("CARPET WIDTH 6 FT.", "6ft"),
    ("CARPET WIDTH 12 FT.", "12ft"),
    ("CARPET WIDTH 13.5 FT.", "13.5ft"),
    ("CARPET WIDTH 15 FT.", "15ft"),
    ("CARPET WIDTH OTHER", "12ft6in"),
]


def inches(feet, rest):
    return int(feet or 0) * 12 + int(rest or 0)


class Road(unittest.TestCase):
    """A program on an empty data folder of its own."""

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.house = House(os.environ["TARN_PROGRAMS"], folder.name)
        self.ui = Program(self.house.program("tarn"), "--config-dir", self.house.config)
        self.addCleanup(self.ui.__exit__)

    def expect_drawn(self, project, *arguments):
        """The drawing lists what the command line prints."""
        expected = self.house.estimate(project, *arguments)
        # The labels of the pieces are written before the list.
        self.assertEqual(self.ui.drawn_text()[-len(expected):], expected)

    def expect_message(self, text):
        self.assertEqual(self.ui.message(), text)
        self.ui.answer("OK")


class WholeRoad(Road):
    def test_from_an_empty_folder_to_a_deleted_project(self):
        self.make_directory_and_project()
        self.enter_rooms()
        self.save_and_compare()
        self.read_report()
        self.estimate_each_width_both_ways()
        self.go_back_and_rename()
        self.delete_everything()
        self.ui.press("EXIT")
        self.ui.press("EXIT")
        self.assertEqual(self.ui.wait_for_end(), 0)

    def answer_input(self, text):
        self.ui.box()
        self.ui.type(text)
        self.ui.answer("OK")

    def make_directory_and_project(self):
        ui = self.ui
        ui.press("SELECT PROJECT")
        ui.press("NEW DIRECTORY")
        self.answer_input("kitchens")
        wait_for(lambda: ui.items("DIRECTORIES") == ["KITCHENS"], "the new directory")
        ui.click_on(ui.item("DIRECTORIES", "KITCHENS"))
        ui.begin_project("walk 1")
        ui.press("DONE")
        ui.see("label", "OPERATION MENU")
        self.assertFalse(ui.is_there("push button", "ESTIMATE"))
        self.assertEqual(
            self.house.rows("select Dir, ProjName from ProjTab"), [("KITCHENS", "WALK 1")]
        )

    def enter_rooms(self):
        ui = self.ui
        ui.press("ENTER/EDIT DATA")
        ui.see("push button", "NEXT ROOM")
        for number, (*size, covering, base, room, remark) in enumerate(ROOMS, 1):
            ui.see("label", str(number))
            for part in size:
                ui.type(part)
                ui.key("Return")
            # The list of coverings stands at the last one chosen.
            ui.key("Home")
            for _ in range(self.covering_code(covering)):
                ui.key("Down")
            ui.key("Return")
            for text in (base, room, remark):
                ui.type(text)
                ui.key("Return")
            wait_for(lambda: ui.focused() == "NEXT ROOM", "the focus on NEXT ROOM")
            ui.key("Return")
        ui.see("label", str(len(ROOMS) + 1))

    @staticmethod
    def covering_code(covering):
        kind, number = covering.split("-")
        return int(number) - 1 + (8 if kind == "TILE" else 0)

    def save_and_compare(self):
        self.ui.press("SAVE")
        self.expect_message("Data is saved")
        stored = self.house.rows(
            "select ObjNum, RoomW, RoomL, CTType, RoomNoStr, RoomRemark from InputData order by ObjNum"
        )
        expected = [
            (index, inches(size[0], size[1]), inches(size[2], size[3]), self.covering_code(covering), room, remark)
            for index, (*size, covering, _, room, remark) in enumerate(ROOMS)
        ]
        self.assertEqual(stored, expected)
        self.assertEqual(
            self.house.rows("select ProjName, ObjNum from MainTab"), [("WALK 1", len(ROOMS))]
        )

    def read_report(self):
        self.ui.press("REPORT")
        report = self.ui.field("ENTERED DATA REPORT")
        self.assertEqual(
            report.rstrip("\n"),
            self.house.run(
                "tarn-data", "report", "--database", self.house.database, "--project", "WALK 1"
            ).rstrip("\n"),
        )
        self.ui.press("CLOSE")
        self.ui.wait_gone("push button", "PRINT")
        self.ui.press("BACK")
        self.ui.see("label", "OPERATION MENU")

    def estimate_each_width_both_ways(self):
        ui = self.ui
        ui.press("ESTIMATE")
        self.assertFalse(ui.is_enabled("push button", "BACK"))
        for carpet in ("1", "3"):
            for caption, width in WIDTHS:
                for lay in ("DOWN LAY", "CROSS LAY"):
                    with self.subTest(carpet=carpet, width=width, lay=lay):
                        self.estimate(carpet, caption, lay)
                        self.expect_drawn(
                            "WALK 1", "--carpet", carpet, "--roll-width", width,
                            "--lay", lay.split()[0].lower(), "--max-pieces", "3",
                        )
                    ui.press("ESTIMATE")
        ui.press("CANCEL")
        ui.press("BACK")
        ui.see("label", "OPERATION MENU")

    def estimate(self, carpet, caption, lay):
        ui = self.ui
        ui.choose("CARPET - " + carpet)
        ui.choose(caption)
        if caption.endswith("OTHER"):
            for name, text in (("FEET", "12"), ("INCHES", "6")):
                ui.fill(name, text)
        ui.choose(lay)
        ui.press("OK")
        ui.wait_gone("push button", "CANCEL")
        if ui.is_there("label", "ESTIMATING FILLS MENU"):
            ui.choose("3")
            ui.press("Continue")
        wait_for(ui.drawn_text, "the drawing")

    def go_back_and_rename(self):
        ui = self.ui
        ui.press("BACKWARD")
        ui.press("SELECT PROJECT")
        ui.click_on(ui.item("DIRECTORIES", "KITCHENS"))
        wait_for(lambda: ui.items("PROJECTS") == ["WALK 1"], "the project in the list")
        ui.click_on(ui.item("PROJECTS", "WALK 1"), double=True)
        self.answer_input("walk 2")
        wait_for(lambda: ui.items("PROJECTS") == ["WALK 2"], "the new name")
        self.assertEqual(self.house.rows("select ProjName from MainTab"), [("WALK 2",)])
        self.assertEqual(self.house.rows("select count(*) from InputData"), [(len(ROOMS),)])

    def delete_everything(self):
        ui = self.ui
        ui.click_on(ui.item("PROJECTS", "WALK 2"))
        ui.key("Delete")
        self.assertEqual(
            ui.message(),
            "Are you sure to delete this project?\nDelete operation will make the data of the project lost!",
        )
        ui.answer("Yes")
        wait_for(lambda: ui.items("PROJECTS") == [], "the project to go")
        for table in ("ProjTab", "MainTab", "InputData"):
            self.assertEqual(self.house.rows(f"select count(*) from {table}"), [(0,)], table)


class KeyboardAlone(Road):
    def test_from_a_new_project_to_its_layout(self):
        ui = self.ui
        ui.see("push button", "SELECT PROJECT")
        ui.take_focus()
        ui.press_by_key("SELECT PROJECT")
        ui.press_by_key("NEW PROJECT")
        ui.type("keys")
        ui.press_by_key("DONE")
        ui.press_by_key("ENTER/EDIT DATA")
        wait_for(lambda: ui.focused() == "ROOM   WIDTH", "the focus on the first field")
        for text in ("10", "6", "14", "0", "", "W1", "1", ""):
            ui.type(text)
            ui.key("Return")
        ui.press_by_key("SAVE")
        self.assertEqual(ui.message(), "Data is saved")
        ui.key("Return")
        wait_for(lambda: not ui.boxes(), "the box to go")
        ui.take_focus()
        self.assertEqual(
            self.house.rows("select RoomW, RoomL, BaseSty, RoomNoStr from InputData"),
            [(126, 168, 1, "1")],
        )
        ui.press_by_key("ESTIMATE")
        ui.press_by_key("OK")
        ui.see("label", "ESTIMATING FILLS MENU")
        ui.tab_to("1")
        ui.key("space")
        ui.press_by_key("Continue")
        wait_for(ui.drawn_text, "the drawing")
        self.expect_drawn("KEYS", "--carpet", "1", "--roll-width", "12ft")
        ui.press_by_key("BACK")
        ui.press_by_key("NEXT ROOM")
        ui.press_by_key("BACK")
        ui.press_by_key("BACKWARD")
        ui.press_by_key("EXIT")
        self.assertEqual(ui.wait_for_end(), 0)


class MetricRoad(Road):
    def test_rooms_in_metres_and_centimetres(self):
        ui = self.ui
        ui.press("SELECT PROJECT")
        ui.begin_project("haus")
        ui.press("DONE")
        ui.click("check box", "Metric")
        ui.press("ENTER/EDIT DATA")
        for number, size in enumerate((("3", "66", "5", ""), ("4", "10", "3", "5")), 1):
            ui.see("label", str(number))
            for part in size:
                ui.type(part)
                ui.key("Return")
            ui.press("NEXT ROOM")
        ui.see("label", "3")
        ui.press("SAVE")
        self.expect_message("Data is saved")
        self.assertEqual(
            self.house.rows("select RoomW, RoomL from InputData order by ObjNum"),
            [(366, 500), (410, 305)],
        )
        self.assertEqual(self.house.rows("select TileLabelNUm, EnteredMetric from MainTab"), [(1, 1)])
        ui.press("BACK")
        self.assertFalse(ui.is_checked("check box", "Metric"))
        ui.press("ENTERED IN METRIC")
        ui.wait_gone("push button", "ENTERED IN METRIC")
        self.assertTrue(ui.is_checked("check box", "Metric"))
        ui.press("ESTIMATE")
        ui.press("OK")
        ui.choose("2")
        ui.press("Continue")
        wait_for(ui.drawn_text, "the drawing")
        self.expect_drawn(
            "HAUS", "--metric", "--carpet", "1", "--roll-width", "366cm", "--max-pieces", "2"
        )


class Improving(Road):
    def test_a_layout_becomes_as_short_as_can_be(self):
        ui = self.ui
        ui.press("SELECT PROJECT")
        ui.begin_project("strips")
        ui.press("DONE")
        ui.press("ENTER/EDIT DATA")
        # Three strips that fit beside each other on the 12 ft roll.
        for number in range(1, 4):
            ui.see("label", str(number))
            for part in ("4", "", "8", "4"):
                ui.type(part)
                ui.key("Return")
            ui.press("NEXT ROOM")
        ui.see("label", "4")
        ui.press("SAVE")
        self.expect_message("Data is saved")
        ui.press("ESTIMATE")
        ui.press("OK")
        ui.choose("1")
        ui.press("Continue")
        wait_for(ui.drawn_text, "the drawing")
        self.expect_drawn("STRIPS", "--carpet", "1", "--roll-width", "12ft")
        before = ui.drawn_text()
        ui.press("IMPROVE: 8'3\" shorter")
        wait_for(lambda: any("Improved" in line for line in ui.drawn_text()), "a shorter layout")
        self.expect_drawn("STRIPS", "--carpet", "1", "--roll-width", "12ft", "--improve", "10")
        self.assertIn(
            "Improved: fills 50.0% shorter, the least possible", ui.drawn_text()
        )
        ui.press("UNDO")
        wait_for(lambda: ui.drawn_text() == before, "the layout before")


class DatabaseTrouble(Road):
    def type_room(self):
        ui = self.ui
        ui.press("SELECT PROJECT")
        ui.begin_project("trouble")
        ui.press("DONE")
        ui.press("ENTER/EDIT DATA")
        ui.see("push button", "SAVE")
        ui.type("10")
        ui.key("Return")
        ui.key("Return")
        ui.type("12")

    def expect_saved_later(self):
        self.ui.press("SAVE")
        self.expect_message("Data is saved")
        self.assertEqual(self.house.rows("select RoomW, RoomL from InputData"), [(120, 144)])

    def test_a_locked_database_loses_nothing(self):
        self.type_room()
        other = sqlite3.connect(self.house.database, isolation_level=None)
        other.execute("begin exclusive")
        self.ui.press("SAVE")
        self.assertIn("another program is using the database", self.ui.message())
        self.ui.answer("OK")
        other.execute("rollback")
        other.close()
        self.expect_saved_later()

    def test_a_database_that_goes_away_and_comes_back_loses_nothing(self):
        self.type_room()
        hidden = self.house.database + ".away"
        os.rename(self.house.database, hidden)
        self.ui.press("SAVE")
        self.assertNotEqual(self.ui.message(), "Data is saved")
        self.ui.answer("OK")
        self.assertEqual(self.ui.field("ROOM   WIDTH"), "10")
        os.rename(hidden, self.house.database)
        self.expect_saved_later()


class Unsaved(Road):
    """What was typed and not saved outlives the program, however it ends."""

    def type_room(self):
        ui = self.ui
        ui.press("SELECT PROJECT")
        ui.begin_project("power")
        ui.press("DONE")
        ui.press("ENTER/EDIT DATA")
        ui.see("push button", "SAVE")
        for text in ("10", "6", "14", ""):
            ui.type(text)
            ui.key("Return")
        ui.press("NEXT ROOM")
        ui.see("label", "2")
        ui.type("7")

    def drafts(self):
        state = os.path.join(os.environ["XDG_STATE_HOME"], "tarn")
        texts = []
        for name in os.listdir(state) if os.path.isdir(state) else []:
            with open(os.path.join(state, name), encoding="utf-8") as file:
                texts.append(file.read())
        return [text for text in texts if self.house.database in text]

    def expect_taken_back(self):
        self.ui = Program(self.house.program("tarn"), "--config-dir", self.house.config)
        self.addCleanup(self.ui.__exit__)
        ui = self.ui
        ui.press("SELECT PROJECT")
        ui.click_on(ui.item("PROJECTS", "POWER"))
        ui.press("DONE")
        ui.see("label", "OPERATION MENU")
        (button,) = [
            each.name for each in ui.showing("push button") if each.name.startswith("TAKE BACK")
        ]
        ui.press(button)
        ui.see("label", "NOT SAVED")
        ui.press("ENTER/EDIT DATA")
        ui.see("label", "2")
        self.assertEqual(ui.field("ROOM   WIDTH"), "7")
        ui.fill("ROOM LENGTH", "8")
        ui.press("SAVE")
        self.expect_message("Data is saved")
        self.assertEqual(
            self.house.rows("select RoomW, RoomL from InputData order by ObjNum"),
            [(126, 168), (84, 96)],
        )
        self.assertEqual(self.drafts(), [])

    def test_a_killed_program_loses_nothing(self):
        self.type_room()
        wait_for(lambda: any('"7"' in text for text in self.drafts()), "the draft")
        self.ui.process.kill()
        self.ui.process.wait()
        self.expect_taken_back()

    def test_a_program_that_is_told_to_end_keeps_the_last_key(self):
        self.type_room()
        wait_for(lambda: self.ui.field("ROOM   WIDTH") == "7", "the key")
        self.ui.process.terminate()
        self.assertEqual(self.ui.wait_for_end(), 0)
        self.expect_taken_back()


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[1:], verbosity=2)
