# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""Weeks in one process: orders paid and printed, and the screens turned all the while. Neither its
memory nor its file handles may grow with the work once it has seen everything: after the first tenth of the
long form. In the quick form SQLite's own memory is full after its first half only."""
from tally import Tally

MOST_GROWTH = 4096  # kilobytes
HOURS = 6 * 3600


def footprints(run):
    """One a tenth: printed documents, and what the process held then."""
    found = []
    for line in run.lines:
        words = line.split()
        if words[:1] == ["part"]:
            found.append(dict(zip(words[2::2], map(int, words[3::2]))))
    return found


def run(proof):
    tally = Tally("soak")
    box = proof.box()
    box.good("setup", box.store)
    box.good("furnish")
    box.worker = proof.build / "tests" / "steel_soak"
    # It moves the clock itself, a day for every 500 orders.
    box.through = ["faketime", "-f", "+0d"]
    box.variables = {"FAKETIME_NO_CACHE": "1", "DONT_FAKE_MONOTONIC": "1"}
    orders, pages = proof.size(2000, 50000), proof.size(200, 5000)
    done = box.run(orders, pages, patience=HOURS)
    tally.ending(done, "soak")
    parts = footprints(done)
    if done.answer("soak") is not True or len(parts) != 10:
        tally.fault("crashed", f"after {len(parts)} parts of 10: {done.log[-500:]}")
        return tally
    tally.trial("orders", orders)
    tally.trial("documents printed", parts[-1]["printed"])
    tally.trial("page changes", pages)
    begin, end = parts[proof.size(4, 0)], parts[-1]
    tally.trial("KB more of heap", end["heap"] - begin["heap"])
    tally.trial("KB more of resident memory", end["resident"] - begin["resident"])
    tally.trial("handles", end["handles"])
    if end["heap"] - begin["heap"] >= MOST_GROWTH:
        tally.fault("grown", f"heap: {[part['heap'] for part in parts]} KB")
    if end["resident"] - begin["resident"] >= MOST_GROWTH:
        tally.fault("grown", f"resident: {[part['resident'] for part in parts]} KB")
    if end["handles"] > begin["handles"]:
        tally.fault("grown", f"handles: {[part['handles'] for part in parts]}")
    return tally
