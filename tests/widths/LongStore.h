// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "support/TestStore.h"

#include <QString>
#include <QStringList>

/// A store in which all that people name has a long name, and every list holds more than is seen.
class LongStore final
{
public:
    /// "en_US" or "zh_CN": the language of the names.
    explicit LongStore(const QString &language);
    Q_DISABLE_COPY_MOVE(LongStore)

    /// The long names, without the numbers at their ends.
    [[nodiscard]] const QStringList &names() const { return m_names; }

    /// Publishes the services to the screens.
    void publish(SystemTheme &systemTheme, Theme &theme);

private:
    QString name(const QString &english, const QString &chinese);
    void addMenu();
    void addTables();
    void addFloors();
    void addPeople();
    void addPrinters();
    void addOrders();

    TestStore m_store;
    bool m_chinese;
    QStringList m_names;
    QList<int> m_dishes;
    QList<int> m_tables;
};
