// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "support/TestStore.h"

#include <QSqlQuery>

namespace {
QString quoted(QString text)
{
    return QLatin1Char('\'') + text.replace(QLatin1Char('\''), QLatin1String("''")) +
           QLatin1Char('\'');
}
} // namespace

TestStore::TestStore()
    : services(app, manager, repositories, &spooler)
{
    services.connectSignals();
    database.run(QStringLiteral(
        "INSERT INTO restaurant (id, name, address, phone_number, email, website) VALUES "
        "(1, 'Lotus', '1 Main St', '555-0100', 'hi@lotus.example', 'lotus.example')"));
    database.run(QStringLiteral("INSERT INTO regional_settings (id, locale, currency_code) "
                                "VALUES (1, 'en_US', 'USD')"));
    database.run(QStringLiteral("INSERT INTO categories (id, category) VALUES (1, 'Mains')"));
}

int TestStore::addDish(const Dish &dish) const
{
    return database.insert(
        QStringLiteral("INSERT INTO menu (item, category_id, price, portion_size, is_available, "
                       "is_taxable) VALUES (%1, 1, %2, %3, %4, %5)")
            .arg(quoted(dish.name), QString::number(dish.cents), quoted(dish.portion),
                 QString::number(int(dish.available)), QString::number(int(dish.taxable))));
}

int TestStore::addTable(const QString &name, int capacity) const
{
    return database.insert(QStringLiteral("INSERT INTO tables (table_name, capacity, status) "
                                          "VALUES (%1, %2, 'available')")
                               .arg(quoted(name), QString::number(capacity)));
}

int TestStore::addPrinter(const QString &name, const QString &role) const
{
    return database.insert(
        QStringLiteral("INSERT INTO printers (system_name, role) VALUES (%1, %2)")
            .arg(quoted(name), quoted(role)));
}

int TestStore::addMember(const QString &phone, int points, const QString &status) const
{
    return database.insert(QStringLiteral("INSERT INTO memberships (phone_number, total_points, "
                                          "status) VALUES (%1, %2, %3)")
                               .arg(quoted(phone), QString::number(points), quoted(status)));
}

void TestStore::setKitchen(const QString &mode, const QString &timing)
{
    services.settings.saveKitchenSettings({{QStringLiteral("id"), 1},
                                           {QStringLiteral("mode"), mode},
                                           {QStringLiteral("ticket_print_timing"), timing},
                                           {QStringLiteral("require_ready_for_checkout"), 0},
                                           {QStringLiteral("allow_edit_after_send"), 1}});
}

void TestStore::setMembershipEnabled(bool enabled)
{
    QVariantMap settings = services.settings.getMembershipSettings();
    settings[QStringLiteral("enabled")] = enabled;
    services.settings.saveMembershipSettings(settings);
}

void TestStore::setTax(int scaledRate, const QString &name) const
{
    database.run(QStringLiteral("UPDATE tax_settings SET enabled = 1, rate = %1, name = %2, "
                                "registration_number = 'REG-7' WHERE id = 1")
                     .arg(QString::number(scaledRate), quoted(name)));
}

QVariantMap TestStore::line(int menuItemId, int quantity, const QString &notes)
{
    return {{QStringLiteral("menuItemId"), menuItemId},
            {QStringLiteral("qty"), quantity},
            {QStringLiteral("notes"), notes}};
}

int TestStore::orderAtTable(int tableId, const QVariantList &lines)
{
    return services.orders.createOrder(QStringLiteral("dine_in"), lines,
                                       {{QStringLiteral("tableId"), tableId}});
}

int TestStore::orderTakeaway(const QVariantList &lines)
{
    return services.orders.createOrder(QStringLiteral("takeaway"), lines);
}

int TestStore::sessionOf(int orderId) const
{
    return database
        .value(QStringLiteral("SELECT order_session_id FROM orders WHERE id = %1").arg(orderId))
        .toInt();
}

qint64 TestStore::number(const QString &sql) const
{
    return database.value(sql).toLongLong();
}

QString TestStore::text(const QString &sql) const
{
    return database.value(sql).toString();
}

QString TestStore::tableStatus(int tableId) const
{
    return text(QStringLiteral("SELECT status FROM tables WHERE id = %1").arg(tableId));
}

int TestStore::addReservation(int tableId, const QString &when, int minutes,
                              const QString &status) const
{
    return database.insert(
        QStringLiteral("INSERT INTO reservations (customer_name, customer_phone, pax, table_id, "
                       "reservation_datetime, duration_minutes, status, notes) "
                       "VALUES ('Ann', '1', 2, %1, %2, %3, %4, '')")
            .arg(QString::number(tableId), quoted(when), QString::number(minutes), quoted(status)));
}

QString TestStore::reservationStatus(int reservationId) const
{
    return text(QStringLiteral("SELECT status FROM reservations WHERE id = %1").arg(reservationId));
}

void TestStore::refuse(const QString &statement) const
{
    database.run(QStringLiteral("CREATE TRIGGER \"refuse %1\" BEFORE %1 "
                                "BEGIN SELECT RAISE(ABORT, 'refused'); END")
                     .arg(statement));
}
