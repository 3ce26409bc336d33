# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""Texts that mean harm, through every operation that writes one."""
import re
import subprocess

from tally import Tally

PATIENCE = 600


def run(proof):
    tally = Tally("hostile texts")
    try:
        done = subprocess.run([proof.build / "tests" / "store_tests", "tst_hostiletexts"], timeout=PATIENCE,
                              stdin=subprocess.DEVNULL, capture_output=True, text=True, errors="replace")
    except subprocess.TimeoutExpired:
        tally.fault("hung", "tst_hostiletexts")
        return tally
    totals = re.search(r"Totals: (\d+) passed, (\d+) failed", done.stdout)
    if not totals:
        tally.fault("crashed", f"status {done.returncode}: {done.stderr[-300:]}")
        return tally
    # Beginning and end of the class count there too.
    tally.trial("operations", int(totals[1]) + int(totals[2]) - 2)
    for failure in re.findall(r"^FAIL!.*(?:\n   .*)*", done.stdout, re.MULTILINE):
        tally.fault("torn", failure)
    if done.returncode != 0 and tally.good:
        tally.fault("crashed", f"status {done.returncode}: {done.stderr[-300:]}")
    return tally
