// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QDate>
#include <QString>
#include <QStringList>

/// The statements that make and ask the working set. Its ids stand in tables `working_...` of the
/// connection's temporary schema.
namespace WorkingSetSql {
/// The version of the file as other connections left it, and whether the set has lost track.
extern const char *const state;
/// The closing time that comes at a place in the row of those paid last.
extern const char *const lastPaid;
/// The latest closing time outside of the set.
extern const char *const latestOutside;
/// Whether the blocks that reach into a period are fewer than half of the older ones.
extern const char *const isNarrow;
/// The condition on a block, for `:from` and `:to` as ISO texts: whether a session of it may have
/// been closed in the period. A stamp's own first characters are up to four days before the day
/// that DATE makes of it, and one day behind it.
#define ZELVAN_BLOCK_OF_THE_PERIOD(block)                                                          \
    block "high >= COALESCE(DATE(:from, '-4 days'), '') AND " block                                \
          "low < COALESCE(DATE(:to, '+2 days'), x'')"
/// The steps that make the map of older sessions: which stamps each block of ids holds.
extern const QStringList calendar;
/// Tables and triggers, where they are not there yet; all of them empty then.
extern const QStringList schema;

/// The id to begin with: the youngest days lie behind it, and at least some sessions.
[[nodiscard]] QString firstSession(const QDate &youngFrom);
[[nodiscard]] QString firstOrder(qlonglong firstSession);
/// What fills the tables, in this order.
[[nodiscard]] QString sessions(qlonglong firstSession, const QDate &youngFrom);
[[nodiscard]] QString orders(qlonglong firstSession, qlonglong firstOrder, const QDate &youngFrom);
[[nodiscard]] QString lines(qlonglong firstOrder);
[[nodiscard]] QString points(qlonglong firstSession);
[[nodiscard]] QString snapshots(qlonglong firstSession);
[[nodiscard]] QString bookings();
} // namespace WorkingSetSql
