// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/DatabaseManager.h"
#include "core/Repositories.h"
#include "core/Services.h"
#include "services/AppService.h"
#include "support/RecordingSpooler.h"
#include "support/TestDatabase.h"

#include <QString>
#include <QVariantList>
#include <QVariantMap>

/// A whole store on a real database file: every repository and service as the program wires them,
/// with the print spooler recorded. The restaurant row is there, so that payments can complete.
class TestStore final
{
public:
    TestStore();
    Q_DISABLE_COPY_MOVE(TestStore)

    struct Dish
    {
        QString name = QStringLiteral("Soup");
        int cents = 1000;
        bool available = true;
        bool taxable = true;
        QString portion = {};
    };

    /// Each answers the new row's id.
    int addDish(const Dish &dish) const;
    int addTable(const QString &name, int capacity = 4) const;
    int addPrinter(const QString &name, const QString &role) const;
    int addMember(const QString &phone, int points,
                  const QString &status = QStringLiteral("active")) const;

    /// Through the service, as the settings screens save them.
    void setKitchen(const QString &mode, const QString &timing);
    void setMembershipEnabled(bool enabled);
    void setTax(int scaledRate, const QString &name = QStringLiteral("VAT")) const;

    /// One line of an order as the screens send it.
    [[nodiscard]] static QVariantMap line(int menuItemId, int quantity = 1,
                                          const QString &notes = {});
    int orderAtTable(int tableId, const QVariantList &lines);
    int orderTakeaway(const QVariantList &lines);
    [[nodiscard]] int sessionOf(int orderId) const;

    /// The first column of the first row.
    [[nodiscard]] qint64 number(const QString &sql) const;
    [[nodiscard]] QString text(const QString &sql) const;
    [[nodiscard]] QString tableStatus(int tableId) const;

    /// A reservation that is written without any check; `when` is local, "yyyy-MM-dd HH:mm:ss".
    int addReservation(int tableId, const QString &when, int minutes,
                       const QString &status = QStringLiteral("booked")) const;
    [[nodiscard]] QString reservationStatus(int reservationId) const;

    /// From now on SQLite refuses this, as in "INSERT ON orders" or "UPDATE ON orders WHEN
    /// NEW.status = 'served'".
    void refuse(const QString &statement) const;

    TestDatabase database;
    DatabaseManager manager;
    AppService app;
    RecordingSpooler spooler;
    Repositories repositories;
    Services services;
};
