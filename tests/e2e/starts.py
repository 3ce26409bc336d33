# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""What the first screen is, whatever a computer holds at the start. Started by `starts` beside it."""
import contextlib
import os
import pathlib
import shutil
import sqlite3
import subprocess
import sys
import time

from patience import wait_for
from screen import BUTTON, ROW, Screen
from store import Database
from tour import window_manager

PASSWORD = "correct horse"
# Each of its signs means something to a shell, to SQL, to a URL or to a settings file.
ODD_NAME = "Alice's 中文 #1 50% & co"
NEW = "Set up Zelvan"
MISSING = "Database Not Found"
UNUSABLE = "Database Cannot Be Opened or Is Not a Valid Zelvan Database"
NO_ADMIN = "Create your admin account"


class Computer:
    """A home folder with what the program keeps there."""

    def __init__(self, folder):
        self.home = pathlib.Path(folder)
        (self.home / "Documents").mkdir(parents=True)
        self.settings = self.home / "config/Zelvan/ZelvanPOS.conf"
        self.settings.parent.mkdir(parents=True)
        self.database = self.home / "Documents/Zelvan.db"
        self.output = self.home / "output"
        self.output.touch()

    def environment(self):
        return {**os.environ, "HOME": str(self.home), "XDG_CONFIG_HOME": str(self.home / "config"),
                "XDG_DATA_HOME": str(self.home / "data"), "XDG_CACHE_HOME": str(self.home / "cache")}

    def remember(self, **keys):
        """Writes the settings as the program would have."""
        lines = [f'{key}="{value}"' for key, value in keys.items()]
        self.settings.write_text("\n".join(["[database]", *lines, ""]), encoding="utf-8")

    def remembers(self):
        return self.settings.read_text(encoding="utf-8")

    def log(self):
        """The day's file, or the two where the day has changed meanwhile."""
        files = sorted((self.home / "data/Zelvan/ZelvanPOS/logs").glob("*.log"))
        return "".join(file.read_text(encoding="utf-8") for file in files)

    def expect_log(self, *texts):
        for text in texts:
            assert text in self.log(), f"no {text!r} in the log:\n{self.log()}"


