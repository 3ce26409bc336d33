// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "core/TransactionWatch.h"

#include <QSqlDriver>
#include <QThread>

void TransactionWatch::begin(QSqlDriver *driver)
{
    end(driver);
    new TransactionWatch(driver);
}

void TransactionWatch::end(const QSqlDriver *driver)
{
    delete of(driver);
}

void TransactionWatch::statementFailed(const QSqlDriver *driver)
{
    TransactionWatch *const watch = of(driver);
    // No transaction begins inside another, so a begin that succeeds says that there was none left.
    if (watch != nullptr && watch->m_driver->beginTransaction()) {
        watch->m_lost = true;
    }
}

bool TransactionWatch::stands(const QSqlDriver *driver)
{
    const TransactionWatch *const watch = of(driver);
    return watch == nullptr || !watch->m_lost;
}

TransactionWatch::TransactionWatch(QSqlDriver *driver)
    : QObject(driver)
    , m_driver(driver)
{}

TransactionWatch *TransactionWatch::of(const QSqlDriver *driver)
{
    if (driver->thread() != QThread::currentThread()) {
        return nullptr;
    }
    return driver->findChild<TransactionWatch *>({}, Qt::FindDirectChildrenOnly);
}
