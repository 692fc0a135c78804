# SPDX-FileCopyrightText: 2026 The Quillon authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Windows and controls as a screen reader meets them: found by role and accessible name, then used.

Runs as the user whose session it is. Nothing here sleeps for a fixed time: everything waits for what a
person would wait for, until a deadline.
"""
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

DEADLINE = 120.0  # only a hang takes that long, however busy the machine is
# A list with more rows than this is seen as a person sees it: by the rows that are in sight.
MANY_ROWS = 100
ROW_STEP = 8  # pixels; less than half a row
WINDOWS = (Atspi.Role.FRAME, Atspi.Role.WINDOW, Atspi.Role.DIALOG, Atspi.Role.ALERT)
ROLES = {
    "button": (Atspi.Role.PUSH_BUTTON, Atspi.Role.TOGGLE_BUTTON),
    "check box": (Atspi.Role.CHECK_BOX,),
    "combo box": (Atspi.Role.COMBO_BOX,),
    "entry": (Atspi.Role.TEXT, Atspi.Role.ENTRY),
    "label": (Atspi.Role.LABEL, Atspi.Role.STATIC),
    "list": (Atspi.Role.LIST,),
    "list item": (Atspi.Role.LIST_ITEM,),
    "menu item": (Atspi.Role.MENU_ITEM, Atspi.Role.CHECK_MENU_ITEM),
    "page tab": (Atspi.Role.PAGE_TAB,),
    "password": (Atspi.Role.PASSWORD_TEXT,),
    "radio button": (Atspi.Role.RADIO_BUTTON,),
    "window": WINDOWS,
}


class NotThere(AssertionError):
    """What was waited for did not come; the text says what, and what there was instead."""


def wait_until(condition, what, seconds=DEADLINE):
    """Returns the first true answer of `condition`. Controls that vanish while asked count as "no"."""
    end = time.monotonic() + seconds
    while True:
        try:
            answer = condition()
            if answer:
                return answer
        except GLib.Error:
            pass
        if time.monotonic() > end:
            raise NotThere(f"{what() if callable(what) else what} within {seconds:.0f} s")
        time.sleep(0.02)


def xdotool(*arguments):
    subprocess.run(["xdotool", *map(str, arguments)], check=True, stdin=subprocess.DEVNULL)


class Control:
    """One accessible object. Answers are asked anew each time, never remembered."""

    def __init__(self, accessible):
        self._accessible = accessible

    @property
    def _fresh(self):
        self._accessible.clear_cache()
        return self._accessible

    @property
    def name(self):
        return self._fresh.get_name() or ""

    @property
    def description(self):
        return self._fresh.get_description() or ""

    @property
    def role(self):
        return self._fresh.get_role()

    def _state(self, state):
        return self._fresh.get_state_set().contains(state)

    @property
    def enabled(self):
        return self._state(Atspi.StateType.ENABLED) and self._state(Atspi.StateType.SENSITIVE)

    @property
    def showing(self):
        return self._state(Atspi.StateType.SHOWING)

    @property
    def focused(self):
        return self._state(Atspi.StateType.FOCUSED)

    @property
    def checked(self):
        return self._state(Atspi.StateType.CHECKED)

    @property
    def text(self):
        """What is written in it; a label's name is its text."""
        accessible = self._fresh
        interface = accessible.get_text_iface()
        if interface is None:
            return accessible.get_name() or ""
        return Atspi.Text.get_text(interface, 0, Atspi.Text.get_character_count(interface))

    @property
    def extents(self):
        """x, y, width, height on the screen, in pixels."""
        box = self._fresh.get_component_iface().get_extents(Atspi.CoordType.SCREEN)
        return box.x, box.y, box.width, box.height

    @property
    def children(self):
        accessible = self._fresh
        count = accessible.get_child_count()
        if count > MANY_ROWS:
            return self._rows_in_sight()
        found = [accessible.get_child_at_index(index) for index in range(count)]
        return [Control(child) for child in found if child is not None]

    def _rows_in_sight(self):
        component = self._accessible.get_component_iface()
        x, y, width, height = self.extents
        rows = {}
        for place in range(y + ROW_STEP // 2, y + height, ROW_STEP):
            row = component.get_accessible_at_point(x + width // 2, place, Atspi.CoordType.SCREEN)
            if row is not None:
                rows.setdefault(row.get_index_in_parent(), Control(row))
        return [rows[index] for index in sorted(rows)]

    def everything_below(self):
        """Breadth first: what is nearer to the window comes before what is deep in it. What is in something
        that is not on the screen is not on the screen either, and left out."""
        row = [self]
        while row:
            below = []
            for control in row:
                try:
                    if control is self or control.showing:
                        below.extend(control.children)
                except GLib.Error:
                    pass  # it went away while we looked
            yield from below
            row = below

    def _matches(self, role, name):
        return self.role in ROLES[role] and (name is None or self.name == name) and self.showing

    def all(self, role, name=None):
        found = []
        for control in self.everything_below():
            try:
                if control._matches(role, name):
                    found.append(control)
            except GLib.Error:
                pass
        return found

    def has(self, role, name=None):
        return bool(self.all(role, name))

    def find(self, role, name=None, seconds=DEADLINE):
        return wait_until(lambda: self.all(role, name),
                          lambda: f"no {role} “{name}” came; there is {self.overview()}", seconds)[0]

    def labelled(self, caption, role):
        """A control whose own name is its value (a combo box) is found by the label in front of it."""
        def look():
            for control in self.all(role):
                for relation in control._fresh.get_relation_set():
                    if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
                        for index in range(relation.get_n_targets()):
                            if Control(relation.get_target(index)).name == caption:
                                return control
            return None
        return wait_until(look, lambda: f"no {role} labelled “{caption}” came; there is {self.overview()}")

    def overview(self):
        seen = []
        for control in self.everything_below():
            try:
                if control.showing and (control.name or control.role != Atspi.Role.FILLER):
                    seen.append(f"{control._fresh.get_role_name()} “{control.name}”")
            except GLib.Error:
                pass
        return ", ".join(seen) or "nothing"

    def press(self):
        """Presses it as assistive technology does, when it can be pressed."""
        wait_until(lambda: self.enabled, f"“{self.name}” was not enabled")
        accessible = self._fresh
        interface = accessible.get_action_iface()
        names = [Atspi.Action.get_action_name(interface, index)
                 for index in range(Atspi.Action.get_n_actions(interface))]
        for wanted in ("Press", "Toggle", "ShowMenu"):
            if wanted in names:
                Atspi.Action.do_action(interface, names.index(wanted))
                return
        raise NotThere(f"“{self.name}” cannot be pressed; it has {names}")

    def click(self):
        """Clicks into its middle with the pointer."""
        wait_until(lambda: self.showing and self.extents[2] > 0, f"“{self.name}” was not on the screen")
        x, y, width, height = self.extents
        xdotool("mousemove", x + width // 2, y + height // 2, "click", 1)

    def type(self, text):
        """Replaces what is written in it, with the keyboard."""
        self.click()
        wait_until(lambda: self.focused, f"“{self.name}” did not get the keyboard")
        xdotool("key", "--clearmodifiers", "ctrl+a")
        xdotool("type", "--clearmodifiers", text)

    def set_text(self, text):
        """Replaces what is written in it at once, as assistive technology does: any characters, as pasted."""
        Atspi.EditableText.set_text_contents(self._fresh.get_editable_text_iface(), text)

    def choose(self, item):
        """Opens a combo box and clicks the item with that text."""
        self.press()
        self.find("list item", item).click()
        wait_until(lambda: self.name == item, lambda: f"“{item}” was not chosen; “{self.name}” is")


def applications(name):
    desktop = Atspi.get_desktop(0)
    desktop.clear_cache()
    found = [desktop.get_child_at_index(index) for index in range(desktop.get_child_count())]
    return [Control(entry) for entry in found if entry is not None and entry.get_name() == name]


def window(application, title, seconds=DEADLINE):
    """The window with that title of the program of that name, when it is on the screen."""
    def look():
        for entry in applications(application):
            for control in entry.children:
                if control.name == title and control.showing:
                    return control
        return None
    return wait_until(look, f"the window “{title}” of {application} did not come", seconds)


def has_window(application, title):
    return any(control.name == title and control.showing
               for entry in applications(application) for control in entry.children)
