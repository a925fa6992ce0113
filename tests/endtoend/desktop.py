"""Driving the built program from outside: it is seen through the accessibility bus, and gets real
mouse and key events. Nothing waits for a fixed time; what does not happen within PATIENCE fails."""

import os
import subprocess
import time
from itertools import islice

import gi
from Xlib import X, display, protocol
from Xlib.ext import xtest

gi.require_version("Atspi", "2.0")
import pyatspi  # noqa: E402
from gi.repository import GLib  # noqa: E402

PATIENCE = 20  # seconds

KEYS = {
    "BackSpace": 0xFF08,
    "Tab": 0xFF09,
    "Return": 0xFF0D,
    "Escape": 0xFF1B,
    "space": 0x20,
    "Home": 0xFF50,
    "Up": 0xFF52,
    "Down": 0xFF54,
    "End": 0xFF57,
    "Delete": 0xFFFF,
    "Menu": 0xFF67,
    "F1": 0xFFBE,
    "F6": 0xFFC3,
    "Alt": 0xFFE9,
    "Control": 0xFFE3,
}


class NotFound(AssertionError):
    """The program does not show what a user would look for."""


def wait_for(condition, what, found_instead=lambda: ""):
    """Call `condition` until it answers something true, and answer that. When it never does, the
    error tells `what` was waited for, and what was found instead."""
    end = time.monotonic() + PATIENCE
    while time.monotonic() < end:
        while GLib.MainContext.default().iteration(False):
            pass  # takes in what the bus has told
        try:
            found = condition()
        except Exception:  # the bus loses objects that the program has just deleted
            found = None
        if found:
            return found
        time.sleep(0.03)
    raise NotFound(f"waited in vain for {what}{found_instead()}")


def states(accessible):
    return {pyatspi.stateToString(state) for state in accessible.getState().getStates()}


def walk(accessible):
    yield accessible
    for index in range(accessible.childCount):
        child = accessible.getChildAtIndex(index)
        if child is not None:
            yield from walk(child)


def walk_shown(accessible):
    """What can be seen below it. Every question to the bus takes its time: what does not show is not
    asked for what it holds."""
    for index in range(accessible.childCount):
        child = accessible.getChildAtIndex(index)
        if child is not None and child.getState().contains(pyatspi.STATE_SHOWING):
            yield child
            yield from walk_shown(child)


def text_of(accessible):
    text = accessible.queryText()
    return text.getText(0, text.characterCount)


def start_window_manager(case, name):
    """Start openbox for a test on that display; answers the display, to look at it."""
    manager = subprocess.Popen(
        ["openbox", "--sm-disable"],
        env=dict(os.environ, DISPLAY=name),
        stdout=subprocess.DEVNULL,
        stderr=subprocess.DEVNULL,
    )
    case.addCleanup(manager.wait)
    case.addCleanup(manager.terminate)
    server = display.Display(name)
    case.addCleanup(server.close)
    supporting = server.intern_atom("_NET_SUPPORTING_WM_CHECK")
    wait_for(
        lambda: server.screen().root.get_full_property(supporting, X.AnyPropertyType), "openbox"
    )
    return server


