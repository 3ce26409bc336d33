# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The program as a person meets it: what is on the screen, by role and name, and a mouse and keys."""
import os
import pathlib
import signal
import subprocess

import gi
gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402  (the version has to be said first)
import pyatspi  # noqa: E402

from patience import wait_for  # noqa: E402

# A button that stays down is called a check box here and a toggle button there.
BUTTON = {pyatspi.ROLE_PUSH_BUTTON, pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_TOGGLE_BUTTON}
SWITCH = {pyatspi.ROLE_CHECK_BOX, pyatspi.ROLE_TOGGLE_BUTTON}
CHOICE = {pyatspi.ROLE_COMBO_BOX}
ENTRY = {pyatspi.ROLE_LIST_ITEM, pyatspi.ROLE_MENU_ITEM, pyatspi.ROLE_PUSH_BUTTON}
FIELD = {pyatspi.ROLE_TEXT, pyatspi.ROLE_PASSWORD_TEXT}
MENU_ENTRY = {pyatspi.ROLE_MENU_ITEM}
LABEL = {pyatspi.ROLE_LABEL, pyatspi.ROLE_STATIC}
RADIO = {pyatspi.ROLE_RADIO_BUTTON}
ROW = {pyatspi.ROLE_LIST_ITEM}
DRAWING = {pyatspi.ROLE_IMAGE}
SPINNER = {pyatspi.ROLE_SPIN_BUTTON}


