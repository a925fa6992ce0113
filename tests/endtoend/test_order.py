"""From rooms to what to buy and how to cut it, on the real program."""

import os
import shutil
import sqlite3
import sys
import tempfile
import unittest

from desktop import Program, start_window_manager, states, wait_for
from pdf import Pdf
from printing import Address, PrintCase, PrintServer
from test_road import Road

ROOMS = """width,length,covering,base,room,remark
150,168,C1,W2L1,101,hall
120,160,C1,,102,
303,132,C1,L2,103,two widths
119,110,C1,,104,
40,240,C1,,105,corridor
180,192,C1,W2L2,106,
96,96,C1,W2L2,107,bath
94,145,C1,,108,
60,72,C1,,,closet
143,360,C1,L1,110,long
"""


class OrderingByKeysAlone(Road):
    def setUp(self):
        super().setUp()
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.file = os.path.join(folder.name, "order.pdf")
        rooms = os.path.join(folder.name, "rooms.csv")
        with open(rooms, "w", encoding="utf-8") as file:
            file.write(ROOMS)
        self.house.run(
            "tarn-data", "import", "--database", self.house.database, "--project", "TEN", rooms
        )

    def test_ten_imported_rooms_become_a_sheet(self):
        ui = self.ui
        ui.see("push button", "SELECT PROJECT")
        ui.take_focus()
        ui.press_by_key("SELECT PROJECT")
        ui.tab_to("PROJECTS")
        ui.key("Down")
        wait_for(lambda: ui.is_enabled("push button", "DONE"), "the project to be chosen")
        ui.press_by_key("DONE")
        ui.press_by_key("ESTIMATE")
        ui.press_by_key("CANCEL")
        ui.press_by_key("ORDER")
        ui.see("label", "Compared.")
        self.assertTrue(any(label.startswith("Best: ") for label in ui.labels()), ui.labels())
        ui.press_with_alt("s")
        ui.choose_in_open_menu("p")
        wait_for(lambda: ui.focused() == "File name:", "the focus on the name")
        self.assertEqual(ui.field("File name:"), "TEN ORDER CARPET-1.pdf")
        ui.type(self.file)
        wait_for(lambda: ui.field("File name:") == self.file, "the name")

        def is_saved():
            # Return takes a proposed end of the path first, while one is shown.
            if ui.boxes():
                ui.key("Return")
            return os.path.isfile(self.file) and not ui.boxes()

        wait_for(is_saved, "the file")
        lines = Pdf.of_file(self.file).lines()
        self.assertEqual(lines[1:3], ["Order and cutting sheet", "Project TEN"])
        for room in ("101 hall", "103 two widths", "110 long"):
            self.assertTrue(any(room in line for line in lines), room)
        ui.take_focus()
        ui.key("Escape")
        ui.see("push button", "REDRAW")
        tables = self.house.rows("select name from sqlite_master where name = 'OrderData'")
        self.assertEqual(tables, [], "nothing was chosen")


class OrderingByClicks(PrintCase):
    def test_four_clicks_lead_from_the_rooms_to_a_printed_sheet(self):
        server = self.have_printer()
        file = os.path.join(self.folder, "rooms.csv")
        with open(file, "w", encoding="utf-8") as rooms:
            rooms.write(ROOMS)
        self.house.bring_in("TEN", file)
        self.open_project("TEN")
        ui = self.ui
        ui.press("ENTER/EDIT DATA")
        ui.see("push button", "NEXT ROOM")
        for button in ("ESTIMATE", "CANCEL", "ORDER", "PRINT"):
            ui.press(button)
        (job,) = server.jobs(1)
        self.assertEqual(job.title, "ORDER (PROJECT: TEN)")
        self.assertEqual(job.document.page_size(), (595, 842))
        self.assertTrue(any("110 long" in line for line in job.document.lines()))

    def test_a_changed_choice_is_saved_with_the_project(self):
        self.open_project("MAPLE STREET 9")
        ui = self.ui
        for button in ("ESTIMATE", "CANCEL", "ORDER"):
            ui.press(button)
        ui.see("label", "Compared.")
        tabs = list(ui.showing("page tab", name="CHOICES"))
        if tabs:
            ui.click_on(tabs[0])
        ui.fill("TRIM ALONG", "3in")
        ui.see("label", "OUT OF DATE: the choices have changed. Press COMPARE.")
        ui.press("BACK")
        ui.press("BACK")
        ui.see("label", "NOT SAVED")
        ui.press("ESTIMATE")
        ui.press("CANCEL")
        ui.press("SAVE")
        self.assertEqual(ui.message(), "Data is saved")
        ui.answer("OK")
        self.assertEqual(
            self.house.rows("select Carpet, Metric from OrderData"), [(1, 0)]
        )
        ui.press("ORDER")
        ui.see("label", "Compared.")
        printed = self.house.run(
            "tarn-order", "--database", self.house.database, "--project", "MAPLE STREET 9",
            "--carpet", "1", "--json", "-",
        )
        self.assertIn('"trimAlong": 3', printed)


