// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QList>
#include <QSqlDatabase>

struct sqlite3_stmt;

/// A value as it was bound, by its position in SQLite's own count of the placeholders.
struct RecordedValue
{
    enum class Type
    {
        Null,
        Integer,
        Real,
        Text,
    };

    int index = 0;
    Type type = Type::Null;
    qint64 integer = 0;
    double real = 0.0;
    QByteArray text;
};

/// One run of one statement.
struct RecordedStatement
{
    /// As it was prepared, placeholders and all.
    QByteArray sql;
    QList<RecordedValue> values;
};

/// Notes every statement that SQLite itself begins on a connection, for as long as the object
/// lives: the transactions' own too, but not what foreign keys do behind a statement.
class StatementRecorder final
{
public:
    explicit StatementRecorder(const QSqlDatabase &database);
    ~StatementRecorder();
    Q_DISABLE_COPY_MOVE(StatementRecorder)

    [[nodiscard]] const QList<RecordedStatement> &statements() const { return m_statements; }
    /// Hands out what was noted and begins anew.
    [[nodiscard]] QList<RecordedStatement> take();
    /// The steps of SQLite's own machine in the statements that have ended: each row that is looked
    /// at costs some, so they tell what a clock on a busy computer cannot.
    [[nodiscard]] qint64 steps() const { return m_steps; }
    /// The rows that were passed in reading a table from end to end.
    [[nodiscard]] qint64 scannedRows() const { return m_scannedRows; }

private:
    static int onTrace(unsigned type, void *recorder, void *statement, void *text);
    void begins(sqlite3_stmt *statement, const char *text);
    void ended(sqlite3_stmt *statement);

    QSqlDatabase m_database;
    QList<RecordedStatement> m_statements;
    qint64 m_steps = 0;
    qint64 m_scannedRows = 0;
};

/// The statement on one line, its runs of blanks made single and each value shown as "?".
[[nodiscard]] QByteArray blanked(const RecordedStatement &statement);
