// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "repositories/PrinterRepository.h"

#include "repositories/Statement.h"

namespace {
FailureReport failure(const char *text)
{
    return {text, lcDatabase, QtWarningMsg, FailureReport::Error::Text};
}

Printer readPrinter(const Statement &row)
{
    Printer printer;
    printer.id = row.integer(0);
    printer.system_name = row.text(1);
    printer.role = row.text(2);
    printer.paper_width = row.integer(3);
    printer.cut_mode = row.text(4);
    return printer;
}

void bindFields(Statement &statement, const Printer &printer)
{
    statement.addBind(printer.system_name);
    statement.addBind(printer.role);
    statement.addBind(printer.paper_width);
    statement.addBind(printer.cut_mode);
}
} // namespace

PrinterRepository::PrinterRepository(const QSqlDatabase &database)
    : m_database(database)
{}

constexpr auto insertSql =
    "INSERT INTO printers (system_name, role, paper_width, cut_mode) VALUES (?, ?, ?, ?)";

void PrinterRepository::insert(const Printer &printer)
{
    Statement statement(m_database, insertSql, failure("Failed to insert printer:"));
    bindFields(statement, printer);
    // A failure is only logged: writes of settings answer nothing.
    std::ignore = statement.run();
}

constexpr auto updateSql = R"(
    UPDATE printers SET system_name = ?, role = ?, paper_width = ?, cut_mode = ?,
        updated_at = CURRENT_TIMESTAMP
    WHERE id = ?)";

void PrinterRepository::update(const Printer &printer)
{
    Statement statement(m_database, updateSql, failure("Failed to update printer:"));
    bindFields(statement, printer);
    statement.addBind(printer.id);
    std::ignore = statement.run();
}

void PrinterRepository::remove(int id)
{
    Statement statement(m_database, "DELETE FROM printers WHERE id = ?",
                        failure("Failed to delete printer:"));
    statement.addBind(id);
    std::ignore = statement.run();
}

constexpr auto fetchByIdSql =
    "SELECT id, system_name, role, paper_width, cut_mode FROM printers WHERE id = ?";

std::optional<Printer> PrinterRepository::fetchById(int id) const
{
    Statement statement(m_database, fetchByIdSql, failure("Failed to get printer:"));
    statement.addBind(id);
    if (!statement.run() || !statement.next()) {
        return std::nullopt;
    }
    return readPrinter(statement);
}

QList<Printer> PrinterRepository::fetchAll() const
{
    Statement statement(m_database,
                        "SELECT id, system_name, role, paper_width, cut_mode FROM printers",
                        failure("Failed to get all printers:"));
    return statement.rows(readPrinter);
}
