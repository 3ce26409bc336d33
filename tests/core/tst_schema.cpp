// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/TestDatabase.h"
#include "support/ZelvanTest.h"

#include <QSqlQuery>

namespace {
struct TableShape
{
    const char *table;
    /// "name TYPE", then NOT NULL, DEFAULT and PK where they hold.
    QStringList columns;
    /// "column -> table(column), on delete, on update", sorted.
    QStringList foreignKeys = {};
    /// Columns with an index of their own: unique ones and keys that are no row id.
    QStringList indexes = {};
    bool autoIncrement = true;
    bool oneRowOnly = false;
};

QStringList stamped(QStringList columns, const QStringList &stamps, const char *type)
{
    for (const QString &stamp : stamps) {
        columns.append(QStringLiteral("%1 %2 DEFAULT CURRENT_TIMESTAMP")
                           .arg(stamp, QString::fromLatin1(type)));
    }
    return columns;
}

QStringList list(const char *lines)
{
    QStringList result;
    for (const QString &line : QString::fromLatin1(lines).split(QLatin1Char('\n'))) {
        if (!line.trimmed().isEmpty()) {
            result.append(line.trimmed());
        }
    }
    return result;
}

/// Earlier scripts stamp with TEXT that must not be NULL.
QStringList withTextStamps(const char *lines, const char *stamps)
{
    return stamped(list(lines), list(stamps), "TEXT NOT NULL");
}

/// Later scripts stamp with DATETIME.
QStringList withDateStamps(const char *lines, const char *stamps = "created_at\nupdated_at")
{
    return stamped(list(lines), list(stamps), "DATETIME");
}

QList<TableShape> catalogueShapes()
{
    return {
        {"applied_migrations",
         list("migration_name TEXT PK\napplied_at TEXT NOT NULL"),
         {},
         {QStringLiteral("migration_name")},
         false},
        {"users",
         withTextStamps(R"(id INTEGER PK
                           username TEXT NOT NULL
                           password TEXT NOT NULL
                           role TEXT NOT NULL
                           deactivated_at TEXT)",
                        "updated_at\ncreated_at"),
         {},
         {QStringLiteral("username")}},
        {"categories", withTextStamps("id INTEGER PK\ncategory TEXT NOT NULL", "created_at")},
        {"menu",
         withTextStamps(R"(id INTEGER PK
                           item TEXT NOT NULL
                           category_id INTEGER NOT NULL
                           price INTEGER NOT NULL
                           portion_size TEXT
                           is_available INTEGER NOT NULL
                           is_taxable INTEGER NOT NULL)",
                        "created_at"),
         list("category_id -> categories(id), CASCADE, CASCADE")},
        {"tables", withTextStamps("id INTEGER PK\ntable_name TEXT\ncapacity INTEGER\nstatus TEXT",
                                  "created_at")},
        {"printers",
         withDateStamps(R"(id INTEGER PK
                           system_name TEXT NOT NULL
                           role TEXT NOT NULL
                           paper_width INTEGER NOT NULL DEFAULT 58
                           cut_mode TEXT NOT NULL DEFAULT "none")"),
         {},
         {QStringLiteral("system_name")}},
        {"floors", withDateStamps(R"(id INTEGER PK
                           name TEXT NOT NULL
                           floor_number INTEGER
                           sort_order INTEGER DEFAULT 0
                           is_active INTEGER DEFAULT 1)")},
        {"canvas_items", withDateStamps(R"(id INTEGER PK
                           floor_id INTEGER NOT NULL
                           table_id INTEGER
                           type TEXT NOT NULL
                           label TEXT
                           x REAL NOT NULL
                           y REAL NOT NULL
                           width REAL NOT NULL
                           height REAL NOT NULL
                           rotation REAL DEFAULT 0
                           color TEXT
                           border_color TEXT
                           border_width REAL DEFAULT 2
                           opacity REAL DEFAULT 1.0
                           z_order INTEGER DEFAULT 0
                           metadata TEXT)"),
         list("floor_id -> floors(id), CASCADE, NO ACTION\n"
              "table_id -> tables(id), CASCADE, NO ACTION")},
        {"reservations", withDateStamps(R"(id INTEGER PK
                           customer_name TEXT
                           customer_phone TEXT
                           pax INTEGER
                           table_id INTEGER
                           reservation_datetime DATETIME
                           duration_minutes INTEGER
                           status TEXT
                           notes TEXT)"),
         list("table_id -> tables(id), CASCADE, NO ACTION")},
    };
}

