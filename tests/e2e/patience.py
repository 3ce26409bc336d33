# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""Waiting, always for something and never for long."""
import os
import time

# Generous, since nothing but a failure ever takes it whole: other work may fill the machine.
SECONDS = float(os.environ.get("ZELVAN_PATIENCE", "60"))


class Impatient(AssertionError):
    """What was waited for did not come."""


def wait_for(condition, what, seconds=SECONDS):
    """The first true answer of `condition`; fails, naming `what` was expected, past the deadline."""
    deadline = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > deadline:
            raise Impatient(f"waited {seconds} s in vain for {what}")
        time.sleep(0.03)
