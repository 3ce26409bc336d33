// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/HistoryGenerator.h"

#include "bench/PlainDatabase.h"
#include "core/DatabaseManager.h"
#include "core/DatabaseSeeder.h"
#include "core/PasswordHasher.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTimeZone>

#include <random>

const QString HistoryShape::adminName = QStringLiteral("admin");
const QString HistoryShape::adminPassword = QStringLiteral("correct horse battery");

QByteArray HistoryShape::memberPhone(int member)
{
    // Multiplying in the field of a prime scatters the numbers and keeps them apart.
    const qint64 scattered = qint64(member) * 48271 % 99999989;
    return "01" + QByteArray::number(scattered).rightJustified(8, '0');
}

namespace {
constexpr int taxRate = 825;

QByteArray stamp(const QDateTime &moment)
{
    return moment.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toLatin1();
}

void makeSchema(const QString &path)
{
    if (!DatabaseManager::initialize(path)) {
        qFatal("cannot make %s", qPrintable(path));
    }
    if (!DatabaseSeeder(DatabaseManager::connection()).seedAll()) {
        qFatal("cannot seed %s", qPrintable(path));
    }
    DatabaseManager::closeDatabase();
}

struct Dish
{
    QByteArray name;
    QByteArray portion;
    int cents;
    bool taxable;
};

struct Line
{
    int menuIndex;
    int quantity;
};

/// Cents.
struct Bill
{
    int subtotal = 0;
    int tax = 0;
    [[nodiscard]] int total() const { return subtotal + tax; }
};

/// One paid session as it was drawn.
struct Sale
{
    int ofDay = 0;
    QByteArray openedAt;
    QByteArray closedAt;
    QByteArray receiptNumber;
    const char *type = "";
    /// 0 for none, of both.
    int tableId = 0;
    int member = 0;
    QList<Line> lines;
};

/// The tables that a sale fills.
struct SalesTables
{
    explicit SalesTables(PlainDatabase &database)
        : session(database,
                  "INSERT INTO order_sessions (display_number, receipt_number, table_id, "
                  "order_type, status, points_earned, subtotal, tax, total, opened_at, closed_at) "
                  "VALUES (?, ?, NULLIF(?, 0), ?, 'paid', ?, ?, ?, ?, ?, ?)")
        , order(database, "INSERT INTO orders (order_session_id, display_number, status, notes, "
                          "created_at, closed_at) VALUES (?, ?, 'served', '', ?, ?)")
        , line(database,
               "INSERT INTO order_items (order_id, item_id, item_name, quantity, portion_size, "
               "price, is_taxable, item_status, notes, created_at) "
               "VALUES (?, ?, ?, ?, ?, ?, ?, 'served', ?, ?)")
        , snapshot(database,
                   "INSERT INTO receipt_snapshot (order_session_id, cashier_name, store_name, "
                   "address, phone, email, website, tax_name, tax_rate, tax_registration_number, "
                   "order_type, table_name, created_at) VALUES (?, 'admin', 'Lotus Garden', '1 "
                   "Main Street', '555-0100', 'hi@lotus.example', 'lotus.example', 'Sales Tax', "
                   "825, 'REG-7', ?, ?, ?)")
        , points(database, "INSERT INTO membership_transactions (membership_id, order_session_id, "
                           "type, points, created_at) VALUES (?, ?, 'earn', ?, ?)")
    {}

    PlainInsert session;
    PlainInsert order;
    PlainInsert line;
    PlainInsert snapshot;
    PlainInsert points;
};

/// Fills one file; the steps follow the foreign keys.
class HistoryWriter
{
public:
    HistoryWriter(PlainDatabase &database, int pastSessions, const QDate &today)
        : m_database(database)
        , m_pastSessions(pastSessions)
        , m_today(today, QTime(0, 0), QTimeZone::utc())
    {}

    void write()
    {
        m_database.run("BEGIN");
        writeStore();
        writeMenu();
        writeTables();
        writeMembers();
        writeSessions();
        writeBookings();
        m_database.run("COMMIT");
        m_database.run("PRAGMA wal_checkpoint(TRUNCATE)");
    }

private:
    [[nodiscard]] int below(int limit) { return int(m_random() % unsigned(limit)); }