class CountingProgram(Program):
    """Counts what its user does. A digit that is typed is no key press here, nor a letter of a
    name; a key that is held for another counts as well."""

    def __init__(self, *arguments, **keywords):
        self.digits = self.letters = self.presses = self.clicks = 0
        super().__init__(*arguments, **keywords)

    def click_on(self, accessible, double=False, offset=None, button="b1"):
        self.clicks += 2 if double else 1
        super().click_on(accessible, double, offset, button)

    def key(self, name):
        self.presses += 1
        super().key(name)

    def press_with(self, modifier, *letters):
        self.presses += 2 * len(letters)
        super().press_with(modifier, *letters)

    def type(self, text):
        self.digits += sum(each.isdigit() for each in text)
        self.letters += sum(each.isalpha() or each == " " for each in text)
        self.presses += sum(not (each.isalnum() or each == " ") for each in text)
        super().type(text)


class FromAnEmptyFolder(unittest.TestCase):
    """The whole way of a new user under a window manager: nothing is configured, there is a
    printer, and ten rooms are typed and ordered."""

    # Width and length in feet and inches.
    SIZES = [
        ("12", "6", "14", ""), ("10", "", "13", "4"), ("25", "3", "11", ""), ("9", "11", "9", "2"),
        ("3", "4", "20", ""), ("15", "", "16", ""), ("8", "", "8", ""), ("7", "10", "12", "1"),
        ("5", "", "6", ""), ("11", "11", "30", ""),
    ]
    MOST_PRESSES_FOR_ROOMS = 60
    MOST_CLICKS_FOR_ORDER = 8

    def setUp(self):
        if os.path.exists("/etc/tarn/TarnWin.INI"):
            self.skipTest("this system has a configuration")
        if shutil.which("openbox") is None:
            self.skipTest("openbox is not installed")
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.home = folder.name
        programs = os.environ["TARN_PROGRAMS"]
        address = Address()
        self.addCleanup(address.close)
        self.server = PrintServer(programs)
        self.addCleanup(lambda: self.assertEqual(self.server.stop(), 0))
        address.lead_to(self.server)
        start_window_manager(self, os.environ["DISPLAY"])
        names = ("XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_STATE_HOME")
        self.ui = CountingProgram(
            os.path.join(programs, "src", "tools", "tarn"),
            environment={
                "HOME": self.home, "CUPS_SERVER": str(address), **{name: "" for name in names}
            },
        )
        self.addCleanup(self.ui.__exit__)
        wait_for(lambda: self.ui.message() == "Couldn't find TarnWin.ini", "the first message")

    def rows(self, query):
        file = os.path.join(self.home, ".local", "share", "tarn", "DATA", "Tarn.mdb")
        with sqlite3.connect(f"file:{file}?mode=ro", uri=True) as database:
            return database.execute(query).fetchall()

    def expect_saved(self):
        def inches(feet, rest):
            return int(feet or 0) * 12 + int(rest or 0)

        self.assertEqual(
            self.rows("select RoomW, RoomL from InputData order by ObjNum"),
            [(inches(*each[:2]), inches(*each[2:])) for each in self.SIZES],
        )
        self.assertEqual(self.rows("select Dir, ProjName from ProjTab"), [("HOUSES", "TEN")])

    def cheapest(self):
        """What the screen says of the row to take, once all eight are compared."""
        ui = self.ui
        ui.see("label", "Compared.")
        (best,) = [label for label in ui.labels() if label.startswith("Best: ")]
        (table,) = ui.showing(name="Comparison of rolls and lays")
        self.assertEqual(table.queryTable().nRows, 8)
        return best

    def expect_printed(self, best):
        """The sheet that came out of the printer is that of the best row."""
        (job,) = self.server.jobs(1)
        self.assertEqual(job.title, "ORDER (PROJECT: TEN)")
        lines = job.document.lines()
        self.assertEqual(lines[1:3], ["Order and cutting sheet", "Project TEN"])
        roll, lay, length = best[len("Best: "):].split(", ")[:3]
        length = length.split(" in one length")[0]
        for text in (roll, lay, length):
            self.assertTrue(any(text in line for line in lines), text)


