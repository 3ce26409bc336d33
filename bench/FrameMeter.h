// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#pragma once

#include <QJsonObject>
#include <QList>

#include <functional>

class QQuickWindow;

/// What passes from when it was made.
class Stopwatch final
{
public:
    Stopwatch();

    /// Milliseconds on the clock on the wall.
    [[nodiscard]] double elapsed() const;
    /// Milliseconds that the processor worked in this process.
    [[nodiscard]] double processor() const;
    /// Both.
    [[nodiscard]] QJsonObject toJson() const;

private:
    double m_elapsed;
    double m_processor;
};

/// Times from frame to frame, in milliseconds.
struct FrameTimes
{
    /// On the clock on the wall.
    QList<double> elapsed;
    /// What the processor worked in this process: steadier on a busy machine.
    QList<double> processor;

    /// Number, median, 95th percentile, longest and share above 16 ms of each.
    [[nodiscard]] QJsonObject toJson() const;
};

/// Makes so many steps in a window on show, each as soon as the frame of the one before is there,
/// and takes the time that each needs until its own.
[[nodiscard]] FrameTimes measureFrames(QQuickWindow &window, int steps,
                                       const std::function<void(int)> &step);
