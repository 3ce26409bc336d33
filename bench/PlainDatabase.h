// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QList>
#include <QString>

#include <cstddef>

struct RecordedStatement;
struct sqlite3;
struct sqlite3_stmt;

/// A database file through SQLite's own C interface, with the pragmas of the working connection:
/// what an operation is measured against, and the quick way to fill a file. Ends the process with
/// SQLite's reason where anything fails, for a benchmark has no use for half a file.
class PlainDatabase final
{
public:
    explicit PlainDatabase(const QString &path);
    ~PlainDatabase();
    Q_DISABLE_COPY_MOVE(PlainDatabase)

    void run(const QByteArray &sql);
    /// The first column of the only row.
    [[nodiscard]] qint64 number(const QByteArray &sql);
    /// Tables in alphabetical order, each with its number of rows.
    [[nodiscard]] QByteArrayList rowCounts();

    /// Prepares, binds, steps and finalizes each statement, reading every column of every row. An
    /// insert that comes several times in a row is prepared once and reset in between, as the rows
    /// of a floor are saved.
    void replay(const QList<RecordedStatement> &statements);

    [[nodiscard]] sqlite3_stmt *prepare(const QByteArray &sql);
    /// Answers whether a row has come.
    bool step(sqlite3_stmt *statement);
    [[nodiscard]] qint64 lastInsertedId() const;

private:
    void readColumns(sqlite3_stmt *statement);
    [[noreturn]] void giveUp(const QByteArray &what) const;

    sqlite3 *m_handle = nullptr;
    /// Keeps the compiler from leaving out the reading of the columns.
    qint64 m_sink = 0;
};

/// One statement prepared once and run with ever new values, for filling tables.
class PlainInsert final
{
public:
    PlainInsert(PlainDatabase &database, const QByteArray &sql);
    ~PlainInsert();
    Q_DISABLE_COPY_MOVE(PlainInsert)

    /// Binds the values by position; answers the new row's id.
    template<typename... Values>
    qint64 operator()(const Values &...values)
    {
        m_position = 0;
        (bind(values), ...);
        return run();
    }

private:
    void bind(int value);
    void bind(qint64 value);
    void bind(double value);
    void bind(const QByteArray &value);
    void bind(const char *value) { bind(QByteArray(value)); }
    void bind(std::nullptr_t);
    qint64 run();

    PlainDatabase &m_database;
    sqlite3_stmt *m_statement;
    int m_position = 0;
};
