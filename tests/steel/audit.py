# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""Looks at a store from outside the program: is it whole, and is what the user was told true?"""
import hashlib
import pathlib
import sqlite3

MIGRATIONS = 21

# Each answers the rows that must not be; what a payment leaves is one piece or nothing.
TORN = {
    "paid without number, time or receipt": """
        SELECT s.id FROM order_sessions s
        WHERE s.status = 'paid' AND (COALESCE(s.receipt_number, '') = '' OR s.closed_at IS NULL
            OR (SELECT COUNT(*) FROM receipt_snapshot r WHERE r.order_session_id = s.id) <> 1)""",
    "paid with figures that are not those of its lines": """
        SELECT s.id FROM order_sessions s
        LEFT JOIN (SELECT o.order_session_id AS id, SUM(i.quantity * i.price) AS sum
                   FROM orders o JOIN order_items i ON i.order_id = o.id
                   GROUP BY o.order_session_id) l ON l.id = s.id
        WHERE s.status = 'paid'
            AND (s.subtotal <> COALESCE(l.sum, 0) OR s.total <> MAX(0, s.subtotal + s.tax - s.discount))""",
    "paid with an order or a line that is not served": """
        SELECT s.id FROM order_sessions s JOIN orders o ON o.order_session_id = s.id
        LEFT JOIN order_items i ON i.order_id = o.id
        WHERE s.status = 'paid' AND (o.status <> 'served' OR i.item_status <> 'served')""",
    "points on the bill that are not those of its movements": """
        SELECT s.id FROM order_sessions s
        LEFT JOIN (SELECT order_session_id AS id, SUM(points * (type = 'earn')) AS earned,
                          SUM(points * (type = 'redeem')) AS redeemed
                   FROM membership_transactions GROUP BY order_session_id) m ON m.id = s.id
        WHERE s.points_earned <> COALESCE(m.earned, 0) OR s.points_redeemed <> COALESCE(m.redeemed, 0)""",
    "open with parts of a payment": """
        SELECT s.id FROM order_sessions s
        WHERE s.status <> 'paid' AND (COALESCE(s.receipt_number, '') <> '' OR s.closed_at IS NOT NULL
            OR EXISTS (SELECT 1 FROM receipt_snapshot r WHERE r.order_session_id = s.id)
            OR EXISTS (SELECT 1 FROM membership_transactions m WHERE m.order_session_id = s.id))""",
    "points that are not the sum of their movements": """
        SELECT m.id FROM memberships m
        WHERE m.total_points <> COALESCE((SELECT SUM(CASE t.type WHEN 'earn' THEN t.points
            ELSE -t.points END) FROM membership_transactions t WHERE t.membership_id = m.id), 0)""",
}


class Store:
    """One connection for as long as an audit lasts. Opened for writing, as the program would: what a
    log still holds is played in."""

    def __init__(self, path):
        self.path = pathlib.Path(path)
        self.connection = sqlite3.connect(f"file:{self.path}?mode=rw", uri=True, timeout=20)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.connection.close()

    def rows(self, sql, *values):
        return self.connection.execute(sql, values).fetchall()

    def one(self, sql, *values):
        return self.rows(sql, *values)[0][0]

    def faults(self):
        """Every fault of the file and of what is in it, as a text each."""
        integrity = self.rows("PRAGMA integrity_check")
        if integrity != [("ok",)]:
            return [f"integrity: {integrity[:3]}"]
        found = [f"foreign key: {row}" for row in self.rows("PRAGMA foreign_key_check")[:3]]
        for name, sql in TORN.items():
            found += [f"{name}: {row[0]}" for row in self.rows(sql)[:3]]
        return found + self.number_faults()

    def number_faults(self):
        """Numbers run from 0 without gap or repeat, and the counter stands behind the last."""
        numbers = sorted(int(row[0].rpartition("-")[2]) for row in self.rows(
            "SELECT receipt_number FROM order_sessions WHERE status = 'paid' AND receipt_number LIKE '%-%'"))
        if numbers != list(range(len(numbers))):
            odd = [number for at, number in enumerate(numbers) if at != number]
            return [f"receipt numbers have a gap or a repeat at {odd[0]} of {len(numbers)}"]
        counter = int(self.one("SELECT value FROM app_state WHERE key = 'receipt.counter'"))
        return [] if counter == len(numbers) else [f"counter {counter} after {len(numbers)} receipts"]

    def status(self, session):
        found = self.rows("SELECT status FROM order_sessions WHERE id = ?", session)
        return found[0][0] if found else None


def whole(path):
    """The faults of the store at the path; a store that cannot be read is one."""
    try:
        with Store(path) as store:
            if store.one("SELECT COUNT(*) FROM applied_migrations") != MIGRATIONS:
                return ["not every table is there"]
            return store.faults()
    except (sqlite3.Error, OSError) as error:
        return [f"{type(error).__name__}: {error}"]


def content(path):
    """Everything that is in a store, None for one that cannot be read."""
    try:
        with Store(path) as store:
            return hashlib.sha256("\n".join(store.connection.iterdump()).encode()).hexdigest()
    except (sqlite3.Error, OSError):
        return None


class Words:
    """What a trading till has told its user about each bill."""

    def __init__(self, lines):
        self.orders = {}
        self.bills = {}
        for line in lines:
            word, _, rest = line.partition(" ")
            if word == "ordered":
                order, session, count = map(int, rest.split())
                self.orders[order] = (session, count)
            elif word in ("paying", "paid", "refused"):
                # What was paid once stays so, also when a second press of the button is refused.
                if self.bills.get(int(rest)) != "paid":
                    self.bills[int(rest)] = word

    @property
    def paid(self):
        return sum(word == "paid" for word in self.bills.values())

    def lost(self, store):
        """Acknowledged and not there."""
        for order, (session, count) in self.orders.items():
            found = store.rows("SELECT o.order_session_id, COUNT(i.id) FROM orders o LEFT JOIN order_items i "
                               "ON i.order_id = o.id WHERE o.id = ? GROUP BY o.id", order)
            if len(found) != 1 or found[0][0] != session or found[0][1] < count:
                yield f"order {order} of bill {session} with {count} lines is {found}"
        for session, word in self.bills.items():
            if word == "paid" and store.status(session) != "paid":
                yield f"bill {session} was acknowledged as paid and is {store.status(session)}"

    def untrue(self, store):
        """Refused, and paid all the same."""
        for session, word in self.bills.items():
            if word == "refused" and store.status(session) != "open":
                yield f"bill {session} was refused and is {store.status(session)}"
