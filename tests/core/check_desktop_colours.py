#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""Which colours the program takes on desktops of every kind, each on a session bus of its own.

    check_desktop_colours.py CORE_TESTS

The desktop is a stand-in for its settings portal. How long the program waits for it is measured at its
best of several tries, since other work may fill the machine.
"""
import os
import pathlib
import subprocess
import sys
import tempfile

from gi.repository import Gio, GLib

BUS = """<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig><type>session</type><listen>unix:dir={folder}</listen>
<policy context="default"><allow send_destination="*" eavesdrop="true"/><allow eavesdrop="true"/>
<allow own="*"/></policy></busconfig>
"""
PORTAL = Gio.DBusNodeInfo.new_for_xml("""<node><interface name="org.freedesktop.portal.Settings">
<method name="ReadAll"><arg type="as" direction="in"/><arg type="a{sa{sv}}" direction="out"/></method>
<method name="Read"><arg type="s" direction="in"/><arg type="s" direction="in"/>
<arg type="v" direction="out"/></method></interface></node>""").interfaces[0]
TRIES = 12
LONGEST_WAIT = 100  # ms


class Desktop:
    """A session bus with a portal that answers after a while, or with none."""

    def __init__(self, settings=None, delay=0):
        self.settings, self.delay = settings, delay
        self.folder = tempfile.TemporaryDirectory(prefix="zelvan-bus-", dir="/tmp")
        config = pathlib.Path(self.folder.name, "bus.conf")
        config.write_text(BUS.format(folder=self.folder.name), encoding="utf-8")
        self.daemon = subprocess.Popen(["dbus-daemon", f"--config-file={config}", "--nofork", "--print-address"],
                                       stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.address = self.daemon.stdout.readline().strip()
        self.loop = GLib.MainLoop()

    def __enter__(self):
        if self.settings is not None:
            flags = Gio.DBusConnectionFlags
            self.bus = Gio.DBusConnection.new_for_address_sync(
                self.address, flags.AUTHENTICATION_CLIENT | flags.MESSAGE_BUS_CONNECTION, None, None)
            self.bus.register_object("/org/freedesktop/portal/desktop", PORTAL, self._asked, None, None)
            self.bus.call_sync("org.freedesktop.DBus", "/org/freedesktop/DBus", "org.freedesktop.DBus", "RequestName",
                               GLib.Variant("(su)", ("org.freedesktop.portal.Desktop", 0)), None,
                               Gio.DBusCallFlags.NONE, -1, None)
        return self

    def __exit__(self, *_):
        self.daemon.terminate()
        self.daemon.wait()
        self.folder.cleanup()

    def _asked(self, _bus, _sender, _path, _interface, method, _arguments, invocation):
        def answer():
            if method == "ReadAll":
                invocation.return_value(GLib.Variant("(a{sa{sv}})", (self.settings,)))
            else:
                invocation.return_dbus_error("org.freedesktop.portal.Error.NotFound", "no such setting")
            return GLib.SOURCE_REMOVE
        if self.delay:
            GLib.timeout_add(self.delay, answer)
        else:
            answer()

    def tells(self, program):
        """Dark or light as the program takes it, and the milliseconds it took to know."""
        launcher = Gio.SubprocessLauncher.new(Gio.SubprocessFlags.STDOUT_PIPE)
        launcher.setenv("DBUS_SESSION_BUS_ADDRESS", self.address, True)
        launcher.setenv("QT_QPA_PLATFORM", "offscreen", True)
        launcher.setenv("XDG_RUNTIME_DIR", self.folder.name, True)
        said = []

        def ended(process, result):
            said.append(process.communicate_utf8_finish(result)[1])
            self.loop.quit()
        launcher.spawnv([program, "child:tellDarkMode"]).communicate_utf8_async(None, None, ended)
        self.loop.run()
        mode, milliseconds = said[0].split()[-2:]
        return mode, int(milliseconds)


def desktop(scheme=None, theme=None):
    settings = {}
    if scheme is not None:
        settings["org.freedesktop.appearance"] = {"color-scheme": GLib.Variant("u", scheme)}
    if theme is not None:
        settings["org.gnome.desktop.interface"] = {"gtk-theme": GLib.Variant("s", theme)}
    return settings


COLOURS = (
    ("asks for dark", desktop(1), "dark"),
    ("asks for light", desktop(2), "light"),
    ("has no preference", desktop(0), "light"),
    ("has a dark theme", desktop(0, "Adwaita-dark"), "dark"),
    ("has a dark theme and no switch", desktop(theme="Mint-Y-Dark-Aqua"), "dark"),
    ("has a light theme", desktop(0, "Adwaita"), "light"),
    ("asks for light over a dark theme", desktop(2, "Adwaita-dark"), "light"),
    ("says nothing", desktop(), "light"),
)


def faults(program):
    for name, settings, expected in COLOURS:
        with Desktop(settings) as each:
            answers = [each.tells(program)[0] for _ in range(2)]
            # An answer that came too late on a busy machine is light.
            while expected == "dark" and "dark" not in answers and len(answers) < TRIES:
                answers.append(each.tells(program)[0])
        if answers[-1] != expected:
            yield f"a desktop that {name}: {answers}, not {expected}"
    with Desktop(desktop(1), delay=LONGEST_WAIT // 3) as each:
        if not any(each.tells(program)[0] == "dark" for _ in range(TRIES)):
            yield "a dark desktop that takes its time is taken for a light one"
    with Desktop(desktop(1), delay=20 * LONGEST_WAIT) as each:
        answers = [each.tells(program) for _ in range(3)]
        if {mode for mode, _ in answers} != {"light"}:
            yield f"a desktop that answers after two seconds: {answers}"
        if min(taken for _, taken in answers) > 5 * LONGEST_WAIT:
            yield f"a desktop that answers after two seconds is waited for: {answers}"
    for name, settings in (("answers at once", desktop(2)), ("has no portal", None)):
        with Desktop(settings) as each:
            taken = []
            while (not taken or taken[-1] >= LONGEST_WAIT // 2) and len(taken) < TRIES:
                taken.append(each.tells(program)[1])
        print(f"a desktop that {name}: {taken} ms")
        if taken[-1] >= LONGEST_WAIT // 2:
            yield f"a desktop that {name} is waited for: {taken} ms"


def main(program):
    found = list(faults(os.path.realpath(program)))
    print("\n".join(found))
    sys.exit(1 if found else 0)


if __name__ == "__main__":
    main(*sys.argv[1:])
