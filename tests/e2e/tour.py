# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""A store's first day, from the empty computer to the reprinted receipt, and the acts that follow. Started by
`tour` beside it."""
import contextlib
import os
import pathlib
import re
import subprocess
import sys
import time

from act_books import Books
from act_chinese import Chinese
from act_floors import Floors
from patience import Impatient, wait_for
from screen import BUTTON, FIELD, LABEL, MENU_ENTRY, RADIO, ROW, Screen
from store import PASSWORD, PHONE, Database, Paper, receipt, row, without_commands

SUPPORT = pathlib.Path(__file__).resolve().parents[1] / "support"

# What the log may hold beside its news.
ANNOUNCED = (
    # A set-up run has no database, and its services ask for their rows all the same.
    r"QSqlQuery::prepare: database not open",
    r"Driver not loaded",
    # The cashier's page forgets a paid session, and its handler looks at it once more.
    r"Checkout\.qml:\d+: TypeError",
    # The bus asks newer Qt for what it never had, and for what has left the screen by then.
    r"\[qt\.accessibility\.atspi\] .*GetApplicationBusAddress",
    r"\[qt\.accessibility\.atspi\] Could not find accessible on path:",
)


class Tour:
    noodles = "牛肉面"

    def __init__(self, program, pictures, work):
        self.work = pathlib.Path(work)
        self.screen = Screen(program, pictures)
        self.output = self.work / "program.log"
        self.folder = self.work / "home/Documents/ZelvanPOS/data"
        self.database = Database(self.folder / "Zelvan.db")
        self.paper = Paper(self.work / "paper")

    # The first run

    def the_first_start_asks_for_a_database(self):
        self.screen.start(self.output)
        self.screen.says("Set up Zelvan")
        self.screen.picture("first-start")

    def a_database_is_made_in_a_folder_that_is_not_there_yet(self):
        screen = self.screen
        assert not self.folder.exists()
        screen.press("Create New Database")
        screen.says("Choose database location")
        screen.picture("choose-location")
        screen.restart(lambda: screen.press("Done"))
        self.database.expect("SELECT value FROM app_state WHERE key = 'app.id'", "com.zelvan.pos")
        self.database.expect("SELECT count(*) FROM applied_migrations", "21")
        self.database.expect("SELECT count(*) FROM users", "0")

    def the_first_admin_registers_and_skips_the_sign_up(self):
        screen = self.screen
        screen.says("Create your admin account")
        screen.type_into("Username", "alice")
        screen.type_into("Password", PASSWORD)
        screen.type_into("Confirm password", PASSWORD)
        screen.picture("first-admin")
        self.expect_menu("Username", "Cut", "Copy", "Paste", "Select All")
        self.expect_menu("Password", "Paste", "Select All")
        screen.press("Register")
        screen.says("Thanks for setting up Zelvan")
        self.database.expect("SELECT username, role, deactivated_at IS NULL FROM users", "alice|admin|1")
        assert self.database.ask("SELECT password FROM users").startswith("$argon2id$")
        screen.picture("sign-up")
        screen.press("Skip for now")
        screen.wait(BUTTON, "Take Order")
        screen.picture("admin-home")

    def expect_menu(self, field, *entries):
        """A right click offers these, in one menu, which Escape closes."""
        screen = self.screen

        def offered():
            return [each.get_name() for each in screen.all(MENU_ENTRY, "…")]
        screen.click_right(screen.wait(FIELD, field))
        wait_for(lambda: screen.all(MENU_ENTRY, entries[-1]), f"the menu of {field!r}")
        screen.rest()
        assert offered() == list(entries), offered()
        screen.picture(f"menu-of-{field.lower()}")
        screen.keys("Escape")
        wait_for(lambda: not offered(), f"the end of the menu of {field!r}")

    # The store

    def open_settings(self, page):
        self.screen.press("Settings")
        self.screen.press(page)

    def the_store_gets_its_name(self):
        screen = self.screen
        self.open_settings("Restaurant")
        screen.says("Restaurant Settings")
        screen.type_into("Restaurant Name", "Golden Spoon")
        screen.type_into("Address", "12 Harbour Street")
        screen.type_into("Phone Number (optional)", "555 0100")
        screen.picture("settings-restaurant")
        screen.press("Save")
        self.database.expect("SELECT name, address, phone_number FROM restaurant",
                             "Golden Spoon|12 Harbour Street|555 0100")

    def the_tax_is_eight_and_a_quarter_per_cent(self):
        screen = self.screen
        screen.press("Tax")
        screen.says("Tax Settings")
        screen.switch("Enable Tax")
        screen.type_into("Tax Name", "Sales Tax")
        screen.type_into("Tax Rate (%)", "8.25")
        screen.type_into("Registration Number", "ST-4711")
        screen.picture("settings-tax")
        screen.press("Save")
        self.database.expect("SELECT enabled, name, rate, registration_number FROM tax_settings",
                             "1|Sales Tax|825|ST-4711")

    def the_kitchen_gets_a_board_and_tickets(self):
        screen = self.screen
        screen.press("Kitchen", index=1)
        screen.says("Kitchen Settings")
        screen.choose("Kitchen Mode", "KDS + ticket printing")
        screen.choose("Print Ticket When", "Order is created")
        screen.picture("settings-kitchen")
        screen.press("Save")
        self.database.expect("SELECT mode, ticket_print_timing FROM kitchen_settings",
                             "hybrid|order_created")

    def members_collect_points(self):
        screen = self.screen
        screen.press("Membership")
        screen.says("Membership Settings")
        screen.switch("Enable Points Loyalty")
        screen.type_into("Earn", "1")
        screen.type_into("point(s) for every…", "1.00")
        screen.type_into("Redemption", "10")
        screen.type_into("points = …", "1.00")
        screen.picture("settings-membership")
        screen.press("Save")
        self.database.expect(
            "SELECT enabled, earn_points, earn_spend, redeem_points, redeem_value, earn_on"
            " FROM membership_settings", "1|1|100|10|100|total")

    def a_printer_prints_receipts_and_tickets(self):
        screen = self.screen
        screen.press("Printer")
        screen.says("Printing")
        screen.press("+ Add Printer")
        screen.press("TM88", roles=RADIO)
        screen.choose("Role", "Receipt + Kitchen Ticket")
        screen.choose("Paper Width", "58 mm")
        screen.choose("Cut Mode", "Partial Cut")
        screen.press("Test Printer")
        screen.says("Success")
        screen.picture("printer-dialog")
        page = self.paper.next()
        assert page.startswith(b"\x1b@") and b"\x1bd\x03\x1dV\x01" in page, page
        screen.press("Add Printer")
        screen.wait(ROW, "TM88")
        screen.picture("settings-printers")
        self.database.expect("SELECT system_name, role, paper_width, cut_mode FROM printers",
                             "TM88|both|58|partial")

    # What is sold and where

    def the_menu_is_written(self):
        screen = self.screen
        screen.press("Management")
        screen.press("Menu")
        screen.type_into("New category name", "Lunch")
        screen.press("Add Category")
        self.database.expect("SELECT category FROM categories", "Lunch")
        screen.press("Lunch", roles=ROW)
        screen.says("Menu Items")
        self.add_item("Espresso", "3.50")
        self.add_item(self.noodles, "12.80", portion="Large")
        self.add_item("Bottled water", "2.00", taxable=False)
        self.add_item("Truffle pasta", "24.00", available=False)
        screen.picture("menu")
        self.database.expect(
            "SELECT item, price, ifnull(portion_size, ''), is_available, is_taxable FROM menu ORDER BY id",
            "Espresso|350||1|1", f"{self.noodles}|1280|Large|1|1", "Bottled water|200||1|0",
            "Truffle pasta|2400||0|1")

    def add_item(self, name, price, portion="", available=True, taxable=True):
        screen = self.screen
        screen.type_into("Item name", name)
        screen.type_into("Price", price)
        if portion:
            screen.type_into("Portion (optional)", portion)
        rows = len(screen.all(ROW, "…"))
        # The form's boxes come after those of the rows.
        screen.switch("Available", available, index=-1)
        screen.switch("Taxable", taxable, index=-1)
        screen.press("Add Menu Item")
        screen.wait(ROW, name)
        wait_for(lambda: len(screen.all(ROW, "…")) == rows + 1, "one row more")

    def the_tables_are_listed(self):
        screen = self.screen
        screen.press("Table")
        screen.says("Table Management")
        for name in ("A1", "A2"):
            screen.type_into("Table name", name)
            screen.press("Add Table")
            screen.wait(ROW, name)
        screen.picture("tables")
        # The first one takes the form's six seats; the form offers four from then on.
        self.database.expect("SELECT id, table_name, capacity, status FROM tables ORDER BY id",
                             "1|A1|6|available", "2|A2|4|available")

    def a_waiter_is_hired(self):
        screen = self.screen
        screen.press("User")
        screen.says("User Management")
        screen.press("Create User")
        screen.type_into("Username", "wendy")
        screen.type_into("Password", PASSWORD)
        screen.type_into("Confirm Password", PASSWORD)
        screen.choose("Role", "Service Staff")
        screen.picture("user-dialog")
        screen.press("Create")
        screen.wait(ROW, "wendy")
        self.database.expect("SELECT role FROM users WHERE username = 'wendy'", "Service Staff")
        # The words of the first dialog open no home; the second one gives the role that does.
        screen.press("Edit", within=screen.row("wendy"))
        screen.wait(FIELD, "Username")
        screen.choose("Role", "service_staff")
        screen.press("Save")
        self.database.expect("SELECT username, role, deactivated_at IS NULL FROM users ORDER BY id",
                             "alice|admin|1", "wendy|service_staff|1")
        screen.wait_gone(FIELD, "Username")
        screen.picture("users")

    # Service

    def log_in(self, name):
        screen = self.screen
        screen.close()
        screen.start(self.output)
        screen.type_into("Username", name)
        screen.type_into("Password", PASSWORD)
        return screen

    def the_waiter_logs_in(self):
        screen = self.log_in("wendy")
        screen.type_into("Password", "wrong")
        screen.press("Login")
        screen.says("Invalid username or password.")
        screen.picture("login-refused")
        screen.type_into("Password", PASSWORD)
        screen.press("Login")
        screen.wait(BUTTON, "Dine In")
        assert not screen.all(BUTTON, "Settings")
        screen.picture("waiter-home")

    def pick(self, item, times=1):
        for _ in range(times):
            self.screen.press("Add", within=self.screen.row(item))

    def a_dine_in_order_is_taken(self):
        screen = self.screen
        screen.press("Lunch", roles=ROW)
        # What is not available stays out: the lines stored below are all there are.
        screen.click(screen.wait(BUTTON, "Add", within=screen.row("Truffle pasta")))
        screen.press("Dine In")
        screen.press("A1", roles=ROW)
        self.pick("Espresso", times=2)
        self.pick(self.noodles)
        screen.type_into("Add a remark", "no coriander", index=1)
        screen.says("$19.80")
        screen.picture("order-dine-in")
        screen.press("Place Order")
        self.database.expect("SELECT status FROM tables WHERE id = 1", "occupied")
        self.database.expect("SELECT order_type, table_id, status, subtotal, tax, total FROM order_sessions",
                             "dine_in|1|open|1980|163|2143")
        self.database.expect("SELECT item_name, quantity, price, ifnull(notes, '') FROM order_items ORDER BY id",
                             "Espresso|2|350|", f"{self.noodles}|1|1280|no coriander")
        self.expect_ticket("Dine In | Table 1", [row(" Espresso", "2x"), b"",
                                                  row(f" {self.noodles} (Large)", "1x"), b"  - no coriander"])

    def expect_ticket(self, service, lines):
        ticket = self.paper.next()
        assert ticket.startswith(b"\x1b@\x1ba\x01\x1bE\x01Order #"), ticket
        assert ticket.endswith(b"\n\n\n\x1bd\x03\x1dV\x01\n\n"), ticket
        plain = without_commands(ticket).splitlines()
        assert service.encode() in plain, plain
        for line in lines:
            assert line in plain, (line, plain)

    def a_second_order_joins_the_table(self):
        screen = self.screen
        screen.press("Dine In")
        screen.press("A1", roles=ROW)
        self.pick("Bottled water")
        screen.press("Place Order")
        self.database.expect("SELECT count(*) FROM order_sessions", "1")
        self.database.expect("SELECT count(*) FROM orders WHERE order_session_id = 1", "2")
        # Water is not taxable: the tax stays, the sums grow.
        self.database.expect("SELECT subtotal, tax, total FROM order_sessions", "2180|163|2343")
        self.expect_ticket("Dine In | Table 1", [row(" Bottled water", "1x")])

    def the_kitchen_cooks_and_serves(self):
        screen = self.screen
        screen.press("Kitchen")
        screen.wait(BUTTON, "START", index=1)
        screen.picture("kitchen-new")
        for before, after, state in (("START", "MARK READY", "in_progress"),
                                     ("MARK READY", "SERVE", "ready")):
            self.press_all(before)
            screen.wait(BUTTON, after, index=1)
            self.database.expect("SELECT DISTINCT status FROM orders", state)
            screen.picture(f"kitchen-{state.replace('_', '-')}")
        self.press_all("SERVE")
        self.database.expect("SELECT DISTINCT status FROM orders", "served")
        self.database.expect("SELECT DISTINCT item_status FROM order_items", "served")

    def press_all(self, name):
        """Presses the button of each card of a column, one after the other. A press right after a card has left is
        not taken, since it may have been meant for that one: then it is made again."""
        screen = self.screen
        left = len(screen.all(BUTTON, name))
        for _ in range(5 * left):
            screen.press(name)
            try:
                wait_for(lambda: len(screen.all(BUTTON, name)) < left, f"a card less with {name}", seconds=3)
            except Impatient:
                continue
            left -= 1
            if left == 0:
                return
        raise AssertionError(f"{left} cards with {name} were not to be moved")

    def a_takeaway_is_ordered(self):
        screen = self.screen
        screen.press("Take Order")
        screen.press("Takeaway")
        screen.press("Lunch", roles=ROW)
        self.pick("Espresso")
        screen.press("+", within=screen.row("Espresso", index=1))
        self.pick("Bottled water")
        screen.says("$9.00")
        screen.picture("order-takeaway")
        screen.press("Place Order")
        self.database.expect("SELECT order_type, ifnull(table_id, 'none'), subtotal, tax, total"
                             " FROM order_sessions WHERE id = 2", "takeaway|none|900|57|957")
        self.expect_ticket("TAKEAWAY", [row(" Espresso", "2x"), row(" Bottled water", "1x")])

    # The till

    def the_table_pays_and_becomes_a_member(self):
        screen = self.screen
        screen.press("Checkout")
        screen.picture("checkout-sessions")
        screen.press(f"#{self.display_number(1)}", roles=ROW)
        screen.says("Total: $23.43")
        screen.type_into("Member Phone (optional)", PHONE)
        screen.press("Check")
        screen.says("New member will be created")
        screen.says("Points to Earn: +23")
        screen.picture("checkout-new-member")
        screen.press("Checkout", index=1)
        self.database.expect("SELECT status, receipt_number, points_earned, total, closed_at IS NOT NULL"
                             " FROM order_sessions WHERE id = 1", f"paid|{receipt(0)}|23|2343|1")
        self.database.expect("SELECT phone_number, total_points, status FROM memberships", f"{PHONE}|23|active")
        self.database.expect("SELECT type, points FROM membership_transactions", "earn|23")
        self.database.expect("SELECT status FROM tables WHERE id = 1", "available")
        self.database.expect("SELECT cashier_name, store_name, tax_name, tax_rate, member_phone, table_name,"
                             " points_balance_before, points_balance_after FROM receipt_snapshot",
                             f"wendy|Golden Spoon|Sales Tax|825|{PHONE}|A1|0|23")

    def the_receipt_comes_out(self):
        self.expect_receipt(reprint=False)

    def expect_receipt(self, reprint):
        paper = self.paper.next()
        assert paper.startswith(b"\x1b@\x1ba\x01\x1bE\x01Golden Spoon\n\x1bE\x00 12 Harbour Street\n"), paper
        assert paper.endswith(b"\x1ba\x01Thank you!\n\n\n\x1bd\x03\x1dV\x01\n\n"), paper
        dashes = b"-" * 32
        stamp = rb"[^\n]+ \d\d:\d\d:\d\d"
        moment = rb"Sale: " + stamp + rb"\nReprint: " + stamp if reprint else rb"Date: " + stamp
        expected = [re.escape(line) for line in (
            b"Golden Spoon", b" 12 Harbour Street", b"Tel: 555 0100", b"Sales Tax Reg. No.: ST-4711", b"",
            dashes, f"Receipt #: {receipt(0)}".encode(), b"Cashier: wendy",
            f"Order #: {self.display_number(1)}".encode(), b"Order Type: Dine In", b"Table: A1")]
        expected.append(moment)
        expected += [re.escape(line) for line in (
            dashes, row("1 x Bottled water", "2.00"), b"   @ 2.00", row("2 x Espresso", "7.00"),
            b"   @ 3.50", row(f"1 x {self.noodles} (Large)", "12.80"), b"   @ 12.80", dashes,
            b"Subtotal: 21.80", b"Tax (Sales Tax 8.25%): 1.63", b"Discount: 0", b"Total: 23.43", b"",
            dashes, b"Balance Before: 0", b"Points Earned: +23", b"Balance After: 23", dashes, b"",
            b"Thank you!", b"", b"", b"", b"")]
        plain = without_commands(paper)
        assert re.fullmatch(b"\n".join(expected) + b"\n?", plain), plain.decode()

    def display_number(self, session):
        return self.database.ask(f"SELECT display_number FROM order_sessions WHERE id = {session}")

    def the_receipt_is_printed_again(self):
        screen = self.screen
        recent = wait_for(lambda: screen.all(ROW, f"#{self.display_number(1)}")[-1:], "the paid order")
        screen.click(recent[0])
        screen.wait(BUTTON, "Reprint Receipt")
        screen.picture("checkout-reprint")
        before = self.database.ask("SELECT * FROM order_sessions; SELECT * FROM receipt_snapshot")
        screen.press("Reprint Receipt")
        self.expect_receipt(reprint=True)
        self.database.expect("SELECT * FROM order_sessions; SELECT * FROM receipt_snapshot",
                             *before.split("\n"))

    def the_second_bill_redeems_the_points(self):
        screen = self.screen
        screen.press(f"#{self.display_number(2)}", roles=ROW)
        screen.says("Total: $9.57")
        screen.type_into("Member Phone (optional)", PHONE)
        screen.press("Check")
        screen.says("Current Points: 23")
        screen.press("Redeem All")
        screen.says("Discount: -$2.30")
        screen.says("Total: $7.27")
        screen.picture("checkout-redeem")
        screen.press("Checkout", index=1)
        self.database.expect("SELECT status, receipt_number, discount, total, points_redeemed, points_earned"
                             " FROM order_sessions WHERE id = 2", f"paid|{receipt(1)}|230|727|23|7")
        self.database.expect("SELECT total_points FROM memberships", "7")
        self.database.expect("SELECT type, points FROM membership_transactions WHERE order_session_id = 2"
                             " ORDER BY id", "redeem|23", "earn|7")
        plain = without_commands(self.paper.next()).splitlines()
        for line in (b"Order Type: takeaway", b"Discount: -2.30", b"Total: 7.27", b"Balance Before: 23",
                     b"Points Redeemed: -23", b"Points Earned: +7", b"Balance After: 7"):
            assert line in plain, (line, plain)
        self.paper.expect_nothing_more()

    # The file

    def the_database_is_backed_up(self):
        screen = self.log_in("alice")
        screen.press("Login")
        screen.wait(BUTTON, "Take Order")
        screen.rest()
        self.open_settings("Database")
        screen.says("Database Settings")
        screen.press("Backup Database")
        screen.says("Database backup created successfully.")
        screen.picture("settings-database")
        backups = list((self.folder / "backups").glob("*.db"))
        assert len(backups) == 1, backups
        self.backup = backups[0]
        assert Database(self.backup).ask("SELECT count(*) FROM order_sessions WHERE status = 'paid'") == "2"
        assert Database(self.backup).ask("PRAGMA integrity_check") == "ok"

    def what_came_after_the_backup_is_gone_after_its_restore(self):
        screen = self.screen
        screen.press("Management")
        screen.press("Table")
        screen.type_into("Table name", "Z9")
        screen.press("Add Table")
        self.database.expect("SELECT count(*) FROM tables WHERE table_name = 'Z9'", "1")
        self.open_settings("Database")
        screen.press("Restore Database")
        self.choose_file(self.backup)
        screen.says("Make sure you selected the correct restore file.")
        screen.picture("restore-dialog")
        screen.restart(lambda: screen.press("Restore"))
        screen.wait(BUTTON, "Login")
        self.database.expect("SELECT count(*) FROM tables WHERE table_name = 'Z9'", "0")
        self.database.expect("SELECT count(*) FROM order_sessions WHERE status = 'paid'", "2")

    def the_log_holds_no_surprise(self):
        logs = sorted((self.work / "data/Zelvan/ZelvanPOS/logs").glob("*.log"))
        lines = [line for log in logs for line in log.read_text(encoding="utf-8").splitlines()]
        assert any("[INFO] [default] Logging initialized." in line for line in lines), logs
        loud = [line for line in lines if re.search(r"\[(WARN|ERROR|FATAL)\]", line)]
        surprises = [line for line in loud if not any(re.search(each, line) for each in ANNOUNCED)]
        assert not surprises, "\n".join(surprises)

    def choose_file(self, path):
        """Takes a file in the dialog that the program brings along where the desktop has none. It opens in the
        file's folder."""
        screen = self.screen
        screen.rest()
        screen.click(screen.wait(LABEL | ROW, path.name))
        screen.press("Open")

    # The whole

    def first_day(self):
        """From the empty computer to the first bill that is paid."""
        return [
            self.the_first_start_asks_for_a_database,
            self.a_database_is_made_in_a_folder_that_is_not_there_yet,
            self.the_first_admin_registers_and_skips_the_sign_up,
            self.the_store_gets_its_name,
            self.the_tax_is_eight_and_a_quarter_per_cent,
            self.the_kitchen_gets_a_board_and_tickets,
            self.members_collect_points,
            self.a_printer_prints_receipts_and_tickets,
            self.the_menu_is_written,
            self.the_tables_are_listed,
            self.a_waiter_is_hired,
            self.the_waiter_logs_in,
            self.a_dine_in_order_is_taken,
            self.a_second_order_joins_the_table,
            self.the_kitchen_cooks_and_serves,
            self.a_takeaway_is_ordered,
            self.the_table_pays_and_becomes_a_member,
            self.the_receipt_comes_out,
        ]

    def steps(self):
        return [
            *self.first_day(),
            self.the_receipt_is_printed_again,
            self.the_second_bill_redeems_the_points,
            self.the_database_is_backed_up,
            self.what_came_after_the_backup_is_gone_after_its_restore,
            *Floors(self).steps(),
            *Books(self).steps(),
            *Chinese(self).steps(),
        ]

    def play(self):
        for step in [*self.steps(), self.the_log_holds_no_surprise]:
            begin = time.monotonic()
            print(f"{step.__name__.replace('_', ' ')} ", end="", flush=True)
            step()
            print(f"({time.monotonic() - begin:.1f} s)", flush=True)


