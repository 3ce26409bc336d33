// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QByteArray>

/// A statement in two forms: as it is, and with one more condition that keeps SQLite from reading
/// rows that cannot be in the answer. "{bound}" in the text says where the condition goes,
/// "{inner}" where one of a statement inside it goes.
class BoundedSql final
{
public:
    BoundedSql(const char *sql, const char *condition, const char *innerCondition = "")
        : m_plain(QByteArray(sql).replace("{bound}", "").replace("{inner}", ""))
        , m_bounded(
              QByteArray(sql).replace("{bound}", condition).replace("{inner}", innerCondition))
    {}

    /// Lives as long as this object.
    [[nodiscard]] const char *text(bool bounded) const
    {
        return (bounded ? m_bounded : m_plain).constData();
    }

private:
    QByteArray m_plain;
    QByteArray m_bounded;
};
