"""Take a picture of every screen of the real program, in feet and inches and in metric.

screenshots.py PROGRAMS FOLDER [light|dark [SCALE [POINTS]]]    (run by run.py, which makes the display)

SCALE is that of a display of high density, POINTS the size of the system's text.
"""

import os
import subprocess
import sys
import tempfile

from Xlib import display

from desktop import Program, wait_for
from house import House


COLOURS = {
    "light": {"Background": "239,240,241", "Foreground": "35,38,41"},
    "dark": {"Background": "35,38,41", "Foreground": "239,240,241"},
}


def desktop_of(folder, look, points):
    """The settings of a desktop of those colours and that size of text, as the toolkit reads them."""
    os.makedirs(folder)
    with open(os.path.join(folder, "kdeglobals"), "w", encoding="utf-8") as settings:
        settings.write(f"[General]\nfont=DejaVu Sans,{points},-1,5,50,0,0,0,0,0\n")
        for group in ("Window", "View", "Button"):
            settings.write(f"[Colors:{group}]\n")
            for name, colour in COLOURS[look].items():
                settings.write(f"{name}Normal={colour}\n")
    return {"XDG_CURRENT_DESKTOP": "KDE", "KDE_SESSION_VERSION": "5", "XDG_CONFIG_HOME": folder}


class Photographer:
    def __init__(self, programs, folder, look="light", scale="1", points="10"):
        self.folder = folder
        self.mark = "" if look == "light" else "-" + look
        if points != "10":
            self.mark += f"-{points}pt"
        self.data = tempfile.TemporaryDirectory()
        self.house = House(programs, self.data.name)
        self.house.bring_in_samples()
        self.environment = desktop_of(os.path.join(self.data.name, "desktop"), look, points)
        self.environment["QT_SCALE_FACTOR"] = scale
        self.ui = self.start("--config-dir", self.house.config)

    def start(self, *arguments, **environment):
        return Program(
            self.house.program("tarn"),
            *arguments,
            environment={**self.environment, **environment},
        )

    def take(self, name):
        geometry = display.Display().screen()
        size = f"{geometry.width_in_pixels}x{geometry.height_in_pixels}"
        file = os.path.join(self.folder, f"{name}-{size}{self.mark}.png")
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
        self.shoot("rooms-new-" + unit)
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
        ui.choose("CARPET WIDTH OTHER")
        ui.click("check box", "MATCH PATTERN")
        self.shoot("choices-other-" + unit)
        ui.click("check box", "MATCH PATTERN")
        ui.choose("CARPET WIDTH 366 CMS" if metric else "CARPET WIDTH 12 FT.")
        ui.press("OK")
        ui.choose("3")
        self.shoot("options-" + unit)
        ui.press("Continue")
        ui.see("push button", "REDRAW")
        self.shoot("estimate-" + unit)
        ui.start_improving()
        wait_for(lambda: any(each.startswith("No layout") for each in ui.labels()), "a bound")
        self.take("improve-" + unit)
        ui.end_improving()
        ui.press("ORDER")
        ui.see("label", "Compared.")
        self.shoot("order-" + unit)
        ui.press("BACK")
        ui.press("BACK")
        ui.press("BACKWARD")

    def leave_unsaved(self):
        """A menu of rooms that were typed and not saved, then one that offers them."""
        ui = self.ui
        self.open_project("KANAALHUIS")
        self.shoot("menu-other-units")
        ui.press("ENTER/EDIT DATA")
        ui.fill("ROOM WIDTH", "3,45")
        self.shoot("rooms-note")
        ui.press("PREVIOUS ROOM")
        ui.fill("ROOM WIDTH", "4")
        ui.press("BACK")
        self.shoot("menu-not-saved")
        ui.press("BACKWARD")
        self.open_project("KANAALHUIS")
        self.shoot("menu-take-back")
        ui.press("BACKWARD")

    def open_guide(self):
        self.ui.take_focus()
        self.ui.key("F1")
        self.ui.see("push button", "FIND NEXT")
        self.shoot("guide")
        self.ui.key("Escape")
        self.ui.wait_gone("push button", "FIND NEXT")

    def start_first(self):
        """What a user without any configuration sees."""
        empty = os.path.join(self.data.name, "empty")
        program = self.start("--config-dir", empty)
        program.go_on_from("Couldn't find TarnWin.ini")
        self.shoot("first-start")
        program.answer("No")
        program.wait_for_end()

    def run(self):
        self.ui.see("push button", "SELECT PROJECT")
        self.shoot("start")
        self.open_guide()
        self.open_project("MAPLE STREET 9")
        self.walk("feet", metric=False)
        self.open_project("KANAALHUIS")
        self.walk("metric", metric=True)
        self.leave_unsaved()
        self.ui.press("EXIT")
        self.ui.wait_for_end()
        self.start_first()


if __name__ == "__main__":
    Photographer(*sys.argv[1:]).run()
