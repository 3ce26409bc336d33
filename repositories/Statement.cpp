// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/Statement.h"

#include "core/TransactionWatch.h"
#include "repositories/PreparedStatements.h"

#include <QDebug>
#include <QSqlError>
#include <QSqlRecord>

namespace {
QString notNull(const QString &value)
{
    return value.isNull() ? QStringLiteral("") : value;
}
} // namespace

Statement::Statement(const QSqlDatabase &database, const char *sql, const FailureReport &report)
    : m_sql(QByteArray::fromRawData(sql, qsizetype(qstrlen(sql))))
    , m_waiting(PreparedStatements::of(database))
    , m_query(waitingOr(database))
    , m_report(report)
{
    if (!m_prepared) {
        prepare(QString::fromUtf8(m_sql));
    }
}

Statement::Statement(const QSqlDatabase &database, const QString &sql, const FailureReport &report)
    : m_query(database)
    , m_report(report)
{
    prepare(sql);
}

Statement::~Statement()
{
    if (m_waiting != nullptr && m_prepared) {
        m_waiting->keep(m_sql, std::move(m_query));
    }
}

void Statement::bind(const char *placeholder, int value)
{
    m_query.bindValue(QLatin1String(placeholder), value);
}

void Statement::bind(const char *placeholder, bool value)
{
    m_query.bindValue(QLatin1String(placeholder), value ? 1 : 0);
}

void Statement::bind(const char *placeholder, double value)
{
    m_query.bindValue(QLatin1String(placeholder), value);
}

void Statement::bind(const char *placeholder, const QString &value)
{
    m_query.bindValue(QLatin1String(placeholder), notNull(value));
}

void Statement::addBind(int value)
{
    m_query.addBindValue(value);
}

void Statement::addBind(const QString &value)
{
    m_query.addBindValue(notNull(value));
}

bool Statement::run()
{
    if (m_prepared && m_query.exec()) {
        return true;
    }
    fail();
    return false;
}

int Statement::column(const char *name) const
{
    return m_query.record().indexOf(QLatin1String(name));
}

std::optional<QString> Statement::optionalText(int column) const
{
    const QVariant value = m_query.value(column);
    return value.isNull() ? std::nullopt : std::optional(value.toString());
}

std::optional<int> Statement::optionalInteger(int column) const
{
    const QVariant value = m_query.value(column);
    return value.isNull() ? std::nullopt : std::optional(value.toInt());
}

QSqlQuery Statement::waitingOr(const QSqlDatabase &database)
{
    if (m_waiting != nullptr) {
        if (std::optional<QSqlQuery> query = m_waiting->take(m_sql)) {
            m_prepared = true;
            return std::move(*query);
        }
    }
    return QSqlQuery(database);
}

void Statement::prepare(const QString &sql)
{
    m_query.setForwardOnly(true);
    m_prepared = m_query.prepare(sql);
}

bool Statement::brokeOff()
{
    if (!m_query.lastError().isValid()) {
        return false;
    }
    fail();
    return true;
}

void Statement::fail()
{
    report();
    m_waiting = nullptr;
    TransactionWatch::statementFailed(m_query.driver());
}

void Statement::report() const
{
    if (!m_report.text) {
        return;
    }
    const QSqlError error = m_query.lastError();
    const QLoggingCategory &category = m_report.category();
    const QMessageLogger logger(nullptr, 0, nullptr, category.categoryName());
    QDebug line = m_report.level == QtCriticalMsg ? logger.critical() : logger.warning();
    line << m_report.text;
    if (m_report.error == FailureReport::Error::Full) {
        line << error;
    } else {
        line << error.text();
    }
}
