// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include "bench/Operations.h"
#include "bench/StatementRecorder.h"

#include <QList>
#include <QString>

#include <functional>
#include <optional>

/// Of a list that is not empty.
[[nodiscard]] double median(QList<double> values);

/// The times of one piece of work, round by round, in seconds.
class Timing final
{
public:
    void measure(const std::function<void()> &work);

    /// What passes on the clock on the wall.
    [[nodiscard]] double median() const;
    /// What the processor works: steadier on a busy machine, but without the waiting for the disk.
    [[nodiscard]] double medianOfProcessor() const;

private:
    QList<double> m_elapsed;
    QList<double> m_processor;
};

struct Comparison
{
    Timing operation;
    /// The same statements through the plain C interface, or the library call alone.
    Timing floor;
    /// What is learned once a start, before the first of them.
    Timing firstUse;
    /// What the first report learns beyond that, once a start.
    Timing firstReport;
    /// Of one round.
    qsizetype statements = 0;
    /// SQLite's own steps in one round: they grow with the rows that are looked at, on any
    /// computer.
    qint64 steps = 0;
};

/// What an operation asks of SQLite.
struct Recording
{
    QList<RecordedStatement> firstUse;
    QList<QList<RecordedStatement>> rounds;
    /// Of a round, on average.
    qint64 steps = 0;
};

/// What the operation asks of SQLite, round by round, on a copy of the file.
[[nodiscard]] std::optional<Recording> recordStatements(const Operation &operation,
                                                        const QString &history, int rounds);

/// Runs the operation on one copy of the file and its statements on another, in turn, the one and
/// the other first. Nothing where the operation failed, or where the two files are not alike in the
/// end.
[[nodiscard]] std::optional<Comparison> compare(const Operation &operation, const QString &history,
                                                int rounds);