class Screen:
    def __init__(self, program, pictures):
        self.program = pathlib.Path(program)
        self.pictures = pathlib.Path(pictures)
        self.application = None
        self.pid = None
        self.number = 0
        # The bus of the screen readers stands before the first program looks for it.
        wait_for(lambda: pyatspi.Registry.getDesktop(0), "the accessibility bus")

    # The process

    def start(self, output):
        """Starts the program; from its window on, it is the one that all else is about."""
        with open(output, "ab") as stream:
            subprocess.Popen([str(self.program)], stdin=subprocess.DEVNULL, stdout=stream,
                             stderr=stream, cwd=os.environ["HOME"], start_new_session=True)
        self.attach(None)

    def attach(self, previous):
        """Waits for a process of the program other than `previous` and looks at that one from now on."""
        def another():
            for application in self._applications():
                pid = application.get_process_id()
                if pid != previous and self._is_ours(pid) and application.childCount > 0:
                    return application, pid
            return None
        self.application, self.pid = wait_for(another, "the program's window")

    def restart(self, act):
        """Does what makes the program restart itself; a copy of it takes over, and the old one ends."""
        previous = self.pid
        act()
        self.attach(previous)
        wait_for(lambda: not self._is_ours(previous), "the end of the program that restarted")

    def close(self):
        """Closes the window as a person does, and waits for the process to end."""
        pid = self.pid
        if on_wayland():
            # A kiosk has no way to close its window.
            os.kill(pid, signal.SIGTERM)
        else:
            self.keys("alt+F4")
        wait_for(lambda: not self._is_ours(pid), "the end of the program")

    def end_all(self):
        """Ends what still runs of the program in this session, each process by its id."""
        for entry in pathlib.Path("/proc").iterdir():
            if entry.name.isdigit() and self._is_ours(int(entry.name)) and self._is_of_this_session(entry):
                os.kill(int(entry.name), signal.SIGTERM)

    def _is_ours(self, pid):
        try:
            return pathlib.Path(f"/proc/{pid}/exe").resolve(strict=True) == self.program
        except (FileNotFoundError, PermissionError, ProcessLookupError):
            return False

    @staticmethod
    def _is_of_this_session(entry):
        here = f"DBUS_SESSION_BUS_ADDRESS={os.environ['DBUS_SESSION_BUS_ADDRESS']}".encode()
        return here in (entry / "environ").read_bytes().split(b"\0")

    @staticmethod
    def _applications():
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.clear_cache()
        for index in range(desktop.childCount):
            application = desktop.getChildAtIndex(index)
            if application is not None:
                application.set_cache_mask(Atspi.Cache.NONE)
                yield application

    # What is there

    def walk(self, root=None):
        """Everything that shows, parents before children, in the order of the screen's own tree."""
        for child in self._children(root or self.application):
            states = child.get_state_set()
            if states.contains(pyatspi.STATE_VISIBLE):
                if states.contains(pyatspi.STATE_SHOWING):
                    yield child
                yield from self.walk(child)

    @staticmethod
    def _children(parent):
        for index in range(parent.get_child_count()):
            child = parent.get_child_at_index(index)
            if child is not None:
                yield child

    def all(self, roles, name, within=None):
        """What shows with one of the roles and that name; "…" at a name's end stands for any rest."""
        found, label = [], ""
        try:
            for each in self.walk(within):
                role = each.get_role()
                if role in LABEL:
                    label = each.get_name()
                if role not in roles:
                    continue
                # Qt keeps the name of a password's field to itself: the label before it tells.
                nameless = role == pyatspi.ROLE_PASSWORD_TEXT and not each.get_name()
                if matches(label if nameless else each.get_name(), name):
                    found.append(each)
        except GLib.Error:
            # The tree changed while it was read: what was asked for is not there yet.
            return []
        return found

    def wait(self, roles, name, within=None, index=0, enabled=False):
        """The match number `index`, once there is one, and once it can be used where that is asked."""
        def found():
            answer = self.all(roles, name, within)
            if len(answer) <= max(index, 0):
                return None
            usable = answer[index].get_state_set().contains(pyatspi.STATE_ENABLED)
            return answer[index] if usable or not enabled else None
        return wait_for(found, f"{name!r}, number {index + 1}{', enabled' if enabled else ''}")

    def wait_gone(self, roles, name, within=None):
        wait_for(lambda: not self.all(roles, name, within), f"the end of {name!r}")

    def row(self, name, index=0):
        """A row of a list, to look for things within."""
        return self.wait(ROW, name, index=index)

    def says(self, text, within=None):
        """Waits for a text on the screen."""
        self.wait(LABEL, text, within)

    # What a person does

    def press(self, name, within=None, index=0, roles=BUTTON):
        """Presses what can be pressed."""
        self.click(self.wait(roles, name, within, index, enabled=True))

    def click(self, thing, times=1):
        """Clicks into the middle of something with the mouse, once it stands still."""
        places = []

        def resting_place():
            box = thing.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
            places.append((box.x, box.y, box.width, box.height))
            # A page that slides in takes no clicks before it has arrived.
            return places[-1] if len(places) > 3 and len(set(places[-4:])) == 1 else None
        x, y, width, height = wait_for(resting_place, f"{thing.get_name()!r} to stand still")
        self._xdotool("mousemove", str(x + width // 2), str(y + height // 2),
                      "click", "--repeat", str(times), "--delay", "60", "1")

    def type_into(self, label, text, within=None, index=0):
        """Replaces what stands in a field, key by key; waits until the field shows it."""
        field = self.wait(FIELD, label, within, index, enabled=True)
        self._focus(field)
        if content(field):
            self.keys("ctrl+a", "BackSpace")
            wait_for(lambda: content(field) == "", f"{label!r} to be empty")
        if text.isascii():
            self._xdotool("type", "--delay", "4", "--", text)
        else:
            # What no key has comes from the clipboard.
            subprocess.run(["xclip", "-selection", "clipboard"], input=text.encode(), check=True,
                           timeout=60, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            self.keys("ctrl+v")
        secret = field.get_role() == pyatspi.ROLE_PASSWORD_TEXT
        wait_for(lambda: len(content(field)) == len(text) if secret else content(field) == text,
                 f"{label!r} to hold {text!r}")

    def _focus(self, field):
        def focused():
            if field.get_state_set().contains(pyatspi.STATE_FOCUSED):
                return True
            self.click(field)
            return False
        wait_for(focused, f"{field.get_name()!r} to take the focus")

    def write(self, text):
        """Types into whatever the keys go to."""
        self._xdotool("type", "--delay", "12", "--", text)

    def keys(self, *names):
        self._xdotool("key", "--clearmodifiers", "--delay", "4", *names)

    def choose(self, label, entry, within=None):
        """Opens a choice and takes one of its entries."""
        self.press(label, within, roles=CHOICE)
        self.click(wait_for(lambda: self.all(ENTRY, entry)[-1:], f"the entry {entry!r}")[0])
        wait_for(lambda: not self.all(ENTRY - BUTTON, entry), f"the choice {label!r} to close")

    def switch(self, label, on=True, within=None, index=0):
        """Brings a switch into a position."""
        control = self.wait(SWITCH, label, within, index, enabled=True)

        def is_on():
            return control.get_state_set().contains(pyatspi.STATE_CHECKED)
        if is_on() != on:
            self.click(control)
        wait_for(lambda: is_on() == on, f"{label!r} to be {'on' if on else 'off'}")

    def spin(self, label, value):
        """Turns a number up or down with the arrow keys."""
        spinner = self.wait(SPINNER, label, enabled=True)
        self._focus(spinner)

        def turned():
            missing = value - round(spinner.queryValue().currentValue)
            if missing:
                self.keys("Up" if missing > 0 else "Down")
            return not missing
        wait_for(turned, f"{label!r} to be {value}")

    def drag(self, thing, x, y):
        """Draws something with the mouse until its corner lies at a place of the screen."""
        left, top, width, height = self.box(thing)
        pointer = [left + width // 2, top + height // 2]
        self.hold(*pointer)
        # What makes it a drag moves nothing yet.
        pointer[0] += 12
        self.move(*pointer)

        def arrived():
            here = self.box(thing)
            pointer[0] += x - here[0]
            pointer[1] += y - here[1]
            self.move(*pointer)
            return here[:2] == (x, y)
        wait_for(arrived, f"{thing.get_name()!r} to lie at {x}, {y}")
        self.let_go()

    def click_right(self, thing):
        left, top, width, height = self.box(thing)
        self._xdotool("mousemove", str(left + width // 2), str(top + height // 2), "click", "3")

    def hold(self, x, y):
        self._xdotool("mousemove", str(x), str(y), "mousedown", "1")

    def move(self, x, y):
        self._xdotool("mousemove", str(x), str(y))

    def let_go(self):
        self._xdotool("mouseup", "1")

    @staticmethod
    def box(thing):
        """Left, top, width and height on the screen."""
        box = thing.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return box.x, box.y, box.width, box.height

    def texts(self, within=None):
        """The labels that show, in order."""
        return [each.get_name() for each in self.all(LABEL, "…", within)]

    @staticmethod
    def _xdotool(*arguments):
        subprocess.run(["xdotool", *arguments], check=True, timeout=60, stdout=subprocess.DEVNULL)

    # Pictures

    def picture(self, name):
        """Keeps a picture of the screen, once it has come to rest."""
        self.number += 1
        path = self.pictures / f"{self.number:02}-{name}.png"
        wait_for(lambda: self._two_alike(path), "the screen to come to rest")

    def rest(self):
        """Waits until nothing moves any more: a page that comes in takes no clicks before that."""
        path = self.pictures / "moving.png"
        wait_for(lambda: self._two_alike(path), "the screen to come to rest")
        path.unlink()

    def _two_alike(self, path):
        self._shoot(path)
        first = path.read_bytes()
        self._shoot(path)
        return path.read_bytes() == first

    def _shoot(self, path):
        subprocess.run(["import", "-silent", "-window", "root", "-define",
                        "png:exclude-chunks=date,time,tEXt", str(path)], check=True, timeout=60)

    def report_failure(self):
        """A last picture, and the whole tree in words beside it."""
        self._shoot(self.pictures / "failure.png")
        lines = []

        def add(node, depth):
            for child in self._children(node):
                states = child.get_state_set()
                if depth < 2 or states.contains(pyatspi.STATE_VISIBLE):
                    words = [child.getRoleName(), repr(child.get_name())]
                    words += [] if states.contains(pyatspi.STATE_SHOWING) else ["(not showing)"]
                    words += [] if states.contains(pyatspi.STATE_ENABLED) else ["(disabled)"]
                    lines.append("  " * depth + " ".join(words))
                    add(child, depth + 1)
        try:
            if self.application is not None:
                add(self.application, 0)
        except GLib.Error as error:
            lines.append(f"(the tree ended: {error.message})")
        lines += ["", "The windows of the display:", subprocess.run(
            ["xwininfo", "-root", "-tree"], capture_output=True, text=True, timeout=20, check=False).stdout]
        (self.pictures / "failure.txt").write_text("\n".join(lines) + "\n", encoding="utf-8")


def on_wayland():
    return os.environ["QT_QPA_PLATFORM"] == "wayland"


def matches(found, wanted):
    return found.startswith(wanted[:-1]) if wanted.endswith("…") else found == wanted


def content(field):
    text = field.queryText()
    return text.getText(0, text.characterCount)
