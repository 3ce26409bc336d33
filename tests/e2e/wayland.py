# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The store's first day once more, on Wayland: a compositor whose one window fills the virtual display, so that its
mouse and keys are those of the display, and that a place in the program's window is a place on the display."""
import contextlib
import os
import pathlib
import subprocess
import sys

from patience import wait_for
import tour

SOCKET = "zelvan-wayland"


def painter():
    """How this version of the compositor is told to paint with the processor."""
    helped = subprocess.run(["weston", "--help"], capture_output=True, text=True, timeout=20, check=False).stdout
    return "--renderer=pixman" if "--renderer=" in helped else "--use-pixman"


@contextlib.contextmanager
def compositor():
    # The shell of a kiosk gives its window the whole screen and no frame.
    weston = subprocess.Popen(
        ["weston", "--backend=x11-backend.so", "--shell=kiosk-shell.so", "--no-config", "--idle-time=0", painter(),
         "--width=1280", "--height=800", f"--socket={SOCKET}"], stdin=subprocess.DEVNULL,
        stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    def serves():
        assert weston.poll() is None, f"the compositor ended with {weston.returncode}"
        return pathlib.Path(os.environ["XDG_RUNTIME_DIR"], SOCKET).is_socket()

    try:
        wait_for(serves, "the compositor")
        os.environ.update(QT_QPA_PLATFORM="wayland", XDG_SESSION_TYPE="wayland", WAYLAND_DISPLAY=SOCKET)
        yield
    finally:
        weston.terminate()
        weston.wait(timeout=20)


class FirstDay(tour.Tour):
    noodles = "Noodles"  # what no key has would come from a clipboard that only windows reach

    def steps(self):
        return self.first_day()


if __name__ == "__main__":
    tour.main(*sys.argv[1:], desktop=compositor, kind=FirstDay)