class OrderingByKeysFromAnEmptyFolder(FromAnEmptyFolder):
    def test_from_the_first_start_to_a_printed_sheet(self):
        self.begin()
        before = self.ui.presses
        self.type_rooms()
        presses = self.ui.presses - before
        self.assertEqual(self.ui.digits, sum(len("".join(each)) for each in self.SIZES))
        self.assertLessEqual(presses, self.MOST_PRESSES_FOR_ROOMS)
        self.save()
        self.expect_printed(self.order())
        self.assertEqual(self.ui.clicks, 0, "all of it went by keys")
        print(f"{presses} key presses for ten rooms, {self.ui.presses} from the start to the sheet")

    def begin(self):
        ui = self.ui
        ui.key("Return")
        wait_for(lambda: ui.message().startswith("Make a folder"), "the question")
        wait_for(lambda: ui.focused() == "No", "the focus in the question")
        ui.key("Tab")
        wait_for(lambda: "focused" in states(ui.button_of_box("Yes")), "the focus on Yes")
        ui.key("Return")
        wait_for(lambda: not ui.boxes(), "the question to go")
        ui.press_by_key("SELECT PROJECT")
        ui.press_by_key("NEW DIRECTORY")
        ui.box()
        ui.type("houses")
        ui.key("Return")
        wait_for(lambda: not ui.boxes() and ui.items("DIRECTORIES") == ["HOUSES"], "the directory")
        ui.tab_to("DIRECTORIES")
        ui.key("Down")
        ui.press_by_key("NEW PROJECT")
        ui.type("ten")
        wait_for(lambda: ui.field("PROJECT") == "TEN", "the name")
        ui.press_by_key("DONE")
        ui.press_by_key("ENTER/EDIT DATA")

    def type_rooms(self):
        ui = self.ui
        for number, (feet, inches, *length) in enumerate(self.SIZES, 1):
            ui.see("label", str(number))
            wait_for(lambda: ui.focused() == "ROOM   WIDTH", "the focus on the width")
            for part in (feet, inches, length[0]):
                ui.type(part)
                ui.key("Return")
            ui.type(length[1])
            ui.press_with_alt("n")
        ui.see("label", str(len(self.SIZES) + 1))

    def save(self):
        ui = self.ui
        ui.press_with("Control", "s")
        wait_for(lambda: ui.message() == "Data is saved", "the message")
        ui.key("Return")
        wait_for(lambda: not ui.boxes(), "the box to go")
        self.expect_saved()

    def order(self):
        ui = self.ui
        ui.press_by_key("ESTIMATE")
        ui.see("push button", "CANCEL")
        ui.key("Escape")
        ui.wait_gone("push button", "CANCEL")
        ui.press_by_key("ORDER")
        best = self.cheapest()
        ui.press_with("Control", "p")
        return best


class OrderingByClicksFromAnEmptyFolder(FromAnEmptyFolder):
    """Names and sizes are typed, all else is clicked."""

    def test_from_the_first_start_to_a_printed_sheet(self):
        self.begin()
        self.type_rooms()
        self.ui.press("SAVE")
        wait_for(lambda: self.ui.message() == "Data is saved", "the message")
        self.ui.answer("OK")
        self.expect_saved()
        before = self.ui.clicks
        best = self.order()
        clicks = self.ui.clicks - before
        self.assertLessEqual(clicks, self.MOST_CLICKS_FOR_ORDER)
        self.expect_printed(best)
        self.assertEqual(self.ui.presses, 0, "all of it went by clicks")
        print(f"{clicks} clicks from ten rooms to the sheet, {self.ui.clicks} from the start")

    def begin(self):
        ui = self.ui
        ui.go_on_from("Couldn't find TarnWin.ini")
        ui.answer("Yes")
        ui.press("SELECT PROJECT")
        ui.press("NEW DIRECTORY")
        ui.box()
        ui.type("houses")
        ui.answer("OK")
        wait_for(lambda: ui.items("DIRECTORIES") == ["HOUSES"], "the directory")
        ui.click_on(ui.item("DIRECTORIES", "HOUSES"))
        ui.begin_project("ten")
        ui.press("DONE")
        ui.press("ENTER/EDIT DATA")

    def type_rooms(self):
        ui = self.ui
        fields = (("ROOM   WIDTH",), ("INCHES",), ("ROOM LENGTH",), ("INCHES", 1))
        for number, sizes in enumerate(self.SIZES, 1):
            ui.see("label", str(number))
            wait_for(lambda: ui.focused() == "ROOM   WIDTH", "the focus on the width")
            for text, field in zip(sizes, fields):
                if text:
                    box = ui.see("text", *field)
                    if field != fields[0]:
                        ui.click_on(box)
                    wait_for(lambda: "focused" in states(box), f"the focus in {field}")
                    ui.type(text)
            ui.press("NEXT ROOM")
        ui.see("label", str(len(self.SIZES) + 1))

    def order(self):
        ui = self.ui
        for button in ("ESTIMATE", "CANCEL", "ORDER"):
            ui.press(button)
        best = self.cheapest()
        ui.press("PRINT")
        return best


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[1:], verbosity=2)
