// SPDX-FileCopyrightText: 2026 The Zelvan POS developers
// SPDX-License-Identifier: GPL-3.0-only
#include "bench/BenchStore.h"
#include "bench/HistoryGenerator.h"
#include "bench/Measuring.h"
#include "bench/Operations.h"
#include "core/PasswordHasher.h"
#include "core/records/Printer.h"
#include "printing/ReceiptData.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDateTime>
#include <QDebug>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTextStream>

#include <benchmark/benchmark.h>
#include <sodium.h>

namespace {
/// What the command line says about all benchmarks.
struct Settings
{
    QString folder;
    /// 0 for each benchmark's own choice.
    int rounds = 0;
};

Settings settings;
bool allSucceeded = true;

QString historyOf(int sessions)
{
    return HistoryGenerator(sessions, QDateTime::currentDateTimeUtc().date())
        .cachedIn(settings.folder);
}

/// The scans grow with the history, so the long ones are repeated less often.
int roundsFor(int sessions)
{
    return settings.rounds > 0 ? settings.rounds : sessions > 100000 ? 9 : maximumRounds;
}

void fail(benchmark::State &state, const char *reason)
{
    allSucceeded = false;
    state.SkipWithError(reason);
}

void report(benchmark::State &state, const Comparison &comparison)
{
    const Timing &operation = comparison.operation;
    const Timing &floor = comparison.floor;
    state.SetIterationTime(operation.median());
    state.counters["floor_ms"] = floor.median() * 1e3;
    state.counters["operation_ms"] = operation.median() * 1e3;
    state.counters["ratio"] = operation.median() / floor.median();
    state.counters["processor_ratio"] = operation.medianOfProcessor() / floor.medianOfProcessor();
    state.counters["statements"] = double(comparison.statements);
    state.counters["processor_ms"] = operation.medianOfProcessor() * 1e3;
}

/// The rounds lie within the one iteration, for the floor is measured between them.
void measureOperation(benchmark::State &state, const Operation &operation)
{
    const int sessions = int(state.range(0));
    for (auto _ : state) {
        const auto comparison = compare(operation, historyOf(sessions), roundsFor(sessions));
        if (!comparison) {
            fail(state, "the operation failed");
            break;
        }
        report(state, *comparison);
        state.counters["first_use_ms"] = comparison->firstUse.medianOfProcessor() * 1e3;
        state.counters["first_report_ms"] = comparison->firstReport.medianOfProcessor() * 1e3;
        state.counters["steps"] = double(comparison->steps);
    }
}

/// Beside the check of the hash alone.
void measureLogin(benchmark::State &state)
{
    BenchStore store(historyOf(1000));
    const QByteArray password = HistoryShape::adminPassword.toUtf8();
    const QByteArray hash = hashPassword(HistoryShape::adminPassword).toLatin1();
    const int rounds = settings.rounds > 0 ? settings.rounds : 15;
    for (auto _ : state) {
        Comparison comparison;
        bool succeeded = true;
        for (int round = 0; round < rounds; ++round) {
            comparison.operation.measure([&] {
                succeeded = store.services.auth.login(HistoryShape::adminName,
                                                      HistoryShape::adminPassword) &&
                            succeeded;
            });
            comparison.floor.measure([&] {
                succeeded = crypto_pwhash_str_verify(hash.constData(), password.constData(),
                                                     std::size_t(password.size())) == 0 &&
                            succeeded;
            });
        }
        if (!succeeded) {
            fail(state, "a good password was refused");
            break;
        }
        comparison.statements = 1;
        report(state, comparison);
    }
}

ReceiptData receiptOf(int lines)
{
    ReceiptData receipt;
    receipt.storeName = QStringLiteral("Lotus Garden");
    receipt.storeAddress = QStringLiteral("1 Main Street");
    receipt.storePhone = QStringLiteral("555-0100");
    receipt.receiptNumber = QStringLiteral("2026-000042");
    receipt.orderNumber = QStringLiteral("4711");
    receipt.orderType = QStringLiteral("Dine In");
    receipt.tableName = QStringLiteral("T7");
    receipt.taxName = QStringLiteral("Sales Tax");
    receipt.taxRate = 8.25;
    receipt.memberPhone = QStringLiteral("0123456789");
    for (int line = 0; line < lines; ++line) {
        receipt.items.append({QStringLiteral("Noodle soup with dumplings %1").arg(line), 2,
                              QStringLiteral("Large"), 12.5});
        receipt.subtotal += 25.0;
    }
    receipt.total = receipt.subtotal;
    return receipt;
}

void measureReceipt(benchmark::State &state)
{
    const BenchStore store(historyOf(1000));
    const ReceiptData receipt = receiptOf(int(state.range(0)));
    Printer printer;
    printer.paper_width = 80;
    printer.cut_mode = QStringLiteral("partial");
    for (auto _ : state) {
        benchmark::DoNotOptimize(store.services.receipts.build(receipt, printer));
    }
}

void registerAll()
{
    for (const Operation &operation : operations()) {
        benchmark::RegisterBenchmark(operation.name, measureOperation, operation)
            ->Arg(1000)
            ->Arg(20000)
            ->Arg(200000)
            ->Arg(1000000)
            ->Iterations(1)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RegisterBenchmark("login", measureLogin)
        ->Iterations(1)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("receipt/lines", measureReceipt)
        ->Arg(60)
        ->Unit(benchmark::kMillisecond);
}

/// For reading them beside what the program says it does.
void printStatements()
{
    QTextStream out(stdout);
    for (const Operation &operation : operations()) {
        out << "# " << operation.name << '\n';
        const auto recorded = recordStatements(operation, historyOf(1000), 1);
        if (!recorded) {
            allSucceeded = false;
            continue;
        }
        for (const RecordedStatement &statement : recorded->rounds.constFirst()) {
            out << blanked(statement) << '\n';
        }
        out << '\n';
    }
}
} // namespace

int main(int argc, char *argv[])
{
    // Nothing of the user's own is read; and with local time at UTC the numbers of the day go on
    // from those of the generated day, instead of being drawn.
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
    qputenv("XDG_DATA_HOME", home.path().toUtf8());
    qputenv("TZ", "UTC");
    QLoggingCategory::setFilterRules(QStringLiteral("*.info=false"));
    benchmark::Initialize(&argc, argv);
    const QCoreApplication application(argc, argv);

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Measures what users wait for beside the same work without the program. "
                       "Takes the options of Google Benchmark too."));
    parser.addHelpOption();
    const QCommandLineOption folder(
        QStringLiteral("folder"), QStringLiteral("Where the generated databases are kept."),
        QStringLiteral("path"),
        QCoreApplication::applicationDirPath() + QLatin1String("/histories"));
    const QCommandLineOption rounds(QStringLiteral("rounds"),
                                    QStringLiteral("Rounds of each operation, at most 30."),
                                    QStringLiteral("number"), QStringLiteral("0"));
    const QCommandLineOption statements(
        QStringLiteral("statements"),
        QStringLiteral("Print the statements of each operation and measure nothing."));
    parser.addOptions({folder, rounds, statements});
    parser.process(application);
    settings = {parser.value(folder), qMin(parser.value(rounds).toInt(), maximumRounds)};

    if (parser.isSet(statements)) {
        printStatements();
    } else {
        registerAll();
        benchmark::RunSpecifiedBenchmarks();
        benchmark::Shutdown();
    }
    return allSucceeded ? 0 : 1;
}
