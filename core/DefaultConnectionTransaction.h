// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QSqlDatabase>

/// A transaction on Qt's default connection, which this program never registers: its handle is then
/// invalid, every step answers false and nothing is begun. See OrderService::updateOrder.
class DefaultConnectionTransaction final
{
public:
    DefaultConnectionTransaction();

    /// The result is not looked at by the one caller, and may be ignored.
    bool begin();
    [[nodiscard]] bool commit();
    bool rollback();

private:
    QSqlDatabase m_handle;
};
