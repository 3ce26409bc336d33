// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/Measuring.h"

#include "bench/BenchStore.h"
#include "bench/PlainDatabase.h"
#include "repositories/WorkingSet.h"

#include <QDebug>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <ctime>

namespace {
/// Copies of a prepared file, beside it, so that they lie on the same disk.
class Copies
{
public:
    Copies(const Operation &operation, const QString &history)
        : m_folder(QFileInfo(history).absolutePath() + QLatin1String("/copies-XXXXXX"))
    {
        m_prepared = copy(history, QStringLiteral("prepared.db"));
        PlainDatabase file(m_prepared);
        operation.prepare(file);
        file.run("PRAGMA wal_checkpoint(TRUNCATE)");
    }

    [[nodiscard]] QString named(const QString &name) const { return copy(m_prepared, name); }

private:
    [[nodiscard]] QString copy(const QString &from, const QString &name) const
    {
        const QString to = m_folder.filePath(name);
        if (!QFile::copy(from, to)) {
            qFatal("cannot copy %s", qPrintable(from));
        }
        return to;
    }

    QTemporaryDir m_folder;
    QString m_prepared;
};

/// What the first use after a start pays for.
void learn()
{
    if (!WorkingSet::isReady(DatabaseManager::connection())) {
        qFatal("no working set");
    }
}

/// What the first report pays for.
void learnCalendar()
{
    if (!WorkingSet::hasCalendar(DatabaseManager::connection())) {
        qFatal("no calendar");
    }
}

std::optional<Recording> recordOn(const Operation &operation, const QString &path, int rounds)
{
    BenchStore store(path);
    StatementRecorder recorder(DatabaseManager::connection());
    learn();
    learnCalendar();
    Recording recording;
    recording.firstUse = recorder.take();
    operation.begin(store.services);
    std::ignore = recorder.take();
    const qint64 stepsBefore = recorder.steps();
    for (int round = 0; round < rounds; ++round) {
        if (!operation.run(store.services, round)) {
            qCritical() << operation.name << "failed in round" << round;
            return std::nullopt;
        }
        recording.rounds.append(recorder.take());
    }
    recording.steps = (recorder.steps() - stepsBefore) / rounds;
    return recording;
}

bool alike(const QString &one, const QString &other)
{
    const QByteArrayList left = PlainDatabase(one).rowCounts();
    const QByteArrayList right = PlainDatabase(other).rowCounts();
    if (left != right) {
        qCritical() << "the operation and its floor differ:" << left << right;
    }
    return left == right;
}
} // namespace

double median(QList<double> values)
{
    const auto middle = values.begin() + values.size() / 2;
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

void Timing::measure(const std::function<void()> &work)
{
    const auto start = std::chrono::steady_clock::now();
    const std::clock_t processorStart = std::clock();
    work();
    const std::clock_t processorEnd = std::clock();
    const auto end = std::chrono::steady_clock::now();
    m_elapsed.append(std::chrono::duration<double>(end - start).count());
    m_processor.append(double(processorEnd - processorStart) / CLOCKS_PER_SEC);
}

double Timing::median() const
{
    return ::median(m_elapsed);
}

double Timing::medianOfProcessor() const
{
    return ::median(m_processor);
}

std::optional<Recording> recordStatements(const Operation &operation, const QString &history,
                                          int rounds)
{
    return recordOn(operation, Copies(operation, history).named(QStringLiteral("recorded.db")),
                    rounds);
}

std::optional<Comparison> compare(const Operation &operation, const QString &history, int rounds)
{
    const Copies copies(operation, history);
    const auto recording = recordOn(operation, copies.named(QStringLiteral("recorded.db")), rounds);
    if (!recording) {
        return std::nullopt;
    }
    const QString operationFile = copies.named(QStringLiteral("operation.db"));
    const QString floorFile = copies.named(QStringLiteral("floor.db"));
    Comparison comparison;
    comparison.statements = recording->rounds.constFirst().size();
    comparison.steps = recording->steps;
    bool succeeded = true;
    {
        BenchStore store(operationFile);
        comparison.firstUse.measure(learn);
        comparison.firstReport.measure(learnCalendar);
        operation.begin(store.services);
        PlainDatabase floor(floorFile);
        floor.replay(recording->firstUse);
        for (int round = 0; round < rounds; ++round) {
            const auto runOperation = [&] {
                comparison.operation.measure(
                    [&] { succeeded = operation.run(store.services, round) && succeeded; });
            };
            const auto runFloor = [&] {
                comparison.floor.measure([&] { floor.replay(recording->rounds.at(round)); });
            };
            if (round % 2 == 0) {
                runOperation();
                runFloor();
            } else {
                runFloor();
                runOperation();
            }
        }
    }
    DatabaseManager::closeDatabase();
    if (!succeeded || !alike(operationFile, floorFile)) {
        return std::nullopt;
    }
    return comparison;
}