QList<TableShape> salesShapes()
{
    return {
        {"order_sessions",
         withTextStamps(R"(id INTEGER PK
                           display_number INTEGER NOT NULL
                           receipt_number TEXT
                           table_id INTEGER
                           order_type TEXT NOT NULL
                           status TEXT NOT NULL DEFAULT 'open'
                           points_earned INTEGER DEFAULT 0
                           points_redeemed INTEGER DEFAULT 0
                           subtotal NUMERIC NOT NULL DEFAULT 0
                           tax NUMERIC NOT NULL DEFAULT 0
                           discount NUMERIC DEFAULT 0
                           total NUMERIC NOT NULL DEFAULT 0)",
                        "opened_at") +
             list("closed_at TEXT"),
         list("table_id -> tables(id), SET NULL, CASCADE")},
        {"order_items",
         withTextStamps(R"(id INTEGER PK
                           order_id INTEGER
                           item_id INTEGER
                           item_name TEXT
                           quantity INTEGER
                           portion_size TEXT
                           price NUMERIC
                           is_taxable INTEGER NOT NULL
                           item_status TEXT
                           notes TEXT)",
                        "created_at"),
         list("item_id -> menu(id), RESTRICT, CASCADE\n"
              "order_id -> orders(id), CASCADE, CASCADE")},
        {"orders",
         withTextStamps(R"(id INTEGER PK
                           order_session_id INTEGER NOT NULL
                           display_number INTEGER NOT NULL
                           status TEXT NOT NULL DEFAULT 'pending'
                           notes TEXT)",
                        "created_at") +
             list("closed_at TEXT"),
         list("order_session_id -> order_sessions(id), CASCADE, CASCADE")},
        {"memberships",
         withDateStamps(R"(id INTEGER PK
                           phone_number TEXT NOT NULL
                           total_points INTEGER NOT NULL DEFAULT 0
                           status TEXT)"),
         {},
         {QStringLiteral("phone_number")}},
        {"membership_transactions", withDateStamps(R"(id INTEGER PK
                           membership_id INTEGER NOT NULL
                           order_session_id INTEGER NOT NULL
                           type TEXT
                           points INTEGER NOT NULL)"),
         list("membership_id -> memberships(id), RESTRICT, NO ACTION\n"
              "order_session_id -> order_sessions(id), RESTRICT, NO ACTION")},
        {"receipt_snapshot",
         withDateStamps(R"(id INTEGER PK
                           order_session_id INTEGER NOT NULL
                           cashier_name TEXT
                           store_name TEXT
                           address TEXT
                           phone TEXT
                           email TEXT
                           website TEXT
                           tax_name TEXT
                           tax_rate INTEGER
                           tax_registration_number TEXT
                           member_phone TEXT
                           points_balance_before INTEGER
                           points_balance_after INTEGER
                           order_type TEXT
                           table_name TEXT)",
                        "created_at"),
         list("order_session_id -> order_sessions(id), CASCADE, NO ACTION")},
    };
}

QList<TableShape> settingsShapes()
{
    return {
        {"restaurant", withTextStamps(R"(id INTEGER PK
                           name TEXT
                           address TEXT
                           phone_number TEXT
                           email TEXT
                           website TEXT)",
                                      "created_at")},
        {"tax_settings",
         withDateStamps(R"(id INTEGER PK
                           enabled INTEGER DEFAULT 0
                           rate INTEGER DEFAULT 100
                           name TEXT
                           registration_number TEXT DEFAULT '')",
                        "created_at"),
         {},
         {},
         false,
         true},
        {"membership_settings",
         withDateStamps(R"(id INTEGER PK
                           enabled INTEGER DEFAULT 0
                           earn_points INTEGER
                           earn_spend INTEGER
                           redeem_points INTEGER
                           redeem_value INTEGER
                           earn_on TEXT)",
                        "created_at"),
         {},
         {},
         false,
         true},
        {"kitchen_settings", withDateStamps(R"(id INTEGER PK
                           mode TEXT NOT NULL
                           ticket_print_timing TEXT NOT NULL
                           require_ready_for_checkout INT NOT NULL
                           allow_edit_after_send INTEGER NOT NULL DEFAULT 0)")},
        {"regional_settings",
         withDateStamps(R"(id INTEGER PK
                           locale TEXT NOT NULL DEFAULT 'en_US'
                           currency_code TEXT NOT NULL DEFAULT 'USD')"),
         {},
         {},
         false,
         true},
        {"table_settings",
         withDateStamps("id INTEGER PK\nlayout_mode TEXT NOT NULL DEFAULT 'simple'"),
         {},
         {},
         false,
         true},
        {"app_state",
         withDateStamps("key TEXT PK\nvalue TEXT"),
         {},
         {QStringLiteral("key")},
         false},
    };
}

