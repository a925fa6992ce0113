"""Take pictures of every screen of the real program and of the states that it can be in, in feet
and inches and in metric.

screenshots.py PROGRAMS FOLDER [light|dark [SCALE [POINTS]]]    (run by run.py, which makes the display)

SCALE is that of a display of high density, POINTS the size of the system's text.
"""

import os
import sys
import tempfile
import time

from desktop import Program, wait_for
from framebuffer import Framebuffer, png
from house import SAMPLES, House


COLOURS = {
    "light": {"Background": "239,240,241", "Foreground": "35,38,41"},
    "dark": {"Background": "35,38,41", "Foreground": "239,240,241"},
}

# Three strips that fit beside each other, and are not laid so at first.
STRIPS = "width,length,covering,base,room,remark\n" + 3 * "48,100,C1,,,\n"

# One room, whose roll is wider than it is long.
LANDING = "width,length,covering,base,room,remark\n100,80,C1,,1,landing\n40,60,C1,,2,\n"

STILL = 3  # looks at the display that are the same
BETWEEN_LOOKS = 0.04  # seconds
FIGURES = 4  # changes of the display until an improving search shows figures


def desktop_of(folder, look, points):
    """The settings of a desktop of those colours and that size of text, as the toolkit reads them.
    Nothing blinks there."""
    os.makedirs(folder)
    with open(os.path.join(folder, "kdeglobals"), "w", encoding="utf-8") as settings:
        settings.write(f"[General]\nfont=DejaVu Sans,{points},-1,5,50,0,0,0,0,0\n")
        settings.write("[KDE]\nCursorBlinkRate=0\n")
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
        self.display = Framebuffer.of_display()
        self.data = tempfile.TemporaryDirectory()
        self.house = House(programs, self.data.name)
        self.house.bring_in_samples()
        for project, rooms in (("STRIPS", STRIPS), ("LANDING", LANDING)):
            file = os.path.join(self.data.name, project + ".csv")
            with open(file, "w", encoding="utf-8") as csv:
                csv.write(rooms)
            self.house.bring_in(project, file)
        self.house.bring_in("MAPLE STREET 11", os.path.join(SAMPLES, "maple-street-9.csv"))
        self.environment = desktop_of(os.path.join(self.data.name, "desktop"), look, points)
        self.environment["QT_SCALE_FACTOR"] = scale
        self.ui = self.start("--config-dir", self.house.config)

    def start(self, *arguments):
        return Program(self.house.program("tarn"), *arguments, environment=self.environment)

    def shoot(self, name):
        """Take a picture once the display stands still."""
        looks = [self.display.pixels()]

        def still():
            time.sleep(BETWEEN_LOOKS)
            now = self.display.pixels()
            if now != looks[-1]:
                looks.clear()
            looks.append(now)
            return len(looks) == STILL

        wait_for(still, "a still display")
        self.take(name)

    def take(self, name):
        """Take a picture of the display as it is."""
        size = f"{self.display.width}x{self.display.height}"
        file = os.path.join(self.folder, f"{name}-{size}{self.mark}.png")
        with open(file, "wb") as picture:
            picture.write(png(self.display, self.display.pixels()))
        print(file, flush=True)

    def has(self, caption):
        return self.ui.is_there("push button", caption)

    def show_part(self, caption):
        """Show a part of the order's screen, where they stand behind each other."""
        tabs = list(self.ui.showing("page tab", name=caption))
        if tabs:
            self.ui.click_on(tabs[0])

    def open_project(self, project):
        ui = self.ui
        ui.press("SELECT PROJECT")
        ui.click_on(ui.item("DIRECTORIES", "SAMPLES"))
        wait_for(lambda: project in ui.items("PROJECTS"), "the projects")
        ui.click_on(ui.item("PROJECTS", project))
        wait_for(lambda: ui.field("PROJECT") == project, "the project in the box")
        if project == "LANDING":
            self.shoot("projects")
        ui.press("DONE")
        ui.see("label", "OPERATION MENU")

    def walk(self, unit, metric):
        """Go through all screens of a project."""
        ui = self.ui
        self.open_project("KANAALHUIS" if metric else "MAPLE STREET 9")
        if metric:
            self.shoot("menu-other-units")
            ui.click("check box", "Metric")
        self.shoot("menu-" + unit)
        ui.press("ENTER/EDIT DATA")
        self.shoot("rooms-new-" + unit)
        ui.press("PREVIOUS ROOM")
        self.shoot("rooms-" + unit)
        if self.has("SHOW LIST"):
            ui.press("SHOW LIST")
            self.shoot("rooms-list-" + unit)
            ui.press("SHOW FORM")
        ui.press("REPORT")
        self.shoot("report-" + unit)
        ui.press("CLOSE")
        ui.press("ESTIMATE")
        self.estimate(unit, metric)
        self.order(unit, metric)
        ui.press("BACK")
        ui.see("push button", "REDRAW")
        ui.press("BACK")
        ui.see("push button", "NEXT ROOM")
        self.shoot("rooms-back-" + unit)
        ui.press("BACK")
        ui.press("BACKWARD")

    def estimate(self, unit, metric):
        ui = self.ui
        self.shoot("choices-" + unit)
        ui.choose("CARPET WIDTH OTHER")
        ui.click("check box", "MATCH PATTERN")
        self.shoot("choices-other-" + unit)
        ui.click("check box", "MATCH PATTERN")
        ui.choose("CARPET WIDTH 366 CMS" if metric else "CARPET WIDTH 12 FT.")
        ui.press("OK")
        ui.choose("3" if metric else "2")  # whose shortest layout takes a while to be proven
        self.shoot("options-" + unit)
        ui.press("Continue")
        ui.see("push button", "REDRAW")
        wait_for(ui.drawn_text, "the drawing")
        self.shoot("estimate-" + unit)
        if self.has("ROLL"):
            ui.press("ROLL")
            self.mark_a_piece()
            self.shoot("estimate-roll-" + unit)
            ui.press("DRAWING")
        else:
            self.mark_a_piece()
            self.shoot("estimate-marked-" + unit)
        self.improve("improve-" + unit)

    def improve(self, name):
        """An improving search. While it runs the bus answers slowly, and nothing is asked of it."""
        ui = self.ui
        if ui.improve_button().name != "IMPROVE":
            ui.click_on(ui.improve_button())  # takes what was found quietly
            wait_for(lambda: ui.improve_button().name == "IMPROVE", "the offer to be taken")
            ui.see("push button", "UNDO")
        looks = [self.display.pixels()]
        ui.click_on(ui.improve_button())

        def searched():
            now = self.display.pixels()
            if now != looks[-1]:
                looks.append(now)
            return len(looks) > FIGURES

        wait_for(searched, "the figures of a search")
        self.take(name)
        ui.key("Escape")
        wait_for(lambda: ui.boxes() or not self.has("STOP"), "the end of the search")
        if ui.boxes():
            ui.answer("OK")

    def mark_a_piece(self):
        """Go to a piece of the whole roll by a key."""
        (view,) = self.ui.showing(name="Whole roll")
        area = self.ui.area_of(view)
        self.ui.click_on(view, offset=area.width // 2)
        self.ui.key("Home")
        self.ui.key("Down")

    def order(self, unit, metric):
        ui = self.ui
        ui.press("ORDER")
        ui.see("label", "Compared.")
        self.shoot("order-" + unit)
        self.show_part("ROLL")
        if ui.is_there("page tab", "ROLL"):
            self.shoot("order-roll-" + unit)
        self.mark_a_piece()
        self.shoot("order-marked-" + unit)
        self.show_part("CHOICES")
        if ui.is_there("page tab", "CHOICES"):
            self.shoot("order-choices-" + unit)
        # A repeat that drops of the narrowest roll cannot match by.
        ui.fill("PATTERN ACROSS", "300cm" if metric else "10ft")
        ui.fill("STEP", "9,5")
        ui.key("Tab")
        wait_for(lambda: any("9,5" in each for each in ui.labels()), "a refused step")
        self.shoot("order-choices-refused-" + unit)
        ui.fill("STEP", "5cm" if metric else "3in")
        ui.press("COMPARE")
        ui.see("label", "Compared.")
        self.show_part("COMPARISON")
        ui.tab_to("Comparison of rolls and lays")
        for _ in range(8):  # to the first row, which is refused
            ui.key("Up")
        wait_for(lambda: any("cannot match" in each for each in ui.labels()), "why it is refused")
        self.shoot("order-refused-" + unit)

    def compare_long(self):
        """A comparison that goes on until it is stopped."""
        ui = self.ui
        self.open_project("MAPLE STREET 11")
        for button in ("ESTIMATE", "CANCEL", "ORDER"):
            ui.press(button)
        ui.see("label", "Compared.")
        self.show_part("CHOICES")
        for name, text in (("TRIM ALONG", "3in"), ("SECONDS", "600")):
            ui.fill(name, text)
        ui.press_with_alt("p")
        ui.type("3")  # parts: of so many layouts the shortest is not proven
        ui.press("COMPARE")
        ui.see("label", "Comparing. STOP keeps the best so far.")
        wait_for(lambda: any(each.startswith("Best: ") for each in ui.labels()), "a best row")
        self.take("order-comparing")
        ui.press("STOP")
        ui.see("label", "Stopped: the best so far.")
        self.shoot("order-stopped")
        ui.press("BACK")
        ui.see("push button", "REDRAW")
        ui.press("BACK")
        ui.press("BACKWARD")

    def offer_shorter(self):
        """An estimate with a shorter layout that was found quietly."""
        ui = self.ui
        self.open_project("STRIPS")
        ui.press("ESTIMATE")
        ui.press("OK")
        ui.choose("1")
        ui.press("Continue")
        wait_for(lambda: ui.improve_button().name != "IMPROVE", "a shorter layout")
        self.shoot("estimate-offer")
        self.ui.press("PASTE CUTS")
        self.shoot("estimate-pasting")
        ui.key("Escape")
        ui.press("BACK")
        ui.press("BACKWARD")

    def show_short_roll(self):
        """A roll that is wider than long: it stands where a long one lies, or the other way round."""
        ui = self.ui
        self.open_project("LANDING")
        ui.press("ESTIMATE")
        ui.press("OK")
        ui.choose("1")
        ui.press("Continue")
        wait_for(ui.drawn_text, "the drawing")
        if self.has("ROLL"):
            ui.press("ROLL")
        self.shoot("estimate-roll-short")
        ui.press("PRINT")
        ui.box()
        self.shoot("box-printer")
        ui.answer("OK")
        if self.has("DRAWING"):
            ui.press("DRAWING")
        ui.press("BACK")
        ui.press("BACKWARD")

    def show_boxes_of_rooms(self):
        """The boxes about a room, and the line under its sizes."""
        ui = self.ui
        self.open_project("MAPLE STREET 9")
        ui.press("ENTER/EDIT DATA")
        ui.fill("ROOM   WIDTH", "3,45")
        self.shoot("rooms-note")
        ui.press("PREVIOUS ROOM")
        ui.box()
        self.shoot("box-size")
        ui.answer("OK")
        ui.fill("ROOM   WIDTH", "")
        ui.press("PREVIOUS ROOM")
        ui.see("label", "20")
        if self.has("SHOW LIST"):
            ui.press("SHOW LIST")
        else:
            ui.key("F6")
        wait_for(lambda: ui.focused() == "ROOMS", "the focus in the list")
        ui.key("Up")
        ui.key("Up")
        self.shoot("rooms-list-keys")
        ui.key("Delete")
        ui.box()
        self.shoot("box-delete")
        ui.answer("No")
        if self.has("SHOW FORM"):
            ui.press("SHOW FORM")
        ui.press("SAVE")
        ui.box()
        self.shoot("box-saved")
        ui.answer("OK")
        ui.press("BACK")
        ui.press("BACKWARD")

    def leave_unsaved(self):
        """A menu of rooms that were typed and not saved, then one that offers them."""
        ui = self.ui
        self.open_project("KANAALHUIS")
        ui.press("ENTER/EDIT DATA")
        ui.press("PREVIOUS ROOM")
        ui.fill("ROOM   WIDTH", "4")
        ui.press("BACK")
        ui.see("label", "NOT SAVED")
        self.shoot("menu-not-saved")
        ui.press("BACKWARD")
        self.open_project("KANAALHUIS")
        wait_for(
            lambda: any(each.name.startswith("TAKE BACK") for each in ui.showing("push button")),
            "the offer of what was typed",
        )
        self.shoot("menu-take-back")
        ui.press("BACKWARD")

    def show_project_boxes(self):
        ui = self.ui
        ui.press("SELECT PROJECT")
        ui.press("NEW DIRECTORY")
        ui.box()
        self.shoot("box-directory")
        ui.answer("Cancel")
        ui.begin_project("OAK")
        self.shoot("projects-new")
        ui.press("EXIT")

    def open_guide(self):
        self.ui.take_focus()
        self.ui.key("F1")
        self.ui.see("push button", "FIND NEXT")
        self.shoot("guide")
        self.ui.key("Escape")
        self.ui.wait_gone("push button", "FIND NEXT")
        self.ui.take_focus()

    def start_first(self):
        """What a user without any configuration sees."""
        program = self.start("--config-dir", os.path.join(self.data.name, "empty"))
        wait_for(lambda: program.message() == "Couldn't find TarnWin.ini", "the message")
        self.shoot("first-start-message")
        program.go_on_from("Couldn't find TarnWin.ini")
        self.shoot("first-start")
        program.answer("No")
        program.wait_for_end()

    def run(self):
        self.ui.see("push button", "SELECT PROJECT")
        self.shoot("start")
        self.open_guide()
        self.show_project_boxes()
        self.walk("feet", metric=False)
        self.walk("metric", metric=True)
        self.compare_long()
        self.offer_shorter()
        self.show_short_roll()
        self.show_boxes_of_rooms()
        self.leave_unsaved()
        self.ui.press("EXIT")
        self.ui.wait_for_end()
        self.start_first()


if __name__ == "__main__":
    photographer = Photographer(*sys.argv[1:])
    try:
        photographer.run()
    except Exception:
        photographer.take("failure")  # what stood there then
        raise
