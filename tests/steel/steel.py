#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""steel.py BUILD [--long] [PART...]   tries to make the till lose something. See docs/reliability.md.

BUILD is the build folder with the worker. Ends with 1 where anything was lost, torn, hung, crashed or
told wrongly.
"""
import concurrent.futures
import itertools
import os
import pathlib
import shutil
import sys
import tempfile
import time

import company
import faults
import hostilefiles
import hostiletexts
import kills
import ladders
import powercuts
import soak
from box import Box

PARTS = {part.__name__: part.run for part in (
    kills, faults, powercuts, ladders, company, hostilefiles, hostiletexts, soak)}


class Proof:
    """One run of the parts: how much of everything, where, and how many at a time."""

    def __init__(self, build, is_long):
        self.build = pathlib.Path(build).resolve()
        self.is_long = is_long
        self.jobs = os.cpu_count() or 1
        # Memory where there is some: what survives a power cut is computed here, not waited for.
        memory = pathlib.Path("/dev/shm")
        self.folder = pathlib.Path(tempfile.mkdtemp(
            prefix="zelvan-steel-", dir=memory if os.access(memory, os.W_OK) else None))
        self.numbers = itertools.count()

    def size(self, quick, long):
        return long if self.is_long else quick

    def box(self):
        return Box(self.folder / str(next(self.numbers)), self.build)

    def each(self, items, work):
        """`work` on every item, several at a time; what one of them raises is raised here."""
        with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
            for done in [pool.submit(work, item) for item in items]:
                done.result()

    def close(self):
        shutil.rmtree(self.folder, ignore_errors=True)


def main(arguments):
    is_long = "--long" in arguments
    words = [word for word in arguments if not word.startswith("--")]
    if not words or set(words[1:]) - set(PARTS):
        sys.exit(f"{__doc__}\nParts: {' '.join(PARTS)}")
    good = True
    for name in words[1:] or PARTS:
        begin = time.monotonic()
        proof = Proof(words[0], is_long)
        try:
            tally = PARTS[name](proof)
        finally:
            proof.close()
        print(f"{tally}  [{time.monotonic() - begin:.0f} s]", flush=True)
        good = good and tally.good
    sys.exit(0 if good else 1)


if __name__ == "__main__":
    main(sys.argv[1:])