QList<TableShape> shapes()
{
    return catalogueShapes() + salesShapes() + settingsShapes();
}

QStringList rows(const TestDatabase &db, const QString &sql)
{
    QStringList result;
    QSqlQuery query(db.handle());
    if (!query.exec(sql)) {
        return {QStringLiteral("refused: ") + sql};
    }
    while (query.next()) {
        result.append(query.value(0).toString());
    }
    return result;
}

QStringList columnsOf(const TestDatabase &db, const QString &table)
{
    return rows(db,
                QStringLiteral("SELECT name || ' ' || type || iif(\"notnull\", ' NOT NULL', '') "
                               "|| ifnull(' DEFAULT ' || dflt_value, '') || iif(pk, ' PK', '') "
                               "FROM pragma_table_info('%1') ORDER BY cid")
                    .arg(table));
}

QStringList foreignKeysOf(const TestDatabase &db, const QString &table)
{
    return rows(db,
                QStringLiteral("SELECT \"from\" || ' -> ' || \"table\" || '(' || \"to\" || '), ' "
                               "|| on_delete || ', ' || on_update "
                               "FROM pragma_foreign_key_list('%1') ORDER BY 1")
                    .arg(table));
}

QStringList indexedColumnsOf(const TestDatabase &db, const QString &table)
{
    return rows(db, QStringLiteral("SELECT i.name FROM pragma_index_list('%1') l, "
                                   "pragma_index_info(l.name) i WHERE l.\"unique\" = 1")
                        .arg(table));
}
} // namespace

/// The tables and their columns. What their rules do is tst_SchemaRules's.
class tst_Schema : public ZelvanTest
{
    Q_OBJECT

private slots:
    void aNewFileHasTheseTablesAndNothingElse();
    void tablesHaveTheirColumns_data();
    void tablesHaveTheirColumns();
};

void tst_Schema::aNewFileHasTheseTablesAndNothingElse()
{
    const TestDatabase db(TestDatabase::Content::Schema);
    QStringList expected;
    for (const TableShape &shape : shapes()) {
        expected.append(QString::fromLatin1(shape.table));
    }
    expected.sort();

    QCOMPARE(rows(db, QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name "
                                     "NOT LIKE 'sqlite_%' ORDER BY name")),
             expected);
    QCOMPARE(expected.size(), 22);
    QVERIFY(rows(db, QStringLiteral("SELECT name FROM sqlite_master WHERE type IN ('view', "
                                    "'trigger') OR (type = 'index' AND sql IS NOT NULL)"))
                .isEmpty());
}

void tst_Schema::tablesHaveTheirColumns_data()
{
    QTest::addColumn<int>("index");

    const QList<TableShape> all = shapes();
    for (int index = 0; index < all.size(); ++index) {
        QTest::newRow(all.at(index).table) << index;
    }
}

void tst_Schema::tablesHaveTheirColumns()
{
    QFETCH(int, index);
    const TableShape shape = shapes().at(index);
    const QString table = QString::fromLatin1(shape.table);
    const TestDatabase db(TestDatabase::Content::Schema);

    const QString sql =
        db.value(QStringLiteral("SELECT sql FROM sqlite_master WHERE name = '%1'").arg(table))
            .toString();

    QCOMPARE(columnsOf(db, table), shape.columns);
    QCOMPARE(foreignKeysOf(db, table), shape.foreignKeys);
    QCOMPARE(indexedColumnsOf(db, table), shape.indexes);
    QCOMPARE(sql.contains(QStringLiteral("id INTEGER PRIMARY KEY AUTOINCREMENT")),
             shape.autoIncrement);
    QCOMPARE(sql.contains(QStringLiteral("id INTEGER PRIMARY KEY CHECK (id = 1)")),
             shape.oneRowOnly);
    // Vocabularies are kept by the code: no other check stands in the schema.
    QCOMPARE(sql.contains(QStringLiteral("CHECK")), shape.oneRowOnly);
}

ZELVAN_TEST(tst_Schema)
#include "tst_schema.moc"
