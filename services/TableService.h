// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "models/TableModel.h"

#include <QObject>
#include <QString>

class TableRepository;

/// Keeps the tables; every change of a table's status goes through here.
class TableService final : public QObject
{
    Q_OBJECT
    Q_PROPERTY(TableModel *tableModel READ tableModel CONSTANT)

public:
    explicit TableService(TableRepository *tables, QObject *parent = nullptr);

    /// Filled on first use; while the restaurant has no table every call asks the store again.
    [[nodiscard]] TableModel *tableModel() const;

    /// The new id; -1 for a blank name or a capacity below 1, 0 when the write failed.
    Q_INVOKABLE int addTable(const QString &tableName, int capacity);
    /// The status stays as it was. False for an unknown table or bad input.
    Q_INVOKABLE bool editTable(int tableId, const QString &tableName, int capacity);
    /// False for an unknown table. Sessions at the table go on without one.
    Q_INVOKABLE bool removeTable(int tableId);
    /// Stores any text and always answers true, also for a table that does not exist.
    Q_INVOKABLE bool setTableStatus(int tableId, const QString &status);
    /// Tells what the store holds, after a change that was told and then undone. Says nothing of a
    /// table that is not there.
    void announceStoredStatus(int tableId);

signals:
    void tablesChanged();
    void tableStatusChanged(int tableId, const QString &status);

private:
    TableRepository *m_tables;
    TableModel *m_tableModel;
};
