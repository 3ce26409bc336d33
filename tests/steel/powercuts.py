# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The power fails between any two calls of everything the till does to its files."""
import random
import shutil

import scenarios
from box import Run
from disk_model import Disk, read_trace
from tally import Tally

SHARES = {"pay": 3, "little memory": 2}


def recorded(box, scenario):
    """The disk before the command, and the calls of an undisturbed run of it."""
    box.again()
    disk = Disk(box.disk)
    trace = box.folder / "trace"
    trace.unlink(missing_ok=True)
    run = box.run(*scenario.command(box), trace=trace)
    if run.status != 0:
        raise AssertionError(f"{scenario.name}, undisturbed: {run.status} {run.log}")
    return disk, read_trace(trace)


def said_by(calls):
    text = b"".join(call.data for call in calls if call.what == "say").decode()
    return Run(text.splitlines(), 0, False, "")


def put(box, image):
    shutil.rmtree(box.disk)
    box.disk.mkdir()
    for path, data in image:
        if data is None:
            path.mkdir()
        else:
            path.write_bytes(data)


def moments(calls, size):
    """When the power fails, and how much of what was under way arrives: every moment at its least and at
    its most, and the rest at random, spread over all of them."""
    chance = random.Random(11)
    kinds = [[(at, mode) for at in range(len(calls) + 1)] for mode in ("least", "all")]
    kinds.append([(chance.randrange(len(calls) + 1), "some") for _ in range(size)])
    for each in kinds:
        chance.shuffle(each)
    chosen = []
    while len(chosen) < size:
        chosen += [each.pop() for each in kinds if each]
    return sorted(chosen[:size])


def cuts(box, scenario, chosen, without=()):
    """The faults after each chosen cut. Calls of the kinds `without` are taken to have done nothing."""
    disk, calls = recorded(box, scenario)
    chance = random.Random(len(chosen))
    done = 0
    for at, mode in chosen:
        while done < min(at, len(calls)):
            if calls[done].what not in without:
                disk.apply(calls[done])
            done += 1
        put(box, disk.image(mode, chance))
        where = f"{scenario.name}, cut after {done} of {len(calls)} calls, {mode}"
        if done:
            where += f" (the last one: {calls[done - 1].what} {calls[done - 1].path.rpartition('/')[2]})"
        yield where, list(scenario.check(box, said_by(calls[:done])))


def one_scenario(proof, tally, scenario_class, size):
    def work(part):
        scenario, box = scenario_class(), proof.box()
        scenario.prepare(box)
        _, calls = recorded(box, scenario)
        for where, faults in cuts(box, scenario, moments(calls, size)[part::proof.jobs]):
            tally.trial("images")
            for kind, text in faults:
                tally.fault(kind, f"{where}: {text}")
    proof.each(range(proof.jobs), work)


def control(proof, tally, scenario_class, without):
    """The same with syncs that do nothing: who finds no loss then would find none at all."""
    scenario, box = scenario_class(), proof.box()
    scenario.prepare(box)
    _, calls = recorded(box, scenario)
    found = 0
    for _, faults in cuts(box, scenario, [(at, "least") for at in range(0, len(calls) + 1, 6)], without):
        tally.trial("images of the negative control")
        found += bool(faults)
    tally.trial("of which lost something, as they must", found)
    if not found:
        tally.fault("blind", f"{scenario.name}: no loss without {', '.join(without)}")


def run(proof):
    tally = Tally("power cuts")
    shares = sum(SHARES.get(each.name, 1) for each in scenarios.ALL)
    for scenario_class in scenarios.ALL:
        size = proof.size(200, 2000) * SHARES.get(scenario_class.name, 1) // shares
        one_scenario(proof, tally, scenario_class, size)
    control(proof, tally, scenarios.Pay, ("sync", "sync folder"))
    return tally
