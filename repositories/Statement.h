// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/Logging.h"

#include <QList>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include <optional>
#include <tuple>
#include <type_traits>

class PreparedStatements;

/// How a failed statement is told in the log: the text, then the error.
struct FailureReport
{
    enum class Error
    {
        /// Streamed as a QSqlError.
        Full,
        /// Only its text.
        Text,
    };

    /// nullptr for operations whose failure leaves no line in the log.
    const char *text;
    const QLoggingCategory &(*category)() = lcDatabase;
    QtMsgType level = QtWarningMsg;
    Error error = Error::Full;
};

/// One SQL statement from preparation to result, its failure logged once and its rows released at
/// the end of the scope, so that none stays open under a checkpoint.
///
///     Statement statement(m_database, sql, {"findById failed:"});
///     statement.bind(":id", id);
///     if (!statement.run() || !statement.next()) { return std::nullopt; }
class Statement final
{
public:
    /// A fixed text: stays prepared for the next statement of the same text.
    Statement(const QSqlDatabase &database, const char *sql, const FailureReport &report);
    /// A text made for this one run.
    Statement(const QSqlDatabase &database, const QString &sql, const FailureReport &report);
    ~Statement();
    Q_DISABLE_COPY_MOVE(Statement)

    void bind(const char *placeholder, int value);
    void bind(const char *placeholder, bool value);
    void bind(const char *placeholder, double value);
    /// An unset text is bound as an empty one: NULL is for absent optionals only.
    void bind(const char *placeholder, const QString &value);
    void bind(const char *placeholder, const char *) = delete;
    template<typename T>
    void bind(const char *placeholder, const std::optional<T> &value)
    {
        if (value) {
            bind(placeholder, *value);
        } else {
            m_query.bindValue(QLatin1String(placeholder), QVariant());
        }
    }
    /// For statements with "?": in their order.
    void addBind(int value);
    void addBind(const QString &value);

    /// Runs the statement; a failure of the preparation or the run is logged and answers false.
    [[nodiscard]] bool run();
    [[nodiscard]] bool next() { return m_query.next(); }

    /// Position of a column of a "SELECT *", -1 for an unknown one. Resolve once a result, after
    /// `run`, never once a row.
    [[nodiscard]] int column(const char *name) const;

    [[nodiscard]] int integer(int column) const { return m_query.value(column).toInt(); }
    [[nodiscard]] bool boolean(int column) const { return m_query.value(column).toBool(); }
    [[nodiscard]] double real(int column) const { return m_query.value(column).toDouble(); }
    [[nodiscard]] QString text(int column) const { return m_query.value(column).toString(); }
    [[nodiscard]] std::optional<QString> optionalText(int column) const;
    [[nodiscard]] std::optional<int> optionalInteger(int column) const;

    /// Runs the statement and makes a record of every row; empty on failure, one half way through
    /// included: part of a bill would pass for the whole.
    template<typename Reader>
    [[nodiscard]] auto rows(Reader read)
    {
        QList<std::invoke_result_t<Reader, const Statement &>> records;
        if (run()) {
            while (next()) {
                records.append(read(*this));
            }
            if (brokeOff()) {
                records.clear();
            }
        }
        return records;
    }

    /// The id given by the last insert; 0 where there is none.
    [[nodiscard]] int insertedId() const { return m_query.lastInsertId().toInt(); }

private:
    /// A statement prepared before, which `m_prepared` then says, or a new one.
    [[nodiscard]] QSqlQuery waitingOr(const QSqlDatabase &database);
    void prepare(const QString &sql);
    /// Whether the rows ended in an error, which is logged then.
    [[nodiscard]] bool brokeOff();
    void fail();
    void report() const;

    /// Not a copy: the text outlives the statement.
    QByteArray m_sql;
    /// nullptr where the statement is not kept.
    PreparedStatements *m_waiting = nullptr;
    bool m_prepared = false;
    QSqlQuery m_query;
    FailureReport m_report;
};
