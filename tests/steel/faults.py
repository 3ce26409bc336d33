# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The n-th call of a kind fails, once or for good, in everything the till does to its files."""
import random

import scenarios
from tally import Tally

ERRORS = {
    "open": ("EIO", "EACCES", "ENOSPC"),
    "read": ("EIO", "short"),
    "write": ("ENOSPC", "EIO", "short"),
    "sync": ("EIO", "ENOSPC"),
    "truncate": ("EIO",),
    "rename": ("EIO", "ENOSPC"),
    "link": ("EIO", "ENOSPC"),
    "unlink": ("EIO", "EACCES"),
    "mkdir": ("ENOSPC", "EACCES"),
}
# A payment is what most of it is about.
WEIGHTS = {"pay": 3, "little memory": 3}


def calls_of(box, scenario):
    """How often an undisturbed run makes each kind of call."""
    counts = box.folder / "counts"
    run = box.run(*scenario.command(box), counts=counts)
    if run.status != 0:
        raise AssertionError(f"{scenario.name}, undisturbed: {run.status} {run.log}")
    return {kind: int(count) for kind, count in (line.split() for line in counts.read_text().splitlines())}


def choice(counts, size):
    """Faults spread evenly over the kinds, so that the few renames weigh as much as the many reads."""
    chance = random.Random(4)
    kinds = []
    for kind, errors in ERRORS.items():
        faults = [f"{kind} {number} {error} {mode}" for number in range(1, counts[kind] + 1)
                  for error in errors for mode in ("once", "forever")]
        kinds.append(chance.sample(faults, len(faults)))
    chosen = []
    while len(chosen) < size and any(kinds):
        chosen += [faults.pop() for faults in kinds if faults]
    return chosen[:size]


def announced(fault, kind, text):
    """A commit whose last step, the sync, has failed: the till says no, and the disk may have it."""
    return fault.startswith("sync ") and kind == "untrue" and "was refused and is paid" in text


def one_fault(tally, box, scenario, fault):
    box.again()
    run = box.run(*scenario.command(box), fault=fault)
    where = f"{scenario.name}, {fault}"
    tally.trial("faults")
    tally.ending(run, where)
    for kind, text in scenario.check(box, run):
        if announced(fault, kind, text):
            tally.exception("bills refused since their last sync failed, and found paid after a restart")
        else:
            tally.fault(kind, f"{where}: told {run.answer(scenario.command(box)[0])}: {text}")


def several(proof, tally, scenario_class, share):
    """One scenario, its faults dealt to boxes of their own."""
    size = proof.size(150, 1500) * WEIGHTS.get(scenario_class.name, 1) // share

    def work(part):
        scenario, box = scenario_class(), proof.box()
        scenario.prepare(box)
        chosen = choice(calls_of(box, scenario), size)
        for number, fault in enumerate(chosen[part::proof.jobs]):
            scenario.attempts = 1 + 2 * (number % 2)
            one_fault(tally, box, scenario, fault)
    proof.each(range(proof.jobs), work)


def run(proof):
    tally = Tally("faults")
    share = sum(WEIGHTS.get(each.name, 1) for each in scenarios.ALL)
    for scenario_class in scenarios.ALL:
        several(proof, tally, scenario_class, share)
    return tally
