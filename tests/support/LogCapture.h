// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QLoggingCategory>
#include <QStringList>

#include <functional>

/// Takes over the log for as long as the object lives, so that a test can compare all of it: order,
/// level, category and text. No message reaches anybody else, of whatever thread. One at a time.
class LogCapture final
{
public:
    LogCapture();
    ~LogCapture();
    Q_DISABLE_COPY_MOVE(LogCapture)

    /// One entry a message, as in "warning [checkout] Commit failed". An error at its end stands as
    /// "<QSqlError>" when it was streamed whole and as "<error text>" when only its text was.
    [[nodiscard]] QStringList lines() const;

private:
    QtMessageHandler m_previous;
};

/// What an operation left in the log: the lines of a LogCapture joined by line ends, empty for
/// nothing.
[[nodiscard]] QString logOf(const std::function<void()> &operation);
