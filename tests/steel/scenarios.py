# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""What a till does to its files, and what has to hold afterwards whatever went wrong on the way.

A scenario prepares a disk, names the command, and checks: `check(box, words)` looks at the disk as it is
after the command was cut off, failed or succeeded, `words` being what the user had been told by then. It
yields pairs of a kind of fault and a text. It may start the till, since that is what the user would do.
"""
import audit
from box import Box, Run


class Scenario:
    name = ""
    # How often the cashier presses the button of a bill that is refused.
    attempts = 3

    def prepare(self, box):
        raise NotImplementedError

    def command(self, box):
        raise NotImplementedError

    def check(self, box, words):
        raise NotImplementedError

    def started(self, box):
        """The next start, on a disk that works again. Yields what is wrong with it."""
        run = box.run("start")
        self.last_state = run.state
        if run.hung:
            yield "hung", "the next start"
        elif run.status != 0:
            yield "crashed", f"the next start: {run.status}: {run.log[-300:]}"

    def ready_with(self, box, contents, path=None):
        """The till starts on a whole store with one of the contents."""
        yield from self.started(box)
        if self.last_state != Box.READY:
            yield "lost", f"the till starts in state {self.last_state}, path {box.configured()}"
            return
        path = path or box.configured()
        if path != box.configured():
            yield "untrue", f"the till is on {box.configured()}, not on {path}"
        yield from (("torn", fault) for fault in audit.whole(path))
        if audit.content(path) not in contents:
            yield "lost", f"{path} holds neither the old nor the new content"


class Pay(Scenario):
    name = "pay"

    def prepare(self, box):
        box.open_shop()
        box.keep()

    def command(self, box):
        return ["trade", 7, 4, self.attempts]

    def check(self, box, words):
        yield from self.started(box)
        if self.last_state != Box.READY:
            yield "lost", f"the till starts in state {self.last_state}"
            return
        for fault in audit.whole(box.store):
            yield "torn", fault
        told = audit.Words(words.lines)
        with audit.Store(box.store) as store:
            yield from (("lost", text) for text in told.lost(store))
            yield from (("untrue", text) for text in told.untrue(store))
        settled = box.run("settle", 3)
        if settled.answer("settle") is not True:
            yield "lost", f"a bill cannot be paid any more: {settled.lines[-4:]} {settled.log[-300:]}"
        yield from (("torn", f"settled: {fault}") for fault in audit.whole(box.store))


class LittleMemory(Pay):
    """A payment that does not fit SQLite's cache: every statement of it reads and writes the file, as in
    a large store, long before the commit."""
    name = "little memory"

    def prepare(self, box):
        box.open_shop(30)
        with audit.Store(box.store) as store:
            store.connection.execute("UPDATE orders SET notes = hex(randomblob(1500))")
            store.connection.commit()
            # Stands in the file's head, so that the till's own connection has it too.
            store.connection.execute("PRAGMA default_cache_size = 6")
        box.keep()


class SetUp(Scenario):
    name = "setup"
    NEEDS_ADMIN = 4

    def prepare(self, box):
        box.keep()

    def command(self, box):
        return ["setup", box.store]

    def check(self, box, words):
        yield from self.started(box)
        told = words.answer("setup")
        if told is True:
            if self.last_state != self.NEEDS_ADMIN:
                yield "lost", f"set up, and the till starts in state {self.last_state}"
                return
            yield from (("torn", fault) for fault in audit.whole(box.store))
            with audit.Store(box.store) as store:
                for table in ("tax_settings", "membership_settings", "kitchen_settings", "table_settings"):
                    if store.one(f"SELECT COUNT(*) FROM {table}") != 1:
                        yield "lost", f"set up without {table}"
        if told is False and box.configured():
            yield "untrue", f"not set up, and the till is on {box.configured()}"


class Backup(Scenario):
    name = "backup"

    def prepare(self, box):
        box.open_shop()
        box.keep()
        self.old = audit.content(box.store)

    def command(self, box):
        return ["backup"]

    def check(self, box, words):
        yield from self.ready_with(box, [self.old], str(box.store))
        backups = list((box.store.parent / "backups").glob("*.db"))
        for backup in backups:
            if audit.content(backup) != self.old:
                yield "torn", f"{backup.name}, {backup.stat().st_size} bytes, is no backup"
        if words.answer("backup") is True and len(backups) != 1:
            yield "lost", "the backup that was told of is not there"
        if words.answer("backup") is False and backups:
            yield "untrue", "no backup, and there is one"


class TwoStores(Scenario):
    """A backup, and a live store that has gone on since."""

    def prepare(self, box):
        box.open_shop()
        box.good("backup")
        made = next((box.store.parent / "backups").glob("*.db"))
        self.other = box.disk / "stick" / "old.db"
        self.other.parent.mkdir()
        made.rename(self.other)
        self.new = audit.content(self.other)
        box.good("trade", 2, 3)
        self.old = audit.content(box.store)
        if self.old == self.new or not self.new:
            raise AssertionError("the two stores are to differ")
        self.stage(box)
        box.keep()

    def stage(self, box):
        pass

    def check(self, box, words):
        contents = {None: [self.old, self.new], True: [self.new], False: [self.old]}
        yield from self.ready_with(box, contents[words.answer(self.name)])
        if audit.content(self.other) != self.new:
            yield "lost", "the chosen file has changed"


class Restore(TwoStores):
    name = "restore"

    def command(self, box):
        return ["restore", self.other]


class ApplyRestore(TwoStores):
    """The start that brings the staged file into place; it tells its user nothing."""
    name = "apply"

    def stage(self, box):
        box.good("restore", self.other)

    def command(self, box):
        return ["start"]


class Open(TwoStores):
    name = "open"

    def command(self, box):
        return ["open", self.other]

    def check(self, box, words):
        yield from super().check(box, words)
        if audit.content(box.store) != self.old:
            yield "lost", "the store that was open before has changed"


class Move(Scenario):
    name = "move"

    def prepare(self, box):
        box.open_shop()
        self.old = audit.content(box.store)
        self.target = box.disk / "other" / "ZelvanPOS" / "data" / "Zelvan.db"
        (box.disk / "other").mkdir()
        box.keep()

    def command(self, box):
        return ["move", box.disk / "other"]

    def check(self, box, words):
        places = {None: None, True: str(self.target), False: str(box.store)}
        yield from self.ready_with(box, [self.old], places[words.answer("move")])


class Replace(Scenario):
    name = "replace"

    def prepare(self, box):
        box.open_shop()
        self.old = audit.content(box.store)
        box.keep()

    def command(self, box):
        return ["replace", box.store]

    def check(self, box, words):
        told = words.answer("replace")
        # Before the start, which would make tables in whatever it finds.
        aside = box.store.with_name("Zelvan.db.backup")
        old_is_there = any(path.exists() and audit.content(path) == self.old for path in (box.store, aside))
        new_is_there = box.store.exists() and self.is_new(box.store)
        if told is True and not new_is_there:
            yield "lost", "the replacement that was told of is not there"
        if told is False and not old_is_there:
            yield "lost", "not replaced, and the old store is gone"
        if not old_is_there and not new_is_there:
            yield "lost", "neither the old nor the new store is there"
        yield from self.started(box)

    @staticmethod
    def is_new(path):
        try:
            with audit.Store(path) as store:
                return (store.one("SELECT COUNT(*) FROM applied_migrations") == audit.MIGRATIONS
                        and store.one("SELECT COUNT(*) FROM users") == 0
                        and store.rows("PRAGMA integrity_check") == [("ok",)])
        except audit.sqlite3.Error:
            return False


ALL = (Pay, LittleMemory, SetUp, Backup, Restore, ApplyRestore, Open, Move, Replace)
NOTHING_SAID = Run([], 0, False, "")
