// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QLoggingCategory>
#include <QStringList>

/// Takes over the log for as long as the object lives, so that a test can compare all of it: order,
/// level, category and text.
class LogCapture final
{
public:
    LogCapture();
    ~LogCapture();
    Q_DISABLE_COPY_MOVE(LogCapture)

    /// One entry a line, as in `warning checkout: Commit failed`. An SQL error at its end reads
    /// `<error>`, since its words are the driver's.
    [[nodiscard]] static QStringList lines();

private:
    QtMessageHandler m_previous;
};