class Starts:
    def __init__(self, program, pictures, work):
        self.work = pathlib.Path(work)
        self.program = program
        self.screen = Screen(program, pictures)
        self.good = self.work / "good.db"
        self.computers = 0

    def computer(self, name=None):
        self.computers += 1
        return Computer(self.work / f"{self.computers:02}" / (name or "home"))

    def start(self, computer, previous=None, limit=None):
        """Starts the program on that computer; with a limit, no file there grows past those bytes."""
        command = [str(self.program)]
        if limit is not None:
            # As on a full disk a write fails then; the signal that comes with a limit stays away.
            command = ["bash", "-c", f"trap '' XFSZ; exec prlimit --fsize={limit} \"$0\"", *command]
        with open(computer.output, "ab") as stream:
            process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=stream, stderr=stream,
                                       env=computer.environment(), start_new_session=True)
        self.screen.attach(previous)
        return process

    def end(self, process):
        """A program that was started here ends when its window is closed, and says that all is well."""
        self.screen.close()
        assert process.wait(timeout=60) == 0, process.returncode

    def expect_first_screen(self, computer, text):
        process = self.start(computer)
        self.screen.says(text) if text else self.screen.wait(BUTTON, "Login")
        self.end(process)

    def copy_of_good(self, path, *statements):
        shutil.copy(self.good, path)
        with contextlib.closing(sqlite3.connect(path)) as database, database:
            for statement in statements:
                database.execute(statement)

    # The first run

    def a_store_is_made_below_a_folder_with_an_odd_name(self):
        screen, computer = self.screen, self.computer(ODD_NAME)
        path = computer.home / "Documents/ZelvanPOS/data/Zelvan.db"
        self.start(computer)
        screen.says(NEW)
        computer.expect_log("[INFO] [application] No DB path configured")
        first = screen.pid
        self.ask_for_a_new_database()
        screen.restart(lambda: screen.press("Done"))
        assert arguments_of(screen.pid) == 2, "one argument more than the program that it follows"
        assert screen.pid != first
        screen.says(NO_ADMIN)
        assert path.is_file()
        computer.expect_log("[INFO] [application] No admin user found")
        screen.type_into("Username", "alice")
        screen.type_into("Password", PASSWORD)
        screen.type_into("Confirm password", PASSWORD)
        screen.press("Register")
        screen.says("Thanks for setting up Zelvan")
        screen.rest()
        screen.press("Skip for now")
        screen.wait(BUTTON, "Take Order")
        screen.close()
        self.expect_first_screen(computer, None)
        # With what the write-ahead log still holds.
        with contextlib.closing(sqlite3.connect(path)) as source, \
                contextlib.closing(sqlite3.connect(self.good)) as target:
            source.backup(target)
        assert Database(self.good).ask("PRAGMA integrity_check") == "ok"

    # What the saved path may lead to

    def a_saved_path_without_a_file_is_missing(self):
        computer = self.computer()
        computer.remember(path=computer.database)
        self.expect_first_screen(computer, MISSING)
        computer.expect_log("[WARN] [application] DB file not found")
        assert not computer.database.exists()

    def an_empty_path_is_none(self):
        computer = self.computer()
        computer.remember(path="")
        self.expect_first_screen(computer, NEW)

    def a_file_that_is_no_store_is_shown_as_unusable_and_left_alone(self):
        for kind in [text_file, empty_file, empty_database, foreign_database, self.other_letter_case,
                     self.truncated]:
            computer = self.computer()
            kind(computer.database)
            before = computer.database.read_bytes()
            computer.remember(path=computer.database)
            self.expect_first_screen(computer, UNUSABLE)
            computer.expect_log("[WARN] [application] DB is not a Zelvan DB")
            assert computer.database.read_bytes() == before, kind

    def other_letter_case(self, path):
        self.copy_of_good(path, "UPDATE app_state SET value = 'COM.zelvan.pos' WHERE key = 'app.id'")

    def truncated(self, path):
        self.copy_of_good(path)
        os.truncate(path, path.stat().st_size // 2)

    def a_file_that_may_not_be_read_is_unusable(self):
        computer = self.computer()
        self.copy_of_good(computer.database)
        computer.database.chmod(0)
        computer.remember(path=computer.database)
        self.expect_first_screen(computer, UNUSABLE)
        computer.expect_log("[WARN] [application] DB cannot be opened")

    def a_store_without_an_active_admin_asks_for_one(self):
        for statement in ["DELETE FROM users", "UPDATE users SET role = 'service_staff'",
                          "UPDATE users SET deactivated_at = ''",
                          "UPDATE users SET deactivated_at = CURRENT_TIMESTAMP"]:
            computer = self.computer()
            self.copy_of_good(computer.database, statement)
            computer.remember(path=computer.database)
            self.expect_first_screen(computer, NO_ADMIN)
            computer.expect_log("[INFO] [application] No admin user found")

    def the_stored_language_is_the_programs(self):
        for locale, login in [("zh_CN", "登录"), ("fr_FR", "Login")]:
            computer = self.computer()
            self.copy_of_good(computer.database, f"UPDATE regional_settings SET locale = '{locale}'")
            computer.remember(path=computer.database)
            process = self.start(computer)
            self.screen.wait(BUTTON, login)
            self.end(process)

    # A restore that was asked for

    def a_staged_restore_replaces_the_store(self):
        computer = self.computer()
        staged = computer.home / "staged.db"
        self.copy_of_good(computer.database)
        self.copy_of_good(staged, "DELETE FROM users")
        computer.remember(path=computer.database, pendingRestore=staged)
        self.expect_first_screen(computer, NO_ADMIN)
        assert "pendingRestore" not in computer.remembers()
        assert Database(computer.database).ask("SELECT count(*) FROM users") == "0"
        assert staged.exists()

    def a_staged_file_that_is_no_store_any_more_is_refused(self):
        refusals = [(text_file, "Database is not a Zelvan Database"),
                    (foreign_database, "Database is not a Zelvan Database"),
                    (self.truncated, "Database is not a Zelvan Database"),
                    (lambda path: None, "Database restore file does not exist")]
        for kind, reason in refusals:
            computer = self.computer()
            self.copy_of_good(computer.database)
            kind(computer.home / "staged.db")
            computer.remember(path=computer.database, pendingRestore=computer.home / "staged.db")
            self.expect_first_screen(computer, None)
            computer.expect_log(f"[WARN] [database] {reason}")
            assert "pendingRestore" not in computer.remembers()
            assert Database(computer.database).ask("SELECT username FROM users") == "alice"

    def a_restore_without_a_path_waits(self):
        computer = self.computer()
        self.copy_of_good(computer.home / "staged.db")
        computer.remember(pendingRestore=computer.home / "staged.db")
        self.expect_first_screen(computer, NEW)
        assert "pendingRestore" in computer.remembers()

    # Where nothing can be written

    def a_new_store_that_cannot_be_written_leaves_nothing_behind(self):
        for prepare, limit, reason in [(make_read_only, None, "Cannot open database:"),
                                       (lambda folder: None, 65536, "Database initialization failed.")]:
            screen, computer = self.screen, self.computer()
            prepare(computer.home / "Documents")
            process = self.start(computer, limit=limit)
            self.ask_for_a_new_database()
            screen.press("Done")
            # There is no way on from here but out of the program.
            screen.says("Setting up...")
            computer.expect_log(reason, "[ERROR] [database] Database initialization failed.")
            self.end(process)
            assert not list(computer.home.glob("Documents/**/Zelvan.db"))
            (computer.home / "Documents").chmod(0o755)
            self.expect_first_screen(computer, NEW)

    # What stands in the way of a new store

    def find_in_the_way(self, computer, prepare):
        """Asks for a new store where `prepare` has put a file; answers with the file's path."""
        path = computer.home / "Documents/ZelvanPOS/data/Zelvan.db"
        path.parent.mkdir(parents=True)
        prepare(path)
        self.start(computer)
        self.ask_for_a_new_database()
        self.screen.press("Done")
        self.screen.says("Database Already Exists")
        self.screen.rest()
        return path

    def a_store_in_the_way_is_used(self):
        screen, computer = self.screen, self.computer()
        path = self.find_in_the_way(computer, self.copy_of_good)
        screen.restart(lambda: screen.press("Use Existing Database"))
        screen.wait(BUTTON, "Login")
        screen.close()
        assert str(path) in computer.remembers()

    def another_file_in_the_way_is_not_used_but_the_program_restarts(self):
        screen, computer = self.screen, self.computer()
        path = self.find_in_the_way(computer, text_file)
        before = path.read_bytes()
        screen.restart(lambda: screen.press("Use Existing Database"))
        screen.says(NEW)
        screen.close()
        computer.expect_log("[WARN] [database] Database is not a Zelvan database.")
        assert path.read_bytes() == before

    def a_store_in_the_way_is_replaced_only_for_the_word(self):
        screen, computer = self.screen, self.computer()
        path = self.find_in_the_way(computer, self.copy_of_good)
        screen.press("Replace Existing Database")
        screen.type_into('To continue, type "REPLACE" below.', "REPLACE")
        screen.restart(lambda: screen.press("Replace Database"))
        # A replacement has its tables and its regional row only; without the identity the next start
        # takes it for another program's file. That is meant.
        screen.says(UNUSABLE)
        screen.close()
        assert Database(path).ask("SELECT COUNT(*) FROM users") == "0"
        assert not path.with_name("Zelvan.db.backup").exists()

    def a_lost_store_is_made_anew_at_its_place(self):
        screen, computer = self.screen, self.computer()
        computer.remember(path=computer.database)
        self.start(computer)
        screen.says(MISSING)
        screen.restart(lambda: screen.press("Create New Database Here"))
        screen.says(NO_ADMIN)
        screen.close()
        assert computer.database.is_file()

    def a_lost_store_that_cannot_be_made_anew_leaves_the_screen_as_it_is(self):
        screen, computer = self.screen, self.computer()
        computer.remember(path=computer.database)
        make_read_only(computer.database.parent)
        process = self.start(computer)
        screen.says(MISSING)
        screen.press("Create New Database Here")
        screen.says(MISSING)
        computer.expect_log("[ERROR] [database] Database initialization failed.")
        self.end(process)
        computer.database.parent.chmod(0o755)

    def a_store_that_nothing_may_be_written_beside_waits_for_better_rights(self):
        computer = self.computer()
        self.copy_of_good(computer.database)
        computer.remember(path=computer.database)
        before = computer.database.read_bytes()
        make_read_only(computer.database.parent)
        # Not even reading goes without the files beside it that SQLite makes.
        self.expect_first_screen(computer, UNUSABLE)
        computer.expect_log("[WARN] [database] Failed to check database identity:")
        assert computer.database.read_bytes() == before
        computer.database.parent.chmod(0o755)
        self.expect_first_screen(computer, None)

    def a_store_that_may_only_be_read_lets_its_people_in(self):
        computer = self.computer()
        self.copy_of_good(computer.database)
        computer.remember(path=computer.database)
        before = computer.database.read_bytes()
        computer.database.chmod(0o444)
        process = self.start(computer)
        self.log_in()
        self.end(process)
        assert computer.database.read_bytes() == before

    # What people have written

    def names_without_an_end_are_ordered_and_paid(self):
        screen, computer = self.screen, self.computer()
        dish, table, category = (each + 9999 * "n" for each in "DTC")
        self.copy_of_good(
            computer.database,
            f"INSERT INTO categories (id, category) VALUES (1, '{category}')",
            f"INSERT INTO menu (item, category_id, price, is_available, is_taxable) VALUES ('{dish}', 1, 500, 1, 1)",
            f"INSERT INTO tables (table_name, capacity, status) VALUES ('{table}', 4, 'available')",
            "INSERT OR REPLACE INTO restaurant (id, name, address, phone_number, email, website)"
            f" VALUES (1, '{10000 * 'R'}', 'Pier 1', '555', '', '')",
            f"UPDATE users SET username = '{10000 * '长'}'")
        computer.remember(path=computer.database)
        process = self.start(computer)
        self.log_in(10000 * "长")
        screen.press("Take Order")
        screen.press("Dine In")
        screen.press("Tnnn…", roles=ROW)
        screen.press("Cnnn…", roles=ROW)
        screen.press("Add", within=screen.row("Dnnn…"))
        screen.press("Place Order")
        database = Database(computer.database)
        database.expect("SELECT length(item_name), quantity FROM order_items", "10000|1")
        screen.press("Checkout")
        screen.press("#…", roles=ROW)
        screen.says("Total: $5.00")
        screen.press("Checkout", index=1)
        database.expect("SELECT status FROM order_sessions", "paid")
        database.expect("SELECT length(store_name), length(cashier_name), length(table_name) FROM receipt_snapshot",
                        "10000|10000|10000")
        self.end(process)

    # Two at once

    def a_second_program_starts_on_the_same_store(self):
        computer = self.computer()
        self.copy_of_good(computer.database)
        computer.remember(path=computer.database)
        first = self.start(computer)
        self.log_in()
        with contextlib.closing(sqlite3.connect(computer.database, isolation_level=None)) as writer:
            writer.execute("BEGIN IMMEDIATE")
            second = self.start(computer, previous=first.pid)
            self.screen.wait(BUTTON, "Login")
            writer.execute("ROLLBACK")
        assert first.poll() is None
        self.log_in()
        self.end(second)
        self.screen.attach(second.pid)
        self.screen.wait(BUTTON, "Take Order")
        self.end(first)
        assert Database(computer.database).ask("PRAGMA integrity_check") == "ok"

    def ask_for_a_new_database(self):
        self.screen.press("Create New Database")
        self.screen.says("Choose database location")
        self.screen.rest()

    def log_in(self, name="alice"):
        self.screen.type_into("Username", name)
        self.screen.type_into("Password", PASSWORD)
        self.screen.press("Login")
        self.screen.wait(BUTTON, "Take Order")

    # The whole

    def play(self):
        for step in [
            self.a_store_is_made_below_a_folder_with_an_odd_name,
            self.a_saved_path_without_a_file_is_missing,
            self.an_empty_path_is_none,
            self.a_file_that_is_no_store_is_shown_as_unusable_and_left_alone,
            self.a_file_that_may_not_be_read_is_unusable,
            self.a_store_without_an_active_admin_asks_for_one,
            self.the_stored_language_is_the_programs,
            self.a_staged_restore_replaces_the_store,
            self.a_staged_file_that_is_no_store_any_more_is_refused,
            self.a_restore_without_a_path_waits,
            self.a_new_store_that_cannot_be_written_leaves_nothing_behind,
            self.a_store_in_the_way_is_used,
            self.another_file_in_the_way_is_not_used_but_the_program_restarts,
            self.a_store_in_the_way_is_replaced_only_for_the_word,
            self.a_lost_store_is_made_anew_at_its_place,
            self.a_lost_store_that_cannot_be_made_anew_leaves_the_screen_as_it_is,
            self.a_store_that_nothing_may_be_written_beside_waits_for_better_rights,
            self.a_store_that_may_only_be_read_lets_its_people_in,
            self.names_without_an_end_are_ordered_and_paid,
            self.a_second_program_starts_on_the_same_store,
        ]:
            begin = time.monotonic()
            print(f"{step.__name__.replace('_', ' ')} ", end="", flush=True)
            step()
            print(f"({time.monotonic() - begin:.1f} s)", flush=True)


def arguments_of(pid):
    return pathlib.Path(f"/proc/{pid}/cmdline").read_bytes().count(b"\0")


def text_file(path):
    path.write_text("A shopping list: rice, tea, and a good deal of patience.\n" * 100, encoding="utf-8")


def empty_file(path):
    path.touch()


def empty_database(path):
    with contextlib.closing(sqlite3.connect(path)) as database:
        database.execute("VACUUM")


def foreign_database(path):
    with contextlib.closing(sqlite3.connect(path)) as database, database:
        database.execute("CREATE TABLE songs (title TEXT)")
        database.execute("INSERT INTO songs VALUES ('Blue Moon')")


def make_read_only(folder):
    folder.chmod(0o555)


def main(program, pictures, work):
    with window_manager():
        starts = Starts(program, pictures, work)
        try:
            starts.play()
        except BaseException:
            starts.screen.report_failure()
            for output in sorted(pathlib.Path(work).glob("*/*/output"))[-1:]:
                print(output.read_text(errors="replace")[-4000:], file=sys.stderr)
            raise
        finally:
            starts.screen.end_all()


if __name__ == "__main__":
    main(*sys.argv[1:])