@contextlib.contextmanager
def window_manager():
    # A window that wants to be shown while the manager is still starting stays hidden for good. What the
    # manager is told to run at its start, it runs once it has looked at all windows.
    ready = pathlib.Path(os.environ["XDG_RUNTIME_DIR"], "window-manager-is-ready")
    ready.unlink(missing_ok=True)
    manager = subprocess.Popen(["openbox", "--startup", f"touch {ready}"], stdin=subprocess.DEVNULL,
                               stdout=subprocess.DEVNULL)

    def manages():
        assert manager.poll() is None, f"the window manager ended with {manager.returncode}"
        return ready.exists()

    try:
        wait_for(manages, "the window manager")
        yield
    finally:
        manager.terminate()
        manager.wait(timeout=20)


@contextlib.contextmanager
def printer(work):
    """A thermal printer behind a print server of its own, as the queue TM88."""
    cups = str(SUPPORT / "private_cups.py")
    listener = subprocess.Popen([sys.executable, str(SUPPORT / "thermal_printer.py"), str(work / "paper")],
                                stdout=subprocess.PIPE, text=True)
    try:
        port = listener.stdout.readline().strip()
        socket = subprocess.run([sys.executable, cups, "start", str(work / "cups")], check=True,
                                stdout=subprocess.PIPE, text=True).stdout.strip()
        try:
            os.environ["CUPS_SERVER"] = socket
            subprocess.run([sys.executable, cups, "add", str(work / "cups"), "TM88", port], check=True)
            yield
        finally:
            subprocess.run([sys.executable, cups, "stop", str(work / "cups")], check=True)
    finally:
        listener.terminate()
        listener.wait(timeout=20)


def main(program, pictures, work, desktop=window_manager, kind=Tour):
    with printer(pathlib.Path(work)), desktop():
        tour = kind(program, pictures, work)
        try:
            tour.play()
        except BaseException:
            tour.screen.report_failure()
            print(tour.output.read_text(errors="replace")[-4000:], file=sys.stderr)
            raise
        finally:
            tour.screen.end_all()


if __name__ == "__main__":
    main(*sys.argv[1:])
