// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "core/records/ReceiptSnapshot.h"

#include <QSqlDatabase>

#include <optional>

/// The SQL of `receipt_snapshot`: written once at payment, never changed.
class ReceiptSnapshotRepository final
{
public:
    explicit ReceiptSnapshotRepository(const QSqlDatabase &database);

    /// The new id, 0 on failure.
    int create(const ReceiptSnapshot &snapshot);
    [[nodiscard]] std::optional<ReceiptSnapshot> getByOrderSession(int orderSessionId) const;

private:
    QSqlDatabase m_database;
};
