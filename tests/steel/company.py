# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The till is not alone with its file, or its disk is not what it should be."""
import sqlite3

import audit
import scenarios
from box import Box
from tally import Tally

LONGEST_WAIT = 60  # seconds until a till that waits for others counts as hung


def heard(process, lines, wanted):
    """Reads what the till says until a line begins with one of the words; False at its end."""
    for line in process.stdout:
        lines.append(line.decode().rstrip("\n"))
        if lines[-1].startswith(wanted):
            return True
    return False


def ended(tally, process, lines, where, kill=False):
    if kill:
        process.kill()
    run = Box.finish(process, LONGEST_WAIT)
    run.lines = lines + run.lines
    tally.ending(run, where)
    return run


def audited(tally, box, words, where):
    for fault in audit.whole(box.store):
        tally.fault("torn", f"{where}: {fault}")
    with audit.Store(box.store) as store:
        for text in words.lost(store):
            tally.fault("lost", f"{where}: {text}")
        for text in words.untrue(store):
            tally.fault("untrue", f"{where}: {text}")


def settled(tally, box, where):
    run = box.run("settle", 5)
    tally.ending(run, where)
    if run.answer("settle") is not True:
        tally.fault("lost", f"{where}: a bill cannot be paid any more: {run.log[-300:]}")
    audited(tally, box, audit.Words(run.lines), f"{where}, settled")


def two_programs(tally, box, rounds):
    box.open_shop()
    both = [box.start("trade", seed, rounds, 3, "counter") for seed in (21, 22)]
    runs = [ended(tally, process, [], "two programs") for process in both]
    for run in runs:
        audited(tally, box, audit.Words(run.lines), "two programs")
    tally.trial("payments of two programs on one file",
                sum(audit.Words(run.lines).paid for run in runs))
    settled(tally, box, "two programs")


def foreign_lock(tally, box):
    """Another program writes and does not come to an end; then it does."""
    box.open_shop()
    process, lines = box.start("trade", 23, 0, 1), []
    heard(process, lines, "paid")
    other = sqlite3.connect(box.store, isolation_level=None, timeout=20)
    other.execute("BEGIN IMMEDIATE")
    told = heard(process, lines, ("refused", "no order", "ordered"))
    other.execute("ROLLBACK")
    other.close()
    if not told or not heard(process, lines, "paid"):
        tally.fault("lost", "foreign lock: nothing can be paid after it was given back")
    run = ended(tally, process, lines, "foreign lock", kill=True)
    tally.trial("locks of another program")
    audited(tally, box, audit.Words(run.lines), "foreign lock")
    settled(tally, box, "foreign lock")


def foreign_reader(tally, box):
    """A file that is not kept in a log, and somebody who reads it: the commit itself is refused."""
    box.open_shop(20)
    with audit.Store(box.store) as store:
        store.rows("PRAGMA journal_mode = DELETE")
    reader = sqlite3.connect(box.store, isolation_level=None)
    reader.execute("BEGIN")
    reader.execute("SELECT COUNT(*) FROM orders").fetchall()
    process, lines = box.start("settle", 23, 30), []
    heard(process, lines, ("refused", "answer"))
    reader.execute("ROLLBACK")
    reader.close()
    run = ended(tally, process, lines, "foreign reader")
    tally.trial("readers of an old journal")
    if not audit.Words(run.lines).bills or run.answer("settle") is not True:
        tally.fault("lost", f"foreign reader: a bill cannot be paid after it has gone: {run.log[-300:]}")
    audited(tally, box, audit.Words(run.lines), "foreign reader")


def read_only(tally, box):
    """Whatever is tried, the till answers no and the medium stays as it is."""
    box.open_shop(20)
    box.keep()
    (box.disk / "other").mkdir()
    before = box.store.read_bytes()
    for command in (["start"], ["trade", 3, 3, 1], ["settle", 3, 1], ["backup"],
                    ["move", box.disk / "other"], ["replace", box.store]):
        run = box.run(*command, readonly=1)
        where = f"read-only medium, {command[0]}"
        tally.trial("operations on a read-only medium")
        tally.ending(run, where)
        words = [line for line in run.lines if line.startswith(("paid", "ordered"))]
        if words or (command[0] in ("backup", "move", "replace") and run.answer(command[0])):
            tally.fault("untrue", f"{where}: {run.lines}")
        if box.store.read_bytes() != before:
            tally.fault("lost", f"{where}: the file has changed")


def full_disk(tally, box):
    """The disk fills up in the evening, and somebody makes room on it."""
    box.open_shop()
    flag = box.folder / "full"
    process, lines = box.start("trade", 31, 0, 1, full=flag), []
    for _ in range(3):
        heard(process, lines, "paid")
        flag.touch()
        if not heard(process, lines, ("refused", "no order")):
            tally.fault("untrue", "full disk: nothing was refused")
        flag.unlink()
        if not heard(process, lines, "paid"):
            tally.fault("lost", "full disk: nothing can be paid after room was made")
        tally.trial("disks that were full and freed again")
    run = ended(tally, process, lines, "full disk", kill=True)
    audited(tally, box, audit.Words(run.lines), "full disk")
    settled(tally, box, "full disk")


def too_small(tally, box, scenario_class):
    """No room for the copy: the answer is no, and the store goes on. With room it goes through."""
    scenario = scenario_class()
    scenario.prepare(box)
    flag = box.folder / "full"
    flag.touch()
    run = box.run(*scenario.command(box), full=flag)
    flag.unlink()
    where = f"a disk too small, {scenario.name}"
    tally.trial("disks too small for the copy")
    tally.ending(run, where)
    if scenario.name != "apply" and run.answer(scenario.name) is not False:
        tally.fault("untrue", f"{where}: answered {run.answer(scenario.name)}")
    for kind, text in scenario.check(box, run):
        tally.fault(kind, f"{where}: {text}")
    again = box.run(*scenario.command(box))
    if again.answer(scenario.command(box)[0]) is not True:
        tally.fault("lost", f"{where}: nor with room: {again.log[-300:]}")


def run(proof):
    tally = Tally("company")
    trials = [lambda box: two_programs(tally, box, proof.size(60, 600)),
              lambda box: foreign_lock(tally, box), lambda box: foreign_reader(tally, box),
              lambda box: read_only(tally, box), lambda box: full_disk(tally, box)]
    trials += [lambda box, each=each: too_small(tally, box, each)
               for each in (scenarios.SetUp, scenarios.Backup, scenarios.ApplyRestore, scenarios.Move)]
    proof.each(trials, lambda trial: trial(proof.box()))
    return tally
