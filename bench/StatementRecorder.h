// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>
#include <QList>
#include <QSqlDatabase>

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

private:
    static int onTrace(unsigned type, void *recorder, void *statement, void *text);

    QSqlDatabase m_database;
    QList<RecordedStatement> m_statements;
};

/// The statement on one line, its runs of blanks made single and each value shown as "?".
[[nodiscard]] QByteArray blanked(const RecordedStatement &statement);