    void writeStore()
    {
        PlainInsert(m_database, "INSERT INTO users (username, password, role) VALUES (?, ?, ?)")(
            HistoryShape::adminName.toUtf8(), hashPassword(HistoryShape::adminPassword).toUtf8(),
            "admin");
        m_database.run(
            "INSERT INTO restaurant (id, name, address, phone_number, email, website) VALUES (1, "
            "'Lotus Garden', '1 Main Street', '555-0100', 'hi@lotus.example', 'lotus.example')");
        m_database.run("INSERT INTO regional_settings (id, locale, currency_code) "
                       "VALUES (1, 'en_US', 'USD')");
        m_database.run(
            "UPDATE tax_settings SET enabled = 1, rate = " + QByteArray::number(taxRate) +
            ", name = 'Sales Tax', registration_number = 'REG-7'");
        m_database.run("UPDATE membership_settings SET enabled = 1");
        m_database.run("UPDATE kitchen_settings SET mode = 'kds'");
        m_database.run("UPDATE app_state SET value = " + QByteArray::number(m_pastSessions + 1) +
                       " WHERE key = 'receipt.counter'");
    }

    void writeMenu()
    {
        static const char *const kinds[] = {"Noodle soup", "Fried rice", "Dumplings",  "Curry",
                                            "Grill plate", "Salad",      "Vegetables", "Dessert",
                                            "Tea",         "Soft drink"};
        PlainInsert category(m_database, "INSERT INTO categories (category) VALUES (?)");
        PlainInsert item(m_database, "INSERT INTO menu (item, category_id, price, portion_size, "
                                     "is_available, is_taxable) VALUES (?, ?, ?, ?, 1, ?)");
        for (const char *kind : kinds) {
            const int categoryId = int(category(kind));
            for (int number = 1; number <= HistoryShape::menuItems / 10; ++number) {
                const Dish dish{QByteArray(kind) + ' ' + QByteArray::number(number),
                                number % 3 == 0 ? "Large" : "", 300 + below(45) * 50,
                                number % 10 != 0};
                m_menu.append(dish);
                item(dish.name, categoryId, dish.cents, dish.portion, int(dish.taxable));
            }
        }
    }

    /// All of them on one floor, ten to a row.
    void writeTables()
    {
        m_database.run("INSERT INTO floors (name, floor_number, sort_order) VALUES ('Hall', 1, 1)");
        PlainInsert table(m_database, "INSERT INTO tables (table_name, capacity, status) "
                                      "VALUES (?, ?, 'available')");
        PlainInsert item(m_database,
                         "INSERT INTO canvas_items (floor_id, table_id, type, label, x, y, width, "
                         "height, color, border_color, z_order, metadata) "
                         "VALUES (1, ?, 'table', ?, ?, ?, 80, 80, '#444', '#ffffff', ?, ?)");
        static const char *const shapes[] = {"square", "rectangle", "circle"};
        for (int number = 0; number < HistoryShape::tables; ++number) {
            const QByteArray name = 'T' + QByteArray::number(number + 1);
            const qint64 tableId = table(name, 2 + number % 7);
            item(tableId, name, 40.0 + 130.0 * (number % 10), 40.0 + 130.0 * (number / 10), number,
                 QByteArray("{\"table_type\":\"") + shapes[number % 3] + "\"}");
        }
    }

    void writeMembers()
    {
        PlainInsert member(m_database, "INSERT INTO memberships (phone_number, total_points, "
                                       "status) VALUES (?, ?, 'active')");
        for (int number = 1; number <= HistoryShape::members; ++number) {
            member(HistoryShape::memberPhone(number), 500 + below(5000));
        }
    }

    void writeSessions()
    {
        SalesTables tables(m_database);
        for (int number = 0; number < m_pastSessions; ++number) {
            writeSession(tables, drawSale(number));
        }
    }

    [[nodiscard]] Sale drawSale(int number)
    {
        const int back = m_pastSessions - 1 - number;
        Sale sale;
        sale.ofDay = HistoryShape::sessionsPerDay - 1 - back % HistoryShape::sessionsPerDay;
        const QDateTime opened = m_today.addDays(-(back / HistoryShape::sessionsPerDay))
                                     .addSecs(11 * 3600 + sale.ofDay * 150);
        sale.openedAt = stamp(opened);
        sale.closedAt = stamp(opened.addSecs(2700));
        sale.receiptNumber =
            sale.openedAt.left(5) + QByteArray::number(number).rightJustified(6, '0');
        const int orders = number % 4 == 0 ? 2 : 1;
        for (int index = 0; index < orders * HistoryShape::linesPerOrder; ++index) {
            const int menuIndex = below(HistoryShape::menuItems);
            sale.lines.append({menuIndex, 1 + below(3)});
        }
        const int kind = below(10);
        sale.type = kind < 7 ? "dine_in" : kind < 9 ? "takeaway" : "delivery";
        sale.tableId = kind < 7 ? 1 + below(HistoryShape::tables) : 0;
        sale.member = number % 4 == 1 ? 1 + below(HistoryShape::members) : 0;
        return sale;
    }

