# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""Hostile files are chosen for a restore and for an opening, swapped in before the start that applies a
restore, and found under the configured path."""
import shutil
import time

import audit
import hostile
from box import Box
from tally import Tally

LIMIT = 2.0  # seconds for what a foreign file may cost
SLACK = 1.0  # and for the till's own start on a busy computer


def timed(tally, box, where, *arguments):
    begin = time.monotonic()
    run = box.run(*arguments)
    tally.ending(run, where)
    tally.trial("runs")
    if time.monotonic() - begin > LIMIT + SLACK and not run.hung:
        tally.fault("hung", f"{where}: {time.monotonic() - begin:.1f} s")
    return run


def live_is_untouched(tally, box, where, bytes_before):
    if box.store.read_bytes() != bytes_before:
        tally.fault("lost", f"{where}: the live file has changed")


def chosen(tally, box, name, verdict, file, operation):
    box.again()
    hostile.FILES[name][1](file)
    where = f"{operation}, {name}"
    before, old = box.store.read_bytes(), audit.content(box.store)
    run = timed(tally, box, where, operation, file)
    live_is_untouched(tally, box, where, before)
    answer = run.answer(operation)
    if verdict != "any" and answer is not (verdict == "good"):
        tally.fault("untrue", f"{where}: answered {answer}")
    started = timed(tally, box, f"{where}, the next start", "start")
    if answer is False and (started.state != Box.READY or audit.content(box.store) != old):
        tally.fault("lost", f"{where}: refused, and the till starts in state {started.state}")
    if answer is True and verdict == "good":
        if started.state != Box.READY:
            tally.fault("lost", f"{where}: taken, and the till starts in state {started.state}")
        # Whatever the figures are worth: it has to stay on its feet.
        timed(tally, box, f"{where}, trading", "trade", 3, 3)
        timed(tally, box, f"{where}, settling", "settle", 3, 1)


def swapped_in(tally, box, name, verdict, file):
    """Good when it was chosen, hostile when the start applies it."""
    box.again()
    old = audit.content(box.store)
    box.good("restore", file)
    hostile.FILES[name][1](file)
    where = f"applied, {name}"
    run = timed(tally, box, where, "start")
    if verdict == "bad" and (run.state != Box.READY or audit.content(box.store) != old):
        tally.fault("lost", f"{where}: the live store is gone, state {run.state}")


def configured(tally, box, name):
    """The live file itself has come to harm: the till says so or works, and stays on its feet."""
    box.again()
    hostile.FILES[name][1](box.store)
    timed(tally, box, f"configured, {name}", "start")
    timed(tally, box, f"configured, {name}, trading", "trade", 3, 2)


def one_file(tally, box, name, file):
    verdict = hostile.FILES[name][0]
    tally.trial("files")
    for operation in ("restore", "open"):
        chosen(tally, box, name, verdict, file, operation)
    swapped_in(tally, box, name, verdict, file)
    configured(tally, box, name)


def prepared(proof):
    box = proof.box()
    box.open_shop()
    box.good("backup")
    file = box.disk / "stick" / "chosen.db"
    file.parent.mkdir()
    shutil.move(next((box.store.parent / "backups").glob("*.db")), file)
    box.good("trade", 4, 3)
    box.keep()
    return box, file


def run(proof):
    tally = Tally("hostile files")

    def work(part):
        box, file = prepared(proof)
        for name in list(hostile.FILES)[part::proof.jobs]:
            one_file(tally, box, name, file)
    proof.each(range(proof.jobs), work)
    return tally
