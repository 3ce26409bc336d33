// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QObject>

class QSqlDriver;

/// Watches over the transaction that was begun on a connection. On a failing or full disk SQLite
/// ends a transaction by itself, and whatever is written after that would be stored at once, each
/// statement on its own. The watch notices it at the statement that failed and begins another
/// transaction in the place of the lost one, which is only good for being rolled back.
///
/// It belongs to the connection's driver and asks SQLite nothing until a statement fails.
class TransactionWatch final : public QObject
{
    Q_OBJECT

public:
    /// From a good begin to the commit or the rollback.
    static void begin(QSqlDriver *driver);
    static void end(const QSqlDriver *driver);

    /// To be told of every statement that failed.
    static void statementFailed(const QSqlDriver *driver);

    /// False when SQLite has ended the transaction under watch; true where none is.
    [[nodiscard]] static bool stands(const QSqlDriver *driver);

private:
    explicit TransactionWatch(QSqlDriver *driver);
    [[nodiscard]] static TransactionWatch *of(const QSqlDriver *driver);

    QSqlDriver *m_driver;
    bool m_lost = false;
};