    void writeSession(SalesTables &tables, const Sale &sale)
    {
        const Bill bill = billOf(sale.lines);
        const int earned = sale.member > 0 ? bill.total() / 1000 : 0;
        const qint64 sessionId =
            tables.session(4000 + sale.ofDay, sale.receiptNumber, sale.tableId, sale.type, earned,
                           bill.subtotal, bill.tax, bill.total(), sale.openedAt, sale.closedAt);
        m_orderOfDay = sale.ofDay == 0 ? 0 : m_orderOfDay;
        qint64 orderId = 0;
        for (int index = 0; index < sale.lines.size(); ++index) {
            if (index % HistoryShape::linesPerOrder == 0) {
                orderId =
                    tables.order(sessionId, 4000 + m_orderOfDay++, sale.openedAt, sale.closedAt);
            }
            const Line &sold = sale.lines.at(index);
            const Dish &dish = m_menu.at(sold.menuIndex);
            tables.line(orderId, sold.menuIndex + 1, dish.name, sold.quantity, dish.portion,
                        double(dish.cents), int(dish.taxable), index % 9 == 0 ? "no onions" : "",
                        sale.openedAt);
        }
        if (earned > 0) {
            tables.points(sale.member, sessionId, earned, sale.closedAt);
        }
        tables.snapshot(sessionId, sale.type,
                        sale.tableId > 0 ? 'T' + QByteArray::number(sale.tableId) : QByteArray(),
                        sale.closedAt);
    }

    /// Kept ones of the past, one for twenty sessions, and tomorrow's.
    void writeBookings()
    {
        PlainInsert booking(m_database,
                            "INSERT INTO reservations (customer_name, customer_phone, pax, "
                            "table_id, reservation_datetime, duration_minutes, status, notes) "
                            "VALUES ('Guest', '0123456789', 4, ?, ?, 90, ?, '')");
        for (int number = 0; number < m_pastSessions / 20; ++number) {
            const QDateTime start = m_today.addDays(-1 - number / 12).addSecs(18 * 3600);
            booking(1 + number % HistoryShape::tables, stamp(start), "completed");
        }
        const QByteArray tomorrow = stamp(m_today.addDays(1).addSecs(18 * 3600));
        for (int table = 1; table <= HistoryShape::bookings; ++table) {
            booking(table, tomorrow, "booked");
        }
    }

    [[nodiscard]] Bill billOf(const QList<Line> &lines) const
    {
        Bill bill;
        int taxable = 0;
        for (const Line &sold : lines) {
            const Dish &dish = m_menu.at(sold.menuIndex);
            bill.subtotal += sold.quantity * dish.cents;
            taxable += dish.taxable ? sold.quantity * dish.cents : 0;
        }
        bill.tax = taxable * taxRate / 10000;
        return bill;
    }

    PlainDatabase &m_database;
    int m_pastSessions;
    QDateTime m_today;
    std::mt19937 m_random{20000};
    QList<Dish> m_menu;
    int m_orderOfDay = 0;
};
} // namespace

HistoryGenerator::HistoryGenerator(int pastSessions, const QDate &todayUtc)
    : m_pastSessions(pastSessions)
    , m_todayUtc(todayUtc)
{}

void HistoryGenerator::write(const QString &path) const
{
    for (const char *suffix : {"", "-wal", "-shm"}) {
        QFile::remove(path + QLatin1String(suffix));
    }
    makeSchema(path);
    PlainDatabase database(path);
    HistoryWriter(database, m_pastSessions, m_todayUtc).write();
}

QString HistoryGenerator::cachedIn(const QString &folder) const
{
    const QString name = QStringLiteral("history-%1").arg(m_pastSessions);
    const QString path = QDir(folder).filePath(
        QStringLiteral("%1-%2.db").arg(name, m_todayUtc.toString(Qt::ISODate)));
    if (QFile::exists(path)) {
        return path;
    }
    QDir().mkpath(folder);
    // The dashboard's figures are those of today, so yesterday's file is of no use.
    for (const QString &old : QDir(folder).entryList({name + QLatin1String("-*")}, QDir::Files)) {
        QFile::remove(QDir(folder).filePath(old));
    }
    // Under its name only when it is whole.
    const QString unfinished = path + QLatin1String(".part");
    write(unfinished);
    QFile::rename(unfinished, path);
    return path;
}
