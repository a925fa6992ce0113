"""From rooms to what to buy and how to cut it, on the real program."""

import os
import sys
import tempfile
import unittest

from desktop import wait_for
from pdf import Pdf
from printing import PrintCase
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
        tabs = ui.showing("page tab", "CHOICES")
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


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1] + sys.argv[1:], verbosity=2)
