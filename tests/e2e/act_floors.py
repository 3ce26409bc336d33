# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The second act: the rooms are drawn, a table is booked, seated and paid."""
import calendar
import datetime

from patience import wait_for
from screen import BUTTON, DRAWING, ENTRY, FIELD, ROW, SPINNER
from store import PHONE, row

PLAN = ("SELECT f.name, ifnull(t.table_name, c.type), c.x, c.y, c.width, c.height, c.rotation"
        " FROM canvas_items c JOIN floors f ON f.id = c.floor_id LEFT JOIN tables t ON t.id = c.table_id"
        " ORDER BY f.id, c.id")
TABLES = ("SELECT t.table_name, t.capacity, json_extract(c.metadata, '$.table_type'), f.name, c.x, c.y"
          " FROM canvas_items c JOIN tables t ON t.id = c.table_id JOIN floors f ON f.id = c.floor_id"
          " ORDER BY t.id")
BOOKING = "SELECT customer_name, customer_phone, pax, duration_minutes, status, notes FROM reservations"


class Floors:
    def __init__(self, tour):
        self.tour = tour
        self.screen = tour.screen
        self.database = tour.database
        # Where the corner of the drawn floor lies on the screen.
        self.corner = None

    def steps(self):
        return [
            self.the_store_counts_in_ringgit,
            self.the_tables_move_to_a_floor_plan,
            self.the_hall_is_drawn,
            self.a_wall_is_lengthened_and_turned,
            self.what_was_drawn_by_mistake_is_deleted,
            self.the_plan_is_saved_with_a_key,
            self.the_terrace_is_a_floor_of_its_own,
            self.everything_is_in_its_place_after_a_restart,
            self.a_table_is_booked,
            self.an_overlapping_booking_is_refused,
            self.the_panel_shows_the_booking,
            self.an_order_seats_the_guests,
            self.the_payment_completes_the_booking,
        ]

    # The settings

    def the_store_counts_in_ringgit(self):
        screen = self.tour.log_in("alice")
        screen.press("Login")
        screen.wait(BUTTON, "Take Order")
        screen.rest()
        self.tour.open_settings("Region & Formats")
        screen.says("Region & Format Settings")
        screen.choose("App Language", "English (United States)")
        screen.choose("Currency", "RM (MYR)")
        screen.picture("settings-region")
        screen.press("Save")
        self.database.expect("SELECT locale, currency_code FROM regional_settings", "en_US|MYR")

    def the_tables_move_to_a_floor_plan(self):
        screen = self.screen
        screen.press("Tables")
        screen.says("Table Settings")
        screen.choose("Layout Mode", "Visual Floor Plan")
        screen.picture("settings-tables")
        screen.press("Save")
        self.database.expect("SELECT layout_mode FROM table_settings", "floor_plan")

    # The drawing

    def the_hall_is_drawn(self):
        screen = self.screen
        screen.press("Management")
        screen.press("Floor Plan")
        screen.wait(BUTTON, "+ New Floor")
        assert not screen.all(BUTTON, "Add Table")
        self.add_floor("Hall")
        self.add_table("H1", 4, "Square Table", 60, 60)
        self.add_table("H2", 6, "Rectangle Table", 260, 60)
        self.add_table("H3", 5, "Circle Table", 500, 60)
        screen.picture("floor-drawn")

    def add_floor(self, name):
        screen = self.screen
        screen.press("+ New Floor")
        screen.type_into("Floor Name", name)
        screen.press("Create Floor")
        screen.wait_gone(FIELD, "Floor Name")
        self.database.expect("SELECT name FROM floors ORDER BY id DESC LIMIT 1", name)
        screen.wait(BUTTON, "Add Table")

    def add_table(self, name, seats, shape, x, y):
        screen = self.screen
        screen.press("Add Table")
        screen.type_into("Table Label", name)
        screen.spin("Number Of Seats", seats)
        screen.choose("Type Of Table", shape)
        screen.press("Create Table")
        screen.wait_gone(SPINNER, "Number Of Seats")
        # The table is there at once, its place only after the save.
        self.database.expect("SELECT table_name, capacity FROM tables ORDER BY id DESC LIMIT 1", f"{name}|{seats}")
        table = screen.wait(DRAWING, name)
        if self.corner is None:
            left, top, _, _ = screen.box(table)
            self.corner = left - 100, top - 100
        screen.drag(table, self.corner[0] + x, self.corner[1] + y)

    def a_wall_is_lengthened_and_turned(self):
        screen = self.screen
        screen.press("Add Divider")
        wall = screen.wait(DRAWING, "wall")
        screen.drag(wall, self.corner[0] + 350, self.corner[1] + 320)
        left, top, width, height = screen.box(wall)
        assert (width, height) == (150, 10), (width, height)
        self.pull_handle(wall, (left + width, top + height // 2), (60, 0))
        wait_for(lambda: screen.box(wall)[2] == 210, "the longer wall")
        screen.picture("wall-lengthened")
        # A quarter turn: from above the middle to the right of it.
        self.pull_handle(wall, (left + 105, top - 16), (100, 21))
        screen.picture("wall-turned")

    def pull_handle(self, wall, start, way):
        """Holds a handle, moves it, and lets go once the wall has followed."""
        screen = self.screen
        before = screen.box(wall)
        screen.hold(*start)
        screen.move(start[0] + way[0], start[1] + way[1])
        wait_for(lambda: screen.box(wall) != before, "the wall to follow its handle")
        screen.let_go()

    def what_was_drawn_by_mistake_is_deleted(self):
        screen = self.screen
        self.add_table("Mistake", 2, "Square Table", 60, 300)
        self.delete("Mistake")
        # The table is gone at once.
        self.database.expect("SELECT count(*) FROM tables WHERE table_name = 'Mistake'", "0")
        screen.press("Add Divider")
        screen.drag(screen.wait(DRAWING, "wall", index=1), self.corner[0] + 60, self.corner[1] + 300)
        self.delete("wall", index=-1)

    def delete(self, name, index=0):
        screen = self.screen
        drawn = len(screen.all(DRAWING, name))
        screen.click_right(screen.wait(DRAWING, name, index=index))
        screen.wait(ENTRY, "Delete")
        screen.picture(f"delete-{name.lower()}")
        screen.press("Delete", roles=ENTRY)
        wait_for(lambda: len(screen.all(DRAWING, name)) == drawn - 1, f"the end of {name!r}")

    def the_plan_is_saved_with_a_key(self):
        self.database.expect("SELECT count(*) FROM canvas_items", "0")
        self.screen.keys("ctrl+s")
        self.database.expect(TABLES, "H1|4|square|Hall|60.0|60.0", "H2|6|rectangle|Hall|260.0|60.0",
                             "H3|5|circle|Hall|500.0|60.0")
        self.database.expect("SELECT x, y, width, height, round(rotation), table_id IS NULL FROM canvas_items"
                             " WHERE type = 'wall'", "350.0|320.0|210.0|10.0|90.0|1")

    def the_terrace_is_a_floor_of_its_own(self):
        screen = self.screen
        self.add_floor("Terrace")
        screen.wait_gone(DRAWING, "H1")
        self.add_table("T1", 8, "Circle Table", 200, 120)
        self.add_table("T2", 2, "Square Table", 450, 120)
        screen.keys("ctrl+s")
        self.database.expect("SELECT f.name, count(*) FROM canvas_items c JOIN floors f ON f.id = c.floor_id"
                             " GROUP BY f.id", "Hall|4", "Terrace|2")
        screen.picture("second-floor")

    def everything_is_in_its_place_after_a_restart(self):
        before = self.database.ask(PLAN)
        screen = self.tour.log_in("alice")
        screen.press("Login")
        screen.wait(BUTTON, "Takeaway")
        screen.rest()
        screen.press("Management")
        screen.press("Floor Plan")
        for floor in ("Hall", "Terrace"):
            screen.press(floor)
            places = self.database.ask(
                "SELECT t.table_name, c.x, c.y, c.width, c.height FROM canvas_items c"
                " JOIN tables t ON t.id = c.table_id JOIN floors f ON f.id = c.floor_id"
                f" WHERE f.name = '{floor}' ORDER BY c.id")
            for place in places.split("\n"):
                name, *figures = place.split("|")
                x, y, width, height = (round(float(each)) for each in figures)
                expected = self.corner[0] + x, self.corner[1] + y, width, height
                found = screen.box(screen.wait(DRAWING, name))
                assert found == expected, (name, found, expected)
            screen.picture(f"restarted-{floor.lower()}")
        # Looking at it has stored nothing.
        self.database.expect(PLAN, *before.split("\n"))

    # A booking

    def choose_table(self, name):
        self.screen.press(name)
        self.screen.wait(BUTTON, "Create Dine-In Order")

    def a_table_is_booked(self):
        screen = self.screen
        screen.press("Take Order")
        screen.wait(BUTTON, "H1")
        screen.rest()
        screen.picture("plan-free")
        self.choose_table("H1")
        screen.says("Capacity: 4")
        screen.picture("plan-table-chosen")
        screen.press("Create Reservation")
        self.fill_in_booking("Mrs. O'Neil", "555 0199")
        screen.press("Reservation Date 📅")
        screen.rest()
        screen.press(">")
        today = datetime.date.today()
        year, month = today.year + today.month // 12, today.month % 12 + 1
        day = f"15 {calendar.month_abbr[month]} {year}"
        screen.wait(BUTTON, day, enabled=True)
        screen.picture("booking-date")
        screen.press(day)
        screen.wait_gone(BUTTON, day)
        screen.picture("booking-dialog")
        screen.press("Create Reservation", index=-1)
        screen.wait_gone(FIELD, "Customer Name")
        self.database.expect(BOOKING, "Mrs. O'Neil|555 0199|2|90|booked|")
        self.database.expect("SELECT date(reservation_datetime), table_name, t.status FROM reservations r"
                             " JOIN tables t ON t.id = r.table_id", f"{year}-{month:02}-15|H1|reserved")
        screen.picture("plan-reserved")

    def fill_in_booking(self, name, phone):
        self.screen.type_into("Customer Name", name)
        self.screen.type_into("Customer Phone", phone)

    def an_overlapping_booking_is_refused(self):
        screen = self.screen
        # The panel goes on offering a booking until the table is chosen anew; the date stays as it was.
        screen.press("Create Reservation")
        self.fill_in_booking("Mr. Late", "555 0200")
        screen.press("Create Reservation", index=-1)
        screen.rest()
        screen.wait(FIELD, "Customer Name")
        self.database.expect("SELECT count(*) FROM reservations", "1")
        screen.picture("booking-refused")
        screen.press("Cancel")
        screen.wait_gone(FIELD, "Customer Name")

    def the_panel_shows_the_booking(self):
        screen = self.screen
        self.choose_table("H2")
        screen.says("Capacity: 6")
        self.choose_table("H1")
        for text in ("Reservation Details", "Customer: Mrs. O'Neil", "Phone: 555 0199", "Guests: 2",
                     "Duration: 90 mins", "Status: booked"):
            screen.says(text)
        moment = datetime.datetime.strptime(
            self.database.ask("SELECT reservation_datetime FROM reservations"), "%Y-%m-%d %H:%M:%S")
        screen.says(f"Time: {moment:%d %b %Y %I:%M %p}")
        screen.picture("panel-booking")

    def an_order_seats_the_guests(self):
        screen = self.screen
        screen.press("Create Dine-In Order")
        screen.wait(BUTTON, "Place Order")
        screen.rest()
        screen.press("Lunch", roles=ROW)
        self.tour.pick("Espresso")
        self.tour.pick("牛肉面")
        screen.says("RM16.30")
        screen.picture("order-on-the-plan")
        screen.press("Place Order")
        self.database.expect("SELECT status FROM reservations", "seated")
        self.database.expect("SELECT status FROM tables WHERE table_name = 'H1'", "occupied")
        self.database.expect("SELECT s.order_type, t.table_name, s.status, s.subtotal, s.tax, s.total"
                             " FROM order_sessions s JOIN tables t ON t.id = s.table_id WHERE s.id = 3",
                             "dine_in|H1|open|1630|134|1764")
        table = self.database.ask("SELECT id FROM tables WHERE table_name = 'H1'")
        self.tour.expect_ticket(f"Dine In | Table {table}", [row(" Espresso", "1x")])
        screen.wait(BUTTON, "H1")
        screen.picture("plan-occupied")

    def the_payment_completes_the_booking(self):
        screen = self.screen
        points = int(self.database.ask("SELECT total_points FROM memberships"))
        screen.press("Checkout")
        screen.press(f"#{self.tour.display_number(3)}", roles=ROW)
        screen.says("Total: RM17.64")
        screen.type_into("Member Phone (optional)", PHONE)
        screen.press("Check")
        screen.says(f"Current Points: {points}")
        screen.press("Checkout", index=1)
        self.database.expect("SELECT status, points_earned FROM order_sessions WHERE id = 3", "paid|17")
        self.database.expect("SELECT total_points FROM memberships", str(points + 17))
        self.database.expect("SELECT status FROM reservations", "completed")
        self.database.expect("SELECT status FROM tables WHERE table_name = 'H1'", "available")
        self.tour.paper.next()
        screen.press("Take Order")
        screen.wait(BUTTON, "H1")
        screen.picture("plan-free-again")
