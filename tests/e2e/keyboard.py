# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""A store is set up, an order taken and its bill paid by keys alone: no pointer is ever moved. Started by
`tour` beside it."""
import pathlib
import sys
import time

import pyatspi

from patience import wait_for
from screen import BUTTON, LABEL, Screen
from store import PASSWORD, Database
from tour import window_manager

PASSES = 60


class Keyboard:
    def __init__(self, program, pictures, work):
        work = pathlib.Path(work)
        self.screen = Screen(program, pictures)
        self.output = work / "program.log"
        self.database = Database(work / "home/Documents/ZelvanPOS/data/Zelvan.db")

    def focus(self):
        """The name of what the keys go to: the innermost of what says that it has the focus."""
        names = [each.get_name() for each in self.screen.walk()
                 if each.get_state_set().contains(pyatspi.STATE_FOCUSED) and each.get_name()
                 and each.get_role() != pyatspi.ROLE_FRAME]
        return names[-1] if names else ""

    def wait_focus(self, name):
        wait_for(lambda: self.focus() == name, f"the keys to go to {name!r}")

    def tab_to(self, name):
        """Presses Tab until the keys go to `name`, as somebody does who sees where they go."""
        passed = []
        for _ in range(PASSES):
            here = self.focus()
            if here == name:
                return
            passed.append(here)
            self.screen.keys("Tab")
            # Two stops of one name follow each other only in lists that are not asked for here.
            wait_for(lambda before=here: self.focus() != before, f"Tab to lead on from {here!r}")
        raise AssertionError(f"Tab led through {passed} and never to {name!r}")

    def type(self, *texts):
        """Each text, and Return after it."""
        for text in texts:
            if text:
                self.screen.write(text)
            self.screen.keys("Return")

    # The play

    def a_database_is_made(self):
        screen = self.screen
        screen.start(self.output)
        screen.says("Set up Zelvan")
        self.tab_to("Create New Database")
        screen.picture("choice")
        screen.keys("Return")
        screen.says("Choose database location")
        self.wait_focus("Done")
        screen.restart(lambda: screen.keys("Return"))

    def the_administrator_registers(self):
        screen = self.screen
        screen.says("Create your admin account")
        self.wait_focus("Username")
        self.type("alice", PASSWORD, PASSWORD)
        screen.says("Thanks for setting up Zelvan")
        self.database.expect("SELECT username FROM users", "alice")
        self.wait_focus("Name / Business (optional)")
        self.type("", "")
        screen.wait(BUTTON, "Take Order")

    def the_store_gets_its_name(self):
        self.screen.keys("ctrl+7")
        self.wait_focus("Restaurant Name")
        self.type("Golden Spoon", "12 Harbour Street", "", "", "")
        self.database.expect("SELECT name, address FROM restaurant", "Golden Spoon|12 Harbour Street")

    def the_menu_is_written(self):
        screen = self.screen
        screen.keys("ctrl+6")
        self.wait_focus("New category name")
        self.type("Lunch")
        self.database.expect("SELECT category FROM categories", "Lunch")
        self.tab_to("Lunch")
        screen.picture("category")
        screen.keys("Return")
        screen.says("Menu Items")
        self.tab_to("Item name")
        for name, price in (("Espresso", "3.50"), ("Bottled water", "2.00")):
            self.type(name, price, "")
            self.database.expect(f"SELECT price FROM menu WHERE item = '{name}'", price.replace(".", ""))
            self.wait_focus("Item name")
        screen.picture("menu")

    def a_table_is_listed(self):
        screen = self.screen
        screen.keys("alt+2")
        screen.says("Table Management")
        self.wait_focus("Table name")
        self.type("A1", "")
        self.database.expect("SELECT table_name, capacity FROM tables", "A1|6")

    def an_order_is_taken(self):
        screen = self.screen
        screen.keys("ctrl+1")
        screen.says("Current Order")
        self.tab_to("Dine In")
        screen.keys("space")
        self.tab_to("Espresso")
        screen.picture("dish")
        screen.keys("Return", "Return")
        self.tab_to("A1")
        screen.keys("space", "ctrl+Return")
        self.database.expect("SELECT item_name, quantity FROM order_items", "Espresso|2")
        self.database.expect("SELECT status FROM tables", "occupied")

    def its_bill_is_paid(self):
        screen = self.screen
        number = self.database.ask("SELECT display_number FROM order_sessions")
        screen.keys("ctrl+2")
        screen.wait(LABEL, "Recent Paid Orders")
        self.wait_focus(f"#{number}")
        screen.keys("Return")
        screen.says(f"Order #{number}")
        self.tab_to("Checkout")
        screen.picture("bill")
        screen.keys("Return")
        self.database.expect("SELECT status, total FROM order_sessions", "paid|700")

    def play(self):
        for step in (self.a_database_is_made, self.the_administrator_registers, self.the_store_gets_its_name,
                     self.the_menu_is_written, self.a_table_is_listed, self.an_order_is_taken, self.its_bill_is_paid):
            begin = time.monotonic()
            print(f"{step.__name__.replace('_', ' ')} ", end="", flush=True)
            step()
            print(f"({time.monotonic() - begin:.1f} s)", flush=True)


def main(program, pictures, work):
    with window_manager():
        keyboard = Keyboard(program, pictures, work)
        try:
            keyboard.play()
        except BaseException:
            keyboard.screen.report_failure()
            print(keyboard.output.read_text(errors="replace")[-4000:], file=sys.stderr)
            raise
        finally:
            keyboard.screen.end_all()


if __name__ == "__main__":
    main(*sys.argv[1:])
