// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/Figures.h"
#include "bench/HistoryGenerator.h"
#include "bench/Measuring.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDateTime>
#include <QFile>
#include <QJsonObject>
#include <QLoggingCategory>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <optional>

namespace {
struct FirstFrame
{
    double milliseconds = 0.0;
    double megabytes = 0.0;
};

/// Starts the program next to this one and waits for its first frame.
std::optional<FirstFrame> firstFrameOf(const QString &program)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    const auto start = std::chrono::steady_clock::now().time_since_epoch();
    process.start(QCoreApplication::applicationDirPath() + QLatin1Char('/') + program, {});
    const bool ended = process.waitForFinished(30000);
    const QByteArrayList told = process.readAllStandardOutput().trimmed().split(' ');
    if (!ended || process.exitCode() != 0 || told.size() != 2) {
        std::fprintf(stderr, "%s showed no frame\n", qPrintable(program));
        return std::nullopt;
    }
    const auto shown = std::chrono::nanoseconds(told.at(0).toLongLong());
    return FirstFrame{std::chrono::duration<double, std::milli>(shown - start).count(),
                      told.at(1).toDouble() / 1024.0};
}

/// Settings of their own, which name a store that only waits for a log-in.
void makeReadyStore(const QString &home, const QString &histories)
{
    const QString database = home + QLatin1String("/store.db");
    const QDate today = QDateTime::currentDateTimeUtc().date();
    if (!QFile::copy(HistoryGenerator(1000, today).cachedIn(histories), database)) {
        qFatal("cannot make the store");
    }
    QSettings(QStringLiteral("Zelvan"), QStringLiteral("ZelvanPOS"))
        .setValue(QStringLiteral("database/path"), database);
}
} // namespace

/// From the start of the process to the first frame: the program on its login screen and a bare
/// window, in turn.
int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    for (const char *variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME"}) {
        qputenv(variable, home.path().toUtf8());
    }
    const QCoreApplication application(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.info=false"));
    QCommandLineParser parser;
    parser.addHelpOption();
    const QCommandLineOption rounds(QStringLiteral("rounds"), QStringLiteral("Starts of each."),
                                    QStringLiteral("number"), QStringLiteral("20"));
    const QCommandLineOption out(QStringLiteral("out"), QStringLiteral("Where the JSON goes."),
                                 QStringLiteral("file"));
    parser.addOptions({rounds, out});
    parser.process(application);

    makeReadyStore(home.path(),
                   QCoreApplication::applicationDirPath() + QLatin1String("/histories"));
    QList<double> programTimes, programMemory, bareTimes, bareMemory;
    // The first of each fills the caches.
    for (int round = -1; round < parser.value(rounds).toInt(); ++round) {
        const auto program = firstFrameOf(QStringLiteral("first_frame_program"));
        const auto bare = firstFrameOf(QStringLiteral("first_frame_bare"));
        if (!program || !bare) {
            return 1;
        }
        if (round >= 0) {
            programTimes.append(program->milliseconds);
            programMemory.append(program->megabytes);
            bareTimes.append(bare->milliseconds);
            bareMemory.append(bare->megabytes);
        }
    }

    const QJsonObject figures{
        {QStringLiteral("program_ms"), median(programTimes)},
        {QStringLiteral("bare_ms"), median(bareTimes)},
        {QStringLiteral("ratio"), median(programTimes) / median(bareTimes)},
        {QStringLiteral("program_megabytes"), median(programMemory)},
        {QStringLiteral("bare_megabytes"), median(bareMemory)},
        {QStringLiteral("megabytes_on_top"), median(programMemory) - median(bareMemory)},
    };
    return tellFigures(figures, parser.value(out)) ? 0 : 1;
}
