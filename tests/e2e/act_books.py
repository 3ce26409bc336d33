# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""The third act: the day's figures and a member's history, against sums that the file itself gives."""
from patience import wait_for
from screen import LABEL, ROW

PAID = "status = 'paid' AND closed_at IS NOT NULL AND date(closed_at) = date('now')"
SOLD = ("FROM order_items i JOIN orders o ON o.id = i.order_id JOIN order_sessions s"
        " ON s.id = o.order_session_id WHERE s.status = 'paid' AND date(s.closed_at) = date('now')")


class Books:
    def __init__(self, tour):
        self.tour = tour
        self.screen = tour.screen
        self.database = tour.database

    def steps(self):
        return [
            self.the_dashboard_agrees_with_the_file,
            self.the_tax_report_agrees_with_the_file,
            self.the_members_history_is_listed,
        ]

    def money(self, expression, where=PAID):
        """A sum of cents, as the screens write it."""
        return self.database.ask(f"SELECT printf('RM%.2f', ({expression}) / 100.0) FROM order_sessions WHERE {where}")

    def page_says(self, *texts):
        wait_for(lambda: set(texts) <= set(self.screen.texts()), f"the page to say {texts}")

    def row_says(self, name, *texts):
        row = self.screen.row(name)
        wait_for(lambda: set(texts) <= set(self.screen.texts(row)), f"{name!r} to say {texts}")

    def the_dashboard_agrees_with_the_file(self):
        screen = self.screen
        screen.press("Analytics")
        self.page_says(f"Revenue Today {self.money('sum(total)')}",
                       f"Orders {self.database.ask(f'SELECT count(*) FROM order_sessions WHERE {PAID}')}",
                       f"Average Order {self.money('avg(total)')}",
                       f"Items Sold {self.database.ask(f'SELECT sum(i.quantity) {SOLD}')}")
        top = self.database.ask(f"SELECT i.item_name, sum(i.quantity) AS total_quantity {SOLD}"
                                " GROUP BY i.item_name ORDER BY total_quantity DESC LIMIT 5").split("\n")
        for place, line in enumerate(top, start=1):
            name, count = line.split("|")
            self.row_says(f"{place}. {name}", count)
        self.row_says(self.database.ask("SELECT date('now')"), self.money("sum(total)"))
        self.row_says(self.database.ask("SELECT date('now', '-6 days')"), "RM0.00")
        screen.picture("dashboard")

    def the_tax_report_agrees_with_the_file(self):
        screen = self.screen
        screen.press("Tax Reports")
        day = self.database.ask("SELECT strftime('%d/%m/%Y', 'now')")
        count = self.database.ask(f"SELECT count(*) FROM order_sessions WHERE {PAID}")
        self.page_says(f"{day} - {day}", f"Sales Before Tax {self.money('sum(subtotal)')}",
                       f"Sales Tax {self.money('sum(tax)')} 8.25%", f"Discount {self.money('sum(discount)')}",
                       f"Total Sales {self.money('sum(total)')} {count}transactions")
        self.row_says(f"{day}, …", count, self.money("sum(subtotal)"), self.money("sum(tax)"), self.money("sum(total)"))
        sessions = self.database.ask(f"SELECT id, receipt_number FROM order_sessions WHERE {PAID}").split("\n")
        for line in sessions:
            session, receipt = line.split("|")
            where = f"id = {session}"
            self.row_says(f"{receipt}, …", self.money("subtotal", where), self.money("tax", where),
                          self.money("total", where),
                          self.database.ask(f"SELECT closed_at FROM order_sessions WHERE {where}"))
        screen.picture("tax-report")

    def the_members_history_is_listed(self):
        screen = self.screen
        screen.press("Management")
        screen.press("Members")
        phone, points = self.database.ask("SELECT phone_number, total_points FROM memberships").split("|")
        self.row_says(phone, points, "active")
        screen.picture("members")
        screen.press(phone, roles=ROW)
        screen.says(f"Member Phone: {phone}")
        screen.says(f"Points: {points}")
        history = self.database.ask(
            "SELECT t.type, t.points, s.display_number, strftime('%d/%m/%Y %H:%M', t.created_at)"
            " FROM membership_transactions t JOIN order_sessions s ON s.id = t.order_session_id").split("\n")
        for line in history:
            kind, moved, number, moment = line.split("|")
            sign = "-" if kind == "redeem" else "+"
            self.row_says(f"{kind.capitalize()} {sign}{moved}", kind.capitalize(), f"{sign}{moved}",
                          f"#{number}", moment)
        screen.picture("member-history")
        screen.keys("Escape")
        screen.wait_gone(LABEL, f"Member Phone: {phone}")
