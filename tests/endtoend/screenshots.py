"""Take a picture of every screen of the real program, in feet and inches and in metric.

screenshots.py PROGRAMS FOLDER    (run by run.py, which makes the display)
"""

import os
import subprocess
import sys
import tempfile

from Xlib import display

from desktop import Program, wait_for
from house import House


class Photographer:
    def __init__(self, programs, folder):
        self.folder = folder
        self.data = tempfile.TemporaryDirectory()
        self.house = House(programs, self.data.name)
        self.house.bring_in_samples()
        self.ui = Program(self.house.program("tarn"), "--config-dir", self.house.config)

    def take(self, name):
        geometry = display.Display().screen()
        size = f"{geometry.width_in_pixels}x{geometry.height_in_pixels}"
        file = os.path.join(self.folder, f"{name}-{size}.png")
        subprocess.run(["import", "-window", "root", "-colors", "256", "PNG8:" + file], check=True)
        print(file)

    def settle(self):
        """Wait until the display stands still."""
        last = None

        def still():
            nonlocal last
            now = subprocess.run(
                ["import", "-window", "root", "rgb:-"], capture_output=True, check=True
            ).stdout
            same, last = now == last, now
            return same

        wait_for(still, "a still display")

    def shoot(self, name):
        self.settle()
        self.take(name)

    def open_project(self, project):
        ui = self.ui
        ui.press("SELECT PROJECT")
        ui.click_on(ui.item("DIRECTORIES", "SAMPLES"))
        wait_for(lambda: project in ui.items("PROJECTS"), "the projects")
        ui.click_on(ui.item("PROJECTS", project))
        if project.startswith("MAPLE"):
            self.shoot("projects")
        ui.press("DONE")
        ui.see("label", "OPERATION MENU")

    def walk(self, unit, metric):
        ui = self.ui
        if metric:
            ui.click("check box", "Metric")
        self.shoot("menu-" + unit)
        ui.press("ENTER/EDIT DATA")
        ui.press("PREVIOUS ROOM")
        self.shoot("rooms-" + unit)
        ui.press("REPORT")
        self.shoot("report-" + unit)
        ui.press("CLOSE")
        ui.press("BACK")
        if metric:
            ui.click("check box", "Metric")
        ui.press("ESTIMATE")
        self.shoot("choices-" + unit)
        ui.press("OK")
        ui.choose("3")
        self.shoot("options-" + unit)
        ui.press("Continue")
        ui.see("push button", "REDRAW")
        self.shoot("estimate-" + unit)
        ui.press("IMPROVE")
        wait_for(lambda: any(each.startswith("No layout") for each in ui.labels()), "a bound")
        self.take("improve-" + unit)
        ui.end_improving()
        ui.press("ORDER")
        ui.see("label", "Compared.")
        self.shoot("order-" + unit)
        ui.press("BACK")
        ui.press("BACK")
        ui.press("BACKWARD")

    def run(self):
        self.ui.see("push button", "SELECT PROJECT")
        self.shoot("start")
        self.open_project("MAPLE STREET 9")
        self.walk("feet", metric=False)
        self.open_project("KANAALHUIS")
        self.walk("metric", metric=True)
        self.ui.press("EXIT")
        self.ui.wait_for_end()


if __name__ == "__main__":
    Photographer(sys.argv[1], sys.argv[2]).run()
