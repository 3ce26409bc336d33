// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/PlainDatabase.h"

#include "bench/StatementRecorder.h"

#include <QDebug>

#include <sqlite3.h>

namespace {
void bindValue(sqlite3_stmt *statement, const RecordedValue &value)
{
    switch (value.type) {
    case RecordedValue::Type::Null:
        sqlite3_bind_null(statement, value.index);
        break;
    case RecordedValue::Type::Integer:
        sqlite3_bind_int64(statement, value.index, value.integer);
        break;
    case RecordedValue::Type::Real:
        sqlite3_bind_double(statement, value.index, value.real);
        break;
    case RecordedValue::Type::Text:
        sqlite3_bind_text(statement, value.index, value.text.constData(), int(value.text.size()),
                          SQLITE_STATIC);
        break;
    }
}
} // namespace

PlainDatabase::PlainDatabase(const QString &path)
{
    if (sqlite3_open_v2(path.toUtf8().constData(), &m_handle,
                        SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr) != SQLITE_OK) {
        giveUp(path.toUtf8());
    }
    run("PRAGMA foreign_keys = ON");
    run("PRAGMA journal_mode = WAL");
}

PlainDatabase::~PlainDatabase()
{
    sqlite3_close(m_handle);
}

void PlainDatabase::run(const QByteArray &sql)
{
    if (sqlite3_exec(m_handle, sql.constData(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        giveUp(sql);
    }
}

qint64 PlainDatabase::number(const QByteArray &sql)
{
    sqlite3_stmt *statement = prepare(sql);
    const qint64 number = step(statement) ? sqlite3_column_int64(statement, 0) : 0;
    sqlite3_finalize(statement);
    return number;
}

QByteArrayList PlainDatabase::rowCounts()
{
    QByteArrayList tables;
    sqlite3_stmt *statement =
        prepare("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name");
    while (step(statement)) {
        tables.append(reinterpret_cast<const char *>(sqlite3_column_text(statement, 0)));
    }
    sqlite3_finalize(statement);
    for (QByteArray &table : tables) {
        table += ": " + QByteArray::number(number("SELECT COUNT(*) FROM " + table));
    }
    return tables;
}

void PlainDatabase::replay(const QList<RecordedStatement> &statements)
{
    sqlite3_stmt *statement = nullptr;
    QByteArray prepared;
    for (const RecordedStatement &recorded : statements) {
        if (recorded.sql == prepared && prepared.trimmed().startsWith("INSERT")) {
            sqlite3_reset(statement);
        } else {
            sqlite3_finalize(statement);
            statement = prepare(recorded.sql);
            prepared = recorded.sql;
        }
        for (const RecordedValue &value : recorded.values) {
            bindValue(statement, value);
        }
        while (step(statement)) {
            readColumns(statement);
        }
    }
    sqlite3_finalize(statement);
}

sqlite3_stmt *PlainDatabase::prepare(const QByteArray &sql)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(m_handle, sql.constData(), int(sql.size()) + 1, &statement, nullptr) !=
        SQLITE_OK) {
        giveUp(sql);
    }
    return statement;
}

bool PlainDatabase::step(sqlite3_stmt *statement)
{
    const int result = sqlite3_step(statement);
    if (result != SQLITE_ROW && result != SQLITE_DONE) {
        giveUp(sqlite3_sql(statement));
    }
    return result == SQLITE_ROW;
}

qint64 PlainDatabase::lastInsertedId() const
{
    return sqlite3_last_insert_rowid(m_handle);
}

void PlainDatabase::readColumns(sqlite3_stmt *statement)
{
    const int count = sqlite3_column_count(statement);
    for (int column = 0; column < count; ++column) {
        switch (sqlite3_column_type(statement, column)) {
        case SQLITE_INTEGER:
            m_sink += sqlite3_column_int64(statement, column);
            break;
        case SQLITE_FLOAT:
            m_sink += sqlite3_column_double(statement, column) > 0.0 ? 1 : 0;
            break;
        case SQLITE_TEXT:
            m_sink += *sqlite3_column_text(statement, column);
            m_sink += sqlite3_column_bytes(statement, column);
            break;
        default:
            break;
        }
    }
}

void PlainDatabase::giveUp(const QByteArray &what) const
{
    qFatal("%s: %s", what.constData(), sqlite3_errmsg(m_handle));
    abort();
}

PlainInsert::PlainInsert(PlainDatabase &database, const QByteArray &sql)
    : m_database(database)
    , m_statement(database.prepare(sql))
{}

PlainInsert::~PlainInsert()
{
    sqlite3_finalize(m_statement);
}

void PlainInsert::bind(int value)
{
    sqlite3_bind_int(m_statement, ++m_position, value);
}

void PlainInsert::bind(qint64 value)
{
    sqlite3_bind_int64(m_statement, ++m_position, value);
}

void PlainInsert::bind(double value)
{
    sqlite3_bind_double(m_statement, ++m_position, value);
}

void PlainInsert::bind(const QByteArray &value)
{
    sqlite3_bind_text(m_statement, ++m_position, value.constData(), int(value.size()),
                      SQLITE_TRANSIENT);
}

void PlainInsert::bind(std::nullptr_t)
{
    sqlite3_bind_null(m_statement, ++m_position);
}

qint64 PlainInsert::run()
{
    while (m_database.step(m_statement)) {
    }
    sqlite3_reset(m_statement);
    return m_database.lastInsertedId();
}
