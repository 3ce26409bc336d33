# SPDX-FileCopyrightText: 2026 The Zelvan POS developers
# SPDX-License-Identifier: GPL-3.0-only
"""Database files that mean harm, or have come to it. Each is made from a good store.

A maker gets the path of a copy of that store and spoils it. The second word says what the till has to
answer: "bad" for a file that it must refuse, "good" for one that it must take and work on.
"""
import os
import pathlib
import random
import sqlite3

ENDLESS = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) "


def sql(*statements, text=None):
    def make(path):
        with sqlite3.connect(path) as store:
            for statement in statements:
                store.execute(statement)
        store.close()
    return make


def schema(name, text):
    """The stored text of a table, without a look at whether it can be."""
    def make(path):
        store = sqlite3.connect(path)
        store.execute("PRAGMA writable_schema = ON")
        store.execute("UPDATE sqlite_master SET sql = ? WHERE name = ?", (text, name))
        store.commit()
        store.close()
    return make


def cut(size):
    def make(path):
        whole = os.path.getsize(path)
        os.truncate(path, size if size >= 0 else whole + size)
    return make


def half(path):
    os.truncate(path, os.path.getsize(path) // 2)


def at(offset, data):
    def make(path):
        with open(path, "r+b") as file:
            file.seek(offset)
            file.write(data)
    return make


def page(number, content):
    return at((number - 1) * 4096, content)


def noise(count, seed=5):
    return random.Random(seed).randbytes(count)


def instead(data):
    return lambda path: pathlib.Path(path).write_bytes(data)


def folder(path):
    os.unlink(path)
    os.mkdir(path)


def loop(path):
    os.unlink(path)
    os.symlink(path, path)


def pipe(path):
    os.unlink(path)
    os.mkfifo(path)


def beside(ending, data):
    return lambda path: pathlib.Path(f"{path}{ending}").write_bytes(data)


def rebuilt(*pragmas):
    def make(path):
        store = sqlite3.connect(path)
        for pragma in ("journal_mode = DELETE", *pragmas):
            store.execute(f"PRAGMA {pragma}")
        store.execute("VACUUM")
        store.close()
    return make


def as_utf16(path):
    """The same store in the other encoding."""
    old = sqlite3.connect(path)
    dump = "\n".join(line for line in old.iterdump() if "sqlite_sequence" not in line)
    old.close()
    os.unlink(path)
    new = sqlite3.connect(path)
    new.execute("PRAGMA encoding = 'UTF-16le'")
    new.executescript(dump)
    new.close()


def instead_of_table(name, view):
    return sql(f"ALTER TABLE {name} RENAME TO old_{name}", f"CREATE VIEW {name} AS {view}")


FILES = {
    # Cut short
    **{f"cut to {size} bytes": ("bad", cut(size))
       for size in (0, 1, 15, 16, 50, 99, 100, 512, 1024, 4095, 4096, 4097, 8192, -4096)},
    "cut by half": ("bad", half),
    # Pages that went
    **{f"page {number} zeroed": ("bad", page(number, bytes(4096))) for number in (1, 2, 3, 4, 6, 9, 12)},
    **{f"page {number} of noise": ("bad", page(number, noise(4096))) for number in (1, 2, 3, 5, 8, 11)},
    # Heads
    "another magic": ("bad", at(0, b"SQLite format 4\0")),
    "page size 0": ("bad", at(16, b"\0\0")),
    "page size 3": ("bad", at(16, b"\0\3")),
    "page size 32768": ("bad", at(16, b"\x80\0")),
    "a format of the future": ("bad", at(18, b"\x09\x09")),
    "reserved bytes 255": ("bad", at(20, b"\xff")),
    "payload fractions": ("bad", at(21, b"\0\0\0")),
    "schema format 99": ("bad", at(44, b"\0\0\0\x63")),
    "the encoding of another file": ("bad", at(56, b"\0\0\0\x03")),
    # Schemas
    "identity is an endless view": ("bad", instead_of_table(
        "app_state", ENDLESS + "SELECT 'app.id' AS key, 'x' AS value FROM n WHERE i < 0")),
    "identity is a view": ("bad", instead_of_table("app_state", "SELECT * FROM old_app_state")),
    "identity is a view over an endless one": ("bad", sql(
        f"CREATE VIEW slow AS {ENDLESS}SELECT i FROM n WHERE i < 0", "ALTER TABLE app_state RENAME TO o",
        "CREATE VIEW app_state AS SELECT key, value FROM o, slow")),
    "people are an endless view": ("any", instead_of_table(
        "users", ENDLESS + "SELECT 1 AS id, 'admin' AS role, i AS deactivated_at FROM n")),
    "nonsense for a schema": ("bad", schema("app_state", "CREATE TABLE app_state (")),
    "a schema of noise": ("bad", schema("users", "\x01\x02 DROP TABLE users")),
    "schema of a megabyte": ("bad", schema("tables", "CREATE TABLE tables (" + "x," * 500000 + "y)")),
    "a table whose root is another's": ("bad", sql(
        "PRAGMA writable_schema = ON",
        "UPDATE sqlite_master SET rootpage = (SELECT rootpage FROM sqlite_master WHERE name = 'menu') "
        "WHERE name = 'orders'")),
    "a root beyond the end": ("bad", sql(
        "PRAGMA writable_schema = ON", "UPDATE sqlite_master SET rootpage = 99999 WHERE name = 'orders'")),
    "no identity table": ("bad", sql("DROP TABLE app_state")),
    "no identity row": ("bad", sql("DELETE FROM app_state")),
    "identity in capitals": ("bad", sql("UPDATE app_state SET value = 'COM.ZELVAN.POS' WHERE key = 'app.id'")),
    "identity with more behind a zero": ("bad", sql(
        "UPDATE app_state SET value = 'com.zelvan.pos' || char(0) || 'x' WHERE key = 'app.id'")),
    "identity of 20 megabytes": ("bad", sql(
        "UPDATE app_state SET value = hex(zeroblob(10000000)) WHERE key = 'app.id'")),
    "identity is a number": ("bad", sql("UPDATE app_state SET value = 9223372036854775807 WHERE key = 'app.id'")),
    "identity is no text": ("bad", sql("UPDATE app_state SET value = x'ff00fe' WHERE key = 'app.id'")),
    "identity without a value": ("bad", sql("DROP TABLE app_state", "CREATE TABLE app_state (key TEXT)")),
    # Another's
    "another program's": ("bad", lambda path: (os.unlink(path), sql("CREATE TABLE notes (id, text)")(path))),
    "a text": ("bad", instead(b"Dear diary\n" * 500)),
    "noise": ("bad", instead(noise(100000))),
    "zeros": ("bad", instead(bytes(100000))),
    "a picture": ("bad", instead(b"\x89PNG\r\n\x1a\n" + noise(5000))),
    "a folder": ("bad", folder),
    "a link to itself": ("bad", loop),
    "a pipe": ("bad", pipe),
    # Companions
    "a log of noise beside it": ("good", beside("-wal", noise(20000))),
    "a journal of noise beside it": ("good", beside("-journal", noise(20000))),
    # Odd and good
    "a newer store": ("good", sql(
        "CREATE TABLE deliveries (id INTEGER PRIMARY KEY)", "ALTER TABLE orders ADD COLUMN rider TEXT",
        "INSERT INTO applied_migrations (migration_name, applied_at) VALUES ('099_deliveries.sql', '2030')")),
    "an older store": ("good", sql(
        "DROP TABLE receipt_snapshot", "DELETE FROM applied_migrations WHERE migration_name LIKE '%021%'")),
    "pages of 512 bytes": ("good", rebuilt("page_size = 512")),
    "pages of 65536 bytes": ("good", rebuilt("page_size = 65536")),
    "written in UTF-16": ("good", as_utf16),
    # SQLite looks at two bits of it, which say what they should.
    "encoding 9": ("good", at(56, b"\0\0\0\x09")),
    "in the log's mode without a log": ("good", sql("PRAGMA journal_mode = WAL")),
    # Values
    "prices are texts": ("good", sql("UPDATE menu SET price = 'free'", "UPDATE order_items SET price = 'x'")),
    "amounts beyond all numbers": ("good", sql(
        "UPDATE order_items SET price = 9223372036854775807, quantity = 2147483647",
        "UPDATE order_sessions SET total = 9e999, subtotal = -9e999, tax = 1e300")),
    "blobs for texts": ("good", sql(
        "UPDATE order_items SET item_name = x'00ff00', notes = zeroblob(1000)",
        "UPDATE tables SET table_name = x'fffe'")),
    "texts that are no UTF-8": ("good", sql(
        "UPDATE menu SET item = CAST(x'c328a0a1ff' AS TEXT)", "UPDATE users SET username = CAST(x'80' AS TEXT)")),
    "names of a megabyte": ("good", sql("UPDATE menu SET item = hex(zeroblob(500000)) WHERE id = 1")),
    "zeros in names": ("good", sql("UPDATE menu SET item = 'a' || char(0) || 'b'")),
    "nothing where something must be": ("good", sql(
        "UPDATE tables SET table_name = NULL, status = NULL", "UPDATE orders SET notes = NULL")),
    "settings out of all bounds": ("good", sql(
        "UPDATE tax_settings SET rate = 9223372036854775807, name = zeroblob(10)",
        "UPDATE membership_settings SET earn_spend = 0, redeem_points = 0, earn_points = -5",
        "UPDATE printers SET paper_width = -1, role = x'00'")),
    "no settings": ("good", sql(
        "DELETE FROM tax_settings", "DELETE FROM membership_settings", "DELETE FROM kitchen_settings",
        "DELETE FROM regional_settings", "DELETE FROM table_settings")),
    "counters that are no numbers": ("good", sql(
        "UPDATE app_state SET value = 'many' WHERE key LIKE 'receipt.%'")),
    "times that are none": ("good", sql(
        "UPDATE order_sessions SET opened_at = 'yesterday', closed_at = 'soon'",
        "UPDATE orders SET created_at = x'00'")),
    "a trigger that undoes payments": ("any", sql(
        "CREATE TRIGGER t AFTER UPDATE ON order_sessions BEGIN "
        "UPDATE order_sessions SET status = 'open' WHERE id = NEW.id; END")),
    "a trigger that refuses": ("any", sql(
        "CREATE TRIGGER t BEFORE UPDATE ON order_sessions BEGIN SELECT RAISE(ROLLBACK, 'no'); END")),
}
