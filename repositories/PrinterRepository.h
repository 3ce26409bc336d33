// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/Printer.h"

#include <QList>
#include <QSqlDatabase>

#include <optional>

/// The SQL of `printers`. Writes answer nothing: failures are only logged.
class PrinterRepository final
{
public:
    explicit PrinterRepository(const QSqlDatabase &database);

    void insert(const Printer &printer);
    void update(const Printer &printer);
    void remove(int id);

    [[nodiscard]] std::optional<Printer> fetchById(int id) const;
    [[nodiscard]] QList<Printer> fetchAll() const;

private:
    QSqlDatabase m_database;
};