class Program:
    """The running program."""

    def __init__(self, path, *arguments, environment=None):
        pyatspi.Registry.getDesktop(0)  # a program that starts before the bus is not seen on it
        self.started = time.monotonic()
        self.menus = 0  # opened so far
        self.scale = float((environment or {}).get("QT_SCALE_FACTOR", 1))
        self.process = subprocess.Popen(
            [path, *arguments], env=dict(os.environ, **(environment or {}))
        )
        self.application = wait_for(self._find, "the program on the accessibility bus")

    def _find(self):
        desktop = pyatspi.Registry.getDesktop(0)
        for index in range(desktop.childCount):
            try:
                child = desktop.getChildAtIndex(index)
                if child is not None and child.get_process_id() == self.process.pid:
                    return child
            except GLib.Error:  # a program that has just ended
                continue
        return None

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.kill()
        self.process.wait()

    # --- looking ---

    def showing(self, *roles, name=None):
        """What the user sees of these roles (of any without) and that name, in tab order."""
        return (
            each
            for each in walk_shown(self.application)
            if (not roles or each.getRoleName() in roles) and (name is None or each.name == name)
        )

    def see(self, role, name, position=0):
        return wait_for(
            lambda: next(islice(self.showing(role, name=name), position, None), None),
            f"{role} {name!r}",
        )

    def wait_gone(self, role, name):
        wait_for(lambda: not self.is_there(role, name), f"{role} {name!r} to go")

    def is_there(self, role, name=None):
        return next(self.showing(role, name=name), None) is not None

    def is_enabled(self, role, name):
        return "enabled" in states(self.see(role, name))

    def is_checked(self, role, name):
        return "checked" in states(self.see(role, name))

    def labels(self):
        return [each.name for each in self.showing("label")]

    def field(self, name, position=0):
        """The text in a field."""
        return text_of(self.see("text", name, position))

    def items(self, name):
        """The entries of a list."""
        return [each.name for each in walk(self.see("list", name)) if each.getRoleName() == "list item"]

    def boxes(self):
        """The message, question and input boxes that stand; messages, which stand before the others,
        first."""
        return sorted(self.showing("alert", "dialog"), key=lambda each: each.getRoleName() != "alert")

    def box(self):
        return wait_for(lambda: (self.boxes() or [None])[0], "a message")

    def texts_of_box(self):
        """The texts in the box that stands, from the top down."""
        return [each.name for each in walk(self.box()) if each.getRoleName() == "label" and each.name]

    def message(self):
        """The text of the message or question that stands."""
        return self.texts_of_box()[0]

    def focused(self):
        """The name of what has the focus."""
        # The current entry of a list, a table or tabs counts as focused wherever the focus is.
        return next(
            (
                each.name
                for each in self.showing()
                if "focused" in states(each)
                and each.getRoleName() not in ("list item", "table cell", "page tab")
            ),
            None,
        )

    def drawn_text(self):
        """The lines written in the drawing, top to bottom; none while there is no drawing."""
        drawing = next(self.showing(name="Layout drawing"), None)
        return drawing.description.split("\n") if drawing else []

    # --- acting ---

    @staticmethod
    def area_of(accessible):
        """Where a control is once it stands still: what opens beside it may still move it."""
        areas = [None]

        def stands_still():
            area = accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
            corners = (area.x, area.y, area.width, area.height)
            if corners != areas[-1]:
                areas.append(corners)
                return None
            return area

        return wait_for(stands_still, "a control to stand still")

    def click_on(self, accessible, double=False, offset=None, button="b1"):
        area = self.area_of(accessible)
        x = area.x + (area.width // 2 if offset is None else offset)
        y = area.y + area.height // 2
        # The bus tells places as the program counts them, the display has pixels.
        pyatspi.Registry.generateMouseEvent(
            round(x * self.scale), round(y * self.scale), button + ("d" if double else "c")
        )

    def choose_in_menu_of(self, accessible, letter):
        """Open the menu of that with a right click, and choose by an underlined letter."""
        # Not where the last one was: two quick clicks would be a double click.
        self.menus += 1
        self.click_on(accessible, offset=20 + 20 * (self.menus % 2), button="b3")
        self.choose_in_open_menu(letter)

    def choose_in_open_menu(self, letter):
        wait_for(self._is_popup_open, "the menu")
        self.type(letter)
        wait_for(lambda: not self._is_popup_open(), "the menu to go")

    @staticmethod
    def _is_popup_open():
        # The bus does not list a menu that belongs to no menu bar.
        server = display.Display()
        try:
            return any(
                each.override_redirect and each.map_state == X.IsViewable
                for each in (
                    window.get_attributes() for window in server.screen().root.query_tree().children
                )
            )
        finally:
            server.close()

    def save_as(self, name):
        """Type a file's name into the box that asks for one, as the only text in it."""
        self.box()
        self.fill("File name:", name)
        self.key("Return")

    def click(self, role, name, position=0):
        button = self.see(role, name, position)
        wait_for(lambda: "enabled" in states(button), f"{name!r} to be enabled")
        # Option buttons and check boxes take clicks on their mark and text only.
        self.click_on(button, offset=12 if role in ("radio button", "check box") else None)

    def press(self, name):
        self.click("push button", name)

    def choose(self, name):
        self.click("radio button", name)
        wait_for(lambda: self.is_checked("radio button", name), f"{name!r} to be chosen")

    def item(self, list_name, name):
        for each in walk(self.see("list", list_name)):
            if each.getRoleName() == "list item" and each.name == name:
                return each
        raise NotFound(f"no {name!r} in {list_name!r}")

    def fill(self, name, text, position=0):
        """Replace what stands in a field, by mouse and keys."""
        field = self.see("text", name, position)
        self.click_on(field)
        wait_for(lambda: "focused" in states(field), f"the focus on {name!r}")
        # A window manager may hand on the click when keys have already come to a field that had the
        # focus before.
        wait_for(lambda: self.emptied(field), f"{name!r} to be empty")
        self.type(text)
        wait_for(
            lambda: text_of(field) == text,
            f"{text!r} in {name!r}",
            lambda: f": it has {text_of(field)!r}, the focus is on {self.focused()!r}",
        )

    def begin_project(self, typed):
        """Press NEW PROJECT and type a name."""
        self.press("NEW PROJECT")
        field = self.see("text", "PROJECT")
        wait_for(lambda: "focused" in states(field), "the focus on the name")
        self.type(typed)
        wait_for(
            lambda: text_of(field) == typed.upper(),
            f"{typed.upper()!r} as name",
            lambda: f": it is {text_of(field)!r}",
        )

    def emptied(self, field):
        """Whether it is, after another attempt."""
        left = text_of(field)
        if left:
            self.key("End")
            for _ in left:
                self.key("BackSpace")
        return not text_of(field)

    def key(self, name):
        pyatspi.Registry.generateKeyboardEvent(KEYS[name], None, pyatspi.KEY_SYM)

    def tab_to(self, name):
        """Move the focus there with the Tab key alone."""
        for _ in range(60):
            if self.focused() == name:
                return
            before = self.focused()
            self.key("Tab")
            wait_for(lambda: self.focused() != before, "the focus to move")
        raise NotFound(f"Tab does not come to {name!r}")

    def press_by_key(self, name):
        self.tab_to(name)
        self.key("Return")

    def press_with(self, modifier, *letters):
        """Press keys while one of KEYS is held, one right after the other."""
        server = display.Display()
        held = server.keysym_to_keycode(KEYS[modifier])
        for letter in letters:
            code = server.keysym_to_keycode(ord(letter))
            for what, key in (
                (X.KeyPress, held), (X.KeyPress, code), (X.KeyRelease, code), (X.KeyRelease, held)
            ):
                xtest.fake_input(server, what, key)
        server.sync()
        server.close()

    def press_with_alt(self, *letters):
        """Press buttons by their letters."""
        self.press_with("Alt", *letters)

    def type(self, text):
        for character in text:
            pyatspi.Registry.generateKeyboardEvent(ord(character), None, pyatspi.KEY_SYM)

    def answer(self, button):
        """Click a button of the box that stands, and wait until it is gone."""
        self.click_on(self.button_of_box(button))
        wait_for(lambda: self.process.poll() is not None or not self.boxes(), "the box to go")

    def go_on_from(self, message):
        """Close a message that a question comes after."""
        wait_for(lambda: self.message() == message, repr(message))
        self.click_on(self.button_of_box("OK"))
        wait_for(lambda: self.message() != message, "what comes after " + repr(message))

    def do(self, button):
        """Press a button of the box that stands through the bus, wherever it is displayed."""
        self.button_of_box(button).queryAction().doAction(0)

    def button_of_box(self, name):
        for each in walk(self.box()):
            if each.getRoleName() == "push button" and each.name == name:
                return each
        raise NotFound(f"no {name!r} in the box")

    def take_focus(self):
        """What a window manager does with a window that has just come up."""
        server = display.Display()
        wait_for(lambda: list(self._windows(server.screen().root)), "a window")
        for window in self._windows(server.screen().root):
            window.set_input_focus(X.RevertToParent, X.CurrentTime)
        server.close()

    def improve_button(self):
        """IMPROVE, whatever it offers."""

        def look():
            for each in self.showing("push button"):
                if each.name.startswith("IMPROVE") and "enabled" in states(each):
                    return each
            return None

        return wait_for(look, "IMPROVE in use")

    def close_by_frame(self):
        """What the window manager does when the window's cross is clicked."""
        server = display.Display()
        delete = server.intern_atom("WM_DELETE_WINDOW")
        protocols = server.intern_atom("WM_PROTOCOLS")
        for window in self._windows(server.screen().root):
            window.send_event(
                protocol.event.ClientMessage(
                    window=window, client_type=protocols, data=(32, [delete, X.CurrentTime, 0, 0, 0])
                )
            )
        server.close()

    def _windows(self, root):
        """The program's windows that stand on the display."""
        for window in root.query_tree().children:
            attributes = window.get_attributes()
            if attributes.map_state == X.IsViewable and window.get_wm_protocols():
                yield window

    def wait_for_end(self):
        """The exit status."""
        return self.process.wait(PATIENCE)
