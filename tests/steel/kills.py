# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The trading till is killed at any moment, its start included, and the store is audited."""
import random
import time

import audit
from tally import Tally

KILLS_A_STORE = 20


def killed_run(box, seed, chance):
    """Lets the till trade for a moment and kills it."""
    process = box.start("trade", seed, 0)
    # The moment itself is what is tried, so a clock it is: one in four falls into the start.
    time.sleep(chance.uniform(0, 0.05) if chance.random() < 0.25 else chance.uniform(0.05, 0.4))
    process.kill()
    return box.finish(process)


def check(tally, box, run, where):
    for fault in audit.whole(box.store):
        tally.fault("torn", f"{where}: {fault}")
    words = audit.Words(run.lines)
    tally.trial("payments acknowledged", words.paid)
    with audit.Store(box.store) as store:
        for text in words.lost(store):
            tally.fault("lost", f"{where}: {text}")
        for text in words.untrue(store):
            tally.fault("untrue", f"{where}: {text}")


def one_store(tally, box, seed, kills):
    """One store that is killed again and again, and goes on trading each time."""
    chance = random.Random(seed)
    box.open_shop()
    for number in range(kills):
        where = f"store {seed}, kill {number}"
        run = killed_run(box, seed * 1000 + number, chance)
        tally.trial("kills")
        tally.ending(run, where)
        check(tally, box, run, where)
    settled = box.run("settle", seed)
    tally.ending(settled, f"store {seed}, settling")
    if settled.answer("settle") is not True:
        tally.fault("lost", f"store {seed}: a bill cannot be paid after the last kill: {settled.log[-300:]}")
    check(tally, box, settled, f"store {seed}, settled")


def run(proof):
    tally = Tally("kills")
    stores = range(proof.size(100, 1000) // KILLS_A_STORE)
    proof.each(stores, lambda seed: one_store(tally, proof.box(), seed, KILLS_A_STORE))
    return tally
