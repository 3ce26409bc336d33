// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/StatementRecorder.h"

#include <QSqlDriver>
#include <QVariant>

#include <sqlite3.h>

#include <utility>

namespace {
sqlite3 *handleOf(const QSqlDatabase &database)
{
    const QVariant handle = database.driver()->handle();
    if (!handle.isValid() || qstrcmp(handle.typeName(), "sqlite3*") != 0) {
        qFatal("the connection has no SQLite handle");
    }
    return *static_cast<sqlite3 *const *>(handle.constData());
}

bool isNameCharacter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_';
}

/// The end of a text in quotes; `at` stands on the opening one, a doubled quote is part of it.
qsizetype endOfQuoted(const QByteArray &sql, qsizetype at)
{
    const char quote = sql.at(at);
    qsizetype end = at + 1;
    while (end < sql.size()) {
        if (sql.at(end) != quote) {
            ++end;
        } else if (end + 1 < sql.size() && sql.at(end + 1) == quote) {
            end += 2;
        } else {
            return end + 1;
        }
    }
    return end;
}

/// Finds the placeholders of a statement, and their values in the same statement with the values
/// filled in by SQLite: outside the placeholders the two texts are equal.
class ValueReader
{
public:
    ValueReader(const QByteArray &sql, const QByteArray &filled)
        : m_sql(sql)
        , m_filled(filled)
    {}

    [[nodiscard]] QList<RecordedValue> read()
    {
        while (m_at < m_sql.size()) {
            const char character = m_sql.at(m_at);
            if (character == '?' || character == ':') {
                readPlaceholder();
            } else {
                const qsizetype end =
                    character == '\'' || character == '"' ? endOfQuoted(m_sql, m_at) : m_at + 1;
                m_filledAt += end - m_at;
                m_at = end;
            }
        }
        return m_values;
    }

private:
    void readPlaceholder()
    {
        const qsizetype start = m_at++;
        while (m_at < m_sql.size() && isNameCharacter(m_sql.at(m_at))) {
            ++m_at;
        }
        QByteArray name = m_sql.mid(start, m_at - start);
        qsizetype index = name == "?" ? -1 : m_names.indexOf(name);
        if (index < 0) {
            index = m_names.size();
            m_names.append(name);
        }
        RecordedValue value = readLiteral();
        value.index = int(index) + 1;
        m_values.append(value);
    }

    RecordedValue readLiteral()
    {
        RecordedValue value;
        if (m_filled.at(m_filledAt) == '\'') {
            const qsizetype end = endOfQuoted(m_filled, m_filledAt);
            value.type = RecordedValue::Type::Text;
            value.text = m_filled.mid(m_filledAt + 1, end - m_filledAt - 2).replace("''", "'");
            m_filledAt = end;
            return value;
        }
        const qsizetype start = m_filledAt;
        while (m_filledAt < m_filled.size() &&
               (isNameCharacter(m_filled.at(m_filledAt)) || m_filled.at(m_filledAt) == '.' ||
                m_filled.at(m_filledAt) == '-' || m_filled.at(m_filledAt) == '+')) {
            ++m_filledAt;
        }
        const QByteArray word = m_filled.mid(start, m_filledAt - start);
        bool isInteger = false;
        value.integer = word.toLongLong(&isInteger);
        if (isInteger) {
            value.type = RecordedValue::Type::Integer;
        } else if (word != "NULL") {
            value.type = RecordedValue::Type::Real;
            value.real = word.toDouble();
        }
        return value;
    }

    const QByteArray &m_sql;
    const QByteArray &m_filled;
    qsizetype m_at = 0;
    qsizetype m_filledAt = 0;
    QByteArrayList m_names;
    QList<RecordedValue> m_values;
};
} // namespace

StatementRecorder::StatementRecorder(const QSqlDatabase &database)
    : m_database(database)
{
    sqlite3_trace_v2(handleOf(m_database), SQLITE_TRACE_STMT | SQLITE_TRACE_PROFILE, onTrace, this);
}

StatementRecorder::~StatementRecorder()
{
    sqlite3_trace_v2(handleOf(m_database), 0, nullptr, nullptr);
}

QList<RecordedStatement> StatementRecorder::take()
{
    return std::exchange(m_statements, {});
}

int StatementRecorder::onTrace(unsigned type, void *recorder, void *statement, void *text)
{
    auto *self = static_cast<StatementRecorder *>(recorder);
    auto *running = static_cast<sqlite3_stmt *>(statement);
    if (type == SQLITE_TRACE_STMT) {
        self->begins(running, static_cast<const char *>(text));
    } else {
        self->ended(running);
    }
    return 0;
}

void StatementRecorder::begins(sqlite3_stmt *statement, const char *text)
{
    // The comments tell of triggers and foreign keys inside a statement.
    if (qstrncmp(text, "--", 2) == 0) {
        return;
    }
    // What a prepared statement did before is not of this run.
    sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_VM_STEP, 1);
    sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_FULLSCAN_STEP, 1);
    char *filled = sqlite3_expanded_sql(statement);
    RecordedStatement recorded;
    recorded.sql = sqlite3_sql(statement);
    recorded.values = ValueReader(recorded.sql, QByteArray(filled)).read();
    sqlite3_free(filled);
    m_statements.append(recorded);
}

void StatementRecorder::ended(sqlite3_stmt *statement)
{
    m_steps += sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_VM_STEP, 1);
    m_scannedRows += sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_FULLSCAN_STEP, 1);
}

QByteArray blanked(const RecordedStatement &statement)
{
    QByteArray text;
    const QByteArray sql = statement.sql.simplified();
    for (qsizetype at = 0; at < sql.size();) {
        qsizetype end = at + 1;
        if (sql.at(at) == '?' || sql.at(at) == ':') {
            while (end < sql.size() && isNameCharacter(sql.at(end))) {
                ++end;
            }
            text += '?';
        } else {
            text += sql.at(at);
        }
        at = end;
    }
    return text;
}
