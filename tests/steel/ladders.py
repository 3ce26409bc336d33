# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""Every step of what is done with the database file as a whole: the program is killed before each change
it makes on the disk, and each of its changes fails."""
import faults
import scenarios
from tally import Tally

LADDERS = (scenarios.SetUp, scenarios.Backup, scenarios.Restore, scenarios.ApplyRestore, scenarios.Open,
           scenarios.Move, scenarios.Replace)
CHANGES = ("open", "write", "sync", "truncate", "rename", "link", "unlink", "mkdir")


def attempts(proof, counts):
    """All of them in the long form, every third in the quick one."""
    kills = [{"kill": number} for number in range(1, counts["change"] + 1)]
    failures = [{"fault": f"{kind} {number} EIO {mode}"} for kind in CHANGES
                for number in range(1, counts[kind] + 1) for mode in ("once", "forever")]
    return (kills + failures)[::proof.size(3, 1)]


def one_ladder(proof, tally, scenario_class):
    def work(part):
        scenario, box = scenario_class(), proof.box()
        scenario.prepare(box)
        chosen = attempts(proof, faults.calls_of(box, scenario))
        for attempt in chosen[part::proof.jobs]:
            box.again()
            run = box.run(*scenario.command(box), **attempt)
            where = f"{scenario.name}, {attempt}"
            tally.trial("steps killed" if "kill" in attempt else "steps failed")
            tally.ending(run, where)
            for kind, text in scenario.check(box, run):
                tally.fault(kind, f"{where}: {text}")
    proof.each(range(proof.jobs), work)


def run(proof):
    tally = Tally("ladders")
    for scenario_class in LADDERS:
        one_ladder(proof, tally, scenario_class)
    return tally
