# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""What a part of the proof has tried and found."""
import collections
import threading

KINDS = ("lost", "torn", "hung", "crashed", "untrue")


class Tally:
    """Counts trials and faults; the first faults of a kind are told in full. Used from all threads."""

    def __init__(self, name):
        self.name = name
        self.tried = collections.Counter()
        self.found = collections.Counter()
        self.examples = []
        self.exceptions = collections.Counter()
        self.lock = threading.Lock()

    def trial(self, what="trials", count=1):
        with self.lock:
            self.tried[what] += count

    def fault(self, kind, text):
        with self.lock:
            self.found[kind] += 1
            if self.found[kind] <= 12:
                self.examples.append(f"{kind}: {text}")

    def exception(self, what):
        """Seen, and announced in docs/reliability.md."""
        with self.lock:
            self.exceptions[what] += 1

    def ending(self, run, where):
        """A run that hung or crashed is a fault, wherever it was."""
        if run.hung:
            self.fault("hung", where)
        elif run.crashed:
            self.fault("crashed", f"{where}: status {run.status}: {run.log[-300:]}")

    @property
    def good(self):
        return not self.found and bool(self.tried)

    def __str__(self):
        tried = ", ".join(f"{count} {what}" for what, count in self.tried.items())
        kinds = [*KINDS, *(kind for kind in self.found if kind not in KINDS)]
        found = ", ".join(f"{self.found[kind]} {kind}" for kind in kinds)
        lines = [f"{self.name}: {tried}: {found}"]
        lines += [f"    (announced) {count} {what}" for what, count in self.exceptions.items()]
        return "\n".join(lines + [f"    {example}" for example in self.examples])
