// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "fuzz/FuzzStore.h"

#include <QSqlError>
#include <QSqlQuery>

namespace {
/// A line in the log for every bad text is right, and here it would be all there is.
void swallow(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    if (type == QtFatalMsg) {
        std::fputs(qPrintable(message), stderr);
    }
}

const char *const rows[] = {
    "INSERT INTO restaurant (id, name, address) VALUES (1, 'Lotus', '1 Main St')",
    "INSERT INTO regional_settings (id, locale, currency_code) VALUES (1, 'en_US', 'USD')",
    "INSERT INTO printers (system_name, role, paper_width, cut_mode) "
    "VALUES ('TM88', 'receipt', 80, 'full')",
    "INSERT INTO tables (id, table_name, capacity, status) VALUES (1, 'A1', 4, 'reserved')",
    "INSERT INTO floors (id, name) VALUES (1, 'Hall')",
    "INSERT INTO canvas_items (floor_id, table_id, type, label, x, y, width, height) "
    "VALUES (1, 1, 'table', 'A1', 1, 1, 50, 50), (1, NULL, 'wall', '', 1, 90, 50, 50)",
    "INSERT INTO reservations (customer_name, customer_phone, pax, table_id, reservation_datetime, "
    "duration_minutes, status, notes) VALUES ('Ann', '1', 2, 1, '2030-01-01 12:00:00', 60, "
    "'booked', '')",
    "INSERT INTO memberships (id, phone_number, total_points, status) VALUES (1, '555', 5, "
    "'active')",
    "INSERT INTO order_sessions (id, display_number, receipt_number, order_type, status, subtotal, "
    "total, closed_at) VALUES (1, 1, '2026-000001', 'takeaway', 'paid', 500, 500, '2026-01-01 "
    "10:00:00')",
    "INSERT INTO orders (id, order_session_id, display_number, status) VALUES (1, 1, 1, 'served')",
    "INSERT INTO categories (id, category) VALUES (1, 'Mains')",
    "INSERT INTO menu (id, item, category_id, price, is_available, is_taxable) "
    "VALUES (1, 'Broth', 1, 500, 1, 1)",
    "INSERT INTO order_items (order_id, item_id, item_name, quantity, price, is_taxable, "
    "item_status) "
    "VALUES (1, 1, 'Broth', 1, 500, 1, 'served')",
    "INSERT INTO receipt_snapshot (order_session_id, store_name) VALUES (1, 'Lotus')",
    "INSERT INTO membership_transactions (membership_id, order_session_id, type, points) "
    "VALUES (1, 1, 'earn', 5)",
};
} // namespace

FuzzStore &FuzzStore::instance()
{
    static auto *const store = new FuzzStore; // Stays: a fuzzer ends without a farewell.
    return *store;
}

FuzzStore::FuzzStore()
    : services(m_app, m_manager, m_repositories, &m_spooler)
{
    qInstallMessageHandler(swallow);
    TestEnvironment::nameApplication();
    services.connectSignals();
    // An input is an input: nothing of it has to outlive a power cut.
    m_database.run(QStringLiteral("PRAGMA synchronous = OFF"));
    for (const char *row : rows) {
        m_database.run(QString::fromLatin1(row));
    }
}

void FuzzStore::write(const QString &sql, const QByteArray &text)
{
    QSqlQuery query(m_database.handle());
    query.prepare(sql);
    query.addBindValue(text);
    if (!query.exec()) {
        qFatal("%s: %s", qPrintable(sql), qPrintable(query.lastError().text()));
    }
}
