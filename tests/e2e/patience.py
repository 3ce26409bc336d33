# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""Waiting, always for something and never for long."""
import os
import time

from gi.repository import GLib

# Generous, since nothing but a failure ever takes it whole: other work may fill the machine.
SECONDS = float(os.environ.get("ZELVAN_PATIENCE", "60"))


class Impatient(AssertionError):
    """What was waited for did not come."""


def wait_for(condition, what, seconds=SECONDS):
    """The first true answer of `condition`; fails, naming `what` was expected, past the deadline."""
    deadline = time.monotonic() + seconds
    while True:
        error = None
        try:
            answer = condition()
        except GLib.Error as gone:
            # What was being read went away, a program or a part of its screen: not there yet.
            answer, error = None, gone
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise Impatient(f"waited {seconds} s in vain for {what}") from error
        time.sleep(0.03)
