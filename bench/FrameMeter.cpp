// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/FrameMeter.h"

#include "bench/Measuring.h"

#include <QEventLoop>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <ctime>

namespace {
/// What a frame may take, for 60 of them a second.
constexpr double limit = 16.0;

double elapsedMilliseconds()
{
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::milli>(now).count();
}

double processorMilliseconds()
{
    return double(std::clock()) * 1000.0 / double(CLOCKS_PER_SEC);
}

QJsonObject figuresOf(QList<double> times)
{
    std::sort(times.begin(), times.end());
    const auto over = std::count_if(times.cbegin(), times.cend(),
                                    [](double milliseconds) { return milliseconds > limit; });
    return {
        {QStringLiteral("median_ms"), median(times)},
        {QStringLiteral("percentile_95_ms"), times.at((times.size() - 1) * 95 / 100)},
        {QStringLiteral("longest_ms"), times.constLast()},
        {QStringLiteral("share_over_16_ms"), double(over) / double(times.size())},
    };
}
} // namespace

Stopwatch::Stopwatch()
    : m_elapsed(elapsedMilliseconds())
    , m_processor(processorMilliseconds())
{}

double Stopwatch::elapsed() const
{
    return elapsedMilliseconds() - m_elapsed;
}

double Stopwatch::processor() const
{
    return processorMilliseconds() - m_processor;
}

QJsonObject Stopwatch::toJson() const
{
    return {{QStringLiteral("elapsed_ms"), elapsed()},
            {QStringLiteral("processor_ms"), processor()}};
}

QJsonObject FrameTimes::toJson() const
{
    return {
        {QStringLiteral("frames"), elapsed.size()},
        {QStringLiteral("elapsed"), figuresOf(elapsed)},
        {QStringLiteral("processor"), figuresOf(processor)},
    };
}

FrameTimes measureFrames(QQuickWindow &window, int steps, const std::function<void(int)> &step)
{
    FrameTimes times;
    QEventLoop loop;
    Stopwatch frame;
    const auto begin = [&] {
        frame = Stopwatch();
        step(int(times.elapsed.size()));
        // A step that changes nothing on show has its frame too.
        window.update();
    };
    // Queued, so that a step is never made inside the drawing.
    QObject::connect(
        &window, &QQuickWindow::frameSwapped, &loop,
        [&] {
            times.elapsed.append(frame.elapsed());
            times.processor.append(frame.processor());
            if (times.elapsed.size() < steps) {
                begin();
            } else {
                loop.quit();
            }
        },
        Qt::QueuedConnection);
    QTimer::singleShot(std::chrono::minutes(5), &loop,
                       [] { qFatal("the window shows no frames"); });
    begin();
    loop.exec();
    return times;
}
