// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QHash>
#include <QString>
#include <QVariant>

#include <optional>

class TableRepository;

/// The names of all tables at one moment, for lists that show a table beside each row.
class TableNames final
{
public:
    explicit TableNames(const TableRepository &tables);

    /// What QML gets for a session's table: null without one, an empty text when it no longer
    /// exists.
    [[nodiscard]] QVariant shown(std::optional<int> tableId) const;

private:
    QHash<int, QString> m_names;
};
