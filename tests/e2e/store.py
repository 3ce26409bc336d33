# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The store's database and paper, looked at from outside the program."""
import datetime
import pathlib
import re
import subprocess

from patience import wait_for

PASSWORD = "correct horse"
PHONE = "5550142"


class Database:
    """Asks the sqlite3 shell, which knows nothing of the program."""

    def __init__(self, path):
        self.path = pathlib.Path(path)

    def ask(self, sql):
        """The rows, with "|" between their columns, one a line."""
        done = subprocess.run(["sqlite3", "-readonly", "-cmd", ".timeout 10000", str(self.path), sql],
                              capture_output=True, text=True, timeout=60, check=False)
        if done.returncode != 0:
            raise AssertionError(f"{sql}: {done.stderr}")
        return done.stdout.rstrip("\n")

    def expect(self, sql, *rows):
        """Waits until the answer is these rows."""
        expected = "\n".join(rows)
        answers = []

        def as_expected():
            answers[:] = [self.ask(sql)]
            return answers[0] == expected
        try:
            wait_for(as_expected, sql, seconds=20)
        except AssertionError as error:
            raise AssertionError(f"{sql}\nexpected:\n{expected}\nfound:\n{answers[0]}") from error


class Paper:
    """The documents that arrived at the thermal printer."""

    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        self.seen = 0

    def next(self):
        """The bytes of the next document, once it is complete."""
        self.seen += 1
        path = self.folder / f"document-{self.seen:04}.bin"
        wait_for(path.exists, f"document {self.seen} at the printer")
        return path.read_bytes()

    def expect_nothing_more(self):
        documents = len(list(self.folder.glob("document-*.bin")))
        if documents != self.seen:
            raise AssertionError(f"{documents} documents at the printer, not {self.seen}")


def receipt(counter):
    return f"{datetime.date.today().year}-{counter:06}"


def columns(text):
    return sum(1 if ord(each) < 128 else 2 for each in text)


def row(left, right):
    """A line of 58 mm paper with something at both ends."""
    return f"{left}{' ' * (32 - columns(left) - columns(right))}{right}".encode()


def without_commands(paper):
    """The words on the paper, without what steers the printer."""
    return re.sub(rb"\x1b@|\x1bE.|\x1ba.|\x1bd.|\x1dV.", b"", paper, flags=re.S)
